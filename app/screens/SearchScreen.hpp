#pragma once
// The search over every movement of the ledger: text, period, kind, categories, amount bounds,
// attachments and account, with the results updated while the user types, their count and
// totals, the export of exactly what is shown as CSV and saving the conditions under a name.
// Raw sidebar name "search".

#include "app/model/LedgerViewModel.hpp"
#include "app/model/SearchForm.hpp"
#include "core/base/Uuid.hpp"

#include <QWidget>

#include <filesystem>
#include <optional>
#include <set>
#include <string>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QStackedWidget;
class QTimer;
class QToolButton;
class QTreeView;

namespace vantello::app {

class SearchResultsModel;
class SearchNameDialog;

class SearchScreen : public QWidget {
    Q_OBJECT
public:
    explicit SearchScreen(LedgerViewModel& model, QWidget* parent = nullptr);

    // Puts the saved search's conditions into the fields and shows its results at once; an
    // unknown id (a search deleted meanwhile) changes nothing.
    void runSavedSearch(const vantello::Uuid& id);

    // The conditions as typed, and the results of the last search run.
    [[nodiscard]] SearchForm form() const;
    void setForm(const SearchForm& form);
    [[nodiscard]] SearchResultsModel& resultsModel() const { return *results_; }

    // Writes the results shown as CSV to `file` in one step; the reason when it cannot.
    std::optional<QString> exportResultsTo(const std::filesystem::path& file);
    // The sheet asking the name of "Salva ricerca", open over the window; null when none is.
    [[nodiscard]] SearchNameDialog* saveDialog() const { return saveDialog_; }

public Q_SLOTS:
    // Runs the search now instead of after the short pause that follows typing.
    void searchNow();
    // "Esporta CSV…": asks where, then writes.
    void exportResults();
    // "Salva ricerca…": asks the name in a sheet.
    void saveCurrentSearch();
    // "Azzera filtri": every condition back to none.
    void clearConditions();

Q_SIGNALS:
    // Double click or Enter on a result.
    void editRequested(const vantello::Uuid& transactionID);
    // A search was saved from this screen (the sidebar may select it).
    void searchSaved(const vantello::Uuid& id);

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build();
    void refreshChoices();
    void refreshCategoryButton();
    void refreshSummary();
    void refreshDates();
    void scheduleSearch();
    void applyColours();
    void showProblem(const QString& message, QWidget* field);
    void editCurrent();

    LedgerViewModel& model_;
    SearchResultsModel* results_;
    QTimer* debounce_;
    bool filling_ = false;  // fields set by the program, not typed

    QLineEdit* text_ = nullptr;
    QComboBox* period_ = nullptr;
    QDateEdit* from_ = nullptr;
    QDateEdit* to_ = nullptr;
    QComboBox* kind_ = nullptr;
    QToolButton* categories_ = nullptr;
    QMenu* categoryMenu_ = nullptr;
    std::set<std::string> chosenCategories_;
    QComboBox* account_ = nullptr;
    QLineEdit* minimum_ = nullptr;
    QLineEdit* maximum_ = nullptr;
    QCheckBox* attachments_ = nullptr;
    QPushButton* clear_ = nullptr;
    QPushButton* save_ = nullptr;
    QPushButton* export_ = nullptr;
    QLabel* problem_ = nullptr;
    QLabel* message_ = nullptr;
    QLabel* count_ = nullptr;
    QLabel* income_ = nullptr;
    QLabel* expenses_ = nullptr;
    QLabel* net_ = nullptr;
    QStackedWidget* pages_ = nullptr;
    QTreeView* list_ = nullptr;
    QLabel* emptyText_ = nullptr;
    QPushButton* emptyClear_ = nullptr;
    SearchNameDialog* saveDialog_ = nullptr;
};

}  // namespace vantello::app
