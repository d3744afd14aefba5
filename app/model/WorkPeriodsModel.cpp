#include "app/model/WorkPeriodsModel.hpp"

#include "app/model/DisplayText.hpp"
#include "core/planning/SalaryReminder.hpp"
#include "core/planning/WorkStatus.hpp"

#include <QJsonObject>

#include <algorithm>

namespace vantello::app {

namespace {

QString text(const std::string& value) { return QString::fromStdString(value); }

}  // namespace

WorkPeriodsModel::WorkPeriodsModel(LedgerViewModel& model, QObject* parent)
    : QAbstractListModel(parent), model_(model) {
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &WorkPeriodsModel::refresh);
    refresh();
}

void WorkPeriodsModel::refresh() {
    const Calendar& calendar = model_.calendar();
    std::vector<Row> rows;
    for (const UnemploymentPeriod& period : model_.ledger().unemploymentPeriods()) {
        const std::string start = dayText(period.start, calendar).toStdString();
        QString line = period.end ? uiText("Senza lavoro dal {inizio} al {fine}",
                                           {{"inizio", start}, {"fine", dayText(*period.end, calendar).toStdString()}})
                                  : uiText("Senza lavoro dal {inizio}, in corso", {{"inizio", start}});
        if (!period.note.empty()) line += QStringLiteral(" · ") + text(period.note);
        rows.push_back({period.id, period.start, line, !period.end.has_value()});
    }
    std::stable_sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) { return a.start > b.start; });
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

int WorkPeriodsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant WorkPeriodsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole: return row.text;
    case IdRole: return text(row.id.text());
    case OngoingRole: return row.ongoing;
    default: return {};
    }
}

std::optional<Uuid> WorkPeriodsModel::periodID(int row) const {
    if (row < 0 || row >= rowCount()) return std::nullopt;
    return rows_[static_cast<std::size_t>(row)].id;
}

int WorkPeriodsModel::rowOf(const Uuid& periodID) const {
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        if (rows_[row].id == periodID) return static_cast<int>(row);
    }
    return -1;
}

QJsonArray WorkPeriodsModel::rowsAsJson() const {
    QJsonArray array;
    for (const Row& row : rows_) {
        array.append(QJsonObject{{QStringLiteral("id"), text(row.id.text())},
                                 {QStringLiteral("text"), row.text},
                                 {QStringLiteral("ongoing"), row.ongoing}});
    }
    return array;
}

WorkStatusTexts workStatusTexts(const LedgerViewModel& model) {
    const Ledger& ledger = model.ledger();
    const Calendar& calendar = model.calendar();
    const Instant now = model.now();
    WorkStatusTexts texts;
    if (const auto ongoing = ongoingUnemploymentPeriod(ledger)) {
        texts.ongoing = uiText("In disoccupazione dal {data}", {{"data", dayText(ongoing->start, calendar).toStdString()}});
    }
    if (const auto salary = lastSalary(ledger.transactions())) {
        texts.lastSalary = uiText("Ultimo stipendio: {importo} il {giorno}",
                                  {{"importo", euroText(salary->amount).toStdString()},
                                   {"giorno", dayText(salary->date, calendar).toStdString()}});
    } else {
        texts.lastSalary = uiText("Nessuno stipendio registrato.");
    }
    texts.thisMonth = salaryRecordedInMonth(ledger.transactions(), now, calendar)
                          ? uiText("Lo stipendio di questo mese è registrato.")
                          : uiText("Lo stipendio di questo mese non è ancora registrato.");
    const SalaryReminder& reminder = model.salaryReminder();
    if (const auto next = nextSalaryReminder(reminder, ledger.unemploymentPeriods(), ledger.transactions(), now, calendar)) {
        texts.nextReminder = uiText("Prossimo promemoria dello stipendio: il {giorno} alle {ora}",
                                    {{"giorno", dayText(*next, calendar).toStdString()},
                                     {"ora", QStringLiteral("%1:00").arg(reminder.hour).toStdString()}});
    }
    return texts;
}

std::optional<UnemploymentDraft> resumeWorkDraft(const LedgerViewModel& model) {
    const auto ongoing = ongoingUnemploymentPeriod(model.ledger());
    if (!ongoing) return std::nullopt;
    UnemploymentDraft draft;
    draft.id = ongoing->id;
    draft.isNew = false;
    draft.isEnding = true;
    draft.start = ongoing->start;
    draft.hasEnd = true;
    draft.end = model.calendar().noon(model.now());
    draft.note = ongoing->note;
    return draft;
}

UnemploymentDraft newWorkPeriodDraft(const LedgerViewModel& model) {
    UnemploymentDraft draft;
    draft.id = Uuid::random();
    draft.start = model.calendar().noon(model.now());
    draft.end = draft.start;
    return draft;
}

std::optional<UnemploymentDraft> workPeriodDraft(const LedgerViewModel& model, const Uuid& periodID) {
    for (const UnemploymentPeriod& period : model.ledger().unemploymentPeriods()) {
        if (period.id != periodID) continue;
        UnemploymentDraft draft;
        draft.id = period.id;
        draft.isNew = false;
        draft.start = period.start;
        draft.hasEnd = period.end.has_value();
        draft.end = period.end.value_or(model.calendar().noon(model.now()));
        draft.note = period.note;
        return draft;
    }
    return std::nullopt;
}

}  // namespace vantello::app
