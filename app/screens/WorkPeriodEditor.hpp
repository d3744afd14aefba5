#pragma once
// The sheet that adds or changes a period without work: first day, last day (absent while it
// lasts) and a note. The core's reason for refusing it (an overlap, a second open period…) is
// shown inside and the sheet stays open.

#include "app/model/LedgerViewModel.hpp"
#include "core/ledger/LedgerEmployment.hpp"

#include <QDialog>

class QCheckBox;
class QDateEdit;
class QLabel;
class QLineEdit;

namespace vantello::app {

class WorkPeriodEditor : public QDialog {
    Q_OBJECT
public:
    WorkPeriodEditor(LedgerViewModel& model, UnemploymentDraft draft, QWidget* parent = nullptr);

    [[nodiscard]] QString errorText() const;

public Q_SLOTS:
    void save();

private:
    LedgerViewModel& model_;
    UnemploymentDraft draft_;
    QDateEdit* startEdit_;
    QCheckBox* hasEndCheck_;
    QDateEdit* endEdit_;
    QLineEdit* noteEdit_;
    QLabel* errorLabel_;
};

}  // namespace vantello::app
