#pragma once
// The shared-expenses screen: the people with what each owes the user or is owed (in words as
// well as colour), settling up with one of them, their history of shares and settlements, and
// adding or deleting a person.

// The Qt side first: moc cannot read the standard library's <concepts> before Qt's headers.
#include <QWidget>

#include "app/model/PeopleModels.hpp"

class QLabel;
class QPushButton;
class QTableView;

namespace vantello::app {

class SharedScreen : public QWidget {
    Q_OBJECT
public:
    explicit SharedScreen(LedgerViewModel& model, QWidget* parent = nullptr);

    [[nodiscard]] const PeopleListModel& peopleModel() const { return *people_; }
    [[nodiscard]] const PersonHistoryModel& historyModel() const { return *history_; }

public Q_SLOTS:
    // Each opens its window-modal sheet (or the confirmation) over the screen.
    void addPerson();
    void settleUp();
    void renamePerson();
    void deletePerson();

private:
    void showSelectedPerson();
    void refresh();
    [[nodiscard]] std::optional<Uuid> selectedPerson() const;

    LedgerViewModel& model_;
    PeopleListModel* people_;
    PersonHistoryModel* history_;
    QTableView* peopleView_;
    QLabel* peopleEmpty_;
    QLabel* historyTitle_;
    QTableView* historyView_;
    QLabel* historyEmpty_;
    QPushButton* settleButton_;
    QPushButton* renameButton_;
    QPushButton* deleteButton_;
};

}  // namespace vantello::app
