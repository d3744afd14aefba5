#include "app/screens/MovementsCard.hpp"

#include "app/settings/ThemeApplication.hpp"

#include <QPainter>
#include <QPainterPath>

namespace vantello::app {

namespace {
constexpr qreal radius = 8;
constexpr int stripeWidth = 4;
}  // namespace

MovementsCard::MovementsCard(QWidget* parent) : QFrame(parent) {
    setFrameShape(QFrame::NoFrame);
    setContentsMargins(14, 10, 14, 10);
}

void MovementsCard::setStripe(std::function<QColor()> colour) {
    stripe_ = std::move(colour);
    setContentsMargins(stripe_ ? 14 + stripeWidth : 14, 10, 14, 10);
    update();
}

void MovementsCard::paintEvent(QPaintEvent* /*event*/) {
    const ThemePalette& colours = currentPalette();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath outline;
    outline.addRoundedRect(area, radius, radius);
    painter.fillPath(outline, colours.cardBackground);
    if (stripe_) {
        painter.save();
        painter.setClipPath(outline);
        const bool rightToLeft = layoutDirection() == Qt::RightToLeft;
        const QRectF band(rightToLeft ? area.right() - stripeWidth : area.left(), area.top(), stripeWidth,
                          area.height());
        painter.fillRect(band, stripe_());
        painter.restore();
    }
    painter.setPen(QPen(colours.separator, 1));
    painter.drawPath(outline);
}

}  // namespace vantello::app
