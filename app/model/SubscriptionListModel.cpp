#include "app/model/SubscriptionListModel.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/LedgerAnalyses.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QBrush>
#include <QJsonObject>

namespace vantello::app {

namespace {

QString frequencyText(RecurringRule::Frequency frequency) {
    switch (frequency) {
        case RecurringRule::Frequency::weekly: return uiText("Ogni settimana");
        case RecurringRule::Frequency::monthly: return uiText("Ogni mese");
        case RecurringRule::Frequency::yearly: return uiText("Ogni anno");
    }
    return {};
}

}  // namespace

SubscriptionListModel::SubscriptionListModel(LedgerViewModel& model, QObject* parent)
    : QAbstractTableModel(parent), model_(model) {
    rebuild();
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &SubscriptionListModel::rebuild);
}

void SubscriptionListModel::rebuild() {
    beginResetModel();
    rows_ = model_.analyses().subscriptions();
    endResetModel();
}

int SubscriptionListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int SubscriptionListModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : int(columnTotal); }

QVariant SubscriptionListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) {
        const bool amount = section == amountColumn || section == monthlyColumn || section == yearlyColumn;
        return QVariant::fromValue(Qt::Alignment((amount ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
    }
    if (role != Qt::DisplayRole) return {};
    switch (section) {
        case nameColumn: return uiText("Abbonamento");
        case frequencyColumn: return uiText("Frequenza");
        case amountColumn: return uiText("Ultimo addebito");
        case monthlyColumn: return uiText("Al mese");
        case yearlyColumn: return uiText("All'anno");
        case nextColumn: return uiText("Prossimo");
        case priceColumn: return uiText("Prezzo");
        default: return {};
    }
}

QVariant SubscriptionListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const DetectedSubscription& row = rows_[static_cast<std::size_t>(index.row())];
    const int column = index.column();
    switch (role) {
        case KeyRole: return QString::fromStdString(row.id);
        case PriceIncreasedRole: return row.priceIncreased();
        case IsRecurringRole: return row.isRecurring;
        case Qt::DecorationRole:
            if (column != nameColumn) return {};
            if (const auto category = model_.ledger().category(row.categoryID)) return symbolIcon(category->symbol);
            return symbolIcon("repeat");
        case Qt::TextAlignmentRole: {
            const bool amount = column == amountColumn || column == monthlyColumn || column == yearlyColumn;
            return QVariant::fromValue(Qt::Alignment((amount ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
        }
        case Qt::ForegroundRole:
            if (column == amountColumn || column == monthlyColumn || column == yearlyColumn ||
                (column == priceColumn && row.priceIncreased())) {
                return QBrush(currentPalette().expense);
            }
            return {};
        case Qt::ToolTipRole:
            if (column == nameColumn) {
                return uiText("{numero} addebiti, l'ultimo il {data}",
                              {{"numero", std::to_string(row.occurrences)},
                               {"data", dayText(row.lastDate, model_.calendar()).toStdString()}});
            }
            return {};
        case Qt::DisplayRole: break;
        default: return {};
    }
    switch (column) {
        case nameColumn: return QString::fromStdString(row.name);
        case frequencyColumn: return frequencyText(row.frequency);
        case amountColumn: return movementAmountText(row.amount, TransactionKind::expense);
        case monthlyColumn: return movementAmountText(row.monthlyCost(), TransactionKind::expense);
        case yearlyColumn: return movementAmountText(row.yearlyCost(), TransactionKind::expense);
        case nextColumn: return dayText(row.nextExpected, model_.calendar());
        case priceColumn:
            if (row.priceIncreased() && row.previousAmount) {
                return uiText("Aumentato da {prima}", {{"prima", euroText(*row.previousAmount).toStdString()}});
            }
            if (row.previousAmount) {
                return uiText("Cambiato da {prima}", {{"prima", euroText(*row.previousAmount).toStdString()}});
            }
            return uiText("Invariato");
        default: return {};
    }
}

const DetectedSubscription* SubscriptionListModel::subscription(int row) const {
    return row >= 0 && row < rowCount() ? &rows_[static_cast<std::size_t>(row)] : nullptr;
}

int SubscriptionListModel::rowOf(const std::string& key) const {
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        if (rows_[row].id == key) return static_cast<int>(row);
    }
    return -1;
}

QJsonArray SubscriptionListModel::rowsAsJson() const {
    static const char* const names[] = {"name", "frequency", "amount", "monthly", "yearly", "next", "price"};
    QJsonArray rows;
    for (int row = 0; row < rowCount(); ++row) {
        QJsonObject object{{QStringLiteral("key"), index(row, 0).data(KeyRole).toString()},
                           {QStringLiteral("priceIncreased"), index(row, 0).data(PriceIncreasedRole).toBool()}};
        for (int column = 0; column < int(columnTotal); ++column) {
            object.insert(QString::fromLatin1(names[column]), index(row, column).data().toString());
        }
        rows.append(object);
    }
    return rows;
}

}  // namespace vantello::app
