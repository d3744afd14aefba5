#pragma once
// Paints the rows of the month's list: day headers with the day's net, and movements with the
// category icon, category and note, account, markers and the amount right-aligned in its
// direction's colour. Every row has the same height, so that a long month scrolls smoothly.

#include <QStyledItemDelegate>

namespace vantello::app {

class MovementsDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

private:
    // Where the parts of a movement row go.
    struct Geometry {
        QRect icon;
        QRect category;
        QRect note;
        QRect account;
        QRect attachment;
        QRect shared;
        QRect amount;
    };
    [[nodiscard]] Geometry geometry(const QStyleOptionViewItem& option, const QModelIndex& index) const;
    void paintHeader(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    void paintMovement(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    [[nodiscard]] int amountWidth(const QFont& font) const;

    // The width of the widest usual amount in the last font seen.
    mutable QFont measuredFont_;
    mutable int amountWidth_ = -1;
};

}  // namespace vantello::app
