#pragma once
// A push button that tests find by its object name and screen readers announce by its text.

#include <QPushButton>

namespace vantello::app {

inline QPushButton* namedButton(const QString& text, const char* objectName, QWidget* parent) {
    auto* made = new QPushButton(text, parent);
    made->setObjectName(QString::fromLatin1(objectName));
    made->setAccessibleName(text);
    return made;
}

}  // namespace vantello::app
