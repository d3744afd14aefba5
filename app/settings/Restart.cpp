#include "app/settings/Restart.hpp"

#include <QCoreApplication>
#include <QProcess>

namespace vantello::app {

namespace {

// Polls every tenth of a second, six hundred times at most. $1 is the process to wait for, the
// rest the command to start.
const QString waitThenStart = QStringLiteral(
    "tries=0; while kill -0 \"$1\" 2>/dev/null && [ $tries -lt 600 ]; do sleep 0.1; tries=$((tries + 1)); done; "
    "shift; exec \"$@\"");

}  // namespace

bool startAfterProcessEnds(qint64 processId, const QString& program, const QStringList& arguments) {
    QStringList shellArguments{QStringLiteral("-c"), waitThenStart, QStringLiteral("vantello-restart"),
                               QString::number(processId), program};
    shellArguments.append(arguments);
    return QProcess::startDetached(QStringLiteral("/bin/sh"), shellArguments);
}

bool restartApplication() {
    if (!startAfterProcessEnds(QCoreApplication::applicationPid(), QCoreApplication::applicationFilePath(),
                               QCoreApplication::arguments().mid(1))) {
        return false;
    }
    QCoreApplication::quit();
    return true;
}

}  // namespace vantello::app
