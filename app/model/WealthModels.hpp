#pragma once
// What the wealth screen shows, worked out once per change of the ledger: the net worth today
// with its twelve-month history, the assets at their latest valuation, the loans with their
// instalment and the capital still owed, and one loan's repayment plan.

// The Qt side first: moc cannot read the standard library's <concepts> before Qt's headers.
#include <QAbstractTableModel>
#include <QJsonArray>
#include <QString>

#include "app/model/LedgerViewModel.hpp"
#include "core/planning/LoanSchedule.hpp"
#include "core/planning/NetWorth.hpp"

#include <optional>
#include <vector>

namespace vantello::app {

// The net worth figure, the parts it is made of, and one point per month for the chart.
struct NetWorthOverview {
    struct Point {
        QString label;  // the month, short ("mar")
        double value = 0;  // for drawing only; the exact figure is in the texts
        QString valueText;
    };
    Decimal total;
    QString figure;   // "12.500,00 €"
    QString context;  // "Conti … · Beni … · Debiti …"
    std::vector<Point> history;  // oldest first, the last one is now
};

// From the points of the net worth's history, oldest first; the last one is now.
[[nodiscard]] NetWorthOverview netWorthOverview(const std::vector<NetWorthPoint>& points, const Calendar& calendar);

// Whether the loan's instalments are booked by a recurring rule that still exists.
[[nodiscard]] bool loanIsBooked(const Ledger& ledger, const Loan& loan);

// Common ground of the three tables: a row's record id and the rows as JSON for tests.
class WealthTableModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Role { IdRole = Qt::UserRole + 1, SignRole };

    using QAbstractTableModel::QAbstractTableModel;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // The record of a row, nothing outside the table.
    [[nodiscard]] std::optional<Uuid> idAt(int row) const;
    [[nodiscard]] int rowOf(const Uuid& id) const;
    // One object per row, keyed by the column keys, with "id".
    [[nodiscard]] QJsonArray rowsAsJson() const;

protected:
    struct Row {
        Uuid id;
        QStringList cells;
        QString symbol;  // the first cell's icon, when any
        int sign = 0;    // the colour of the amount columns: 1 income, −1 expense
    };
    struct Column {
        QString key;
        QString title;
        bool amount = false;  // right-aligned
        bool coloured = false;  // drawn in the sign's colour
    };
    void setColumns(std::vector<Column> columns) { columns_ = std::move(columns); }
    // The text of a cell; a table of many rows leaves `cells` empty and writes them only when
    // they are shown.
    [[nodiscard]] virtual QString cellText(int row, int column) const;
    void setRows(std::vector<Row> rows);

private:
    std::vector<Column> columns_;
    std::vector<Row> rows_;
};

// The ledger's assets in their order: name, date and amount of the latest valuation.
class AssetListModel : public WealthTableModel {
    Q_OBJECT
public:
    explicit AssetListModel(LedgerViewModel& model, QObject* parent = nullptr);
    void refresh();

private:
    LedgerViewModel& model_;
};

// The ledger's loans: instalment, capital still owed today, payments made of all, and whether
// the instalments are booked.
class LoanListModel : public WealthTableModel {
    Q_OBJECT
public:
    explicit LoanListModel(LedgerViewModel& model, QObject* parent = nullptr);
    void refresh();

private:
    LedgerViewModel& model_;
};

// Every payment of one loan's plan, with its interest, capital and what is still owed after it.
class LoanScheduleModel : public WealthTableModel {
    Q_OBJECT
public:
    LoanScheduleModel(const Loan& loan, const Calendar& calendar, QObject* parent = nullptr);
    [[nodiscard]] const Decimal& interestTotal() const { return interest_; }

private:
    Decimal interest_;
};

}  // namespace vantello::app
