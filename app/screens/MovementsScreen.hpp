#pragma once
// The screen people live in: the movements of the month shown, with the month and account
// choice, the summary tiles, the alerts and salary banners, and a start card on an empty ledger.
// It follows the model's signals and changes the ledger only through the model's operations.

#include "app/model/LedgerViewModel.hpp"
#include "core/base/Uuid.hpp"
#include "core/ledger/TransactionKind.hpp"

#include <QWidget>

#include <string>
#include <vector>

class QComboBox;
class QLabel;
class QPushButton;
class QStackedWidget;
class QToolButton;
class QTreeView;
class QVBoxLayout;

namespace vantello::app {

class MonthSwitcher;

class MonthMovementsModel;
class MovementsCard;
class SummaryTile;

class MovementsScreen : public QWidget {
    Q_OBJECT
public:
    explicit MovementsScreen(LedgerViewModel& model, QWidget* parent = nullptr);

    // The ids of the selected movements, in list order (for the menu's Delete and Duplicate).
    [[nodiscard]] std::vector<Uuid> selectedTransactionIDs() const;
    // The list's rows, for tests and the main window's own checks.
    [[nodiscard]] MonthMovementsModel& listModel() const { return *listModel_; }

public Q_SLOTS:
    // Deletes the selected movements in one change (undone as one); nothing when none is.
    void deleteSelected();
    // Copies each selected movement, dated now, and selects the copies shown in the list.
    void duplicateSelected();

Q_SIGNALS:
    // Double click or Enter on a row, and the context menu's "Modifica".
    void editRequested(const vantello::Uuid& transactionID);
    // The screen's add buttons; the start card's and the empty month's ask for an expense.
    void newRequested(vantello::TransactionKind kind);
    // "Aggiungi stipendio" on the salary banner.
    void salaryRequested();
    // The start card's import action.
    void importRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void buildHeader(QVBoxLayout* layout);
    void buildTiles(QVBoxLayout* layout);
    void buildBanners(QVBoxLayout* layout);
    void buildPages(QVBoxLayout* layout);
    QWidget* buildStartCard();
    QWidget* buildEmptyMonth();

    void refresh();
    void refreshAccounts();
    void refreshTiles();
    void refreshAlerts();
    void refreshSalaryBanner();
    void refreshPage();
    void orderTabs();
    void applyColours();
    void showContextMenu(const QPoint& position);
    void selectRows(const std::vector<Uuid>& transactionIDs);

    LedgerViewModel& model_;
    MonthMovementsModel* listModel_;

    MonthSwitcher* monthSwitcher_ = nullptr;
    QLabel* accountLabel_ = nullptr;
    QComboBox* accountFilter_ = nullptr;
    QPushButton* addExpense_ = nullptr;
    QPushButton* addIncome_ = nullptr;

    QWidget* tilesRow_ = nullptr;
    std::vector<SummaryTile*> tiles_;

    MovementsCard* alertsBanner_ = nullptr;
    QVBoxLayout* alertsLayout_ = nullptr;
    std::vector<std::string> shownAlertIDs_;
    std::vector<QWidget*> alertButtons_;

    MovementsCard* salaryBanner_ = nullptr;
    QLabel* salaryText_ = nullptr;
    QPushButton* salaryAdd_ = nullptr;
    QPushButton* salaryLater_ = nullptr;

    QStackedWidget* pages_ = nullptr;
    QTreeView* list_ = nullptr;
    QWidget* emptyMonth_ = nullptr;
    QPushButton* emptyMonthAdd_ = nullptr;
    QWidget* startCard_ = nullptr;
    std::vector<QPushButton*> startButtons_;
};

}  // namespace vantello::app
