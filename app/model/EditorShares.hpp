#pragma once
// The people an expense is split with in the editor: every person of the ledger, checked when
// they owe part of it, with the amount as typed. Column 0 is the person (checkable), column 1
// the amount (editable text).

// Qt first: moc cannot parse <concepts> (through Decimal.hpp) unless another standard header
// came before it.
#include <QAbstractTableModel>
#include <QString>

#include "core/ledger/Person.hpp"
#include "core/ledger/PersonShare.hpp"

#include <string>
#include <variant>
#include <vector>

namespace vantello::app {

class EditorSharesModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { personColumn = 0, amountColumn = 1, columnCount_ = 2 };

    explicit EditorSharesModel(QObject* parent = nullptr) : QAbstractTableModel(parent) {}

    // The people offered; the checks and amounts of those still there are kept.
    void setPeople(const std::vector<Person>& people);
    // Checks the people of `shares` with their amounts and clears everyone else.
    void setShares(const std::vector<PersonShare>& shares);
    // The checked people's shares, or the message for an amount that is not one.
    [[nodiscard]] std::variant<std::vector<PersonShare>, QString> shares() const;
    [[nodiscard]] int checkedCount() const;
    // Gives every checked person an equal part of `total`, as the core splits it.
    void splitEqually(const Decimal& total);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Row {
        Person person;
        bool checked = false;
        QString amountText;
    };
    void setAmount(Row& row, const Decimal& amount);

    std::vector<Row> rows_;
};

}  // namespace vantello::app
