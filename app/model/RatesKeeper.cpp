#include "app/model/RatesKeeper.hpp"

#include "core/rates/RateCache.hpp"
#include "core/rates/RateError.hpp"

#include <QMetaObject>

#include <optional>
#include <utility>

namespace vantello::app {

struct RatesKeeper::Outcome {
    std::optional<ExchangeRates> rates;  // nothing when the download failed
    std::string problem;                  // empty when all went well
};

RatesKeeper::RatesKeeper(std::filesystem::path cacheFile, RateSource source, QObject* parent)
    : QObject(parent),
      cacheFile_(std::move(cacheFile)),
      source_(std::move(source)),
      rates_(RateCache::read(cacheFile_)) {}

RatesKeeper::~RatesKeeper() {
    if (worker_.joinable()) worker_.join();
}

QDate RatesKeeper::ratesDay() const {
    const auto day = RateCache::newestDay(rates_);
    return day ? QDate::fromString(QString::fromStdString(*day), Qt::ISODate) : QDate();
}

void RatesKeeper::fetch() {
    if (worker_.joinable()) return;
    // The worker owns copies of what it needs; only the outcome comes back, queued to this
    // object's thread, which the destructor keeps alive until the worker is done.
    worker_ = std::thread([this, known = rates_, source = source_, cacheFile = cacheFile_]() mutable {
        Outcome outcome;
        try {
            outcome.rates = RateCache::merged(std::move(known), fetchExchangeRates(source));
        } catch (const std::exception&) {
            outcome.problem = rateUnavailableMessage();
        }
        if (outcome.rates) {
            try {
                RateCache::write(cacheFile, *outcome.rates);
            } catch (const UserError& error) {
                outcome.problem = error.message();
            }
        }
        QMetaObject::invokeMethod(this, [this, outcome = std::move(outcome)] { finish(outcome); },
                                  Qt::QueuedConnection);
    });
}

void RatesKeeper::finish(const Outcome& outcome) {
    worker_.join();
    if (outcome.rates) {
        rates_ = *outcome.rates;
        Q_EMIT ratesChanged();
    }
    if (!outcome.problem.empty()) Q_EMIT fetchFailed(QString::fromStdString(outcome.problem));
}

}  // namespace vantello::app
