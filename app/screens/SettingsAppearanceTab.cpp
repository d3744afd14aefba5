#include "app/screens/SettingsAppearanceTab.hpp"

#include "app/settings/ThemeApplication.hpp"
#include "app/settings/ThemePalette.hpp"

#include <QButtonGroup>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QVBoxLayout>

#include <algorithm>

namespace vantello::app {

namespace {

constexpr int cardWidth = 112;
constexpr int cardHeight = 72;
constexpr int margin = 6;
const QString checkMark = QStringLiteral("\u2713 ");

}  // namespace

ThemeSwatch::ThemeSwatch(AppTheme theme, QWidget* parent) : QAbstractButton(parent), theme_(theme) {
    setCheckable(true);
    setText(label(theme));
    setAccessibleName(label(theme));
    setFocusPolicy(Qt::StrongFocus);
    setObjectName(QStringLiteral("themeSwatch-") + rawValue(theme));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize ThemeSwatch::sizeHint() const {
    QFont bold = font();
    bold.setBold(true);
    const int textWidth = QFontMetrics(bold).horizontalAdvance(checkMark + text());
    return {std::max(cardWidth, textWidth) + 2 * margin, cardHeight + QFontMetrics(bold).height() + 3 * margin};
}

void ThemeSwatch::paintEvent(QPaintEvent*) {
    const ThemePalette colours = themePalette(theme_, QGuiApplication::palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);

    const QRectF card((width() - cardWidth) / 2.0, margin, cardWidth, cardHeight);
    // The chosen one has a thick ring in the selection colour, besides its check mark.
    if (isChecked()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 3));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(card.adjusted(-3, -3, 3, 3), 9, 9);
    }
    painter.setPen(QPen(colours.separator, 1));
    painter.setBrush(colours.windowBackground);
    painter.drawRoundedRect(card, 7, 7);

    const QRectF inner = card.adjusted(10, 10, -10, -10);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.cardBackground);
    painter.drawRoundedRect(inner, 5, 5);
    // A heading line in the accent colour, then an income and an expense line.
    const double lineHeight = 6;
    const double left = inner.left() + 8;
    painter.setBrush(colours.accent);
    painter.drawRoundedRect(QRectF(left, inner.top() + 8, inner.width() * 0.45, lineHeight), 3, 3);
    painter.setBrush(colours.income);
    painter.drawRoundedRect(QRectF(left, inner.top() + 22, inner.width() * 0.65, lineHeight), 3, 3);
    painter.setBrush(colours.expense);
    painter.drawRoundedRect(QRectF(left, inner.top() + 36, inner.width() * 0.35, lineHeight), 3, 3);

    QFont nameFont = font();
    nameFont.setBold(isChecked());
    painter.setFont(nameFont);
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect textRect(0, static_cast<int>(card.bottom()) + margin, width(),
                         height() - static_cast<int>(card.bottom()) - margin);
    painter.drawText(textRect, Qt::AlignHCenter | Qt::AlignTop, isChecked() ? checkMark + text() : text());

    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = rect().adjusted(1, 1, -1, -1);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

SettingsAppearanceTab::SettingsAppearanceTab(Preferences& preferences, QWidget* parent)
    : QWidget(parent), preferences_(preferences) {
    auto* layout = new QVBoxLayout(this);
    auto* heading = new QLabel(themeHeading(), this);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    layout->addWidget(heading);

    swatches_ = new QButtonGroup(this);
    swatches_->setExclusive(true);
    auto* row = new QHBoxLayout;
    const AppTheme chosen = storedTheme(preferences_);
    for (const AppTheme theme : allThemes) {
        auto* swatch = new ThemeSwatch(theme, this);
        swatch->setChecked(theme == chosen);
        swatches_->addButton(swatch);
        row->addWidget(swatch);
        connect(swatch, &ThemeSwatch::clicked, this, [this, theme] { choose(theme); });
    }
    row->addStretch(1);
    layout->addLayout(row);

    auto* explanation = new QLabel(themeExplanation(), this);
    explanation->setWordWrap(true);
    layout->addWidget(explanation);
    layout->addStretch(1);
}

void SettingsAppearanceTab::choose(AppTheme theme) {
    storeTheme(preferences_, theme);
    applyTheme(theme);
}

}  // namespace vantello::app
