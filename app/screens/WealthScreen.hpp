#pragma once
// The wealth screen: the net worth today with its last twelve months as a chart, the assets with
// their latest valuation (add, edit, new valuation, delete) and the loans with instalment and
// capital still owed (add, repayment plan, booking the instalments, delete).

// The Qt side first: moc cannot read the standard library's <concepts> before Qt's headers.
#include <QWidget>

#include "app/model/WealthModels.hpp"

class QLabel;
class QPushButton;
class QStackedWidget;
class QTableView;

class QChart;
class QChartView;
class QLineSeries;
class QBarCategoryAxis;
class QValueAxis;

namespace vantello::app {

class SummaryTile;

class WealthScreen : public QWidget {
    Q_OBJECT
public:
    explicit WealthScreen(LedgerViewModel& model, QWidget* parent = nullptr);

    [[nodiscard]] const NetWorthOverview& overview() const { return overview_; }
    [[nodiscard]] const AssetListModel& assetModel() const { return *assets_; }
    [[nodiscard]] const LoanListModel& loanModel() const { return *loans_; }

public Q_SLOTS:
    // Each opens its window-modal sheet (or the confirmation) over the screen.
    void newAsset();
    void editAsset();
    void updateAssetValue();
    void deleteAsset();
    void newLoan();
    void editLoan();
    void openLoanSheet(std::optional<Loan> existing);
    void showLoanSchedule();
    void bookLoan();
    void deleteLoan();

protected:
    void changeEvent(QEvent* event) override;

private:
    void refresh();
    void refreshChart();
    void updateButtons();
    [[nodiscard]] std::optional<Uuid> selected(const QTableView& view, const WealthTableModel& rows) const;

    LedgerViewModel& model_;
    NetWorthOverview overview_;
    AssetListModel* assets_;
    LoanListModel* loans_;
    SummaryTile* tile_;
    QChart* chart_;
    QChartView* chartView_;
    QLineSeries* series_;
    QBarCategoryAxis* monthAxis_;
    QValueAxis* valueAxis_;
    QTableView* assetsView_;
    QLabel* assetsEmpty_;
    QTableView* loansView_;
    QLabel* loansEmpty_;
    QPushButton* editAssetButton_;
    QPushButton* valueButton_;
    QPushButton* deleteAssetButton_;
    QPushButton* editLoanButton_;
    QPushButton* scheduleButton_;
    QPushButton* bookButton_;
    QPushButton* deleteLoanButton_;
};

}  // namespace vantello::app
