#pragma once
// The sheet that edits one movement: kind, amount (also in a foreign currency at the ECB rate),
// day, category or destination account, account, note, the people who owe part of it and the
// attachments. It keeps the model's open draft up to date and saves through the model.

#include "app/model/LedgerViewModel.hpp"
#include "core/ledger/TransactionDraft.hpp"

#include <QDialog>
#include <QPointer>
#include <QString>

class QAbstractButton;
class QButtonGroup;
class QComboBox;
class QDateEdit;
class QFormLayout;
class QLabel;
class QLineEdit;
class QListView;
class QPushButton;
class QRadioButton;
class QTableView;
class QWidget;

namespace vantello::app {

class EditorAttachmentsModel;
class EditorChoiceModel;
class EditorSharesModel;

class TransactionEditor : public QDialog {
    Q_OBJECT
public:
    // Edits `draft` (a new movement from model.newDraft(kind), an existing one from
    // model.draftOf(id), or the salary from model.salaryDraft()). Window-modal over `parent`.
    // Should the model go away while the sheet is open (the profile switched), the sheet
    // closes without saving.
    TransactionEditor(LedgerViewModel& model, TransactionDraft draft, QWidget* parent = nullptr);
    ~TransactionEditor() override;

    // The movement as the controls have it now.
    [[nodiscard]] const TransactionDraft& draft() const { return draft_; }
    // The message of the last failed save, shown in the sheet; empty when none.
    [[nodiscard]] QString errorText() const;

public Q_SLOTS:
    // Saves through model.saveDraft: on success the sheet closes (accept), otherwise it stays
    // open and shows the message.
    void save();
    // Copies `path` into the attachments folder and adds it to the movement; the reason it
    // cannot goes to the error label. The "Aggiungi…" button calls it with the picked file.
    void attachFile(const QString& path);

protected:
    // Closing by any way (save, Annulla, Escape, the window's close) ends the edit once: the
    // model forgets the draft and keeps or drops the files attached meanwhile.
    void done(int result) override;

private:
    void buildControls();
    void fillPickers();
    void showDraft();
    void updateVisibility();
    void setKind(int kindButton);
    void setDay(const QDate& day);
    void currencyEdited();
    void convert();
    void sharesEdited();
    void splitEqually();
    void pickAttachment();
    void openAttachment();
    void removeAttachment();
    void publishDraft();
    void showError(const QString& message);
    void finishEditing(bool saved);
    [[nodiscard]] bool isTransfer() const { return draft_.transferToAccountID.has_value(); }
    [[nodiscard]] std::string chosenID(const QComboBox* picker) const;
    void choose(QComboBox* picker, std::string_view id);

    QPointer<LedgerViewModel> model_;
    TransactionDraft draft_;
    Instant originalDate_;  // keeps its time of day while the day is not changed
    bool finished_ = false;
    bool showing_ = false;  // the controls are being filled from the draft, not edited

    EditorChoiceModel* categories_ = nullptr;
    EditorChoiceModel* accounts_ = nullptr;
    EditorChoiceModel* destinations_ = nullptr;
    EditorChoiceModel* currencies_ = nullptr;
    EditorSharesModel* shares_ = nullptr;
    EditorAttachmentsModel* attachments_ = nullptr;

    QFormLayout* form_ = nullptr;
    QButtonGroup* kindGroup_ = nullptr;
    QRadioButton* expenseButton_ = nullptr;
    QRadioButton* incomeButton_ = nullptr;
    QRadioButton* transferButton_ = nullptr;
    QLineEdit* amountEdit_ = nullptr;
    QComboBox* currencyPicker_ = nullptr;
    QLineEdit* originalAmountEdit_ = nullptr;
    QLabel* conversionLabel_ = nullptr;
    QDateEdit* dateEdit_ = nullptr;
    QComboBox* categoryPicker_ = nullptr;
    QComboBox* accountPicker_ = nullptr;
    QComboBox* destinationPicker_ = nullptr;
    QLineEdit* noteEdit_ = nullptr;
    QWidget* sharesBox_ = nullptr;
    QTableView* sharesView_ = nullptr;
    QLabel* noPeopleLabel_ = nullptr;
    QPushButton* splitButton_ = nullptr;
    QListView* attachmentsView_ = nullptr;
    QPushButton* addAttachmentButton_ = nullptr;
    QPushButton* openAttachmentButton_ = nullptr;
    QPushButton* removeAttachmentButton_ = nullptr;
    QLabel* errorLabel_ = nullptr;
    QPushButton* saveButton_ = nullptr;
    QPushButton* cancelButton_ = nullptr;
};

}  // namespace vantello::app
