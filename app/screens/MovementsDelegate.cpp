#include "app/screens/MovementsDelegate.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/MonthMovementsModel.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace vantello::app {

namespace {

constexpr int padding = 12;
constexpr int iconSize = 24;
constexpr int markerSize = 16;
constexpr int gap = 8;

using Role = MonthMovementsModel::Role;

bool isHeader(const QModelIndex& index) {
    return index.data(Role::RowKindRole).toInt() == static_cast<int>(MonthMovementsModel::RowKind::dayHeader);
}

const QIcon& attachmentIcon() {
    static const QIcon icon = symbolIcon("paperclip");
    return icon;
}

const QIcon& sharedIcon() {
    static const QIcon icon = symbolIcon("person.2");
    return icon;
}

// Income green, expenses red; a transfer or a day netting zero goes neither way.
QColor directionColour(const QModelIndex& index, const ThemePalette& colours) {
    const int sign = index.data(Role::SignRole).toInt();
    if (sign == 0) return colours.primaryText;
    return sign > 0 ? colours.income : colours.expense;
}

QColor quieter(QColor colour) {
    colour.setAlphaF(colour.alphaF() * 0.65F);
    return colour;
}

}  // namespace

int MovementsDelegate::amountWidth(const QFont& font) const {
    if (amountWidth_ < 0 || !(font == measuredFont_)) {
        measuredFont_ = font;
        // Room for the usual amounts; a larger one still shows, elided at its start.
        amountWidth_ = QFontMetrics(font).horizontalAdvance(QStringLiteral("\u2212000.000,00 €")) + 2;
    }
    return amountWidth_;
}

QSize MovementsDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const {
    const QFontMetrics metrics(option.font);
    return {padding * 2 + iconSize + amountWidth(option.font) + 200, std::max(44, metrics.height() * 2 + 14)};
}

MovementsDelegate::Geometry MovementsDelegate::geometry(const QStyleOptionViewItem& option,
                                                        const QModelIndex& index) const {
    const QRect area = option.rect.adjusted(padding, 0, -padding, 0);
    const QFontMetrics metrics(option.font);
    const int line = metrics.height();
    const int middle = area.center().y();

    Geometry parts;
    parts.icon = QRect(area.left(), middle - iconSize / 2, iconSize, iconSize);
    parts.amount = QRect(area.right() - amountWidth(option.font) + 1, area.top(), amountWidth(option.font), area.height());
    // The marker slots are kept even when empty, so that the columns line up.
    parts.shared = QRect(parts.amount.left() - gap - markerSize, middle - markerSize / 2, markerSize, markerSize);
    parts.attachment = parts.shared.translated(-(markerSize + 4), 0);
    int textRight = parts.attachment.left() - gap;
    if (!index.data(Role::AccountTextRole).toString().isEmpty()) {
        const int room = textRight - (parts.icon.right() + gap);
        const int width = std::min(240, room * 2 / 5);
        parts.account = QRect(textRight - width, area.top(), width, area.height());
        textRight = parts.account.left() - gap;
    }
    const int textLeft = parts.icon.right() + 1 + gap + 2;
    const int textWidth = std::max(0, textRight - textLeft);
    parts.category = QRect(textLeft, middle - line, textWidth, line);
    parts.note = QRect(textLeft, middle, textWidth, line);
    return parts;
}

void MovementsDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    painter->save();
    if (isHeader(index)) {
        paintHeader(painter, option, index);
    } else {
        paintMovement(painter, option, index);
    }
    painter->restore();
}

void MovementsDelegate::paintHeader(QPainter* painter, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
    const ThemePalette& colours = currentPalette();
    const QRect area = option.rect.adjusted(padding, 0, -padding, -4);
    QFont bold = option.font;
    bold.setBold(true);
    painter->setFont(bold);
    painter->setPen(colours.primaryText);
    const QRect dayArea(area.left(), area.top(), area.width() - amountWidth(option.font) - gap, area.height());
    painter->drawText(dayArea, Qt::AlignLeft | Qt::AlignBottom | Qt::TextSingleLine,
                      index.data(Role::DayTextRole).toString());
    painter->setPen(directionColour(index, colours));
    const QRect amountArea(area.right() - amountWidth(option.font) + 1, area.top(), amountWidth(option.font),
                           area.height());
    painter->drawText(amountArea, Qt::AlignRight | Qt::AlignBottom | Qt::TextSingleLine,
                      index.data(Role::AmountTextRole).toString());
    painter->setPen(QPen(colours.separator, 1));
    const int bottom = option.rect.bottom();
    painter->drawLine(option.rect.left() + padding, bottom, option.rect.right() - padding, bottom);
}

void MovementsDelegate::paintMovement(QPainter* painter, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const {
    const QWidget* widget = option.widget;
    QStyle* style = widget ? widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, widget);

    const ThemePalette& colours = currentPalette();
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const QColor text = selected ? option.palette.color(QPalette::HighlightedText) : colours.primaryText;
    const Geometry parts = geometry(option, index);
    const QFontMetrics metrics(option.font);

    qvariant_cast<QIcon>(index.data(Qt::DecorationRole)).paint(painter, parts.icon);

    painter->setFont(option.font);
    painter->setPen(text);
    painter->drawText(parts.category, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      metrics.elidedText(index.data(Role::CategoryNameRole).toString(), Qt::ElideRight,
                                         parts.category.width()));
    painter->setPen(quieter(text));
    const QString note = index.data(Role::NoteRole).toString();
    if (!note.isEmpty()) {
        painter->drawText(parts.note, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                          metrics.elidedText(note, Qt::ElideRight, parts.note.width()));
    }
    if (!parts.account.isNull()) {
        painter->drawText(parts.account, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                          metrics.elidedText(index.data(Role::AccountTextRole).toString(), Qt::ElideMiddle,
                                             parts.account.width()));
    }
    if (index.data(Role::HasAttachmentsRole).toBool()) attachmentIcon().paint(painter, parts.attachment);
    if (index.data(Role::IsSharedRole).toBool()) sharedIcon().paint(painter, parts.shared);

    painter->setPen(selected ? text : directionColour(index, colours));
    painter->drawText(parts.amount, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                      metrics.elidedText(index.data(Role::AmountTextRole).toString(), Qt::ElideLeft,
                                         parts.amount.width()));
}

bool MovementsDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                                  const QModelIndex& index) {
    if (event && event->type() == QEvent::ToolTip && index.isValid() && !isHeader(index)) {
        const Geometry parts = geometry(option, index);
        QString tip;
        if (index.data(Role::HasAttachmentsRole).toBool() && parts.attachment.contains(event->pos())) {
            tip = uiText("Con allegati");
        } else if (index.data(Role::IsSharedRole).toBool() && parts.shared.contains(event->pos())) {
            tip = uiText("Divisa con altre persone");
        } else {
            // The whole row, for a note or an account cut short.
            tip = index.data(Qt::AccessibleTextRole).toString();
        }
        QToolTip::showText(event->globalPos(), tip, view, option.rect);
        return true;
    }
    return QStyledItemDelegate::helpEvent(event, view, option, index);
}

}  // namespace vantello::app
