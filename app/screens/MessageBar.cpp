#include "app/screens/MessageBar.hpp"

#include "app/model/DisplayText.hpp"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace vantello::app {

MessageBar::MessageBar(QWidget* parent) : QFrame(parent), text_(new QLabel(this)), undo_(new QPushButton(this)) {
    setObjectName(QStringLiteral("messageBar"));
    setFrameShape(QFrame::StyledPanel);
    setAccessibleName(uiText("Messaggi"));
    text_->setObjectName(QStringLiteral("messageText"));
    text_->setWordWrap(true);
    undo_->setObjectName(QStringLiteral("messageUndo"));
    auto* close = new QToolButton(this);
    close->setText(QStringLiteral("✕"));
    close->setAutoRaise(true);
    close->setAccessibleName(uiText("Chiudi il messaggio"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 6, 6, 6);
    layout->addWidget(text_, 1);
    layout->addWidget(undo_);
    layout->addWidget(close);
    connect(undo_, &QPushButton::clicked, this, [this] {
        hide();
        Q_EMIT undoRequested();
    });
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    hide();
}

void MessageBar::show(const QString& text, const std::optional<QString>& undoLabel) {
    text_->setText(text);
    undo_->setText(undoLabel.value_or(QString()));
    undo_->setAccessibleName(undoLabel.value_or(QString()));
    undo_->setVisible(undoLabel.has_value());
    QFrame::show();
}

QString MessageBar::text() const { return isVisible() ? text_->text() : QString(); }

}  // namespace vantello::app
