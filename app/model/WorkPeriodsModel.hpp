#pragma once
// The work screen's values: the periods without work (newest first) as a list, and what the
// ledger says about the one in progress, the salary and its reminder, as the screen words it.

#include "app/model/LedgerViewModel.hpp"
#include "core/base/Uuid.hpp"

#include <QAbstractListModel>
#include <QJsonArray>
#include <QString>

#include <optional>
#include <vector>

namespace vantello::app {

class WorkPeriodsModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        IdRole = Qt::UserRole + 1,  // the period's id text
        OngoingRole,                // true for the period without end
    };

    explicit WorkPeriodsModel(LedgerViewModel& model, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

    [[nodiscard]] std::optional<Uuid> periodID(int row) const;
    [[nodiscard]] int rowOf(const Uuid& periodID) const;
    [[nodiscard]] QJsonArray rowsAsJson() const;

    void refresh();

private:
    struct Row {
        Uuid id;
        Instant start;
        QString text;  // "Senza lavoro dal 1 feb 2026 al 28 feb 2026 · note"
        bool ongoing = false;
    };

    LedgerViewModel& model_;
    std::vector<Row> rows_;
};

// The lines of the work screen's status card.
struct WorkStatusTexts {
    std::optional<QString> ongoing;  // "In disoccupazione dal 1 mar 2026"
    QString lastSalary;              // "Ultimo stipendio: 1.850,00 € il 27 feb 2026" or that there is none
    QString thisMonth;               // whether this month's salary is recorded
    std::optional<QString> nextReminder;  // when the salary reminder goes off next
};
[[nodiscard]] WorkStatusTexts workStatusTexts(const LedgerViewModel& model);

// The draft that closes the period in progress with today as its last day without work;
// nothing when no period is in progress.
[[nodiscard]] std::optional<UnemploymentDraft> resumeWorkDraft(const LedgerViewModel& model);
// A new period starting today, open-ended.
[[nodiscard]] UnemploymentDraft newWorkPeriodDraft(const LedgerViewModel& model);
// An existing period for the editor; nothing for an unknown id.
[[nodiscard]] std::optional<UnemploymentDraft> workPeriodDraft(const LedgerViewModel& model, const Uuid& periodID);

}  // namespace vantello::app
