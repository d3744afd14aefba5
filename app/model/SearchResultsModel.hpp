#pragma once
// The search screen's results: the movements of the whole ledger that meet the filter, newest
// first, with their count, their totals and the CSV of exactly what is shown. The search runs in
// the core once per change of the filter or of the ledger; painting only reads the rows.

#include "app/model/LedgerViewModel.hpp"
#include "core/analysis/PeriodTotals.hpp"
#include "core/base/Uuid.hpp"
#include "core/ledger/TransactionFilter.hpp"

#include <QAbstractTableModel>
#include <QHash>
#include <QIcon>
#include <QJsonArray>
#include <QString>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vantello::app {

class SearchResultsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { dateColumn, categoryColumn, noteColumn, accountColumn, amountColumn, columns };
    enum Role { IdRole = Qt::UserRole + 1, SignRole };

    explicit SearchResultsModel(LedgerViewModel& model, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // Runs the search; the same filter on an unchanged ledger does nothing.
    void search(const TransactionFilter& filter);
    // Runs the current filter again when the ledger changed since.
    void refresh();
    // Whether the ledger changed since the last search (or none has run yet).
    [[nodiscard]] bool isStale() const { return searchedRevision_ != model_.ledgerRevision(); }

    [[nodiscard]] const TransactionFilter& filter() const { return filter_; }
    [[nodiscard]] const std::vector<Transaction>& results() const { return results_; }
    [[nodiscard]] int count() const { return static_cast<int>(results_.size()); }
    // Income and expenses of the results, transfers left out as in every total.
    [[nodiscard]] const PeriodTotals& totals() const { return totals_; }
    [[nodiscard]] std::optional<Uuid> transactionID(int row) const;
    // The results as CSV for a spreadsheet in the interface's language, in the order shown.
    [[nodiscard]] std::string csvText() const;

    [[nodiscard]] QJsonArray rowsAsJson() const;

Q_SIGNALS:
    // After every search, with the new count and totals.
    void resultsChanged();

private:
    struct Category {
        QString name;
        QIcon icon;
    };
    void run();
    [[nodiscard]] QString text(const Transaction& movement, int column) const;
    [[nodiscard]] const Category& category(const std::string& id) const;

    LedgerViewModel& model_;
    TransactionFilter filter_;
    std::optional<std::uint64_t> searchedRevision_;
    std::vector<Transaction> results_;
    PeriodTotals totals_;
    bool manyAccounts_ = false;
    std::map<std::string, Category, std::less<>> categories_;
    std::map<std::string, QString, std::less<>> accounts_;
};

}  // namespace vantello::app
