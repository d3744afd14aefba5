#pragma once
// The accounts screen: every account with its icon, today's balance and its low-balance
// threshold; adds, edits and deletes accounts through AccountActions. Deleting says first how
// many movements go to the main account and which transfers stop being transfers.

#include <QWidget>

#include "app/model/LedgerViewModel.hpp"

#include <optional>
#include <string>
#include <string_view>

class QLabel;
class QPushButton;
class QTreeView;

namespace vantello::app {

class AccountListModel;

class AccountsScreen : public QWidget {
    Q_OBJECT
public:
    explicit AccountsScreen(LedgerViewModel& model, QWidget* parent = nullptr);

    [[nodiscard]] const AccountListModel& listModel() const { return *accounts_; }
    [[nodiscard]] std::optional<std::string> selectedAccountID() const;
    void selectAccount(std::string_view accountID);
    // The last outcome or refusal shown under the list; empty when none.
    [[nodiscard]] QString noticeText() const;

public Q_SLOTS:
    void addAccount();
    void editSelected();
    // Asks before deleting the selected account (the core's message for the main account).
    void deleteSelected();

private:
    void refresh();
    void showNotice(const QString& text);
    void updateButtons();

    LedgerViewModel& model_;
    AccountListModel* accounts_;
    QTreeView* view_ = nullptr;
    QPushButton* editButton_ = nullptr;
    QPushButton* deleteButton_ = nullptr;
    QLabel* notice_ = nullptr;
};

}  // namespace vantello::app
