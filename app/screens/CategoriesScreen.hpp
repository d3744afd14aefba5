#pragma once
// The categories screen: the expense and income categories side by side, built-in ones and the
// user's own, with their icons; adds, changes and deletes the user's own through
// CategoryActions (the core refuses to change built-in ones, and the screen shows why).

#include <QWidget>

#include "app/model/LedgerViewModel.hpp"

#include <optional>
#include <string>
#include <string_view>

class QLabel;
class QPushButton;
class QTreeView;

namespace vantello::app {

class CategoryListModel;

class CategoriesScreen : public QWidget {
    Q_OBJECT
public:
    explicit CategoriesScreen(LedgerViewModel& model, QWidget* parent = nullptr);

    [[nodiscard]] const CategoryListModel& expenseList() const { return *expenses_; }
    [[nodiscard]] const CategoryListModel& incomeList() const { return *income_; }
    // The category selected in either list.
    [[nodiscard]] std::optional<std::string> selectedCategoryID() const;
    void selectCategory(std::string_view categoryID);
    // The last outcome or refusal shown under the lists; empty when none.
    [[nodiscard]] QString noticeText() const;

public Q_SLOTS:
    // Opens the sheet for a new category, of the kind of the list last used.
    void addCategory();
    // Opens the sheet that renames the selected category (the core's message for a built-in).
    void editSelected();
    // Asks before deleting the selected category, saying how many movements will move.
    void deleteSelected();

private:
    void refresh();
    void showNotice(const QString& text);
    void updateButtons();
    [[nodiscard]] std::optional<TransactionCategory> selectedCategory() const;
    QTreeView* makeList(CategoryListModel* list, const QString& name, const QString& accessibleName);

    LedgerViewModel& model_;
    CategoryListModel* expenses_;
    CategoryListModel* income_;
    QTreeView* expenseView_ = nullptr;
    QTreeView* incomeView_ = nullptr;
    QTreeView* lastUsed_ = nullptr;
    QPushButton* editButton_ = nullptr;
    QPushButton* deleteButton_ = nullptr;
    QLabel* notice_ = nullptr;
};

}  // namespace vantello::app
