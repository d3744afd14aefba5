// The categories screen on the demo ledger: both kinds listed with the built-in ones first, a
// custom category added, renamed and deleted (its movements moving to the fallback category),
// and the core's refusals shown.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QApplication>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QComboBox>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTreeView>
#include <QtTest>

#include "app/model/CategoryListModel.hpp"
#include "app/model/LedgerViewModel.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/screens/CategoriesScreen.hpp"
#include "app/screens/CategoryDialog.hpp"
#include "app/settings/Language.hpp"
#include "tests/app/ScreenWorkplace.hpp"

using namespace vantello;
using namespace vantello::app;
using namespace vantello::app::testing;

namespace {

template <typename Widget>
Widget* part(const QWidget& screen, const char* name) {
    auto* found = screen.findChild<Widget*>(QString::fromLatin1(name));
    if (!found) qFatal("no widget named %s", name);
    return found;
}

// The open sheet, filled in and saved.
CategoryDialog* fillSheet(const QWidget& screen, const QString& name, const QString& symbol) {
    auto* sheet = part<CategoryDialog>(screen, "categoryDialog");
    part<QLineEdit>(*sheet, "categoryName")->setText(name);
    auto* icon = part<QComboBox>(*sheet, "categoryIcon");
    icon->setCurrentIndex(icon->findData(symbol));
    QTest::keyClick(part<QLineEdit>(*sheet, "categoryName"), Qt::Key_Return);  // Enter confirms
    return sheet;
}

void settle() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

QStringList names(const CategoryListModel& list) {
    QStringList found;
    for (const auto& row : list.rowsAsJson()) found << row.toObject()[QStringLiteral("name")].toString();
    return found;
}

}  // namespace

class CategoriesScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        useItalianInterface();
        useDesktopIconTheme();
    }

    void listsBothKindsWithBuiltInOnesMarked() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        CategoriesScreen screen(*model);
        const QJsonArray expenses = screen.expenseList().rowsAsJson();
        QCOMPARE(std::size_t(expenses.size()), model->ledger().categories(TransactionKind::expense).size());
        QCOMPARE(expenses[0].toObject()[QStringLiteral("builtIn")].toBool(), true);
        QVERIFY(screen.expenseList().rowOf("spesa") >= 0);
        QCOMPARE(screen.expenseList().rowOf("giroconto"), -1);  // transfers are not a category to manage
        QVERIFY(screen.incomeList().rowOf("stipendio") >= 0);
        QCOMPARE(screen.incomeList().rowOf("spesa"), -1);
        // Nothing chosen, nothing to change.
        QVERIFY(!part<QPushButton>(screen, "editCategoryButton")->isEnabled());
        QVERIFY(!part<QPushButton>(screen, "deleteCategoryButton")->isEnabled());
        for (auto* control : screen.findChildren<QWidget*>()) {
            if (qobject_cast<QAbstractButton*>(control) || qobject_cast<QTreeView*>(control)) {
                QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
            }
        }
    }

    void customCategoryIsAddedRenamedAndDeletedWithItsMovements() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        CategoriesScreen screen(*model);
        screen.show();

        // A new category of the kind of the list last used.
        part<QTreeView>(screen, "incomeCategoryList")->setCurrentIndex(screen.incomeList().index(0, 0));
        part<QPushButton>(screen, "addCategoryButton")->click();
        QCOMPARE(part<QComboBox>(screen, "categoryKind")->currentData().toInt(), int(TransactionKind::income));
        part<QComboBox>(screen, "categoryKind")->setCurrentIndex(0);
        // An empty name cannot be confirmed.
        part<QLineEdit>(screen, "categoryName")->clear();
        QVERIFY(!part<QPushButton>(screen, "categorySaveButton")->isEnabled());
        fillSheet(screen, QStringLiteral("Palestra"), QStringLiteral("heart"));
        settle();
        QVERIFY(!screen.findChild<CategoryDialog*>());
        const std::optional<std::string> added = screen.selectedCategoryID();
        QVERIFY(added && added->starts_with("custom-"));
        const auto category = model->ledger().category(*added);
        QCOMPARE(category->name, std::string("Palestra"));
        QCOMPARE(category->symbol, std::string("heart"));
        QCOMPARE(category->kind, TransactionKind::expense);
        QCOMPARE(names(screen.expenseList()).last(), QStringLiteral("Palestra"));

        // The same name again is refused by the core, inside the sheet, which stays open.
        part<QPushButton>(screen, "addCategoryButton")->click();
        auto* again = fillSheet(screen, QStringLiteral("palestra"), QStringLiteral("tag"));
        QVERIFY(again->isVisible());
        QCOMPARE(again->errorText(), QStringLiteral("Esiste già una categoria con questo nome."));
        QTest::keyClick(again, Qt::Key_Escape);
        settle();
        QVERIFY(!screen.findChild<CategoryDialog*>());

        // Renamed, with another icon; undone as one change.
        screen.selectCategory(*added);
        part<QPushButton>(screen, "editCategoryButton")->click();
        QVERIFY(!part<QComboBox>(screen, "categoryKind")->isEnabled());
        QCOMPARE(part<QLineEdit>(screen, "categoryName")->text(), QStringLiteral("Palestra"));
        fillSheet(screen, QStringLiteral("Sport"), QStringLiteral("bicycle"));
        settle();
        QCOMPARE(model->ledger().category(*added)->name, std::string("Sport"));
        QCOMPARE(model->ledger().category(*added)->symbol, std::string("bicycle"));
        QVERIFY(names(screen.expenseList()).contains(QStringLiteral("Sport")));
        QCOMPARE(model->undoTitle(), QStringLiteral("Annulla Modifica categoria"));
        QCOMPARE(screen.selectedCategoryID(), added);

        // Two movements use it: the confirmation says so, and they move to "Altre uscite".
        model->apply(QStringLiteral("Aggiungi movimento"), [&](Ledger& ledger) {
            for (int copy = 0; copy < 2; ++copy) {
                Transaction fee;
                fee.id = Uuid::random();
                fee.amount = Decimal(35);
                fee.date = noon(2026, 3, 10 + copy);
                fee.categoryID = *added;
                ledger.add(fee);
            }
        });
        QCOMPARE(movementsInCategory(model->ledger(), *added), 2);
        QTest::keyClick(part<QTreeView>(screen, "expenseCategoryList"), Qt::Key_Delete);
        auto* ask = part<QMessageBox>(screen, "deleteCategoryConfirmation");
        QCOMPARE(ask->text(), QStringLiteral("Eliminare la categoria «Sport»?"));
        QCOMPARE(ask->informativeText(), QStringLiteral("2 movimenti passeranno alla categoria «Altre uscite»."));
        part<QPushButton>(*ask, "confirmDeleteButton")->click();
        settle();
        QVERIFY(!model->ledger().category(*added));
        QCOMPARE(screen.expenseList().rowOf(*added), -1);
        QCOMPARE(movementsInCategory(model->ledger(), "altre-uscite") >= 2, true);
        QCOMPARE(movementsInCategory(model->ledger(), *added), 0);
        QCOMPARE(screen.noticeText(), QStringLiteral("Categoria «Sport» eliminata."));
        model->undo();
        QCOMPARE(movementsInCategory(model->ledger(), *added), 2);
        QVERIFY(screen.expenseList().rowOf(*added) >= 0);
    }

    void builtInCategoriesAreRefusedByTheCore() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        CategoriesScreen screen(*model);
        const auto revision = model->ledgerRevision();
        screen.selectCategory("spesa");
        QVERIFY(part<QPushButton>(screen, "deleteCategoryButton")->isEnabled());
        screen.deleteSelected();
        QVERIFY(!screen.findChild<QMessageBox*>());
        QCOMPARE(screen.noticeText(), QStringLiteral("Le categorie predefinite non si possono modificare."));
        screen.editSelected();
        QVERIFY(!screen.findChild<CategoryDialog*>());
        QCOMPARE(screen.noticeText(), QStringLiteral("Le categorie predefinite non si possono modificare."));
        QCOMPARE(model->ledgerRevision(), revision);
        QVERIFY(model->ledger().category("spesa"));
    }
};

QTEST_MAIN(CategoriesScreenTest)
#include "CategoriesScreenTest.moc"
