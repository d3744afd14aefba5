#include "app/model/RecurringRulesModel.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/settings/ThemeApplication.hpp"
#include "core/ledger/TransactionCategory.hpp"

#include <QJsonObject>

namespace vantello::app {

namespace {

QString text(const std::string& value) { return QString::fromStdString(value); }

QString accountName(const Ledger& ledger, const std::string& id) {
    const Account* account = ledger.account(id);
    return account ? text(account->name) : text(id);
}

}  // namespace

QString recurringFrequencyText(RecurringRule::Frequency frequency) {
    switch (frequency) {
    case RecurringRule::Frequency::weekly: return uiText("Ogni settimana");
    case RecurringRule::Frequency::monthly: return uiText("Ogni mese");
    case RecurringRule::Frequency::yearly: return uiText("Ogni anno");
    }
    return {};
}

RecurringRulesModel::RecurringRulesModel(LedgerViewModel& model, QObject* parent)
    : QAbstractTableModel(parent), model_(model) {
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &RecurringRulesModel::refresh);
    refresh();
}

void RecurringRulesModel::refresh() {
    const Ledger& ledger = model_.ledger();
    const Calendar& calendar = model_.calendar();
    const Instant now = model_.now();
    std::vector<Row> rows;
    rows.reserve(ledger.recurringRules().size());
    for (const RecurringRule& rule : ledger.recurringRules()) {
        Row row;
        row.id = rule.id;
        const bool transfer = rule.transferToAccountID.has_value();
        const auto category = ledger.category(transfer ? std::string(transferCategoryID) : rule.categoryID);
        row.category = category ? text(category->name) : text(rule.categoryID);
        row.icon = symbolIcon(category ? category->symbol : std::string());
        row.description = rule.note.empty() ? row.category : text(rule.note);
        row.account = accountName(ledger, rule.accountID);
        if (transfer) row.account += QStringLiteral(" → ") + accountName(ledger, *rule.transferToAccountID);
        row.frequency = recurringFrequencyText(rule.frequency);
        const std::optional<Instant> next = rule.nextOccurrence(now, calendar);
        row.next = next ? dayText(*next, calendar) : uiText("Terminato");
        row.sign = transfer ? 0 : (rule.kind == TransactionKind::income ? 1 : -1);
        row.amount = transfer ? euroText(rule.amount) : movementAmountText(rule.amount, rule.kind);
        rows.push_back(std::move(row));
    }
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

int RecurringRulesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int RecurringRulesModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant RecurringRulesModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case IdRole: return text(row.id.text());
    case SignRole: return row.sign;
    case Qt::DecorationRole: return index.column() == DescriptionColumn ? QVariant(row.icon) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == AmountColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case Qt::ForegroundRole:
        if (index.column() != AmountColumn || row.sign == 0) return {};
        return row.sign > 0 ? currentPalette().income : currentPalette().expense;
    case Qt::ToolTipRole:
        return index.column() == DescriptionColumn ? QVariant(row.category) : QVariant();
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        switch (index.column()) {
        case DescriptionColumn: return row.description;
        case AccountColumn: return row.account;
        case FrequencyColumn: return row.frequency;
        case NextColumn: return row.next;
        case AmountColumn: return row.amount;
        default: return {};
        }
    default: return {};
    }
}

QVariant RecurringRulesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole && section == AmountColumn) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    switch (section) {
    case DescriptionColumn: return uiText("Movimento");
    case AccountColumn: return uiText("Conto");
    case FrequencyColumn: return uiText("Frequenza");
    case NextColumn: return uiText("Prossima volta");
    case AmountColumn: return uiText("Importo");
    default: return {};
    }
}

std::optional<Uuid> RecurringRulesModel::ruleID(int row) const {
    if (row < 0 || row >= rowCount()) return std::nullopt;
    return rows_[static_cast<std::size_t>(row)].id;
}

int RecurringRulesModel::rowOf(const Uuid& ruleID) const {
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        if (rows_[row].id == ruleID) return static_cast<int>(row);
    }
    return -1;
}

QJsonArray RecurringRulesModel::rowsAsJson() const {
    QJsonArray array;
    for (const Row& row : rows_) {
        array.append(QJsonObject{{QStringLiteral("id"), text(row.id.text())},
                                 {QStringLiteral("description"), row.description},
                                 {QStringLiteral("category"), row.category},
                                 {QStringLiteral("account"), row.account},
                                 {QStringLiteral("frequency"), row.frequency},
                                 {QStringLiteral("next"), row.next},
                                 {QStringLiteral("amount"), row.amount},
                                 {QStringLiteral("sign"), row.sign}});
    }
    return array;
}

}  // namespace vantello::app
