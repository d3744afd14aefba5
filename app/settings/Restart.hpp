#pragma once
// Restarting the application, so that a new interface language takes effect.

#include <QString>
#include <QStringList>

namespace vantello::app {

// Starts `program` with `arguments` once the process `processId` has ended (or after a minute,
// should it never end), without waiting for it here. False when it cannot be started.
bool startAfterProcessEnds(qint64 processId, const QString& program, const QStringList& arguments);

// Starts this program again with the same arguments and quits through the event loop, so that
// the ledger is written first. The new copy waits for this process to end, which frees the data
// folder for it. Nothing happens (false) when the new copy cannot be started.
bool restartApplication();

}  // namespace vantello::app
