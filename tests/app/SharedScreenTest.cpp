// The shared-expenses screen on the demo ledger with a frozen day: the balances in words, a
// settlement that moves one, each person's history, adding and deleting a person.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

#include "app/model/DisplayText.hpp"
#include "app/model/LedgerViewModel.hpp"
#include "app/screens/SharedScreen.hpp"
#include "app/settings/Language.hpp"
#include "core/ledger/LedgerSharing.hpp"
#include "tests/app/ScreenWorkplace.hpp"

using namespace vantello;
using namespace vantello::app;
using namespace vantello::app::testing;

namespace {

template <typename Widget>
Widget* part(const QObject& screen, const char* name) {
    auto* found = screen.findChild<Widget*>(QString::fromLatin1(name));
    if (!found) qFatal("no widget named %s", name);
    return found;
}

QString shownBalance(const SharedScreen& screen, int row) {
    return screen.peopleModel().index(row, 1).data().toString();
}

}  // namespace

class SharedScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        useItalianInterface();
    }

    void balancesSayWhoOwesWhom() {
        QCOMPARE(balanceText(Decimal(1250)), QStringLiteral("Ti deve ") + euroText(Decimal(1250)));
        QCOMPARE(balanceText(Decimal(-1250, -2)), QStringLiteral("Devi ") + euroText(Decimal(1250, -2)));
        QCOMPARE(balanceText(Decimal()), QStringLiteral("In pari"));
    }

    void demoShowsGiuliaWithHerBalanceAndHistory() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        SharedScreen screen(*model);

        QCOMPARE(screen.peopleModel().rowCount(), 1);
        const Uuid giulia = *screen.peopleModel().idAt(0);
        const Decimal balance = personBalance(model->ledger(), giulia);
        QCOMPARE(shownBalance(screen, 0), balanceText(balance));
        QCOMPARE(screen.peopleModel().index(0, 1).data(WealthTableModel::SignRole).toInt(), balance.sign());
        QCOMPARE(std::size_t(screen.historyModel().rowCount()), personHistory(model->ledger(), giulia).size());
        QVERIFY(screen.historyModel().rowCount() > 0);
        QVERIFY(part<QLabel>(screen, "historyTitle")->text().contains(QStringLiteral("Giulia")));
    }

    void aSettlementChangesTheBalanceShown() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        SharedScreen screen(*model);
        const Uuid giulia = *screen.peopleModel().idAt(0);
        const Decimal before = personBalance(model->ledger(), giulia);
        const int historyBefore = screen.historyModel().rowCount();

        part<QPushButton>(screen, "settleButton")->click();
        auto* sheet = part<QDialog>(screen, "settleSheet");
        QCOMPARE(part<QLabel>(*sheet, "settleBalance")->text(), balanceText(before));
        part<QComboBox>(*sheet, "settleKindPicker")->setCurrentIndex(0);  // she paid the user back
        part<QLineEdit>(*sheet, "settleAmountEdit")->setText(QStringLiteral("0"));
        part<QPushButton>(*sheet, "saveButton")->click();
        QVERIFY(sheet->isVisible());  // the core refuses nothing paid
        QVERIFY(!part<QLabel>(*sheet, "sheetError")->text().isEmpty());

        part<QLineEdit>(*sheet, "settleAmountEdit")->setText(QStringLiteral("10,00"));
        part<QPushButton>(*sheet, "saveButton")->click();
        QVERIFY(!sheet->isVisible());
        const Decimal after = personBalance(model->ledger(), giulia);
        QCOMPARE(after, before - Decimal(10));
        QCOMPARE(shownBalance(screen, 0), balanceText(after));
        QCOMPARE(screen.historyModel().rowCount(), historyBefore + 1);
        QCOMPARE(screen.historyModel().person(), std::optional<Uuid>(giulia));
    }

    void addingRenamingAndDeletingAPerson() {
        Workplace place;
        auto model = place.model();
        SharedScreen screen(*model);
        QVERIFY(part<QLabel>(screen, "peopleEmpty")->isVisibleTo(&screen));
        QVERIFY(!part<QPushButton>(screen, "settleButton")->isEnabled());

        part<QPushButton>(screen, "addPersonButton")->click();
        auto* sheet = part<QDialog>(screen, "personSheet");
        part<QPushButton>(*sheet, "saveButton")->click();  // no name
        QVERIFY(sheet->isVisible());
        QVERIFY(!part<QLabel>(*sheet, "sheetError")->text().isEmpty());
        part<QLineEdit>(*sheet, "personNameEdit")->setText(QStringLiteral("Marco"));
        part<QPushButton>(*sheet, "saveButton")->click();
        QVERIFY(!sheet->isVisible());
        QCOMPARE(screen.peopleModel().rowCount(), 1);
        QCOMPARE(shownBalance(screen, 0), QStringLiteral("In pari"));
        QVERIFY(part<QPushButton>(screen, "settleButton")->isEnabled());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

        part<QPushButton>(screen, "renamePersonButton")->click();
        auto* rename = part<QDialog>(screen, "renamePersonSheet");
        QCOMPARE(part<QLineEdit>(*rename, "personNameEdit")->text(), QStringLiteral("Marco"));
        part<QLineEdit>(*rename, "personNameEdit")->setText(QStringLiteral("Marco Rossi"));
        part<QPushButton>(*rename, "saveButton")->click();
        QVERIFY(!rename->isVisible());
        QCOMPARE(model->ledger().people().front().name, std::string("Marco Rossi"));
        QCOMPARE(part<QLabel>(screen, "historyTitle")->text(), QStringLiteral("Storico con Marco Rossi"));
        QCOMPARE(model->undoTitle(), QStringLiteral("Annulla Rinomina persona"));

        // Cancelling the question keeps the person.
        part<QPushButton>(screen, "deletePersonButton")->click();
        part<QMessageBox>(screen, "confirmDeletion")->reject();
        QCOMPARE(screen.peopleModel().rowCount(), 1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

        part<QPushButton>(screen, "deletePersonButton")->click();
        part<QPushButton>(*part<QMessageBox>(screen, "confirmDeletion"), "confirmButton")->click();
        QCOMPARE(screen.peopleModel().rowCount(), 0);
        QVERIFY(model->ledger().people().empty());
    }
};

QTEST_MAIN(SharedScreenTest)
#include "SharedScreenTest.moc"
