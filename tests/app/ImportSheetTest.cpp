// The import sheet on a real data folder with a frozen day: the guessed columns, the preview
// following a changed option, the import as one undoable change with its counts, and the
// columns remembered for the next statement of the same bank.

#include "app/model/ImportMappingMemory.hpp"
#include "app/model/ImportPreviewModel.hpp"
#include "app/model/LedgerViewModel.hpp"
#include "app/screens/ImportSheet.hpp"
#include "app/settings/Language.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

#include <fstream>

using namespace vantello;
using namespace vantello::app;

namespace {

const Calendar rome("Europe/Rome");

Instant noon(int year, int month, int day) { return *rome.date({year, month, day}, 12); }

struct Workplace {
    QTemporaryDir home;
    std::filesystem::path folder = std::filesystem::path(home.path().toStdString()) / "Vantello";
    Preferences preferences{home.path() + QStringLiteral("/Vantello.conf")};
    std::unique_ptr<LedgerViewModel> model = std::make_unique<LedgerViewModel>(LedgerViewModel::Setup{
        folder, std::nullopt, rome, [] { return noon(2026, 3, 18); }, &preferences, folder / "Backup"});

    // Writes the statement beside the data folder and opens it in the model.
    void open(const char* name, const std::string& text) {
        const auto file = folder.parent_path() / name;
        std::ofstream(file, std::ios::binary) << text;
        model->openImportFile(file);
    }
};

const std::string bankHeader = "Data operazione;Descrizione;Importo;Categoria\n";

template <typename Widget>
Widget* child(QWidget& sheet, const char* name) {
    auto* found = sheet.findChild<Widget*>(QString::fromLatin1(name));
    if (!found) qFatal("no widget %s", name);
    return found;
}

void choose(QComboBox* box, const QVariant& value) {
    const int index = box->findData(value);
    QVERIFY(index >= 0);
    box->setCurrentIndex(index);
    Q_EMIT box->activated(index);
}

QString cell(QTableView* table, int row, int column, int role = Qt::DisplayRole) {
    return table->model()->index(row, column).data(role).toString();
}

}  // namespace

class ImportSheetTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void showsTheGuessAndMarksTheRowsThatCannotBeRead() {
        Workplace place;
        place.open("estratto.csv", bankHeader +
                                       "04/03/2026;NETFLIX;-9,99;Svago\n"
                                       "07/03/2026;STIPENDIO;1.250,00;\n"
                                       "31/02/2026;RIGA ROTTA;-5,00;\n");
        ImportSheet sheet(*place.model);
        QCOMPARE(child<QComboBox>(sheet, "importSeparatorBox")->currentData().toInt(), int(';'));
        QCOMPARE(child<QComboBox>(sheet, "importDateColumnBox")->currentData().toInt(), 0);
        QCOMPARE(child<QComboBox>(sheet, "importDescriptionColumnBox")->currentData().toInt(), 1);
        QCOMPARE(child<QComboBox>(sheet, "importAmountColumnBox")->currentData().toInt(), 2);
        QCOMPARE(child<QComboBox>(sheet, "importCategoryColumnBox")->currentData().toInt(), 3);
        QVERIFY(
            child<QComboBox>(sheet, "importDateColumnBox")->currentText().contains(QStringLiteral("Data operazione")));
        QVERIFY(!child<QLabel>(sheet, "importDateColumnBoxHint")->text().isEmpty());
        QVERIFY(child<QComboBox>(sheet, "importIncomeColumnBox")->isHidden());
        QVERIFY(child<QWidget>(sheet, "importMemoryBar")->isHidden());

        auto* table = child<QTableView>(sheet, "importPreviewTable");
        QCOMPARE(table->model()->rowCount(), 3);
        QVERIFY(cell(table, 0, ImportPreviewModel::amountColumn).startsWith(QChar(0x2212)));
        QVERIFY(cell(table, 1, ImportPreviewModel::amountColumn).startsWith(QLatin1Char('+')));
        QCOMPARE(table->model()->index(0, ImportPreviewModel::amountColumn).data(Qt::TextAlignmentRole).toInt(),
                 int(Qt::AlignRight | Qt::AlignVCenter));
        QCOMPARE(table->model()->index(1, ImportPreviewModel::amountColumn).data(Qt::ForegroundRole).value<QColor>(),
                 currentPalette().income);
        // The refused row says why in words, and still shows its own date to find it by.
        QVERIFY(cell(table, 0, 0, ImportPreviewModel::problemRole).isEmpty());
        QVERIFY(!cell(table, 2, 0, ImportPreviewModel::problemRole).isEmpty());
        QVERIFY(cell(table, 2, ImportPreviewModel::descriptionColumn).startsWith(QChar(0x26A0)));
        QCOMPARE(cell(table, 2, ImportPreviewModel::dateColumn), QStringLiteral("31/02/2026"));
        QCOMPARE(cell(table, 2, ImportPreviewModel::lineColumn), QStringLiteral("4"));
        QVERIFY(child<QLabel>(sheet, "importCountsLabel")->text().contains(QStringLiteral("2 movimenti")));

        // Two columns for the amounts: the pickers follow, and a wrong choice reads no row.
        choose(child<QComboBox>(sheet, "importAmountModeBox"), int(CSVImportOptions::AmountMode::separate));
        QVERIFY(!child<QComboBox>(sheet, "importIncomeColumnBox")->isHidden());
        QVERIFY(child<QComboBox>(sheet, "importAmountColumnBox")->isHidden());
        QCOMPARE(place.model->importSession()->statement.options.amountMode, CSVImportOptions::AmountMode::separate);
    }

    void changingTheDateOrderChangesThePreviewAtOnce() {
        Workplace place;
        place.open("estratto.csv", bankHeader + "03/04/2026;TRAM;-2,00;\n05/01/2026;BAR;-1,50;\n");
        ImportSheet sheet(*place.model);
        auto* table = child<QTableView>(sheet, "importPreviewTable");
        const QString before = cell(table, 0, ImportPreviewModel::dateColumn);
        QCOMPARE(place.model->importSession()->statement.rows[0].transaction->date, noon(2026, 4, 3));

        choose(child<QComboBox>(sheet, "importDateOrderBox"), int(CSVImportOptions::DateOrder::monthDayYear));
        QCOMPARE(place.model->importSession()->statement.rows[0].transaction->date, noon(2026, 3, 4));
        QVERIFY(cell(table, 0, ImportPreviewModel::dateColumn) != before);
        QCOMPARE(child<QLabel>(sheet, "importDateOrderBoxHint")->text(), QStringLiteral("scelta da te"));

        // A description column of none: the movements come without the bank's text.
        choose(child<QComboBox>(sheet, "importDescriptionColumnBox"), -1);
        QVERIFY(cell(table, 0, ImportPreviewModel::descriptionColumn).isEmpty());
        QCOMPARE(table->model()->rowCount(), 2);
    }

    void importAddsTheMovementsReportsTheCountsAndUndoesAsOne() {
        Workplace place;
        // One movement already there, to be found again as a duplicate.
        Transaction own;
        own.id = Uuid::random();
        own.amount = *Decimal::fromCanonical("9.99");
        own.date = noon(2026, 3, 4);
        own.categoryID = otherExpensesCategoryID;
        own.note = "NETFLIX";
        place.model->apply(QStringLiteral("Aggiungi movimento"), [&](Ledger& ledger) { ledger.add(own); });
        const Ledger before = place.model->ledger();

        place.open("estratto.csv", bankHeader +
                                       "04/03/2026;NETFLIX;-9,99;\n"
                                       "07/03/2026;TRAM;-2,00;\n"
                                       "07/03/2026;TRAM;-2,00;\n"
                                       "08/03/2026;STIPENDIO;1.250,00;\n"
                                       "xx;ROTTA;-1,00;\n");
        ImportSheet sheet(*place.model);
        QSignalSpy imported(&sheet, &ImportSheet::imported);
        auto* repeated = child<QCheckBox>(sheet, "importRepeatedBox");
        QVERIFY(!repeated->isHidden());  // the two tram tickets
        QVERIFY(child<QLabel>(sheet, "importExpectedLabel")->text().contains(QStringLiteral("2 movimenti")));
        repeated->setChecked(true);
        QVERIFY(child<QLabel>(sheet, "importExpectedLabel")->text().contains(QStringLiteral("3 movimenti")));

        child<QPushButton>(sheet, "importConfirmButton")->click();
        QCOMPARE(imported.count(), 1);
        QCOMPARE(imported.front().front().toString(),
                 QStringLiteral("Importati 3 movimenti · 1 già presente · 1 riga non valida"));
        QVERIFY(!place.model->importSession());
        QCOMPARE(place.model->ledger().transactions().size(), before.transactions().size() + 3);

        place.model->undo();
        QVERIFY(place.model->ledger() == before);
    }

    void aStatementWithoutColumnsHidesTheirPickers() {
        Workplace place;
        place.open("conto.qif", "!Type:Bank\nD03/04/2026\nT-2.00\nPTRAM\n^\n");
        QCOMPARE(place.model->importSession()->statement.format, StatementFormat::qif);
        QVERIFY(!ImportMappingMemory::fingerprint(place.model->importSession()->statement));
        ImportSheet sheet(*place.model);
        QVERIFY(child<QWidget>(sheet, "importOptionsBox")->isHidden());
        QVERIFY(child<QLabel>(sheet, "importFileLabel")->text().contains(QStringLiteral("QIF")));
        QCOMPARE(child<QTableView>(sheet, "importPreviewTable")->model()->rowCount(), 1);
        QVERIFY(child<QPushButton>(sheet, "importConfirmButton")->isEnabled());
    }

    void cancellingEndsTheSession() {
        Workplace place;
        place.open("estratto.csv", bankHeader + "04/03/2026;NETFLIX;-9,99;\n");
        ImportSheet sheet(*place.model);
        sheet.show();
        QTest::keyClick(&sheet, Qt::Key_Escape);
        QVERIFY(!place.model->importSession());
        QVERIFY(!sheet.isVisible());
    }

    void theColumnsOfTheLastImportAreProposedForTheSameBank() {
        Workplace place;
        place.open("marzo.csv", bankHeader + "03/04/2026;TRAM;-2,00;Trasporti\n05/01/2026;BAR;-1,50;\n");
        {
            ImportSheet sheet(*place.model);
            choose(child<QComboBox>(sheet, "importDateOrderBox"), int(CSVImportOptions::DateOrder::monthDayYear));
            choose(child<QComboBox>(sheet, "importCategoryColumnBox"), -1);
            child<QPushButton>(sheet, "importConfirmButton")->click();
        }

        // The next month's file: the same columns, written with other capitals and spaces.
        place.open("aprile.csv", "DATA OPERAZIONE ; descrizione;IMPORTO;Categoria\n04/02/2026;BUS;-1,70;Trasporti\n");
        ImportSheet sheet(*place.model);
        QVERIFY(!child<QWidget>(sheet, "importMemoryBar")->isHidden());
        const auto& session = place.model->importSession();
        QCOMPARE(session->statement.options.dateOrder, CSVImportOptions::DateOrder::monthDayYear);
        QCOMPARE(session->statement.rows[0].transaction->date, noon(2026, 4, 2));
        QCOMPARE(child<QComboBox>(sheet, "importCategoryColumnBox")->currentData().toInt(), -1);

        // Back to the guess.
        child<QPushButton>(sheet, "importUseGuessButton")->click();
        QVERIFY(child<QWidget>(sheet, "importMemoryBar")->isHidden());
        QCOMPARE(place.model->importSession()->statement.options.dateOrder, CSVImportOptions::DateOrder::dayMonthYear);
        QCOMPARE(place.model->importSession()->statement.options.categoryColumn, std::optional<int>(3));
        sheet.reject();

        // Another bank's header is not this one's.
        place.open("altra.csv", "Data;Causale;Importo\n03/04/2026;TRAM;-2,00\n");
        ImportSheet other(*place.model);
        QVERIFY(child<QWidget>(other, "importMemoryBar")->isHidden());
        other.reject();
    }

    void aRememberedMappingThatNoLongerFitsIsIgnored() {
        Workplace place;
        place.open("estratto.csv", bankHeader + "03/04/2026;TRAM;-2,00;\n");
        const auto key = ImportMappingMemory::fingerprint(place.model->importSession()->statement);
        QVERIFY(key);
        ImportMappingMemory memory(place.preferences);
        const auto stored = [&](const char* entry) {
            place.preferences.setValue(QStringLiteral("importMappings"),
                                       QStringLiteral("{\"%1\": %2}").arg(*key, QString::fromLatin1(entry)));
        };
        const auto& statement = place.model->importSession()->statement;
        stored(
            R"({"separator": ";", "headerRow": 0, "dateColumn": 9, "dateOrder": "monthDayYear", "amountColumn": 2})");
        QVERIFY(!memory.recall(*key, statement));
        stored(R"({"separator": ";", "headerRow": 0, "dateColumn": 0, "dateOrder": "sideways", "amountColumn": 2})");
        QVERIFY(!memory.recall(*key, statement));
        stored(R"([1, 2)");
        QVERIFY(!memory.recall(*key, statement));
        // Another separator makes one column of the table: the mapping reads nothing and goes.
        stored(
            R"({"separator": ",", "headerRow": 0, "dateColumn": 0, "dateOrder": "monthDayYear", "amountColumn": 2})");
        QVERIFY(memory.recall(*key, statement));
        ImportSheet sheet(*place.model);
        QVERIFY(child<QWidget>(sheet, "importMemoryBar")->isHidden());
        QCOMPARE(place.model->importSession()->statement.separator, ';');
        QCOMPARE(place.model->importSession()->statement.rows[0].transaction->date, noon(2026, 4, 3));
    }
};

QTEST_MAIN(ImportSheetTest)
#include "ImportSheetTest.moc"
