// The movement editor sheet on a real data folder with a frozen clock: what is typed becomes the
// movement, the core's messages stay in the sheet, foreign amounts convert at the ECB rate, and a
// cancelled sheet leaves no attachment behind.

#include "app/model/LedgerViewModel.hpp"
#include "app/model/SampleData.hpp"
#include "app/screens/TransactionEditor.hpp"
#include "app/settings/Language.hpp"
#include "core/ledger/LedgerAccounts.hpp"
#include "core/ledger/LedgerSharing.hpp"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include <fstream>

using namespace vantello;
using namespace vantello::app;

namespace {

const Calendar rome("Europe/Rome");

Instant at(int year, int month, int day, int hour = 12, int minute = 0) {
    return *rome.date({year, month, day}, hour, minute);
}

Decimal amount(const char* canonical) { return *Decimal::fromCanonical(canonical); }

struct Workplace {
    QTemporaryDir home;
    std::filesystem::path folder = std::filesystem::path(home.path().toStdString()) / "Vantello";
    Preferences preferences{home.path() + QStringLiteral("/Vantello.conf")};
    std::unique_ptr<LedgerViewModel> model = std::make_unique<LedgerViewModel>(LedgerViewModel::Setup{
        folder, std::nullopt, rome, [] { return at(2026, 3, 18); }, &preferences, folder / "Backup"});

    [[nodiscard]] std::size_t attachmentFiles() const {
        const auto attachments = folder / "Allegati";
        if (!std::filesystem::exists(attachments)) return 0;
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(attachments),
                                                      std::filesystem::directory_iterator()));
    }
};

template <typename Widget>
Widget* child(const TransactionEditor& editor, const char* name) {
    auto* found = editor.findChild<Widget*>(QLatin1String(name));
    if (!found) qFatal("no %s in the editor", name);
    return found;
}

void type(TransactionEditor& editor, const char* field, const QString& text) {
    auto* edit = child<QLineEdit>(editor, field);
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

void pick(TransactionEditor& editor, const char* picker, const QString& id) {
    auto* box = child<QComboBox>(editor, picker);
    const int row = box->findData(id, Qt::UserRole + 1);
    QVERIFY2(row >= 0, qPrintable(id));
    box->setCurrentIndex(row);
    Q_EMIT box->activated(row);
}

const Transaction& only(const LedgerViewModel& model) {
    if (model.ledger().transactions().size() != 1) qFatal("expected one movement");
    return model.ledger().transactions().front();
}

}  // namespace

class TransactionEditorTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() {
        QSettings().remove(QStringLiteral("language"));
        installInterfaceLanguage(*QCoreApplication::instance());
    }

    void typedMovementIsSavedAndEnterConfirms() {
        Workplace place;
        TransactionEditor editor(*place.model, place.model->newDraft(TransactionKind::expense));
        editor.show();
        QCOMPARE(editor.windowTitle(), QStringLiteral("Nuovo movimento"));
        QVERIFY(place.model->draft().has_value());

        type(editor, "amountEdit", QStringLiteral("1.250,00"));
        pick(editor, "categoryPicker", QStringLiteral("casa"));
        type(editor, "noteEdit", QStringLiteral("Affitto marzo"));
        QCOMPARE(place.model->draft()->amountText, std::string("1.250,00"));  // the model follows the sheet

        QTest::keyClick(child<QLineEdit>(editor, "noteEdit"), Qt::Key_Return);
        QCOMPARE(editor.result(), int(QDialog::Accepted));
        QVERIFY(!editor.isVisible());
        QVERIFY(!place.model->draft().has_value());
        const Transaction& saved = only(*place.model);
        QCOMPARE(saved.amount, amount("1250"));
        QCOMPARE(saved.kind, TransactionKind::expense);
        QCOMPARE(saved.categoryID, std::string("casa"));
        QCOMPARE(saved.accountID, std::string("principale"));
        QCOMPARE(saved.note, std::string("Affitto marzo"));
        QCOMPARE(saved.date, at(2026, 3, 18));
    }

    void badAmountKeepsTheSheetOpenWithTheMessage() {
        Workplace place;
        TransactionEditor editor(*place.model, place.model->newDraft(TransactionKind::income));
        editor.show();
        auto* error = child<QLabel>(editor, "editorError");
        QVERIFY(error->isHidden());

        type(editor, "amountEdit", QStringLiteral("abc"));
        child<QPushButton>(editor, "saveButton")->click();
        QVERIFY(editor.isVisible());
        QCOMPARE(editor.errorText(), QStringLiteral("Scrivi un importo, per esempio 250 o 250,00."));
        QVERIFY(error->isVisible());

        type(editor, "amountEdit", QStringLiteral("0"));
        editor.save();
        QVERIFY(editor.isVisible());
        QCOMPARE(error->text(), QStringLiteral("Scrivi un importo maggiore di zero, per esempio 12,50."));
        QVERIFY(place.model->ledger().transactions().empty());

        // A share that is not an amount is refused before the core is asked.
        type(editor, "amountEdit", QStringLiteral("30"));
        child<QRadioButton>(editor, "kindExpense")->click();
        place.model->apply(QStringLiteral("Aggiungi persona"), [](Ledger& ledger) { addPerson(ledger, "Giulia"); });
        auto* shares = child<QAbstractItemView>(editor, "sharesView")->model();
        shares->setData(shares->index(0, 1), QStringLiteral("tanto"), Qt::EditRole);
        editor.save();
        QCOMPARE(editor.errorText(), QStringLiteral("Scrivi la quota di Giulia, per esempio 12,50."));
        QVERIFY(place.model->ledger().transactions().empty());
    }

    void editingChangesTheMovementAndUndoGivesItBack() {
        Workplace place;
        Transaction original;
        original.id = Uuid::random();
        original.amount = amount("40");
        original.date = at(2026, 3, 2, 9, 30);
        original.categoryID = "spesa";
        original.accountID = "principale";
        original.note = "Mercato";
        place.model->apply(QStringLiteral("Aggiungi movimento"), [&](Ledger& ledger) { ledger.add(original); });

        {
            TransactionEditor editor(*place.model, *place.model->draftOf(original.id));
            QCOMPARE(editor.windowTitle(), QStringLiteral("Modifica movimento"));
            QCOMPARE(child<QLineEdit>(editor, "amountEdit")->text(), QStringLiteral("40,00"));
            QCOMPARE(child<QDateEdit>(editor, "dateEdit")->date(), QDate(2026, 3, 2));
            type(editor, "amountEdit", QStringLiteral("55,5"));
            editor.save();
            QCOMPARE(editor.result(), int(QDialog::Accepted));
        }
        QCOMPARE(only(*place.model).amount, amount("55.5"));
        QCOMPARE(only(*place.model).date, original.date);  // same day: the time of day stays
        QCOMPARE(only(*place.model).id, original.id);

        {
            TransactionEditor editor(*place.model, *place.model->draftOf(original.id));
            child<QDateEdit>(editor, "dateEdit")->setDate(QDate(2026, 3, 5));
            child<QRadioButton>(editor, "kindIncome")->click();
            editor.save();
        }
        QCOMPARE(only(*place.model).date, at(2026, 3, 5));  // a changed day is taken at noon
        QCOMPARE(only(*place.model).kind, TransactionKind::income);
        QVERIFY(only(*place.model).categoryID != "spesa");  // an expense category cannot stay

        place.model->undo();
        place.model->undo();
        QVERIFY(only(*place.model) == original);
    }

    void foreignAmountIsConvertedAtTheRateOfTheNearestEarlierDay() {
        Workplace place;
        ExchangeRates rates;
        rates.days["2026-03-13"]["USD"] = amount("1.0901");
        rates.days["2026-03-16"]["USD"] = amount("1.0832");
        place.model->setExchangeRates(rates);

        TransactionEditor editor(*place.model, place.model->newDraft(TransactionKind::expense));
        editor.show();
        auto* original = child<QLineEdit>(editor, "originalAmountEdit");
        QVERIFY(!original->isVisible());
        pick(editor, "currencyPicker", QStringLiteral("USD"));
        QVERIFY(original->isVisible());
        type(editor, "originalAmountEdit", QStringLiteral("108,32"));
        QCOMPARE(child<QLineEdit>(editor, "amountEdit")->text(), QStringLiteral("100,00"));
        QCOMPARE(child<QLabel>(editor, "conversionLabel")->text(),
                 QStringLiteral("1 EUR = 1,0832 USD · cambio BCE del 16 mar 2026"));

        // An earlier day takes that day's rate.
        child<QDateEdit>(editor, "dateEdit")->setDate(QDate(2026, 3, 15));
        QCOMPARE(child<QLineEdit>(editor, "amountEdit")->text(), QStringLiteral("99,37"));

        editor.save();
        const Transaction& saved = only(*place.model);
        QCOMPARE(saved.amount, amount("99.37"));
        QCOMPARE(saved.currency, std::optional<std::string>("USD"));
        QCOMPARE(saved.originalAmount, std::optional<Decimal>(amount("108.32")));

        // Without a rate the euro amount is left to the user.
        TransactionEditor other(*place.model, place.model->newDraft(TransactionKind::expense));
        pick(other, "currencyPicker", QStringLiteral("GBP"));
        type(other, "originalAmountEdit", QStringLiteral("20"));
        QCOMPARE(child<QLabel>(other, "conversionLabel")->text(),
                 QStringLiteral("Nessun cambio BCE disponibile: scrivi l'importo in euro."));
        QVERIFY(child<QLineEdit>(other, "amountEdit")->text().isEmpty());
    }

    void transferAndEqualSplitAreTheCoresOwn() {
        Workplace place;
        std::string savings;
        Uuid giulia;
        Uuid marco;
        place.model->apply(QStringLiteral("Prepara"), [&](Ledger& ledger) {
            savings = addAccount(ledger, "Risparmi", "banknote", Decimal{}, std::nullopt).id;
            giulia = addPerson(ledger, "Giulia").id;
            marco = addPerson(ledger, "Marco").id;
        });

        {
            TransactionEditor editor(*place.model, place.model->newDraft(TransactionKind::expense));
            editor.show();
            type(editor, "amountEdit", QStringLiteral("200"));
            child<QRadioButton>(editor, "kindTransfer")->click();
            QVERIFY(!child<QComboBox>(editor, "categoryPicker")->isVisible());
            QVERIFY(!child<QWidget>(editor, "sharesBox")->isVisible());
            QCOMPARE(child<QComboBox>(editor, "destinationPicker")->count(), 1);  // never the source account
            editor.save();
        }
        QCOMPARE(only(*place.model).transferToAccountID, std::optional<std::string>(savings));
        QCOMPARE(only(*place.model).categoryID, std::string("giroconto"));
        place.model->undo();

        TransactionEditor editor(*place.model, place.model->newDraft(TransactionKind::expense));
        editor.show();
        type(editor, "amountEdit", QStringLiteral("100"));
        auto* shares = child<QAbstractItemView>(editor, "sharesView")->model();
        auto* split = child<QPushButton>(editor, "splitButton");
        QVERIFY(!split->isEnabled());
        shares->setData(shares->index(0, 0), Qt::Checked, Qt::CheckStateRole);
        shares->setData(shares->index(1, 0), Qt::Checked, Qt::CheckStateRole);
        split->click();
        QCOMPARE(shares->index(0, 1).data().toString(), QStringLiteral("33,33"));
        editor.save();
        QCOMPARE(only(*place.model).shares,
                 (std::vector<PersonShare>{{giulia, amount("33.33")}, {marco, amount("33.33")}}));

        TransactionEditor again(*place.model, *place.model->draftOf(only(*place.model).id));
        auto* shown = child<QAbstractItemView>(again, "sharesView")->model();
        QCOMPARE(shown->index(1, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        QCOMPARE(shown->index(1, 1).data().toString(), QStringLiteral("33,33"));
        QCOMPARE(again.draft().shares, only(*place.model).shares);
    }

    void attachmentsOfACancelledSheetAreRemoved() {
        Workplace place;
        const QString picked = place.home.filePath(QStringLiteral("scontrino.pdf"));
        std::ofstream(picked.toStdString()) << "%PDF-1.4 receipt";

        {
            TransactionEditor editor(*place.model, place.model->newDraft(TransactionKind::expense));
            editor.show();
            editor.attachFile(picked);
            QCOMPARE(editor.draft().attachments.size(), std::size_t(1));
            QCOMPARE(place.attachmentFiles(), std::size_t(1));
            QTest::keyClick(&editor, Qt::Key_Escape);
            QCOMPARE(editor.result(), int(QDialog::Rejected));
        }
        QCOMPARE(place.attachmentFiles(), std::size_t(0));
        QVERIFY(!place.model->draft().has_value());

        TransactionEditor editor(*place.model, place.model->newDraft(TransactionKind::expense));
        editor.attachFile(place.home.filePath(QStringLiteral("missing.pdf")));
        QVERIFY(!editor.errorText().isEmpty());
        QVERIFY(editor.draft().attachments.empty());
        editor.attachFile(picked);
        type(editor, "amountEdit", QStringLiteral("12,50"));
        editor.save();
        QCOMPARE(only(*place.model).attachments.size(), std::size_t(1));
        QCOMPARE(place.attachmentFiles(), std::size_t(1));
    }
};

QTEST_MAIN(TransactionEditorTest)
#include "TransactionEditorTest.moc"
