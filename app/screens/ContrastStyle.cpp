#include "app/screens/ContrastStyle.hpp"

#include <QPainter>
#include <QStyleOption>

namespace vantello::app {

void ContrastStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool box = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
    if ((!box && element != PE_IndicatorRadioButton) || option->palette.window().color().lightnessF() >= 0.5F) {
        return;
    }
    QColor edge = option->palette.color(QPalette::WindowText);
    edge.setAlphaF((option->state & State_Enabled) ? 0.55F : 0.25F);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(edge, 1));
    painter->setBrush(Qt::NoBrush);
    const QRectF frame = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (box) {
        painter->drawRoundedRect(frame, 2, 2);
    } else {
        painter->drawEllipse(frame);
    }
    painter->restore();
}

}  // namespace vantello::app
