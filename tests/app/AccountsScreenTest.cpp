// The accounts screen on the demo ledger: balances as the core computes them, an account added
// with amounts typed the Italian way, edited, and deleted with the count of moved movements and
// dissolved transfers said before and after; the main account kept.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QApplication>
#include <QComboBox>
#include <QJsonObject>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTreeView>
#include <QtTest>

#include "app/model/AccountActions.hpp"
#include "app/model/AccountListModel.hpp"
#include "app/model/DisplayText.hpp"
#include "app/model/LedgerViewModel.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/screens/AccountDialog.hpp"
#include "app/screens/AccountsScreen.hpp"
#include "app/settings/Language.hpp"
#include "app/settings/ThemeApplication.hpp"
#include "core/ledger/AmountParser.hpp"
#include "core/ledger/LedgerAccounts.hpp"
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

void settle() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

Decimal amount(const char* typed) { return *AmountParser::parse(typed); }

}  // namespace

class AccountsScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        useItalianInterface();
        useDesktopIconTheme();
    }

    void listsEachAccountWithItsBalance() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        AccountsScreen screen(*model);
        const AccountListModel& rows = screen.listModel();
        QCOMPARE(std::size_t(rows.rowCount()), model->ledger().accounts().size());
        QCOMPARE(rows.account(0)->id, std::string("principale"));
        for (int row = 0; row < rows.rowCount(); ++row) {
            const Decimal balance = accountBalance(model->ledger(), rows.account(row)->id);
            const QModelIndex cell = rows.index(row, AccountListModel::balanceColumn);
            QCOMPARE(cell.data().toString(), euroText(balance));
            QVERIFY(cell.data(Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignRight);
        }
        QCOMPARE(rows.index(0, AccountListModel::thresholdColumn).data().toString(), euroText(Decimal(300)));
        QVERIFY(!part<QPushButton>(screen, "deleteAccountButton")->isEnabled());

        // A new movement changes the balance shown.
        const QString before = rows.index(0, AccountListModel::balanceColumn).data().toString();
        model->apply(QStringLiteral("Aggiungi movimento"), [](Ledger& ledger) {
            Transaction spent;
            spent.id = Uuid::random();
            spent.amount = Decimal(1000);
            spent.date = noon(2026, 3, 17);
            spent.categoryID = "spesa";
            ledger.add(spent);
        });
        QVERIFY(rows.index(0, AccountListModel::balanceColumn).data().toString() != before);
        QCOMPARE(rows.index(0, AccountListModel::balanceColumn).data().toString(),
                 euroText(accountBalance(model->ledger(), "principale")));
    }

    void accountIsAddedAndEditedWithTypedAmounts() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        AccountsScreen screen(*model);
        screen.show();

        part<QPushButton>(screen, "addAccountButton")->click();
        auto* sheet = part<AccountDialog>(screen, "accountDialog");
        part<QLineEdit>(*sheet, "accountName")->setText(QStringLiteral("Carta prepagata"));
        auto* icon = part<QComboBox>(*sheet, "accountIcon");
        icon->setCurrentIndex(icon->findData(QStringLiteral("creditcard")));
        part<QLineEdit>(*sheet, "accountOpeningBalance")->setText(QStringLiteral("1,2,3"));
        QTest::keyClick(part<QLineEdit>(*sheet, "accountName"), Qt::Key_Return);
        QVERIFY(sheet->isVisible());
        QCOMPARE(sheet->errorText(), QStringLiteral("Il saldo iniziale non è un importo valido."));
        // A name taken (case and accents aside) is the core's to refuse.
        part<QLineEdit>(*sheet, "accountOpeningBalance")->setText(QStringLiteral("−1.250,50"));
        part<QLineEdit>(*sheet, "accountThreshold")->setText(QStringLiteral("100"));
        part<QLineEdit>(*sheet, "accountName")->setText(QStringLiteral("conto RISPARMI"));
        sheet->save();
        QCOMPARE(sheet->errorText(), QStringLiteral("Esiste già un conto con questo nome."));
        part<QLineEdit>(*sheet, "accountName")->setText(QStringLiteral("Carta prepagata"));
        sheet->save();
        settle();
        QVERIFY(!screen.findChild<AccountDialog*>());

        const std::optional<std::string> added = screen.selectedAccountID();
        QVERIFY(added && added->starts_with("conto-"));
        const Account* account = model->ledger().account(*added);
        QCOMPARE(account->name, std::string("Carta prepagata"));
        QCOMPARE(account->symbol, std::string("creditcard"));
        QCOMPARE(account->openingBalance, -amount("1250,50"));
        QCOMPARE(account->lowBalanceThreshold, std::optional<Decimal>(Decimal(100)));
        const int row = screen.listModel().rowOf(*added);
        QCOMPARE(screen.listModel().index(row, AccountListModel::balanceColumn).data(AccountListModel::BalanceSignRole).toInt(), -1);
        QCOMPARE(screen.listModel().index(row, AccountListModel::balanceColumn).data(Qt::ForegroundRole).value<QColor>(),
                 currentPalette().expense);

        // Edited: new name, no threshold; the opening balance stays.
        QTest::keyClick(part<QTreeView>(screen, "accountList"), Qt::Key_Return);
        sheet = part<AccountDialog>(screen, "accountDialog");
        QVERIFY(!sheet->findChild<QLineEdit*>(QStringLiteral("accountOpeningBalance")));
        QCOMPARE(part<QLineEdit>(*sheet, "accountThreshold")->text(), QStringLiteral("100,00"));
        part<QLineEdit>(*sheet, "accountName")->setText(QStringLiteral("Prepagata"));
        part<QLineEdit>(*sheet, "accountThreshold")->clear();
        sheet->save();
        settle();
        account = model->ledger().account(*added);
        QCOMPARE(account->name, std::string("Prepagata"));
        QCOMPARE(account->lowBalanceThreshold, std::nullopt);
        QCOMPARE(account->openingBalance, -amount("1250,50"));
        QCOMPARE(model->undoTitle(), QStringLiteral("Annulla Modifica conto"));
    }

    void deletedAccountSaysWhatMovesBeforeAndAfter() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        AccountsScreen screen(*model);
        screen.show();

        // What the demo's savings account has: its own movements and the monthly transfers in.
        int referring = 0;
        int transfers = 0;
        for (const Transaction& movement : model->ledger().transactions()) {
            const bool toSavings = movement.transferToAccountID == std::optional<std::string>("risparmi");
            if (movement.accountID == "risparmi" || toSavings) ++referring;
            if (toSavings && movement.accountID == "principale") ++transfers;
        }
        QVERIFY(referring > 1 && transfers > 1);
        const AccountDeletion preview = accountDeletionPreview(model->ledger(), "risparmi");
        QCOMPARE(preview.movedMovements, referring);
        QCOMPARE(preview.dissolvedTransfers, transfers);

        screen.selectAccount("risparmi");
        part<QPushButton>(screen, "deleteAccountButton")->click();
        auto* ask = part<QMessageBox>(screen, "deleteAccountConfirmation");
        QCOMPARE(ask->text(), QStringLiteral("Eliminare il conto «Conto risparmi»?"));
        QCOMPARE(ask->informativeText(),
                 QStringLiteral("%1 movimenti passeranno al conto principale. %2 giroconti con il conto principale "
                                "diventeranno normali uscite.")
                     .arg(referring)
                     .arg(transfers));
        // Escape keeps everything.
        QTest::keyClick(ask, Qt::Key_Escape);
        settle();
        QVERIFY(model->ledger().account("risparmi"));

        part<QPushButton>(screen, "deleteAccountButton")->click();
        ask = part<QMessageBox>(screen, "deleteAccountConfirmation");
        part<QPushButton>(*ask, "confirmDeleteButton")->click();
        settle();
        QVERIFY(!model->ledger().account("risparmi"));
        QCOMPARE(screen.listModel().rowCount(), 1);
        QCOMPARE(screen.noticeText(),
                 QStringLiteral("Conto «Conto risparmi» eliminato: %1 movimenti spostati sul conto principale.").arg(referring));
        QCOMPARE(screen.listModel().index(0, AccountListModel::balanceColumn).data().toString(),
                 euroText(accountBalance(model->ledger(), "principale")));
        model->undo();
        QCOMPARE(screen.listModel().rowCount(), 2);

        // The main account stays, with the core's reason and no question asked.
        const auto revision = model->ledgerRevision();
        screen.selectAccount("principale");
        screen.deleteSelected();
        QVERIFY(!screen.findChild<QMessageBox*>());
        QCOMPARE(screen.noticeText(), QStringLiteral("Il conto principale non si può eliminare."));
        QCOMPARE(model->ledgerRevision(), revision);
    }
};

QTEST_MAIN(AccountsScreenTest)
#include "AccountsScreenTest.moc"
