#pragma once
// The month shown by the month screens, with the way to the month before and after it and back
// to the current one ("Torna al mese in corso", only while another month is shown). It follows
// the model: every screen that carries one shows the same month.

#include <QWidget>

class QLabel;
class QPushButton;
class QToolButton;

namespace vantello::app {

class LedgerViewModel;

class MonthSwitcher : public QWidget {
    Q_OBJECT

public:
    explicit MonthSwitcher(LedgerViewModel& model, QWidget* parent = nullptr);

    // The last of its controls in the Tab order, for the screen to carry on from.
    [[nodiscard]] QWidget* lastControl() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void refresh();

    LedgerViewModel& model_;
    QToolButton* previous_;
    QLabel* title_;
    QToolButton* next_;
    QPushButton* current_;
};

}  // namespace vantello::app
