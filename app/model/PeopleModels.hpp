#pragma once
// What the shared-expenses screen lists: the people with their balance in words ("Ti deve
// 12,00 €", "Devi 12,00 €", "In pari"), and one person's history of shares and settlements.

#include "app/model/WealthModels.hpp"
#include "core/ledger/LedgerSharing.hpp"

#include <vector>

namespace vantello::app {

// The balance with a person in words, so that colour is never the only clue.
[[nodiscard]] QString balanceText(const Decimal& balance);

// The ledger's people in their order with what each owes the user or is owed.
class PeopleListModel : public WealthTableModel {
    Q_OBJECT
public:
    explicit PeopleListModel(LedgerViewModel& model, QObject* parent = nullptr);
    void refresh();

private:
    LedgerViewModel& model_;
};

// One person's shares and entries, newest first, each with what it did to the balance.
class PersonHistoryModel : public WealthTableModel {
    Q_OBJECT
public:
    explicit PersonHistoryModel(LedgerViewModel& model, QObject* parent = nullptr);
    // The person shown; nothing empties the list.
    void setPerson(std::optional<Uuid> personID);
    [[nodiscard]] const std::optional<Uuid>& person() const { return person_; }
    void refresh();

private:
    [[nodiscard]] QString cellText(int row, int column) const override;

    LedgerViewModel& model_;
    std::optional<Uuid> person_;
    std::vector<SharedHistoryItem> items_;
};

}  // namespace vantello::app
