#include "app/screens/ScenariosScreen.hpp"

#include "app/model/DisplayText.hpp"
#include "app/screens/ChartStyle.hpp"
#include "app/model/ScenarioOutlook.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/screens/MovementsCard.hpp"
#include "app/screens/SummaryTile.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeView>
#include <QVBoxLayout>
#include <QtCharts>

#include <algorithm>

namespace vantello::app {

namespace {

constexpr int tileCount = 3;

QPushButton* button(const QString& text, const QString& name, QWidget* parent) {
    auto* made = new QPushButton(text, parent);
    made->setObjectName(name);
    made->setAccessibleName(text);
    return made;
}

QLabel* heading(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.1);
    label->setFont(font);
    return label;
}

}  // namespace

ScenariosScreen::ScenariosScreen(LedgerViewModel& model, QWidget* parent)
    : QWidget(parent), model_(model), outlook_(new ScenarioOutlook(model, this)) {
    setObjectName(QStringLiteral("scenariosScreen"));
    setAccessibleName(uiText("Scenari"));
    build();
    connect(outlook_, &ScenarioOutlook::changed, this, &ScenariosScreen::refresh);
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &ScenariosScreen::refreshCategories);
    connect(&model_, &LedgerViewModel::demoChanged, this, &ScenariosScreen::refreshCategories);
    connect(&model_, &LedgerViewModel::scenarioAdjustmentsChanged, this, &ScenariosScreen::refreshEditor);
    refreshCategories();
    refreshEditor();
    refresh();
}

void ScenariosScreen::build() {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->setSpacing(10);

    auto* intro = new QLabel(uiText("E se…? Parti dalla media degli ultimi tre mesi completi, cambiala qui sotto e guarda "
                                    "cosa succede ai risparmi dei prossimi dodici mesi. Le modifiche non toccano i "
                                    "tuoi movimenti."),
                             this);
    intro->setObjectName(QStringLiteral("scenarioIntro"));
    intro->setWordWrap(true);
    layout->addWidget(intro);

    pages_ = new QStackedWidget(this);
    layout->addWidget(pages_, 1);

    // The page with figures.
    auto* content = new QWidget(pages_);
    auto* columns = new QHBoxLayout(content);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(12);

    // The editor.
    auto* editor = new MovementsCard(content);
    editor->setObjectName(QStringLiteral("scenarioEditor"));
    editor->setFixedWidth(380);
    auto* editorLayout = new QVBoxLayout(editor);
    editorLayout->setContentsMargins(0, 0, 0, 0);
    editorLayout->addWidget(heading(uiText("Modifiche"), editor));

    changeKind_ = new QComboBox(editor);
    changeKind_->setObjectName(QStringLiteral("scenarioChangeKind"));
    changeKind_->setAccessibleName(uiText("Che cosa cambia"));
    changeKind_->addItem(uiText("Spesa in una categoria"), static_cast<int>(ScenarioChangeKind::category));
    changeKind_->addItem(uiText("Entrate"), static_cast<int>(ScenarioChangeKind::income));
    changeKind_->addItem(uiText("Una spesa fissa in più"), static_cast<int>(ScenarioChangeKind::monthlyExpense));
    category_ = new QComboBox(editor);
    category_->setObjectName(QStringLiteral("scenarioCategory"));
    category_->setAccessibleName(uiText("Categoria"));
    value_ = new QLineEdit(editor);
    value_->setObjectName(QStringLiteral("scenarioValue"));
    value_->setAlignment(Qt::AlignRight);
    valueUnit_ = new QLabel(editor);
    add_ = button(uiText("Aggiungi"), QStringLiteral("addAdjustmentButton"), editor);
    add_->setIcon(symbolIcon("plus.circle"));
    connect(add_, &QPushButton::clicked, this, &ScenariosScreen::addAdjustment);
    connect(value_, &QLineEdit::returnPressed, this, &ScenariosScreen::addAdjustment);
    connect(value_, &QLineEdit::textEdited, this, [this] { problem_->hide(); });
    connect(changeKind_, &QComboBox::currentIndexChanged, this, &ScenariosScreen::refreshEditor);

    auto* form = new QGridLayout;
    auto* kindLabel = new QLabel(uiText("Che cosa cambia"), editor);
    kindLabel->setBuddy(changeKind_);
    auto* categoryLabel = new QLabel(uiText("Categoria"), editor);
    categoryLabel->setObjectName(QStringLiteral("scenarioCategoryLabel"));
    categoryLabel->setBuddy(category_);
    auto* valueLabel = new QLabel(uiText("Di quanto"), editor);
    valueLabel->setBuddy(value_);
    form->addWidget(kindLabel, 0, 0);
    form->addWidget(changeKind_, 0, 1, 1, 2);
    form->addWidget(categoryLabel, 1, 0);
    form->addWidget(category_, 1, 1, 1, 2);
    form->addWidget(valueLabel, 2, 0);
    form->addWidget(value_, 2, 1);
    form->addWidget(valueUnit_, 2, 2);
    form->setColumnStretch(1, 1);
    editorLayout->addLayout(form);
    editorLayout->addWidget(add_, 0, Qt::AlignRight);

    problem_ = new QLabel(editor);
    problem_->setObjectName(QStringLiteral("scenarioProblem"));
    problem_->setWordWrap(true);
    problem_->hide();
    editorLayout->addWidget(problem_);

    editorLayout->addWidget(heading(uiText("Scenario in prova"), editor));
    adjustments_ = new QListView(editor);
    adjustments_->setObjectName(QStringLiteral("scenarioAdjustments"));
    adjustments_->setAccessibleName(uiText("Modifiche dello scenario"));
    adjustments_->setModel(&outlook_->adjustments());
    adjustments_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    noAdjustments_ = new QLabel(uiText("Nessuna modifica: le due linee coincidono. Aggiungine una qui sopra."), editor);
    noAdjustments_->setObjectName(QStringLiteral("scenarioNoAdjustments"));
    noAdjustments_->setWordWrap(true);
    editorLayout->addWidget(noAdjustments_);
    adjustments_->setMaximumHeight(220);
    editorLayout->addWidget(adjustments_);
    auto* listButtons = new QHBoxLayout;
    remove_ = button(uiText("Rimuovi"), QStringLiteral("removeAdjustmentButton"), editor);
    connect(remove_, &QPushButton::clicked, this, &ScenariosScreen::removeSelectedAdjustment);
    clear_ = button(uiText("Togli tutte"), QStringLiteral("clearAdjustmentsButton"), editor);
    connect(clear_, &QPushButton::clicked, this, &ScenariosScreen::clearAdjustments);
    listButtons->addStretch(1);
    listButtons->addWidget(remove_);
    listButtons->addWidget(clear_);
    editorLayout->addLayout(listButtons);
    editorLayout->addStretch(1);
    connect(adjustments_->selectionModel(), &QItemSelectionModel::currentChanged, this, &ScenariosScreen::refreshEditor);
    columns->addWidget(editor);

    // The figures.
    auto* figures = new QVBoxLayout;
    figures->setSpacing(10);
    // As tall as the tallest tile, and every tile as tall as the row.
    auto* tilesBox = new QWidget(content);
    tilesBox->setObjectName(QStringLiteral("scenarioTiles"));
    tilesBox->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    auto* tilesRow = new QHBoxLayout(tilesBox);
    tilesRow->setContentsMargins(0, 0, 0, 0);
    tilesRow->setSpacing(10);
    for (int index = 0; index < tileCount; ++index) {
        auto* tile = new SummaryTile(tilesBox);
        tiles_.push_back(tile);
        tilesRow->addWidget(tile, 1);
    }
    figures->addWidget(tilesBox);

    chart_ = plainChart();
    chart_->legend()->setAlignment(Qt::AlignBottom);
    baselineLine_ = new QLineSeries(chart_);
    baselineLine_->setName(uiText("Senza lo scenario"));
    scenarioLine_ = new QLineSeries(chart_);
    scenarioLine_->setName(uiText("Con lo scenario"));
    chart_->addSeries(baselineLine_);
    chart_->addSeries(scenarioLine_);
    auto* months = new QCategoryAxis(chart_);
    months->setObjectName(QStringLiteral("scenarioMonthsAxis"));
    months->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    auto* savings = new QValueAxis(chart_);
    savings->setObjectName(QStringLiteral("scenarioSavingsAxis"));
    showEuros(savings);
    savings->setTitleText(uiText("Risparmi accumulati"));
    chart_->addAxis(months, Qt::AlignBottom);
    chart_->addAxis(savings, Qt::AlignLeft);
    for (QLineSeries* line : {baselineLine_, scenarioLine_}) {
        line->attachAxis(months);
        line->attachAxis(savings);
    }
    chartView_ = chartView(chart_, "scenarioChart", uiText("Proiezione dei risparmi nei prossimi dodici mesi"), content);
    chartView_->setMinimumHeight(260);
    figures->addWidget(chartView_, 3);

    figures->addWidget(heading(uiText("Obiettivi di risparmio"), content));
    goalsPages_ = new QStackedWidget(content);
    goals_ = new QTreeView(goalsPages_);
    goals_->setObjectName(QStringLiteral("scenarioGoals"));
    goals_->setAccessibleName(uiText("Quando raggiungi gli obiettivi"));
    goals_->setModel(&outlook_->goals());
    goals_->setRootIsDecorated(false);
    goals_->setItemsExpandable(false);
    goals_->setUniformRowHeights(true);
    goals_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    goals_->header()->setSectionResizeMode(QHeaderView::Stretch);
    goalsPages_->addWidget(goals_);
    auto* noGoals = new QLabel(uiText("Nessun obiettivo di risparmio: creane uno nella schermata Obiettivi per vedere "
                                      "quando lo raggiungeresti."),
                               goalsPages_);
    noGoals->setObjectName(QStringLiteral("scenarioNoGoals"));
    noGoals->setWordWrap(true);
    noGoals->setAlignment(Qt::AlignCenter);
    goalsPages_->addWidget(noGoals);
    goalsPages_->setMaximumHeight(160);
    figures->addWidget(goalsPages_, 1);
    columns->addLayout(figures, 1);
    pages_->addWidget(content);

    // Nothing to start from.
    auto* empty = new QLabel(uiText("Per immaginare uno scenario serve almeno un mese completo di movimenti. "
                                    "Torna qui dopo aver registrato le entrate e le uscite di un mese."),
                             pages_);
    empty->setObjectName(QStringLiteral("scenarioEmpty"));
    empty->setWordWrap(true);
    empty->setAlignment(Qt::AlignCenter);
    pages_->addWidget(empty);

    setTabOrder(changeKind_, category_);
    setTabOrder(category_, value_);
    setTabOrder(value_, add_);
    setTabOrder(add_, adjustments_);
    setTabOrder(adjustments_, remove_);
    setTabOrder(remove_, clear_);
    setTabOrder(clear_, goals_);
    setFocusProxy(changeKind_);
    applyColours();
}

void ScenariosScreen::refreshCategories() {
    const QString chosen = category_->currentData().toString();
    const QSignalBlocker quiet(category_);
    category_->clear();
    for (const TransactionCategory& category : model_.ledger().categories(TransactionKind::expense))
        category_->addItem(symbolIcon(category.symbol), QString::fromStdString(category.name),
                           QString::fromStdString(category.id));
    category_->setCurrentIndex(std::max(0, category_->findData(chosen)));
}

void ScenariosScreen::refreshEditor() {
    const auto kind = static_cast<ScenarioChangeKind>(changeKind_->currentData().toInt());
    const bool percent = kind != ScenarioChangeKind::monthlyExpense;
    category_->setEnabled(kind == ScenarioChangeKind::category);
    if (auto* label = findChild<QLabel*>(QStringLiteral("scenarioCategoryLabel"))) label->setEnabled(category_->isEnabled());
    valueUnit_->setText(percent ? uiText("%") : uiText("€ al mese"));
    value_->setPlaceholderText(percent ? uiText("−10 per il 10 % in meno") : uiText("50,00"));
    value_->setAccessibleName(percent ? uiText("Percentuale") : uiText("Importo al mese"));
    const bool any = !model_.scenarioAdjustments().empty();
    adjustments_->setVisible(any);
    noAdjustments_->setVisible(!any);
    clear_->setEnabled(any);
    remove_->setEnabled(any && adjustments_->currentIndex().isValid());
}

void ScenariosScreen::addAdjustment() {
    const auto kind = static_cast<ScenarioChangeKind>(changeKind_->currentData().toInt());
    auto change = scenarioChange(kind, category_->currentData().toString().toStdString(), value_->text());
    if (const auto* problem = std::get_if<QString>(&change)) {
        problem_->setText(*problem);
        problem_->show();
        value_->setFocus();
        return;
    }
    problem_->hide();
    addScenarioAdjustment(model_, std::get<ScenarioAdjustment::Change>(change));
    value_->clear();
}

void ScenariosScreen::removeSelectedAdjustment() {
    const int row = adjustments_->currentIndex().row();
    const auto& all = model_.scenarioAdjustments();
    if (row < 0 || row >= static_cast<int>(all.size())) return;
    removeScenarioAdjustment(model_, all[static_cast<std::size_t>(row)].id);
}

void ScenariosScreen::clearAdjustments() { model_.setScenarioAdjustments({}); }

void ScenariosScreen::refresh() {
    const ScenarioResult& result = outlook_->result();
    pages_->setCurrentIndex(result.basisMonths > 0 ? 0 : 1);

    const auto& tiles = outlook_->tiles();
    for (std::size_t index = 0; index < tiles_.size(); ++index) {
        tiles_[index]->setVisible(index < tiles.size());
        if (index < tiles.size()) tiles_[index]->setTile(tiles[index]);
    }

    QList<QPointF> baseline;
    QList<QPointF> scenario;
    double low = 0;
    double high = 0;
    for (std::size_t index = 0; index < result.projection.size(); ++index) {
        const auto& point = result.projection[index];
        const double x = static_cast<double>(index);
        baseline.append({x, point.baseline.toDouble()});
        scenario.append({x, point.scenario.toDouble()});
        low = std::min({low, baseline.back().y(), scenario.back().y()});
        high = std::max({high, baseline.back().y(), scenario.back().y()});
    }
    baselineLine_->replace(baseline);
    scenarioLine_->replace(scenario);

    auto* months = static_cast<QCategoryAxis*>(chart_->axes(Qt::Horizontal).front());
    for (const QString& label : months->categoriesLabels()) months->remove(label);
    const QStringList& labels = outlook_->monthLabels();
    for (int index = 0; index < labels.size(); ++index) months->append(labels[index], index);
    months->setRange(0, std::max(1, static_cast<int>(labels.size()) - 1));
    auto* savings = static_cast<QValueAxis*>(chart_->axes(Qt::Vertical).front());
    savings->setRange(low, high > low ? high : low + 100);
    savings->applyNiceNumbers();

    QStringList described;
    for (int row = 0; row < baseline.size(); ++row)
        if (row < labels.size() && row < static_cast<int>(result.projection.size()))
            described << uiText("{month}: {baseline} senza, {scenario} con lo scenario",
                                {{"month", labels[row].toStdString()},
                                 {"baseline", euroText(result.projection[static_cast<std::size_t>(row)].baseline).toStdString()},
                                 {"scenario", euroText(result.projection[static_cast<std::size_t>(row)].scenario).toStdString()}});
    chartView_->setAccessibleDescription(described.join(QStringLiteral("; ")));

    goalsPages_->setCurrentIndex(outlook_->goals().rowCount() > 0 ? 0 : 1);
    refreshEditor();
}

void ScenariosScreen::applyColours() {
    const ThemePalette& colours = currentPalette();
    paintChart(*chart_, *chartView_, colours);
    QColor muted = colours.primaryText;
    muted.setAlphaF(0.55);
    QPen baselinePen(muted, 2, Qt::DashLine);
    baselineLine_->setPen(baselinePen);
    scenarioLine_->setPen(QPen(colours.accent, 3));
    QPalette warning = problem_->palette();
    warning.setColor(QPalette::WindowText, colours.expense);
    problem_->setPalette(warning);
}

void ScenariosScreen::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange) applyColours();
}

}  // namespace vantello::app
