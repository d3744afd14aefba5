#pragma once
// Small helpers every screen builds with: controls that tests find by object name and screen
// readers announce by name, the Tab order of a row of controls, and a screen's title.

#include <QAbstractItemModel>
#include <QFont>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
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

// A read-only table of records chosen a row at a time. Its columns fit their contents as far as
// the rows in view show them, so that a history of thousands of rows is not measured whole.
inline QTableView* recordTable(const char* objectName, const QString& accessibleName, QAbstractItemModel* rows) {
    auto* view = named(new QTableView, objectName, accessibleName);
    view->setModel(rows);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setAlternatingRowColors(true);
    view->setShowGrid(false);
    view->setTabKeyNavigation(false);
    view->verticalHeader()->hide();
    view->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    view->horizontalHeader()->setResizeContentsPrecision(0);
    return view;
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
