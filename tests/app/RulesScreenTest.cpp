// The category rules screen on the demo ledger: rules in priority order, moving one up, the
// editor's refusals shown inside it, deleting after a question, and the box that tries a note.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QApplication>
#include <QComboBox>
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
#include "app/model/RuleListModel.hpp"
#include "app/screens/RuleEditor.hpp"
#include "app/screens/RulesScreen.hpp"
#include "app/settings/Language.hpp"
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

}  // namespace

namespace {

QStringList patterns(const Ledger& ledger) {
    QStringList found;
    for (const CategoryRule& rule : ledger.categoryRules()) found << QString::fromStdString(rule.pattern);
    return found;
}

QStringList shownPatterns(const QTreeView& list) {
    QStringList found;
    for (int row = 0; row < list.model()->rowCount(); ++row) {
        found << list.model()->index(row, RuleListModel::PatternColumn).data().toString();
    }
    return found;
}

}  // namespace

class RulesScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        useItalianInterface();
    }

    void aRuleMovedUpComesFirstInTheLedgerAndOnScreen() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        RulesScreen screen(*model);
        auto* list = part<QTreeView>(screen, "rulesList");
        QCOMPARE(patterns(model->ledger()), QStringList({QStringLiteral("Esselunga"), QStringLiteral("Eni")}));
        QCOMPARE(shownPatterns(*list), patterns(model->ledger()));
        QCOMPARE(list->model()->index(0, RuleListModel::CategoryColumn).data().toString(),
                 QString::fromStdString(model->ledger().category("spesa")->name));

        auto* up = part<QPushButton>(screen, "moveUpButton");
        auto* down = part<QPushButton>(screen, "moveDownButton");
        QVERIFY(!up->isEnabled());
        const Uuid eni = model->ledger().categoryRules()[1].id;
        QVERIFY(screen.selectRule(eni));
        QVERIFY(up->isEnabled());
        QVERIFY(!down->isEnabled());
        up->click();

        QCOMPARE(patterns(model->ledger()), QStringList({QStringLiteral("Eni"), QStringLiteral("Esselunga")}));
        QCOMPARE(shownPatterns(*list), patterns(model->ledger()));
        QCOMPARE(screen.listModel().rowsAsJson()[0].toObject()[QStringLiteral("pattern")].toString(),
                 QStringLiteral("Eni"));
        QCOMPARE(screen.selectedRuleID(), std::optional(eni));  // still selected, now at the top
        QVERIFY(!up->isEnabled());
        QVERIFY(down->isEnabled());
        model->undo();
        QCOMPARE(shownPatterns(*list), QStringList({QStringLiteral("Esselunga"), QStringLiteral("Eni")}));
    }

    void theEditorKeepsARefusedRuleOpenAndAddsAValidOneLast() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        RulesScreen screen(*model);
        screen.addRule();
        auto* editor = screen.findChild<RuleEditor*>();
        QVERIFY(editor);
        part<QLineEdit>(*editor, "patternEdit")->setText(QStringLiteral("   "));
        editor->save();
        QVERIFY(!editor->errorText().isEmpty());
        QVERIFY(editor->isVisible());
        QCOMPARE(model->ledger().categoryRules().size(), std::size_t(2));

        part<QLineEdit>(*editor, "patternEdit")->setText(QStringLiteral("Netflix"));
        auto* picker = part<QComboBox>(*editor, "categoryPicker");
        picker->setCurrentIndex(picker->count() - 1);  // the last income category
        QTest::keyClick(editor, Qt::Key_Return);
        QVERIFY(!editor->isVisible());
        QCOMPARE(model->ledger().categoryRules().size(), std::size_t(3));
        QCOMPARE(model->ledger().categoryRules().back().pattern, std::string("Netflix"));
        QCOMPARE(shownPatterns(*part<QTreeView>(screen, "rulesList")).last(), QStringLiteral("Netflix"));
    }

    void deletingAsksFirst() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        RulesScreen screen(*model);
        QVERIFY(screen.selectRule(model->ledger().categoryRules()[0].id));
        screen.deleteSelected();
        auto* question = screen.findChild<QMessageBox*>(QStringLiteral("deleteRuleConfirmation"));
        QVERIFY(question);
        QCOMPARE(model->ledger().categoryRules().size(), std::size_t(2));
        part<QPushButton>(*question, "confirmDeleteButton")->click();
        QCOMPARE(patterns(model->ledger()), QStringList({QStringLiteral("Eni")}));
        QCOMPARE(screen.listModel().rowCount(), 1);
    }

    void theTryBoxSaysWhereANoteWouldGo() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        RulesScreen screen(*model);
        auto* note = part<QLineEdit>(screen, "ruleTryEdit");
        auto* answer = part<QLabel>(screen, "ruleTryResult");
        const std::string groceries = model->ledger().category("spesa")->name;
        note->setText(QStringLiteral("ESSÈLUNGA via Roma"));
        QVERIFY(answer->text().contains(QString::fromStdString(groceries)));
        // The rules file expenses only: as income the same note stays in the fallback.
        part<QComboBox>(screen, "ruleTryKind")->setCurrentIndex(1);
        QVERIFY(answer->text().contains(QString::fromStdString(model->ledger().category("altre-entrate")->name)));
        note->setText(QStringLiteral("Bar Centrale"));
        QCOMPARE(answer->text(), ruleTryText(model->ledger(), note->text(), TransactionKind::income));
        QVERIFY(!answer->text().contains(QString::fromStdString(groceries)));
    }

    void anEmptyLedgerOffersTheFirstRule() {
        Workplace place;
        auto model = place.model();
        RulesScreen screen(*model);
        QVERIFY(part<QWidget>(screen, "rulesEmpty")->isVisibleTo(&screen));
        part<QPushButton>(screen, "emptyAddButton")->click();
        QVERIFY(screen.findChild<RuleEditor*>());
    }
};

QTEST_MAIN(RulesScreenTest)
#include "RulesScreenTest.moc"
