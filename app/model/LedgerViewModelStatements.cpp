// The application model's bank statements and exports: the import session behind the import
// sheet, the merge as one undoable change, and the CSV documents offered for saving.

#include "app/model/LedgerViewModel.hpp"

#include "core/analysis/MonthKey.hpp"
#include "core/base/AtomicFile.hpp"
#include "core/base/Localization.hpp"
#include "core/statements/CSVExport.hpp"

#include <QLocale>

namespace vantello::app {

namespace {

QString text(const std::string& message) { return QString::fromStdString(message); }

// The locale the exported file is meant for: the interface's, which the spreadsheet shares.
std::string exportLocale() { return QLocale().name().toStdString(); }

}  // namespace

void LedgerViewModel::openImportFile(const std::filesystem::path& file) {
    try {
        StatementImport statement = openStatement(file, {}, ledger_.allCategories(), calendar_);
        importSession_ = ImportSession{Uuid::random(), file, QString::fromStdString(file.filename().string()), {},
                                       std::move(statement)};
    } catch (const UserError& error) {
        importSession_.reset();
        setErrorMessage(text(error.message()));
    }
    Q_EMIT importSessionChanged();
}

std::optional<QString> LedgerViewModel::reviseImport(const CSVImportOverrides& overrides) {
    if (!importSession_) return std::nullopt;
    try {
        importSession_->statement = openStatement(importSession_->file, overrides, ledger_.allCategories(), calendar_);
        importSession_->overrides = overrides;
    } catch (const UserError& error) {
        return text(error.message());
    }
    Q_EMIT importSessionChanged();
    return std::nullopt;
}

std::optional<ImportResult> LedgerViewModel::confirmImport(const std::string& accountID, bool detectTransfers,
                                                           RepeatedMovements repeated) {
    if (!importSession_) return std::nullopt;
    ImportResult result;
    const std::vector<Transaction> movements = importSession_->statement.transactions();
    apply(text(L10n::tr("Importa movimenti")), [&](Ledger& ledger) {
        result = importTransactions(ledger, movements, accountID, detectTransfers, calendar_, repeated);
    });
    importSession_.reset();
    Q_EMIT importSessionChanged();
    generateDueTransactions();
    return result;
}

void LedgerViewModel::cancelImport() {
    if (!importSession_) return;
    importSession_.reset();
    Q_EMIT importSessionChanged();
}

void LedgerViewModel::setExportRequest(std::vector<Transaction> transactions, QString fileName) {
    exportRequest_ = ExportRequest{
        CSVExport::text(transactions, ledger_.allCategories(), calendar_, exportLocale()), std::move(fileName)};
    Q_EMIT exportRequestChanged();
}

void LedgerViewModel::exportMonth() {
    setExportRequest(monthTransactions(),
                     text(L10n::tr("Vantello {month}.csv", {{"month", monthKey(selectedMonth_, calendar_)}})));
}

void LedgerViewModel::exportAll() {
    const auto& all = ledger_.transactions();
    setExportRequest({all.begin(), all.end()}, text(L10n::tr("Vantello movimenti.csv")));
}

std::optional<QString> LedgerViewModel::saveExport(const std::filesystem::path& file) {
    if (!exportRequest_) return std::nullopt;
    try {
        writeFileAtomically(file, exportRequest_->document);
    } catch (const UserError& error) {
        return text(error.message());
    }
    finishExport();
    return std::nullopt;
}

void LedgerViewModel::finishExport() {
    if (!exportRequest_) return;
    exportRequest_.reset();
    Q_EMIT exportRequestChanged();
}

}  // namespace vantello::app
