// The wealth screen on the demo ledger with a frozen day: the net worth and its year, a new
// valuation that moves it, the core's messages inside the sheets, and loans from the sheet to
// the plan and the deletion.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTableView>
#include <QTemporaryDir>
#include <QtCharts>
#include <QtTest>

#include "app/model/DisplayText.hpp"
#include "app/model/LedgerViewModel.hpp"
#include "app/screens/WealthScreen.hpp"
#include "app/settings/Language.hpp"
#include "core/planning/NetWorth.hpp"
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

QString figure(const QWidget& screen) { return part<QLabel>(screen, "netWorthFigure")->text(); }

QString coreNetWorth(const LedgerViewModel& model) {
    return euroText(netWorth(model.ledger(), model.now(), model.calendar()).total());
}

}  // namespace

class WealthScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        useItalianInterface();
    }

    void demoShowsNetWorthItsYearAssetsAndLoans() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        WealthScreen screen(*model);

        QCOMPARE(figure(screen), coreNetWorth(*model));
        const auto history = netWorthHistory(model->ledger(), 12, model->now(), model->calendar());
        auto* series = qobject_cast<QLineSeries*>(part<QChartView>(screen, "netWorthChart")->chart()->series().front());
        QCOMPARE(series->count(), 12);
        QCOMPARE(series->at(11).y(), history.back().value.total().toDouble());

        const QJsonArray assets = screen.assetModel().rowsAsJson();
        QCOMPARE(assets.size(), 1);
        QCOMPARE(assets[0][QStringLiteral("name")].toString(), QStringLiteral("Auto"));
        const QJsonArray loans = screen.loanModel().rowsAsJson();
        QCOMPARE(loans.size(), 1);
        QCOMPARE(loans[0][QStringLiteral("booked")].toString(), QStringLiteral("Rata ricorrente"));
        // Amounts line up on the right.
        QCOMPARE(screen.loanModel().index(0, 2).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight, int(Qt::AlignRight));

        // Every control a screen reader reaches says what it is.
        for (auto* control : screen.findChildren<QPushButton*>()) {
            if (control->isVisibleTo(&screen)) QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
        }
    }

    void aNewValuationChangesTheNetWorthAndUndoTakesItBack() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        WealthScreen screen(*model);
        const QString before = figure(screen);

        part<QPushButton>(screen, "updateValueButton")->click();
        auto* sheet = part<QDialog>(screen, "valuationSheet");
        // Something that is not an amount keeps the sheet open with a hint.
        part<QLineEdit>(*sheet, "valuationEdit")->setText(QStringLiteral("tanto"));
        part<QPushButton>(*sheet, "saveButton")->click();
        QVERIFY(sheet->isVisible());
        QVERIFY(!part<QLabel>(*sheet, "sheetError")->isHidden());

        part<QLineEdit>(*sheet, "valuationEdit")->setText(QStringLiteral("20.000,00"));
        part<QPushButton>(*sheet, "saveButton")->click();
        QVERIFY(!sheet->isVisible());
        QCOMPARE(screen.assetModel().rowsAsJson()[0][QStringLiteral("value")].toString(), euroText(Decimal(20'000)));
        QVERIFY(figure(screen) != before);
        QCOMPARE(figure(screen), coreNetWorth(*model));

        model->undo();
        QCOMPARE(figure(screen), before);
    }

    void theCoresMessageStaysInsideTheSheet() {
        Workplace place;
        auto model = place.model();
        WealthScreen screen(*model);
        QVERIFY(part<QLabel>(screen, "assetsEmpty")->isVisibleTo(&screen));
        QVERIFY(!part<QPushButton>(screen, "updateValueButton")->isEnabled());

        part<QPushButton>(screen, "newAssetButton")->click();
        auto* sheet = part<QDialog>(screen, "assetSheet");
        part<QLineEdit>(*sheet, "assetValueEdit")->setText(QStringLiteral("250000"));
        part<QPushButton>(*sheet, "saveButton")->click();  // no name
        QVERIFY(sheet->isVisible());
        QVERIFY(!part<QLabel>(*sheet, "sheetError")->text().isEmpty());
        QCOMPARE(screen.assetModel().rowCount(), 0);
        QVERIFY(!model->errorMessage());

        part<QLineEdit>(*sheet, "assetNameEdit")->setText(QStringLiteral("Casa"));
        part<QPushButton>(*sheet, "saveButton")->click();
        QVERIFY(!sheet->isVisible());
        QCOMPARE(screen.assetModel().rowCount(), 1);
        QCOMPARE(figure(screen), euroText(Decimal(250'000)));
        QVERIFY(part<QPushButton>(screen, "updateValueButton")->isEnabled());
    }

    void aLoanIsBookedShownInItsPlanAndDeletedAfterAsking() {
        Workplace place;
        auto model = place.model();
        WealthScreen screen(*model);

        part<QPushButton>(screen, "newLoanButton")->click();
        auto* sheet = part<QDialog>(screen, "loanSheet");
        part<QLineEdit>(*sheet, "loanNameEdit")->setText(QStringLiteral("Mutuo"));
        part<QLineEdit>(*sheet, "loanPrincipalEdit")->setText(QStringLiteral("120.000"));
        part<QLineEdit>(*sheet, "loanRateEdit")->setText(QStringLiteral("3,5"));
        part<QPushButton>(*sheet, "saveButton")->click();
        QVERIFY(!sheet->isVisible());
        QCOMPARE(model->ledger().recurringRules().size(), std::size_t(1));
        const QJsonArray loans = screen.loanModel().rowsAsJson();
        QCOMPARE(loans.size(), 1);
        QCOMPARE(loans[0][QStringLiteral("booked")].toString(), QStringLiteral("Rata ricorrente"));
        QCOMPARE(loans[0][QStringLiteral("remaining")].toString(), euroText(Decimal(120'000)));
        // The debt weighs on the net worth.
        QCOMPARE(figure(screen), euroText(Decimal(-120'000)));

        part<QPushButton>(screen, "scheduleButton")->click();
        auto* plan = part<QDialog>(screen, "loanScheduleSheet");
        QCOMPARE(part<QTableView>(*plan, "scheduleView")->model()->rowCount(), 60);
        plan->reject();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

        // Edited over ten years: the same loan and the same rule, booking the new instalment.
        const Decimal fiveYearInstalment = model->ledger().recurringRules().front().amount;
        part<QPushButton>(screen, "editLoanButton")->click();
        auto* edit = part<QDialog>(screen, "loanSheet");
        QCOMPARE(part<QLineEdit>(*edit, "loanPrincipalEdit")->text(), QStringLiteral("120000,00"));
        QVERIFY(part<QCheckBox>(*edit, "loanBookCheck")->isChecked());
        part<QSpinBox>(*edit, "loanMonthsEdit")->setValue(120);
        part<QPushButton>(*edit, "saveButton")->click();
        QVERIFY(!edit->isVisible());
        QCOMPARE(model->ledger().data().loans.size(), std::size_t(1));
        QCOMPARE(model->ledger().data().loans.front().months, 120);
        QCOMPARE(model->ledger().recurringRules().size(), std::size_t(1));
        QVERIFY(model->ledger().recurringRules().front().amount < fiveYearInstalment);
        QCOMPARE(model->undoTitle(), QStringLiteral("Annulla Modifica prestito"));

        part<QPushButton>(screen, "deleteLoanButton")->click();
        auto* ask = part<QMessageBox>(screen, "confirmDeletion");
        part<QPushButton>(*ask, "confirmButton")->click();
        QCOMPARE(screen.loanModel().rowCount(), 0);
        QVERIFY(model->ledger().recurringRules().empty());
    }
};

QTEST_MAIN(WealthScreenTest)
#include "WealthScreenTest.moc"
