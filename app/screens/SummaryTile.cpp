#include "app/screens/SummaryTile.hpp"

#include "app/model/DisplayText.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QTimer>
#include <QToolButton>
#include <QToolTip>
#include <QVBoxLayout>

namespace vantello::app {

namespace {

QString richInfo(const MonthTile& tile) {
    QString body = tile.infoText.toHtmlEscaped();
    body.replace(QLatin1Char('\n'), QStringLiteral("<br>"));
    return QStringLiteral("<p style='white-space:normal'><b>%1</b></p><p>%2</p>").arg(tile.infoTitle.toHtmlEscaped(), body);
}

}  // namespace

SummaryTile::SummaryTile(QWidget* parent)
    : MovementsCard(parent),
      label_(new QLabel(this)),
      figure_(new QLabel(this)),
      context_(new QLabel(this)),
      info_(new QToolButton(this)) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    setMinimumWidth(150);

    QFont small = label_->font();
    small.setPointSizeF(small.pointSizeF() * 0.9);
    label_->setFont(small);
    context_->setFont(small);
    context_->setWordWrap(true);
    label_->setWordWrap(true);  // a long label takes two lines rather than being cut
    QFont large = figure_->font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    large.setBold(true);
    figure_->setFont(large);
    figure_->setTextInteractionFlags(Qt::TextSelectableByMouse);

    info_->setText(QStringLiteral("i"));
    info_->setAutoRaise(true);
    info_->setCursor(Qt::WhatsThisCursor);
    info_->setFixedSize(22, 22);
    info_->hide();
    label_->setMinimumHeight(info_->height());  // the same line height with or without the button
    connect(info_, &QToolButton::clicked, this, &SummaryTile::showInfo);

    auto* top = new QHBoxLayout;
    top->setContentsMargins(0, 0, 0, 0);
    top->addWidget(label_, 1);
    top->addWidget(info_, 0, Qt::AlignTop);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addLayout(top);
    column->addWidget(figure_);
    column->addWidget(context_);
    column->addStretch(1);
    applyColours();
}

void SummaryTile::setTile(const MonthTile& tile) {
    tile_ = tile;
    setObjectName(tile.name + QStringLiteral("Tile"));
    label_->setText(tile.label);
    figure_->setText(tile.figure);
    figure_->setObjectName(tile.name + QStringLiteral("Figure"));
    context_->setText(tile.context);
    setAccessibleName(tile.label + QStringLiteral(": ") + tile.figure);
    setAccessibleDescription(tile.context);
    const bool explains = !tile.infoTitle.isEmpty();
    info_->setVisible(explains);
    info_->setObjectName(tile.name + QStringLiteral("Info"));
    info_->setAccessibleName(tile.infoTitle);
    info_->setAccessibleDescription(tile.infoText);
    info_->setToolTip(explains ? richInfo(tile) : QString());
    applyColours();
}

void SummaryTile::showInfo() {
    if (tile_.infoTitle.isEmpty()) return;
    QToolTip::showText(info_->mapToGlobal(QPoint(0, info_->height())), richInfo(tile_), info_);
}

void SummaryTile::applyColours() {
    const ThemePalette& colours = currentPalette();
    QColor figure = colours.primaryText;
    if (tile_.tone == MonthTile::Tone::income) figure = colours.income;
    if (tile_.tone == MonthTile::Tone::expense) figure = colours.expense;
    QColor quiet = colours.primaryText;
    quiet.setAlphaF(0.7F);
    const auto paint = [](QLabel* label, const QColor& colour) {
        QPalette palette = label->palette();
        palette.setColor(QPalette::WindowText, colour);
        label->setPalette(palette);
    };
    paint(figure_, figure);
    paint(label_, quiet);
    paint(context_, quiet);
}

void SummaryTile::changeEvent(QEvent* event) {
    MovementsCard::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange) {
        // The theme's colours are set just after the application's palette: read them afterwards.
        QTimer::singleShot(0, this, [this] {
            applyColours();
            update();
        });
    }
}

}  // namespace vantello::app
