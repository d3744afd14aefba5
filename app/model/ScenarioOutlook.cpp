#include "app/model/ScenarioOutlook.hpp"

#include "app/model/DisplayText.hpp"
#include "core/ledger/AmountParser.hpp"

#include <QDate>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace vantello::app {

namespace {

constexpr QChar minusSign(0x2212);

// "−20 %", "+5,5 %" in the interface's way of writing numbers.
QString percentText(double fraction) {
    const double percent = fraction * 100;
    const double rounded = std::round(percent * 10) / 10;
    QString number = QLocale().toString(std::abs(rounded), 'f', rounded == std::round(rounded) ? 0 : 1);
    const QString sign = rounded < 0 ? QString(minusSign) : rounded > 0 ? QStringLiteral("+") : QString();
    return uiText("{number} %", {{"number", (sign + number).toStdString()}});
}

std::string utf8(const QString& text) { return text.toStdString(); }

// The figure of a savings amount with its direction spelled out by the sign.
QString savingsText(const Decimal& amount) {
    if (amount.sign() > 0) return movementAmountText(amount, TransactionKind::income);
    if (amount.sign() < 0) return movementAmountText(amount.magnitude(), TransactionKind::expense);
    return euroText(amount);
}

MonthTile::Tone toneOf(const Decimal& amount) {
    return amount.sign() > 0 ? MonthTile::Tone::income : amount.sign() < 0 ? MonthTile::Tone::expense : MonthTile::Tone::neutral;
}

}  // namespace

// ---- the adjustments

ScenarioAdjustmentsModel::ScenarioAdjustmentsModel(LedgerViewModel& model, QObject* parent)
    : QAbstractListModel(parent), model_(model) {
    connect(&model_, &LedgerViewModel::scenarioAdjustmentsChanged, this, [this] {
        beginResetModel();
        endResetModel();
    });
    connect(&model_, &LedgerViewModel::ledgerChanged, this, [this] {
        if (rowCount() > 0) Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    });
}

int ScenarioAdjustmentsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(model_.scenarioAdjustments().size());
}

QString ScenarioAdjustmentsModel::describe(const ScenarioAdjustment& adjustment, const Ledger& ledger) {
    return std::visit(
        [&](const auto& change) -> QString {
            using Change = std::decay_t<decltype(change)>;
            if constexpr (std::is_same_v<Change, ScenarioAdjustment::Category>) {
                const auto category = ledger.category(change.categoryID);
                const std::string name = category ? category->name : change.categoryID;
                return uiText("Spesa in {category}: {percent}",
                              {{"category", name}, {"percent", utf8(percentText(change.percent))}});
            } else if constexpr (std::is_same_v<Change, ScenarioAdjustment::Income>) {
                return uiText("Entrate: {percent}", {{"percent", utf8(percentText(change.percent))}});
            } else {
                return uiText("Spesa fissa in più: {amount} al mese", {{"amount", utf8(euroText(change.amount))}});
            }
        },
        adjustment.change);
}

QVariant ScenarioAdjustmentsModel::data(const QModelIndex& index, int role) const {
    const auto& all = model_.scenarioAdjustments();
    if (!index.isValid() || index.row() >= static_cast<int>(all.size())) return {};
    const ScenarioAdjustment& adjustment = all[static_cast<std::size_t>(index.row())];
    switch (role) {
        case Qt::DisplayRole:
        case Qt::AccessibleTextRole: return describe(adjustment, model_.ledger());
        case Qt::UserRole: return QString::fromStdString(adjustment.id.text());
        default: return {};
    }
}

QJsonArray ScenarioAdjustmentsModel::rowsAsJson() const {
    QJsonArray rows;
    for (int row = 0; row < rowCount(); ++row) rows.append(data(index(row), Qt::DisplayRole).toString());
    return rows;
}

// ---- the goals

int ScenarioGoalsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int ScenarioGoalsModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : columns; }

void ScenarioGoalsModel::setGoals(const std::vector<ScenarioResult::GoalImpact>& goals, const Calendar& calendar) {
    beginResetModel();
    rows_.clear();
    for (const auto& impact : goals) {
        const bool reached = impact.goal.saved() >= impact.goal.target;
        auto when = [&](const std::optional<Instant>& date) {
            if (date) return monthTitle(*date, calendar);
            return reached ? uiText("Già raggiunto") : uiText("Non a questo ritmo");
        };
        Row row;
        row.name = QString::fromStdString(impact.goal.name);
        row.symbol = QString::fromStdString(impact.goal.symbol);
        row.baseline = when(impact.baselineDate);
        row.scenario = when(impact.scenarioDate);
        if (impact.scenarioDate && (!impact.baselineDate || *impact.scenarioDate < *impact.baselineDate)) row.sooner = true;
        if (impact.baselineDate && (!impact.scenarioDate || *impact.scenarioDate > *impact.baselineDate)) row.later = true;
        rows_.push_back(std::move(row));
    }
    endResetModel();
}

QVariant ScenarioGoalsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= static_cast<int>(rows_.size())) return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole) {
        switch (index.column()) {
            case goalColumn: return row.name;
            case baselineColumn: return row.baseline;
            case scenarioColumn:
                if (row.sooner) return uiText("{date} (prima)", {{"date", utf8(row.scenario)}});
                if (row.later) return uiText("{date} (dopo)", {{"date", utf8(row.scenario)}});
                return row.scenario;
            default: return {};
        }
    }
    if (role == Qt::UserRole && index.column() == goalColumn) return row.symbol;
    if (role == Qt::AccessibleTextRole)
        return uiText("{goal}: senza lo scenario {baseline}, con lo scenario {scenario}",
                      {{"goal", utf8(row.name)}, {"baseline", utf8(row.baseline)}, {"scenario", utf8(row.scenario)}});
    return {};
}

QVariant ScenarioGoalsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    switch (section) {
        case goalColumn: return uiText("Obiettivo");
        case baselineColumn: return uiText("Senza lo scenario");
        case scenarioColumn: return uiText("Con lo scenario");
        default: return {};
    }
}

QJsonArray ScenarioGoalsModel::rowsAsJson() const {
    QJsonArray rows;
    for (int row = 0; row < rowCount(); ++row) {
        QJsonObject object;
        object[QStringLiteral("goal")] = rows_[static_cast<std::size_t>(row)].name;
        object[QStringLiteral("baseline")] = data(index(row, baselineColumn), Qt::DisplayRole).toString();
        object[QStringLiteral("scenario")] = data(index(row, scenarioColumn), Qt::DisplayRole).toString();
        rows.append(object);
    }
    return rows;
}

// ---- the outlook

ScenarioOutlook::ScenarioOutlook(LedgerViewModel& model, QObject* parent)
    : QObject(parent), model_(model), adjustments_(model, this), goals_(this) {
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &ScenarioOutlook::refresh);
    connect(&model_, &LedgerViewModel::scenarioAdjustmentsChanged, this, &ScenarioOutlook::refresh);
    connect(&model_, &LedgerViewModel::demoChanged, this, &ScenarioOutlook::refresh);
    refresh();
}

void ScenarioOutlook::refresh() {
    const Instant now = model_.now();
    auto inputs = std::make_tuple(model_.ledgerRevision(), model_.scenarioAdjustments(), model_.calendar().startOfDay(now));
    if (inputs_ == inputs) return;
    inputs_ = std::move(inputs);
    result_ = simulateScenario(model_.ledger(), model_.scenarioAdjustments(), now, model_.calendar());
    goals_.setGoals(result_.goals, model_.calendar());

    tiles_.clear();
    monthLabels_.clear();
    if (result_.basisMonths > 0) {
        // The monthly savings are the core's: its projection's first month, so that both tiles and
        // the chart agree to the cent (its expenses are the sum of the category averages).
        const Decimal baseline = result_.projection.empty() ? Decimal() : result_.projection.front().baseline;
        const Decimal scenario = result_.projection.empty() ? Decimal() : result_.projection.front().scenario;
        const std::string basis = std::to_string(result_.basisMonths);
        tiles_.push_back({QStringLiteral("baselineSavings"), uiText("Risparmio al mese oggi"), savingsText(baseline),
                          uiText("Entrate {income}, uscite {expenses}: media di {months} mesi",
                                 {{"income", utf8(euroText(result_.baselineIncome))},
                                  {"expenses", utf8(euroText(result_.baselineIncome - baseline))},
                                  {"months", basis}}),
                          toneOf(baseline), {}, {}});
        tiles_.push_back({QStringLiteral("scenarioSavings"), uiText("Risparmio al mese con lo scenario"),
                          savingsText(scenario),
                          uiText("Entrate {income}, uscite {expenses}",
                                 {{"income", utf8(euroText(result_.scenarioIncome))},
                                  {"expenses", utf8(euroText(result_.scenarioExpenses))}}),
                          toneOf(scenario), {}, {}});
        if (!result_.projection.empty()) {
            const auto& last = result_.projection.back();
            const Decimal difference = last.scenario - last.baseline;
            tiles_.push_back({QStringLiteral("difference"), uiText("Differenza in 12 mesi"), savingsText(difference),
                              uiText("{scenario} invece di {baseline}",
                                     {{"scenario", utf8(savingsText(last.scenario))},
                                      {"baseline", utf8(savingsText(last.baseline))}}),
                              toneOf(difference), {}, {}});
        }
        for (const auto& point : result_.projection) {
            const CivilDate day = model_.calendar().civilDate(point.month);
            monthLabels_ << QLocale().toString(QDate(day.year, day.month, 1), QStringLiteral("MMM"));
        }
    }
    Q_EMIT changed();
}

// ---- the editor

std::variant<ScenarioAdjustment::Change, QString> scenarioChange(ScenarioChangeKind kind, const std::string& categoryID,
                                                                 const QString& typed) {
    QString text = typed.trimmed();
    if (kind == ScenarioChangeKind::monthlyExpense) {
        const auto amount = AmountParser::parse(utf8(text));
        if (!amount || amount->sign() <= 0) return uiText("Scrivi la spesa in più di ogni mese, per esempio 50,00.");
        return ScenarioAdjustment::MonthlyExpense{*amount};
    }
    if (kind == ScenarioChangeKind::category && categoryID.empty()) return uiText("Scegli una categoria di spesa.");
    if (text.endsWith(QLatin1Char('%'))) text.chop(1);
    text = text.trimmed();
    int sign = 1;
    if (text.startsWith(QLatin1Char('-')) || text.startsWith(minusSign)) {
        sign = -1;
        text.remove(0, 1);
    } else if (text.startsWith(QLatin1Char('+'))) {
        text.remove(0, 1);
    }
    const auto magnitude = AmountParser::parse(utf8(text.trimmed()));
    if (!magnitude || magnitude->isZero())
        return uiText("Scrivi una percentuale diversa da zero, per esempio −10 per spendere il 10 % in meno.");
    const double fraction = sign * magnitude->toDouble() / 100;
    if (fraction < -1) return uiText("Non si può togliere più del 100 %.");
    if (kind == ScenarioChangeKind::income) return ScenarioAdjustment::Income{fraction};
    return ScenarioAdjustment::Category{categoryID, fraction};
}

void addScenarioAdjustment(LedgerViewModel& model, ScenarioAdjustment::Change change) {
    auto adjustments = model.scenarioAdjustments();
    adjustments.push_back(ScenarioAdjustment{Uuid::random(), std::move(change)});
    model.setScenarioAdjustments(std::move(adjustments));
}

void removeScenarioAdjustment(LedgerViewModel& model, const Uuid& id) {
    auto adjustments = model.scenarioAdjustments();
    std::erase_if(adjustments, [&](const ScenarioAdjustment& adjustment) { return adjustment.id == id; });
    model.setScenarioAdjustments(std::move(adjustments));
}

}  // namespace vantello::app
