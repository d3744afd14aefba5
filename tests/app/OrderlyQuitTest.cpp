// A termination signal ends the event loop in order, and what was handed to the ledger writer
// is on disk before the application's exec() returns.

#include "app/model/OrderlyQuit.hpp"
#include "core/files/DiskWriter.hpp"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <csignal>
#include <thread>

using namespace vantello;

class OrderlyQuitTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void terminationSignalFlushesTheWriterBeforeExecReturns() {
        QTemporaryDir folder;
        const LedgerStore store(std::filesystem::path(folder.path().toStdString()) / "movimenti.json");
        app::OrderlyQuit quit(*QCoreApplication::instance());
        DiskWriter writer;
        quit.beforeQuitting([&writer] { writer.flush(); });

        // The writer is busy for a while before it gets to the edit.
        writer.enqueue([] { std::this_thread::sleep_for(std::chrono::milliseconds(300)); });
        LedgerData edited;
        edited.dismissedAlerts.insert("avviso");
        writer.save({edited, store, std::nullopt, {}});
        QTimer::singleShot(0, [] { std::raise(SIGTERM); });

        QCoreApplication::exec();
        QVERIFY(std::filesystem::exists(store.file()));
        QVERIFY(store.load() == edited);
    }
};

QTEST_GUILESS_MAIN(OrderlyQuitTest)
#include "OrderlyQuitTest.moc"
