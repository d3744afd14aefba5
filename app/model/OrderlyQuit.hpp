#pragma once
// Turns every way a desktop session ends the application (the last window closed, SIGTERM,
// SIGINT or SIGHUP, the session manager's quit) into one orderly quit of the event loop, and
// runs what must finish first (flushing the ledger writers) before the process ends.

#include <QObject>

#include <functional>
#include <vector>

class QCoreApplication;
class QSocketNotifier;

namespace vantello::app {

class OrderlyQuit : public QObject {
    Q_OBJECT
public:
    // Installs the signal handlers; one per process.
    explicit OrderlyQuit(QCoreApplication& application);
    ~OrderlyQuit() override;

    // Runs `finish` when the application is about to quit or the session is ending, in the
    // order the calls were made.
    void beforeQuitting(std::function<void()> finish);

private:
    void finishEverything();

    QSocketNotifier* signalNotifier_ = nullptr;
    std::vector<std::function<void()>> finishers_;
};

}  // namespace vantello::app
