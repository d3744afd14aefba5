#pragma once
// The bar above the content that reports what just happened ("Importati 12 movimenti · 3 già
// presenti") and, after a deletion or an import, offers to take it back.

#include <QFrame>

#include <optional>

class QLabel;
class QPushButton;

namespace vantello::app {

class MessageBar : public QFrame {
    Q_OBJECT
public:
    explicit MessageBar(QWidget* parent = nullptr);
    // `undoLabel`, when given, is the button that takes the change back ("Annulla Elimina
    // movimento").
    void show(const QString& text, const std::optional<QString>& undoLabel);
    [[nodiscard]] QString text() const;
Q_SIGNALS:
    void undoRequested();

private:
    QLabel* text_;
    QPushButton* undo_;
};

}  // namespace vantello::app
