#pragma once
// The sheet that imports a bank statement: the file and its format, the columns the core
// guessed (each one can be changed, and the preview follows at once), the rows as they will be
// imported or why they will not, the account to import into, and the choices of the merge.

#include "app/model/ImportMappingMemory.hpp"
#include "app/model/LedgerViewModel.hpp"

#include <QDialog>
#include <QString>

#include <functional>
#include <map>
#include <optional>
#include <string>

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QFrame;
class QGridLayout;
class QGroupBox;
class QLabel;
class QPushButton;
class QTableView;

namespace vantello::app {

class ImportPreviewModel;

class ImportSheet : public QDialog {
    Q_OBJECT

public:
    // Shows model.importSession(), which must be set. Window-modal over `parent`. When the
    // statement's bank was imported before, the columns then confirmed are applied at once and
    // the sheet says so, with a way back to the guess. The sheet closes by itself when the
    // session ends elsewhere (a profile switch); it is not deleted on close.
    ImportSheet(LedgerViewModel& model, QWidget* parent = nullptr);

    // Escape and "Annulla": the session is cancelled.
    void reject() override;

Q_SIGNALS:
    // After a confirmed import: the counts as one line for the message bar
    // ("Importati 12 movimenti · 3 già presenti · 2 giroconti · 1 riga non valida").
    void imported(const QString& summary);

private:
    void buildOptions();
    QComboBox* addOption(QGridLayout* grid, int row, int pair, std::string_view italianLabel, const char* objectName,
                         const std::string& rule);
    void setOptionVisible(QComboBox* box, bool visible);
    void refresh();                // everything from the session
    void refreshOptions(const StatementImport& statement);
    void refreshOutcome();         // the counts foreseen, the repeated rows, the button
    void revise(const CSVImportOverrides& overrides);
    void changeOverrides(const std::function<void(CSVImportOverrides&, const CSVImportOptions&)>& change);
    void useGuess();
    void confirm();
    [[nodiscard]] std::string chosenAccount() const;
    [[nodiscard]] RepeatedMovements chosenRepetition() const;

    LedgerViewModel& model_;
    ImportMappingMemory memory_;
    std::optional<QString> fingerprint_;  // the bank's key, taken from the file as guessed
    bool usingRemembered_ = false;
    bool finishing_ = false;

    ImportPreviewModel* preview_ = nullptr;
    QLabel* fileLabel_ = nullptr;
    QLabel* countsLabel_ = nullptr;
    QFrame* memoryBar_ = nullptr;
    QPushButton* guessButton_ = nullptr;
    QGroupBox* optionsBox_ = nullptr;
    QComboBox* separatorBox_ = nullptr;
    QComboBox* headerBox_ = nullptr;
    QComboBox* dateColumnBox_ = nullptr;
    QComboBox* dateOrderBox_ = nullptr;
    QComboBox* amountModeBox_ = nullptr;
    QComboBox* amountColumnBox_ = nullptr;
    QComboBox* incomeColumnBox_ = nullptr;
    QComboBox* expenseColumnBox_ = nullptr;
    QComboBox* descriptionColumnBox_ = nullptr;
    QComboBox* categoryColumnBox_ = nullptr;
    std::map<QComboBox*, std::pair<QLabel*, QLabel*>> companions_;  // each picker's label and hint
    std::map<std::string, QLabel*> hints_;    // by the option's name in the guess's rules
    QLabel* repeatedLabel_ = nullptr;
    QTableView* table_ = nullptr;
    QLabel* errorLabel_ = nullptr;
    QComboBox* accountBox_ = nullptr;
    QCheckBox* transfersBox_ = nullptr;
    QCheckBox* repeatedBox_ = nullptr;
    QLabel* expectedLabel_ = nullptr;
    QDialogButtonBox* buttons_ = nullptr;
    QPushButton* importButton_ = nullptr;
};

}  // namespace vantello::app
