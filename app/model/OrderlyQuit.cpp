#include "app/model/OrderlyQuit.hpp"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>

#include <csignal>

#include <sys/socket.h>
#include <unistd.h>

namespace vantello::app {

namespace {

// The handler only writes the signal's number into a socket; the event loop reads it.
int signalSockets[2] = {-1, -1};

void onTerminationSignal(int signalNumber) {
    const char number = static_cast<char>(signalNumber);
    [[maybe_unused]] const auto written = ::write(signalSockets[0], &number, 1);
}

}  // namespace

OrderlyQuit::OrderlyQuit(QCoreApplication& application) : QObject(&application) {
    if (signalSockets[0] < 0) ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signalSockets);
    signalNotifier_ = new QSocketNotifier(signalSockets[1], QSocketNotifier::Read, this);
    connect(signalNotifier_, &QSocketNotifier::activated, this, [] {
        char number = 0;
        [[maybe_unused]] const auto read = ::read(signalSockets[1], &number, 1);
        QCoreApplication::quit();
    });

    struct sigaction action {};
    action.sa_handler = onTerminationSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int signalNumber : {SIGTERM, SIGINT, SIGHUP}) ::sigaction(signalNumber, &action, nullptr);

    connect(&application, &QCoreApplication::aboutToQuit, this, &OrderlyQuit::finishEverything);
    if (auto* desktop = qobject_cast<QGuiApplication*>(&application)) {
        // The session is ending: the application may be killed without aboutToQuit.
        connect(desktop, &QGuiApplication::commitDataRequest, this, [this](QSessionManager&) { finishEverything(); });
    }
}

OrderlyQuit::~OrderlyQuit() {
    struct sigaction standard {};
    standard.sa_handler = SIG_DFL;
    sigemptyset(&standard.sa_mask);
    for (const int signalNumber : {SIGTERM, SIGINT, SIGHUP}) ::sigaction(signalNumber, &standard, nullptr);
}

void OrderlyQuit::beforeQuitting(std::function<void()> finish) { finishers_.push_back(std::move(finish)); }

void OrderlyQuit::finishEverything() {
    for (const auto& finish : finishers_) finish();
}

}  // namespace vantello::app
