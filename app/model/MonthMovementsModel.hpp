#pragma once
// The list of the month screen: the movements of the month and account shown, newest first,
// with a header row before each day's movements. Rows are worked out once per change of the
// ledger, month or account, so that painting and scrolling only read them.

#include "app/model/LedgerViewModel.hpp"
#include "core/base/Instant.hpp"
#include "core/base/Uuid.hpp"

#include <QAbstractListModel>
#include <QHash>
#include <QIcon>
#include <QJsonArray>
#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace vantello::app {

class MonthMovementsModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum class RowKind { dayHeader, movement };

    enum Role {
        RowKindRole = Qt::UserRole + 1,  // RowKind as int
        IdRole,                          // the movement's id text; empty on a day header
        DayRole,                         // the start of the row's day, Unix seconds
        DayTextRole,                     // the day as the screens write it
        CategoryNameRole,
        IconNameRole,  // the category's symbol name
        NoteRole,
        AccountTextRole,  // the account, "Conto principale → Conto risparmi" for a transfer
        AmountTextRole,   // signed movement amount; the day's net on a header
        IsIncomeRole,     // income movement, or a header whose day nets more than zero
        IsTransferRole,
        SignRole,  // the direction the amount goes: 1 income, −1 expense, 0 a transfer or a day netting zero
        HasAttachmentsRole,
        IsSharedRole,
    };

    explicit MonthMovementsModel(LedgerViewModel& model, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] RowKind rowKind(int row) const;
    // The movement of a row; nothing on a day header or outside the list.
    [[nodiscard]] std::optional<Uuid> transactionID(int row) const;
    // The row showing the movement, or -1.
    [[nodiscard]] int rowOf(const Uuid& transactionID) const;
    [[nodiscard]] int movementCount() const { return movementCount_; }

    // Every row with its roles, for tests and diagnostics.
    [[nodiscard]] QJsonArray rowsAsJson() const;

    // Reads the month again when the ledger, month or account changed since the last reading.
    void refresh();

private:
    struct Row {
        RowKind kind = RowKind::movement;
        Uuid id;
        Instant day;
        QString dayText;
        QString categoryName;
        QString iconName;
        QIcon icon;
        QString note;
        QString accountText;
        // The day's net for a header, the movement's amount otherwise; written out when first
        // shown, as a month of a thousand movements shows a few dozen at a time.
        Decimal amount;
        TransactionKind movementKind = TransactionKind::expense;
        mutable std::optional<QString> amountText;
        bool isIncome = false;
        bool isTransfer = false;
        int sign = 0;
        bool hasAttachments = false;
        bool isShared = false;
    };
    using Inputs = std::tuple<std::uint64_t, Instant, std::optional<std::string>>;

    void rebuild();
    [[nodiscard]] QString accessibleText(const Row& row) const;
    [[nodiscard]] static const QString& amountTextOf(const Row& row);

    LedgerViewModel& model_;
    std::optional<Inputs> inputs_;
    std::vector<Row> rows_;
    int movementCount_ = 0;
    QHash<QString, QIcon> icons_;  // one icon per symbol name, looked up once
};

}  // namespace vantello::app
