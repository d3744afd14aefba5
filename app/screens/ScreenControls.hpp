#pragma once
// Small helpers every screen builds with: controls that tests find by object name and screen
// readers announce by name, the Tab order of a row of controls, and a screen's title.

#include <QFont>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

#include <initializer_list>

namespace vantello::app {

template <typename Widget>
Widget* named(Widget* widget, const char* objectName, const QString& accessibleName) {
    widget->setObjectName(QString::fromLatin1(objectName));
    widget->setAccessibleName(accessibleName);
    return widget;
}

inline QPushButton* namedButton(const QString& text, const char* objectName, QWidget* parent) {
    return named(new QPushButton(text, parent), objectName, text);
}

// Each widget after the one before it, in the order given.
inline void chainTabOrder(std::initializer_list<QWidget*> widgets) {
    QWidget* previous = nullptr;
    for (QWidget* widget : widgets) {
        if (previous) QWidget::setTabOrder(previous, widget);
        previous = widget;
    }
}

// A title in bold, `scale` times the size of the text around it.
inline QLabel* titleLabel(const QString& text, double scale = 1.5) {
    auto* title = new QLabel(text);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * scale);
    font.setBold(true);
    title->setFont(font);
    return title;
}

}  // namespace vantello::app
