#include "app/model/EditorShares.hpp"

#include "app/model/DisplayText.hpp"
#include "core/ledger/AmountParser.hpp"
#include "core/ledger/LedgerSharing.hpp"

#include <algorithm>

namespace vantello::app {

void EditorSharesModel::setPeople(const std::vector<Person>& people) {
    std::vector<Row> rows;
    rows.reserve(people.size());
    for (const Person& person : people) {
        const auto kept = std::find_if(rows_.begin(), rows_.end(),
                                       [&](const Row& row) { return row.person.id == person.id; });
        Row row{person, false, {}};
        if (kept != rows_.end()) {
            row.checked = kept->checked;
            row.amountText = kept->amountText;
        }
        rows.push_back(std::move(row));
    }
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

void EditorSharesModel::setAmount(Row& row, const Decimal& amount) {
    row.amountText = typedAmountText(amount);
}

void EditorSharesModel::setShares(const std::vector<PersonShare>& shares) {
    for (Row& row : rows_) {
        const auto share = std::find_if(shares.begin(), shares.end(),
                                        [&](const PersonShare& given) { return given.personID == row.person.id; });
        row.checked = share != shares.end();
        row.amountText.clear();
        if (share != shares.end()) setAmount(row, share->amount);
    }
    if (!rows_.empty()) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, amountColumn));
}

std::variant<std::vector<PersonShare>, QString> EditorSharesModel::shares() const {
    std::vector<PersonShare> shares;
    for (const Row& row : rows_) {
        if (!row.checked) continue;
        const auto amount = AmountParser::parse(row.amountText.trimmed().toStdString());
        if (!amount) {
            return uiText("Scrivi la quota di {name}, per esempio 12,50.", {{"name", row.person.name}});
        }
        shares.push_back({row.person.id, *amount});
    }
    return shares;
}

int EditorSharesModel::checkedCount() const {
    return static_cast<int>(std::count_if(rows_.begin(), rows_.end(), [](const Row& row) { return row.checked; }));
}

void EditorSharesModel::splitEqually(const Decimal& total) {
    std::vector<Uuid> people;
    for (const Row& row : rows_) {
        if (row.checked) people.push_back(row.person.id);
    }
    const auto split = equalSplit(total, people);
    for (Row& row : rows_) {
        const auto share = std::find_if(split.begin(), split.end(),
                                        [&](const PersonShare& given) { return given.personID == row.person.id; });
        if (share != split.end()) setAmount(row, share->amount);
    }
    if (!rows_.empty()) Q_EMIT dataChanged(index(0, amountColumn), index(rowCount() - 1, amountColumn));
}

int EditorSharesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int EditorSharesModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columnCount_; }

QVariant EditorSharesModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    if (index.column() == personColumn) {
        switch (role) {
            case Qt::DisplayRole:
            case Qt::AccessibleTextRole: return QString::fromStdString(row.person.name);
            case Qt::CheckStateRole: return row.checked ? Qt::Checked : Qt::Unchecked;
            default: return {};
        }
    }
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
        case Qt::AccessibleTextRole: return row.amountText;
        case Qt::TextAlignmentRole: return int(Qt::AlignRight | Qt::AlignVCenter);
        default: return {};
    }
}

bool EditorSharesModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || index.row() >= rowCount()) return false;
    Row& row = rows_[static_cast<std::size_t>(index.row())];
    if (index.column() == personColumn && role == Qt::CheckStateRole) {
        row.checked = value.toInt() == Qt::Checked;
    } else if (index.column() == amountColumn && role == Qt::EditRole) {
        row.amountText = value.toString().trimmed();
        // Typing an amount for someone means they owe it.
        if (!row.amountText.isEmpty() && !row.checked) {
            row.checked = true;
            Q_EMIT dataChanged(this->index(index.row(), personColumn), this->index(index.row(), personColumn));
        }
    } else {
        return false;
    }
    Q_EMIT dataChanged(index, index);
    return true;
}

Qt::ItemFlags EditorSharesModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    const Qt::ItemFlags base = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return index.column() == personColumn ? base | Qt::ItemIsUserCheckable : base | Qt::ItemIsEditable;
}

QVariant EditorSharesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return section == personColumn ? uiText("Persona") : uiText("Quota");
}

}  // namespace vantello::app
