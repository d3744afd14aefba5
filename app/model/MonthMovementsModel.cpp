#include "app/model/MonthMovementsModel.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/SymbolIcons.hpp"
#include "core/analysis/PeriodTotals.hpp"

#include <QJsonObject>
#include <QStringList>

#include <map>

namespace vantello::app {

namespace {

QString qText(const std::string& text) { return QString::fromStdString(text); }

// A day's net with its direction: "+40,00 €", "−12,50 €", and "0,00 €" for a day that nets nothing.
QString signedNetText(const Decimal& net) {
    if (net.isZero()) return euroText(net);
    return movementAmountText(net.magnitude(), net.sign() < 0 ? TransactionKind::expense : TransactionKind::income);
}

}  // namespace

MonthMovementsModel::MonthMovementsModel(LedgerViewModel& model, QObject* parent)
    : QAbstractListModel(parent), model_(model) {
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &MonthMovementsModel::refresh);
    connect(&model_, &LedgerViewModel::selectedMonthChanged, this, &MonthMovementsModel::refresh);
    connect(&model_, &LedgerViewModel::selectedAccountChanged, this, &MonthMovementsModel::refresh);
    refresh();
}

void MonthMovementsModel::refresh() {
    Inputs inputs{model_.ledgerRevision(), model_.selectedMonth(), model_.selectedAccountID()};
    if (inputs_ == inputs) return;
    inputs_ = std::move(inputs);
    beginResetModel();
    rebuild();
    endResetModel();
}

void MonthMovementsModel::rebuild() {
    rows_.clear();
    movementCount_ = 0;
    const Ledger& ledger = model_.ledger();
    const Calendar& calendar = model_.calendar();
    const std::vector<Transaction>& movements = model_.monthTransactions();
    rows_.reserve(movements.size() + 32);
    const bool manyAccounts = ledger.accounts().size() > 1;

    // Names looked up once per category and account, not once per movement.
    std::map<std::string, std::pair<QString, QString>, std::less<>> categories;  // id → name, symbol
    const auto categoryOf = [&](const std::string& id) -> const std::pair<QString, QString>& {
        auto found = categories.find(id);
        if (found == categories.end()) {
            const auto category = ledger.category(id);
            found = categories
                        .emplace(id, category ? std::pair{qText(category->name), qText(category->symbol)}
                                              : std::pair{qText(id), QString()})
                        .first;
        }
        return found->second;
    };
    std::map<std::string, QString, std::less<>> accounts;
    const auto accountName = [&](const std::string& id) -> const QString& {
        auto found = accounts.find(id);
        if (found == accounts.end()) {
            const Account* account = ledger.account(id);
            found = accounts.emplace(id, account ? qText(account->name) : qText(id)).first;
        }
        return found->second;
    };
    const auto iconOf = [&](const QString& symbol) {
        auto found = icons_.constFind(symbol);
        if (found == icons_.constEnd()) found = icons_.insert(symbol, symbolIcon(symbol.toStdString()));
        return *found;
    };

    std::size_t headerIndex = 0;
    PeriodTotals dayTotals;
    const auto closeDay = [&] {
        if (rows_.empty()) return;
        Row& header = rows_[headerIndex];
        header.amount = dayTotals.net();
        header.sign = dayTotals.net().sign();
        header.isIncome = header.sign > 0;
    };

    for (const Transaction& movement : movements) {
        const Instant day = calendar.startOfDay(movement.date);
        if (rows_.empty() || rows_[headerIndex].day != day) {
            closeDay();
            dayTotals = {};
            headerIndex = rows_.size();
            Row header;
            header.kind = RowKind::dayHeader;
            header.day = day;
            header.dayText = dayText(day, calendar);
            rows_.push_back(std::move(header));
        }
        if (countsInTotals(movement)) addToTotals(dayTotals, movement);

        Row row;
        row.kind = RowKind::movement;
        row.id = movement.id;
        row.day = day;
        row.dayText = rows_[headerIndex].dayText;
        const auto& [categoryName, symbol] = categoryOf(movement.categoryID);
        row.categoryName = categoryName;
        row.iconName = symbol;
        row.icon = iconOf(symbol);
        row.note = qText(movement.note);
        row.isTransfer = movement.isTransfer();
        if (row.isTransfer) {
            row.accountText = accountName(movement.accountID) + QStringLiteral(" \u2192 ") +
                              accountName(*movement.transferToAccountID);
            row.amount = movement.amount;
        } else {
            if (manyAccounts) row.accountText = accountName(movement.accountID);
            row.amount = movement.amount;
            row.movementKind = movement.kind;
            row.isIncome = movement.kind == TransactionKind::income;
            row.sign = row.isIncome ? 1 : -1;
        }
        row.hasAttachments = !movement.attachments.empty();
        row.isShared = !movement.shares.empty();
        rows_.push_back(std::move(row));
        ++movementCount_;
    }
    closeDay();
}

int MonthMovementsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant MonthMovementsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() < 0 || index.row() >= rowCount()) return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    const bool isHeader = row.kind == RowKind::dayHeader;
    switch (role) {
        case Qt::DisplayRole: return isHeader ? row.dayText : row.categoryName;
        case Qt::DecorationRole: return isHeader ? QVariant() : QVariant(row.icon);
        case Qt::AccessibleTextRole: return accessibleText(row);
        case Qt::ToolTipRole: {
            QStringList markers;
            if (row.hasAttachments) markers << uiText("Con allegati");
            if (row.isShared) markers << uiText("Divisa con altre persone");
            return markers.isEmpty() ? QVariant() : QVariant(markers.join(QStringLiteral(" · ")));
        }
        case RowKindRole: return static_cast<int>(row.kind);
        case IdRole: return isHeader ? QString() : qText(row.id.text());
        case DayRole: return static_cast<qlonglong>(unixSeconds(row.day));
        case DayTextRole: return row.dayText;
        case CategoryNameRole: return row.categoryName;
        case IconNameRole: return row.iconName;
        case NoteRole: return row.note;
        case AccountTextRole: return row.accountText;
        case AmountTextRole: return amountTextOf(row);
        case IsIncomeRole: return row.isIncome;
        case IsTransferRole: return row.isTransfer;
        case SignRole: return row.sign;
        case HasAttachmentsRole: return row.hasAttachments;
        case IsSharedRole: return row.isShared;
        default: return {};
    }
}

const QString& MonthMovementsModel::amountTextOf(const Row& row) {
    if (!row.amountText) {
        if (row.kind == RowKind::dayHeader) {
            row.amountText = signedNetText(row.amount);
        } else if (row.isTransfer) {
            row.amountText = euroText(row.amount);
        } else {
            row.amountText = movementAmountText(row.amount, row.movementKind);
        }
    }
    return *row.amountText;
}

QString MonthMovementsModel::accessibleText(const Row& row) const {
    if (row.kind == RowKind::dayHeader) {
        return uiText("{day}, saldo del giorno {amount}",
                      {{"day", row.dayText.toStdString()}, {"amount", amountTextOf(row).toStdString()}});
    }
    QStringList parts{row.categoryName};
    if (!row.note.isEmpty()) parts << row.note;
    if (!row.accountText.isEmpty()) parts << row.accountText;
    parts << amountTextOf(row);
    if (row.hasAttachments) parts << uiText("Con allegati");
    if (row.isShared) parts << uiText("Divisa con altre persone");
    return parts.join(QStringLiteral(", "));
}

Qt::ItemFlags MonthMovementsModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    if (rowKind(index.row()) == RowKind::dayHeader) return Qt::ItemIsEnabled;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

QHash<int, QByteArray> MonthMovementsModel::roleNames() const {
    return {
        {Qt::DisplayRole, "display"},
        {RowKindRole, "kind"},
        {IdRole, "id"},
        {DayRole, "day"},
        {DayTextRole, "dayText"},
        {CategoryNameRole, "category"},
        {IconNameRole, "icon"},
        {NoteRole, "note"},
        {AccountTextRole, "account"},
        {AmountTextRole, "amount"},
        {IsIncomeRole, "isIncome"},
        {IsTransferRole, "isTransfer"},
        {SignRole, "sign"},
        {HasAttachmentsRole, "hasAttachments"},
        {IsSharedRole, "isShared"},
    };
}

MonthMovementsModel::RowKind MonthMovementsModel::rowKind(int row) const {
    if (row < 0 || row >= rowCount()) return RowKind::dayHeader;
    return rows_[static_cast<std::size_t>(row)].kind;
}

std::optional<Uuid> MonthMovementsModel::transactionID(int row) const {
    if (rowKind(row) != RowKind::movement) return std::nullopt;
    return rows_[static_cast<std::size_t>(row)].id;
}

int MonthMovementsModel::rowOf(const Uuid& transactionID) const {
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        if (rows_[row].kind == RowKind::movement && rows_[row].id == transactionID) return static_cast<int>(row);
    }
    return -1;
}

QJsonArray MonthMovementsModel::rowsAsJson() const {
    QJsonArray rows;
    for (const Row& row : rows_) {
        QJsonObject object;
        object[QStringLiteral("kind")] =
            row.kind == RowKind::dayHeader ? QStringLiteral("day") : QStringLiteral("movement");
        object[QStringLiteral("day")] = row.dayText;
        object[QStringLiteral("amount")] = amountTextOf(row);
        if (row.kind == RowKind::movement) {
            object[QStringLiteral("id")] = qText(row.id.text());
            object[QStringLiteral("category")] = row.categoryName;
            object[QStringLiteral("icon")] = row.iconName;
            object[QStringLiteral("note")] = row.note;
            object[QStringLiteral("account")] = row.accountText;
            object[QStringLiteral("isTransfer")] = row.isTransfer;
            object[QStringLiteral("hasAttachments")] = row.hasAttachments;
            object[QStringLiteral("isShared")] = row.isShared;
        }
        object[QStringLiteral("isIncome")] = row.isIncome;
        object[QStringLiteral("sign")] = row.sign;
        rows.append(object);
    }
    return rows;
}

}  // namespace vantello::app
