#pragma once
// The analyses of the whole history that screens read: the smart alerts, the subscriptions
// found in the movements, the net worth of the last twelve months, and what each person owes
// with the history of it.
// Each is kept for the ledger's revision and the day it was worked out on. After a change they
// are worked out ahead on a thread of their own, from a copy of the ledger, so that a screen
// opened afterwards finds them ready; one asked for before then is worked out on the spot, to
// the same value. Lives on the main thread, beside the model it reads.

// The Qt side first: moc cannot read the standard library's <concepts> before Qt's headers.
#include <QObject>

#include "app/model/Memo.hpp"
#include "core/analysis/AlertSettings.hpp"
#include "core/analysis/SmartAlert.hpp"
#include "core/base/Calendar.hpp"
#include "core/base/Decimal.hpp"
#include "core/base/Uuid.hpp"
#include "core/ledger/LedgerSharing.hpp"
#include "core/planning/NetWorth.hpp"
#include "core/planning/SubscriptionDetection.hpp"

class QThreadPool;

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace vantello::app {

class LedgerViewModel;

class LedgerAnalyses : public QObject {
    Q_OBJECT

public:
    explicit LedgerAnalyses(LedgerViewModel& model);
    // Waits for the analyses under way.
    ~LedgerAnalyses() override;

    [[nodiscard]] const std::vector<SmartAlert>& alerts();
    // The most expensive first, as the detection orders them.
    [[nodiscard]] const std::vector<DetectedSubscription>& subscriptions();
    // A point at the end of each of the last twelve months, then now.
    [[nodiscard]] const std::vector<NetWorthPoint>& netWorthHistory();
    // Plus: the person owes the user; every person of the ledger has an entry.
    [[nodiscard]] const std::map<Uuid, Decimal>& peopleBalances();
    // Each person's shares and settlements, newest first.
    [[nodiscard]] const std::map<Uuid, std::vector<SharedHistoryItem>>& peopleHistories();

    // Every analysis is in hand for the ledger and the day as they are now.
    [[nodiscard]] bool isReady() const;

Q_SIGNALS:
    // The analyses worked out ahead are in hand.
    void ready();

private:
    // What every analysis depends on besides the ledger itself.
    struct Inputs {
        std::uint64_t revision = 0;
        Instant day;
        AlertSettings alertSettings;
        bool operator==(const Inputs&) const = default;
    };
    struct Results {
        std::vector<SmartAlert> alerts;
        std::vector<DetectedSubscription> subscriptions;
        std::vector<NetWorthPoint> netWorthHistory;
        std::map<Uuid, Decimal> peopleBalances;
        std::map<Uuid, std::vector<SharedHistoryItem>> peopleHistories;
    };

    [[nodiscard]] Inputs currentInputs() const;
    // Starts the work ahead once the events waiting have run, so that a burst of changes
    // starts it once.
    void scheduleWorkAhead();
    void workAhead();
    void take(const Inputs& inputs, Results results);

    LedgerViewModel& model_;
    Memo<std::vector<SmartAlert>, Inputs> alerts_;
    Memo<std::vector<DetectedSubscription>, Inputs> subscriptions_;
    Memo<std::vector<NetWorthPoint>, Inputs> netWorthHistory_;
    Memo<std::map<Uuid, Decimal>, Inputs> peopleBalances_;
    Memo<std::map<Uuid, std::vector<SharedHistoryItem>>, Inputs> peopleHistories_;
    bool scheduled_ = false;
    bool working_ = false;
    std::unique_ptr<QThreadPool> pool_;  // one thread
};

}  // namespace vantello::app
