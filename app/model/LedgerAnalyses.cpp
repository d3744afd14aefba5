#include "app/model/LedgerAnalyses.hpp"

#include "app/model/LedgerViewModel.hpp"
#include "core/analysis/SmartAlerts.hpp"

#include <QMetaObject>
#include <QThreadPool>
#include <QTimer>

#include <utility>

namespace vantello::app {

namespace {

constexpr int netWorthMonths = 12;

std::vector<SmartAlert> alertsOf(const Ledger& ledger, const AlertSettings& settings, Instant now,
                                 const Calendar& calendar) {
    return smartAlerts(ledger, settings, ledger.data().dismissedAlerts, now, calendar);
}

}  // namespace

LedgerAnalyses::LedgerAnalyses(LedgerViewModel& model)
    : QObject(&model), model_(model), pool_(std::make_unique<QThreadPool>()) {
    pool_->setMaxThreadCount(1);
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &LedgerAnalyses::scheduleWorkAhead);
    connect(&model_, &LedgerViewModel::alertSettingsChanged, this, &LedgerAnalyses::scheduleWorkAhead);
    scheduleWorkAhead();
}

LedgerAnalyses::~LedgerAnalyses() { pool_->waitForDone(); }

LedgerAnalyses::Inputs LedgerAnalyses::currentInputs() const {
    return {model_.ledgerRevision(), model_.calendar().startOfDay(model_.now()), model_.alertSettings()};
}

const std::vector<SmartAlert>& LedgerAnalyses::alerts() {
    return alerts_.get(currentInputs(), [&] { return alertsOf(model_.ledger(), model_.alertSettings(), model_.now(), model_.calendar()); });
}

const std::vector<DetectedSubscription>& LedgerAnalyses::subscriptions() {
    return subscriptions_.get(currentInputs(), [&] { return detectSubscriptions(model_.ledger(), model_.calendar()); });
}

const std::vector<NetWorthPoint>& LedgerAnalyses::netWorthHistory() {
    return netWorthHistory_.get(currentInputs(), [&] {
        return vantello::netWorthHistory(model_.ledger(), netWorthMonths, model_.now(), model_.calendar());
    });
}

const std::map<Uuid, Decimal>& LedgerAnalyses::peopleBalances() {
    return peopleBalances_.get(currentInputs(), [&] { return vantello::peopleBalances(model_.ledger()); });
}

const std::map<Uuid, std::vector<SharedHistoryItem>>& LedgerAnalyses::peopleHistories() {
    return peopleHistories_.get(currentInputs(), [&] { return vantello::peopleHistories(model_.ledger()); });
}

bool LedgerAnalyses::isReady() const {
    const Inputs inputs = currentInputs();
    return alerts_.inputs == inputs && subscriptions_.inputs == inputs && netWorthHistory_.inputs == inputs &&
           peopleBalances_.inputs == inputs && peopleHistories_.inputs == inputs;
}

void LedgerAnalyses::scheduleWorkAhead() {
    if (scheduled_) return;
    scheduled_ = true;
    QTimer::singleShot(0, this, [this] {
        scheduled_ = false;
        workAhead();
    });
}

void LedgerAnalyses::workAhead() {
    // One run at a time; a change made meanwhile starts the next when this one ends.
    if (working_ || isReady()) return;
    working_ = true;
    const Inputs inputs = currentInputs();
    // The copy shares the movements with the model's ledger: a later change there copies what it
    // touches and leaves this one as it is.
    pool_->start([this, inputs, ledger = model_.ledger(), now = model_.now(), calendar = model_.calendar()] {
        Results results{
            .alerts = alertsOf(ledger, inputs.alertSettings, now, calendar),
            .subscriptions = detectSubscriptions(ledger, calendar),
            .netWorthHistory = vantello::netWorthHistory(ledger, netWorthMonths, now, calendar),
            .peopleBalances = vantello::peopleBalances(ledger),
            .peopleHistories = vantello::peopleHistories(ledger),
        };
        // Delivered on the main thread; dropped with this object should it go first, which the
        // destructor's wait makes safe.
        QMetaObject::invokeMethod(
            this, [this, inputs, results = std::move(results)]() mutable { take(inputs, std::move(results)); },
            Qt::QueuedConnection);
    });
}

void LedgerAnalyses::take(const Inputs& inputs, Results results) {
    working_ = false;
    if (inputs != currentInputs()) {
        workAhead();
        return;
    }
    // A value already worked out on the spot for these inputs is the same; it stays.
    alerts_.offer(inputs, results.alerts);
    subscriptions_.offer(inputs, results.subscriptions);
    netWorthHistory_.offer(inputs, results.netWorthHistory);
    peopleBalances_.offer(inputs, results.peopleBalances);
    peopleHistories_.offer(inputs, results.peopleHistories);
    Q_EMIT ready();
}

}  // namespace vantello::app
