#include "app/screens/MonthSwitcher.hpp"
#include "app/screens/ChartsScreen.hpp"

#include "app/model/ChartModels.hpp"
#include "app/model/DisplayText.hpp"
#include "app/screens/ChartStyle.hpp"
#include "app/screens/MovementsCard.hpp"
#include "app/settings/ThemeApplication.hpp"
#include "core/analysis/PieHitTest.hpp"

#include <QtCharts>

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace vantello::app {

namespace {

constexpr qreal pieSize = 0.9;
constexpr qreal holeSize = 0.55;

QFont scaled(QFont font, qreal factor, bool bold) {
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(bold);
    return font;
}

QLabel* heading(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setFont(scaled(label->font(), 1.15, true));
    return label;
}

}  // namespace

ChartsScreen::ChartsScreen(LedgerViewModel& model, QWidget* parent)
    : QWidget(parent),
      model_(model),
      slices_(new ChartSlicesModel(this)),
      trend_(new ChartTrendModel(model.calendar(), this)) {
    setObjectName(QStringLiteral("chartsScreen"));
    setAccessibleName(uiText("Grafici"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->setSpacing(10);

    // ---- the month
    auto* header = new QHBoxLayout;
    monthSwitcher_ = new MonthSwitcher(model_, this);
    header->addWidget(monthSwitcher_);
    header->addStretch(1);
    layout->addLayout(header);

    // ---- the donut and its legend, or the empty month
    pages_ = new QStackedWidget(this);
    pages_->setObjectName(QStringLiteral("categoryPages"));

    auto* categories = new MovementsCard(pages_);
    categories->setObjectName(QStringLiteral("categoriesCard"));
    auto* categoriesLayout = new QHBoxLayout(categories);
    categoriesLayout->setSpacing(16);
    auto* donutColumn = new QVBoxLayout;
    donut_ = plainChart();
    donut_->legend()->hide();
    donutView_ = chartView(donut_, "donutChart", uiText("Uscite per categoria"), categories);
    donutView_->setMinimumSize(240, 240);
    donutView_->viewport()->setMouseTracking(true);
    donutView_->viewport()->installEventFilter(this);
    sliceInfo_ = new QLabel(categories);
    sliceInfo_->setObjectName(QStringLiteral("sliceInfo"));
    sliceInfo_->setAlignment(Qt::AlignCenter);
    sliceInfo_->setWordWrap(true);
    sliceInfo_->setFont(scaled(sliceInfo_->font(), 1.05, true));
    donutColumn->addWidget(donutView_, 1);
    donutColumn->addWidget(sliceInfo_);
    auto* legendColumn = new QVBoxLayout;
    legendColumn->addWidget(heading(uiText("Uscite per categoria"), categories));
    legend_ = new QTreeView(categories);
    legend_->setObjectName(QStringLiteral("chartLegend"));
    legend_->setAccessibleName(uiText("Legenda"));
    legend_->setModel(slices_);
    legend_->setRootIsDecorated(false);
    legend_->setUniformRowHeights(true);
    legend_->setSelectionMode(QAbstractItemView::SingleSelection);
    legend_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    legend_->setFrameShape(QFrame::NoFrame);
    legend_->header()->setStretchLastSection(false);
    legend_->header()->setSectionResizeMode(ChartSlicesModel::nameColumn, QHeaderView::Stretch);
    legend_->header()->setSectionResizeMode(ChartSlicesModel::totalColumn, QHeaderView::ResizeToContents);
    legend_->header()->setSectionResizeMode(ChartSlicesModel::shareColumn, QHeaderView::ResizeToContents);
    legend_->setMinimumWidth(280);
    // Choosing a legend row highlights its slice, for keyboard users as for the pointer.
    connect(legend_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) {
                setHighlighted(current.isValid() ? std::optional<std::size_t>(static_cast<std::size_t>(current.row()))
                                                 : std::nullopt);
            });
    legendColumn->addWidget(legend_, 1);
    categoriesLayout->addLayout(donutColumn, 3);
    categoriesLayout->addLayout(legendColumn, 2);

    auto* empty = new MovementsCard(pages_);
    auto* emptyLayout = new QVBoxLayout(empty);
    emptyText_ = new QLabel(uiText("Nessuna uscita in questo mese: qui compaiono le spese divise per categoria."), empty);
    emptyText_->setObjectName(QStringLiteral("chartsEmptyText"));
    emptyText_->setWordWrap(true);
    emptyText_->setAlignment(Qt::AlignCenter);
    auto* addExpense = new QPushButton(uiText("Aggiungi uscita"), empty);
    addExpense->setObjectName(QStringLiteral("chartsAddExpenseButton"));
    addExpense->setAccessibleName(addExpense->text());
    connect(addExpense, &QPushButton::clicked, this, &ChartsScreen::newExpenseRequested);
    emptyLayout->addStretch(1);
    emptyLayout->addWidget(emptyText_);
    emptyLayout->addWidget(addExpense, 0, Qt::AlignCenter);
    emptyLayout->addStretch(1);

    pages_->addWidget(categories);
    pages_->addWidget(empty);
    layout->addWidget(pages_, 3);

    // ---- the trend
    auto* trendCard = new MovementsCard(this);
    trendCard->setObjectName(QStringLiteral("trendCard"));
    auto* trendLayout = new QVBoxLayout(trendCard);
    trendLayout->addWidget(heading(uiText("Andamento degli ultimi dodici mesi"), trendCard));
    trendChart_ = plainChart();
    trendChart_->legend()->setAlignment(Qt::AlignBottom);
    trendView_ = chartView(trendChart_, "trendChart", uiText("Andamento degli ultimi dodici mesi"),
                           trendCard);
    trendView_->setMinimumHeight(220);
    trendLayout->addWidget(trendView_, 1);
    layout->addWidget(trendCard, 2);

    setTabOrder(monthSwitcher_->lastControl(), legend_);

    connect(&model_, &LedgerViewModel::ledgerChanged, this, &ChartsScreen::refresh);
    connect(&model_, &LedgerViewModel::selectedMonthChanged, this, &ChartsScreen::refresh);
    connect(&model_, &LedgerViewModel::selectedAccountChanged, this, &ChartsScreen::refresh);
    connect(&model_, &LedgerViewModel::demoChanged, this, &ChartsScreen::refresh);
    refresh();
}

// ---- following the model

void ChartsScreen::refresh() {
    const MonthSummary& summary = model_.monthSummary();
    monthExpenses_ = summary.totals.expenses;
    const bool changed = summary.slices != slices_->slices();
    slices_->setSlices(summary.slices);
    trend_->setTrend(summary.trend);
    pages_->setCurrentIndex(summary.slices.empty() ? 1 : 0);
    if (changed || pie_ == nullptr) rebuildDonut();
    rebuildTrend();
    applyColours();
}

void ChartsScreen::rebuildDonut() {
    highlighted_.reset();
    donut_->removeAllSeries();
    pie_ = new QPieSeries;
    pie_->setPieSize(pieSize);
    pie_->setHoleSize(holeSize);
    pie_->setHorizontalPosition(0.5);
    pie_->setVerticalPosition(0.5);
    for (int row = 0; row < slices_->rowCount(); ++row) {
        const auto sizes = slices_->sizes();
        auto* slice = pie_->append(slices_->nameAt(row), sizes[static_cast<std::size_t>(row)]);
        slice->setLabelVisible(false);
    }
    donut_->addSeries(pie_);
    describeHighlighted();
}

void ChartsScreen::rebuildTrend() {
    trendChart_->removeAllSeries();
    for (QAbstractAxis* axis : trendChart_->axes()) {
        trendChart_->removeAxis(axis);
        delete axis;
    }
    auto* income = new QBarSet(uiText("Entrate"));
    auto* expenses = new QBarSet(uiText("Uscite"));
    auto* net = new QLineSeries;
    net->setName(uiText("Saldo netto"));
    QStringList months;
    double lowest = 0;
    double highest = 0;
    for (int row = 0; row < trend_->rowCount(); ++row) {
        const MonthTotals& month = trend_->trend()[static_cast<std::size_t>(row)];
        const double in = month.income.toDouble();
        const double out = month.expenses.toDouble();
        const double balance = trend_->netAt(row).toDouble();
        income->append(in);
        expenses->append(out);
        net->append(row, balance);
        months << trend_->shortMonthAt(row);
        lowest = std::min({lowest, balance});
        highest = std::max({highest, in, out, balance});
    }
    auto* bars = new QBarSeries;
    bars->append(income);
    bars->append(expenses);
    trendChart_->addSeries(bars);
    trendChart_->addSeries(net);

    auto* monthAxis = new QBarCategoryAxis;
    monthAxis->append(months);
    auto* amountAxis = new QValueAxis;
    amountAxis->setRange(lowest, highest > lowest ? highest : lowest + 1);
    amountAxis->applyNiceNumbers();
    showEuros(amountAxis);
    trendChart_->addAxis(monthAxis, Qt::AlignBottom);
    trendChart_->addAxis(amountAxis, Qt::AlignLeft);
    for (QAbstractSeries* series : trendChart_->series()) {
        series->attachAxis(monthAxis);
        series->attachAxis(amountAxis);
    }
}

// ---- colours

void ChartsScreen::applyColours() {
    const ThemePalette& palette = currentPalette();
    slices_->setColours(chartSliceColours(palette));
    paintChart(*donut_, *donutView_, palette);
    paintChart(*trendChart_, *trendView_, palette);
    if (pie_ != nullptr) {
        const auto slices = pie_->slices();
        for (int row = 0; row < slices.size(); ++row) {
            const bool lit = highlighted_ == static_cast<std::size_t>(row);
            const QColor colour = slices_->colourAt(row);
            slices[row]->setBrush(lit ? (palette.windowBackground.lightness() < 128 ? colour.lighter(130)
                                                                                      : colour.darker(120))
                                      : colour);
            slices[row]->setPen(QPen(lit ? palette.primaryText : palette.cardBackground, lit ? 3 : 2));
        }
    }
    for (QAbstractSeries* series : trendChart_->series()) {
        if (auto* bars = qobject_cast<QBarSeries*>(series)) {
            const auto sets = bars->barSets();
            if (sets.size() == 2) {
                sets[0]->setColor(palette.income);
                sets[0]->setBorderColor(palette.income);
                sets[1]->setColor(palette.expense);
                sets[1]->setBorderColor(palette.expense);
            }
        } else if (auto* line = qobject_cast<QLineSeries*>(series)) {
            line->setPen(QPen(palette.accent, 2.5));
        }
    }
}

void ChartsScreen::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange) {
        // The theme's colours are set just after the application's palette: read them afterwards.
        QTimer::singleShot(0, this, [this] { applyColours(); });
    } else if (event->type() == QEvent::LanguageChange) {
        refresh();
    }
}

// ---- the hovered slice

ChartsScreen::DonutGeometry ChartsScreen::donutGeometry() const {
    // The pie fills its series' share of the plot area around the position set above; the plot
    // area is in the chart's coordinates, which the view maps onto its viewport.
    const QRectF area = donut_->plotArea();
    const QPointF centreInChart(area.left() + area.width() * 0.5, area.top() + area.height() * 0.5);
    const QPointF centre = donutView_->mapFromScene(donut_->mapToScene(centreInChart));
    const qreal radius = std::min(area.width(), area.height()) / 2;
    return {centre, radius * holeSize, radius * pieSize};
}

std::optional<std::size_t> ChartsScreen::sliceAt(const QPoint& viewportPoint) const {
    if (slices_->rowCount() == 0) return std::nullopt;
    const DonutGeometry donut = donutGeometry();
    const qreal dx = viewportPoint.x() - donut.centre.x();
    const qreal dy = viewportPoint.y() - donut.centre.y();
    const qreal distance = std::hypot(dx, dy);
    if (distance < donut.innerRadius || distance > donut.outerRadius) return std::nullopt;
    return PieHitTest::index(std::atan2(dx, -dy), slices_->sizes());
}

void ChartsScreen::hoverAt(const QPoint& viewportPoint) { setHighlighted(sliceAt(viewportPoint)); }

void ChartsScreen::setHighlighted(std::optional<std::size_t> slice) {
    if (slice == highlighted_) return;
    highlighted_ = slice;
    applyColours();
    describeHighlighted();
}

void ChartsScreen::describeHighlighted() {
    const int row = highlighted_ ? static_cast<int>(*highlighted_) : -1;
    if (row < 0 || row >= slices_->rowCount()) {
        sliceInfo_->setText(uiText("Uscite del mese: {amount}", {{"amount", euroText(monthExpenses_).toStdString()}}));
    } else {
        const CategorySlice& slice = slices_->slices()[static_cast<std::size_t>(row)];
        sliceInfo_->setText(slices_->nameAt(row) + QStringLiteral("\n") + euroText(slice.total) +
                            QStringLiteral(" · ") + shareText(slice.share));
    }
    sliceInfo_->setAccessibleName(sliceInfo_->text());
}

bool ChartsScreen::eventFilter(QObject* watched, QEvent* event) {
    if (watched == donutView_->viewport()) {
        if (event->type() == QEvent::MouseMove) {
            hoverAt(static_cast<QMouseEvent*>(event)->position().toPoint());
        } else if (event->type() == QEvent::Leave) {
            setHighlighted(std::nullopt);
        }
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace vantello::app
