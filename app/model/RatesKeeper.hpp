#pragma once
// The ECB reference rates the movement editor converts with. They are kept in a cache file of
// the data folder, read at creation, so that the editor converts while offline with the last
// rates known; a download runs on a worker thread, is laid over the cached days, written to
// the cache and handed over on the main thread.

#include "core/rates/ExchangeRates.hpp"
#include "core/rates/RateDownload.hpp"

#include <QDate>
#include <QObject>
#include <QString>

#include <filesystem>
#include <thread>

namespace vantello::app {

class RatesKeeper : public QObject {
    Q_OBJECT
public:
    // The cache file name inside the data folder.
    static constexpr const char* cacheFileName = "cambi.json";

    // Reads the rates kept in `cacheFile`; a missing or unreadable cache gives none.
    explicit RatesKeeper(std::filesystem::path cacheFile, RateSource source = {}, QObject* parent = nullptr);
    // Waits for a download under way (at most the source's time limit).
    ~RatesKeeper() override;
    RatesKeeper(const RatesKeeper&) = delete;
    RatesKeeper& operator=(const RatesKeeper&) = delete;

    // Empty until some rates are known.
    [[nodiscard]] const ExchangeRates& rates() const { return rates_; }
    // The day the rates are of: the newest published day they hold; invalid without rates.
    [[nodiscard]] QDate ratesDay() const;
    [[nodiscard]] bool isFetching() const { return worker_.joinable(); }

    // Downloads the feed unless a download is already under way; the outcome arrives as
    // ratesChanged or fetchFailed.
    void fetch();

Q_SIGNALS:
    // New rates have been laid over the known ones.
    void ratesChanged();
    // The download failed (the editor's "Cambio non disponibile: …", the known rates stay) or
    // the cache could not be written (the new rates are used all the same).
    void fetchFailed(const QString& message);

private:
    struct Outcome;
    void finish(const Outcome& outcome);

    std::filesystem::path cacheFile_;
    RateSource source_;
    ExchangeRates rates_;
    std::thread worker_;
};

}  // namespace vantello::app
