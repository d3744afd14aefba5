// The recurring movements screen on the demo ledger: each rule with its next date, adding one
// through the editor (bad amounts and the core's refusals shown inside it), and deleting one
// after a question.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTreeView>
#include <QtTest>

#include "app/model/DisplayText.hpp"
#include "app/model/LedgerViewModel.hpp"
#include "app/model/RecurringRulesModel.hpp"
#include "app/screens/RecurringEditor.hpp"
#include "app/screens/RecurringScreen.hpp"
#include "app/settings/Language.hpp"
#include "core/ledger/AmountParser.hpp"
#include "tests/app/ScreenWorkplace.hpp"

#include <algorithm>

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

}  // namespace

class RecurringScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        useItalianInterface();
    }

    void everyRuleShowsItsAmountAndNextDate() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        RecurringScreen screen(*model);
        const RecurringRulesModel& rows = screen.listModel();
        const auto& rules = model->ledger().recurringRules();
        QVERIFY(!rules.empty());
        QCOMPARE(std::size_t(rows.rowCount()), rules.size());
        QVERIFY(part<QTreeView>(screen, "recurringList")->isVisibleTo(&screen));
        for (const RecurringRule& rule : rules) {
            const int row = rows.rowOf(rule.id);
            QVERIFY(row >= 0);
            const QJsonObject shown = rows.rowsAsJson()[row].toObject();
            const auto next = rule.nextOccurrence(model->now(), model->calendar());
            QVERIFY(next);
            QCOMPARE(shown[QStringLiteral("next")].toString(), dayText(*next, model->calendar()));
            if (!rule.transferToAccountID) {
                QCOMPARE(shown[QStringLiteral("amount")].toString(), movementAmountText(rule.amount, rule.kind));
                QCOMPARE(shown[QStringLiteral("sign")].toInt(), rule.kind == TransactionKind::income ? 1 : -1);
            }
            QCOMPARE(rows.index(row, RecurringRulesModel::AmountColumn).data(Qt::TextAlignmentRole).toInt(),
                     int(Qt::AlignRight | Qt::AlignVCenter));
        }
    }

    void theEditorRefusesBadInputInsideAndSavesAGoodRule() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        RecurringScreen screen(*model);
        const std::size_t before = model->ledger().recurringRules().size();
        const std::size_t movementsBefore = model->ledger().transactions().size();
        screen.addRule();
        auto* editor = screen.findChild<RecurringEditor*>();
        QVERIFY(editor);

        auto* amount = part<QLineEdit>(*editor, "amountEdit");
        amount->setText(QStringLiteral("dodici"));
        editor->save();
        QCOMPARE(editor->errorText(), uiText("Scrivi un importo, per esempio 250 o 250,00."));
        QVERIFY(editor->isVisible());

        // A transfer to the account it leaves from is the core's refusal, shown in the sheet.
        part<QComboBox>(*editor, "kindPicker")->setCurrentIndex(2);
        amount->setText(QStringLiteral("100,00"));
        auto* from = part<QComboBox>(*editor, "accountPicker");
        auto* to = part<QComboBox>(*editor, "destinationPicker");
        to->setCurrentIndex(from->currentIndex());
        editor->save();
        QVERIFY(!editor->errorText().isEmpty());
        QVERIFY(editor->errorText() != uiText("Scrivi un importo, per esempio 250 o 250,00."));
        QCOMPARE(model->ledger().recurringRules().size(), before);

        // A monthly gym fee from the 1st of next month.
        part<QComboBox>(*editor, "kindPicker")->setCurrentIndex(0);
        amount->setText(QStringLiteral("45,90"));
        part<QLineEdit>(*editor, "noteEdit")->setText(QStringLiteral("Palestra"));
        part<QDateEdit>(*editor, "startEdit")->setDate(QDate(2026, 4, 1));
        QTest::keyClick(editor, Qt::Key_Return);
        QVERIFY(!editor->isVisible());
        QCOMPARE(model->ledger().recurringRules().size(), before + 1);
        QCOMPARE(model->ledger().transactions().size(), movementsBefore);  // nothing due yet
        const auto& added = model->ledger().recurringRules().back();
        QCOMPARE(added.amount, *Decimal::fromCanonical("45.90"));
        const QJsonObject shown = screen.listModel().rowsAsJson()[screen.listModel().rowOf(added.id)].toObject();
        QCOMPARE(shown[QStringLiteral("description")].toString(), QStringLiteral("Palestra"));
        QCOMPARE(shown[QStringLiteral("next")].toString(), dayText(noon(2026, 4, 1), rome));
        model->undo();
        QCOMPARE(screen.listModel().rowCount(), int(before));
    }

    void aRuleStartedInThePastCreatesItsMovementsInTheSameChange() {
        Workplace place;
        auto model = place.model();
        RecurringScreen screen(*model);
        QVERIFY(part<QWidget>(screen, "recurringEmpty")->isVisibleTo(&screen));
        part<QPushButton>(screen, "emptyAddButton")->click();
        auto* editor = screen.findChild<RecurringEditor*>();
        QVERIFY(editor);
        part<QLineEdit>(*editor, "amountEdit")->setText(QStringLiteral("10"));
        part<QComboBox>(*editor, "frequencyPicker")->setCurrentIndex(0);  // weekly
        part<QDateEdit>(*editor, "startEdit")->setDate(QDate(2026, 3, 4));
        editor->save();
        QCOMPARE(model->ledger().transactions().size(), std::size_t(3));  // the 4th, 11th and 18th
        model->undo();
        QVERIFY(model->ledger().transactions().empty());
        QVERIFY(model->ledger().recurringRules().empty());
    }

    void editingKeepsTheRuleAndDeletingAsksFirst() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        RecurringScreen screen(*model);
        auto* list = part<QTreeView>(screen, "recurringList");
        const RecurringRule first = model->ledger().recurringRules().front();
        list->setCurrentIndex(screen.listModel().index(screen.listModel().rowOf(first.id), 0));
        QCOMPARE(screen.selectedRuleID(), std::optional(first.id));

        screen.editSelected();
        auto* editor = screen.findChild<RecurringEditor*>();
        QVERIFY(editor);
        auto* amount = part<QLineEdit>(*editor, "amountEdit");
        QCOMPARE(*AmountParser::parse(amount->text().toStdString()), first.amount);
        amount->setText(QStringLiteral("1.234,50"));
        editor->save();
        const auto& rules = model->ledger().recurringRules();
        const auto edited = std::ranges::find(rules, first.id, &RecurringRule::id);
        QVERIFY(edited != rules.end());
        QCOMPARE(edited->amount, *Decimal::fromCanonical("1234.50"));
        QCOMPARE(edited->categoryID, first.categoryID);
        QCOMPARE(edited->startDate, first.startDate);

        const std::size_t count = rules.size();
        list->setCurrentIndex(screen.listModel().index(screen.listModel().rowOf(first.id), 0));
        screen.deleteSelected();
        auto* question = screen.findChild<QMessageBox*>(QStringLiteral("deleteRecurringConfirmation"));
        QVERIFY(question);
        QCOMPARE(model->ledger().recurringRules().size(), count);
        part<QPushButton>(*question, "confirmDeleteButton")->click();
        QCOMPARE(model->ledger().recurringRules().size(), count - 1);
        QCOMPARE(screen.listModel().rowOf(first.id), -1);
    }
};

QTEST_MAIN(RecurringScreenTest)
#include "RecurringScreenTest.moc"
