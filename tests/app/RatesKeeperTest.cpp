// The rates keeper downloads from a real HTTP server on the loopback interface, keeps what it
// got in its cache file and converts from that cache once the server is gone.

#include "app/model/RatesKeeper.hpp"
#include "core/base/AtomicFile.hpp"
#include "core/rates/RateCache.hpp"
#include "core/rates/RateError.hpp"
#include "support/CannedHttpServer.hpp"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <memory>

using namespace vantello;
using namespace vantello::app;

namespace {

// Two days of the bank's feed, in its own shape.
const std::string feed =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<gesmes:Envelope xmlns:gesmes=\"http://www.gesmes.org/xml/2002-08-01\" "
    "xmlns=\"http://www.ecb.int/vocabulary/2002-08-01/eurofxref\"><Cube>\n"
    "<Cube time=\"2024-01-05\"><Cube currency=\"USD\" rate=\"1.0921\"/><Cube currency=\"GBP\" rate=\"0.8604\"/></Cube>\n"
    "<Cube time=\"2024-01-04\"><Cube currency=\"USD\" rate=\"1.0945\"/></Cube>\n"
    "</Cube></gesmes:Envelope>\n";

Decimal number(const char* text) { return *Decimal::fromCanonical(text); }

// A source at `url` that gives up within two seconds.
RateSource sourceAt(const std::string& url) {
    RateSource source;
    source.url = url;
    source.totalTimeout = std::chrono::milliseconds(2'000);
    return source;
}

}  // namespace

class RatesKeeperTest : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    std::filesystem::path cache_;
    std::string feedUrl_;

private Q_SLOTS:
    void init() { cache_ = std::filesystem::path(folder_.path().toStdString()) / RatesKeeper::cacheFileName; }

    void fetchedRatesArriveOnTheMainThreadJoinTheCachedDaysAndAreCached() {
        // A day older than the feed's window, kept from an earlier run.
        RateCache::write(cache_, ExchangeRates{{{"2023-09-01", {{"USD", number("1.0844")}}}}});
        const testing::CannedHttpServer server({{"/feed", testing::httpResponse("200 OK", feed)}});
        feedUrl_ = server.url("/feed");

        RatesKeeper keeper(cache_, sourceAt(feedUrl_));
        QCOMPARE(keeper.ratesDay(), QDate(2023, 9, 1));
        bool onMainThread = false;
        connect(&keeper, &RatesKeeper::ratesChanged, this,
                [&] { onMainThread = QThread::currentThread() == QCoreApplication::instance()->thread(); });
        QSignalSpy changed(&keeper, &RatesKeeper::ratesChanged);
        QSignalSpy failed(&keeper, &RatesKeeper::fetchFailed);
        keeper.fetch();
        QVERIFY(keeper.isFetching());
        keeper.fetch();  // one download at a time

        QVERIFY(changed.wait(5'000));
        QVERIFY(onMainThread);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(failed.count(), 0);
        QVERIFY(!keeper.isFetching());
        QCOMPARE(keeper.rates().days.size(), 3u);
        QCOMPARE(keeper.ratesDay(), QDate(2024, 1, 5));
        QVERIFY(RateCache::read(cache_) == keeper.rates());
    }

    // Runs after the one above, with its server gone.
    void aKeeperOfflineConvertsWithTheCachedRatesAndNamesTheirDay() {
        RatesKeeper keeper(cache_, sourceAt(feedUrl_));
        QCOMPARE(keeper.ratesDay(), QDate(2024, 1, 5));
        const Calendar rome("Europe/Rome");
        const auto saturday = rome.date({2024, 1, 6}, 12);
        const auto rate = keeper.rates().rate("USD", *saturday, rome);
        QVERIFY(rate);
        QCOMPARE(ExchangeRates::toEuro(number("100"), *rate), std::optional(number("91.57")));

        QSignalSpy failed(&keeper, &RatesKeeper::fetchFailed);
        QSignalSpy changed(&keeper, &RatesKeeper::ratesChanged);
        keeper.fetch();
        QVERIFY(failed.wait(5'000));
        QCOMPARE(failed.first().first().toString(), QString::fromStdString(rateUnavailableMessage()));
        QCOMPARE(changed.count(), 0);
        QCOMPARE(keeper.ratesDay(), QDate(2024, 1, 5));
    }

    void aCacheThatCannotBeReadOrWrittenIsNoHindrance() {
        writeFileAtomically(cache_, "{\"days\": {\"2024-01-05\": {\"USD\": ");
        const testing::CannedHttpServer server({{"/feed", testing::httpResponse("200 OK", feed)}});
        {
            RatesKeeper keeper(cache_, sourceAt(server.url("/feed")));
            QVERIFY(keeper.rates().days.empty());
            QVERIFY(!keeper.ratesDay().isValid());
        }

        // A folder where the cache should be: the rates are used, the failure is told.
        std::filesystem::remove(cache_);
        std::filesystem::create_directory(cache_);
        RatesKeeper keeper(cache_, sourceAt(server.url("/feed")));
        QVERIFY(keeper.rates().days.empty());
        QSignalSpy changed(&keeper, &RatesKeeper::ratesChanged);
        QSignalSpy failed(&keeper, &RatesKeeper::fetchFailed);
        keeper.fetch();
        QVERIFY(failed.wait(5'000));
        QCOMPARE(changed.count(), 1);
        QVERIFY(failed.first().first().toString().contains(QStringLiteral("cambi.json")));
        QCOMPARE(keeper.ratesDay(), QDate(2024, 1, 5));
    }
};

QTEST_MAIN(RatesKeeperTest)
#include "RatesKeeperTest.moc"
