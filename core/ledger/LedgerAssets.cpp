#include "core/ledger/LedgerAssets.hpp"

#include "core/base/Text.hpp"
#include "core/ledger/LedgerError.hpp"
#include "core/ledger/RecordLookup.hpp"
#include "core/ledger/WealthError.hpp"

#include <algorithm>

namespace vantello {

namespace {

void checkValue(const Asset::Valuation& valuation) {
    if (valuation.value.sign() < 0) throw WealthError(WealthError::Code::negativeValue);
}

bool earlier(const Asset::Valuation& first, const Asset::Valuation& second) { return first.date < second.date; }

}  // namespace

void saveAsset(Ledger& ledger, Asset asset) {
    asset.name = Text::trimmed(asset.name);
    if (asset.name.empty()) throw WealthError(WealthError::Code::emptyName);
    std::ranges::for_each(asset.valuations, checkValue);
    std::ranges::stable_sort(asset.valuations, earlier);
    ledger.change([&](LedgerData& data) {
        const auto found = std::ranges::find(data.assets, asset.id, &Asset::id);
        if (found == data.assets.end()) {
            data.assets.push_back(std::move(asset));
        } else {
            *found = std::move(asset);
        }
    });
}

void addValuation(Ledger& ledger, const Uuid& assetID, Asset::Valuation valuation) {
    checkValue(valuation);
    if (!findByID(ledger.data().assets, assetID)) throw LedgerError(LedgerError::Code::notFound);
    ledger.change([&](LedgerData& data) {
        auto& valuations = existingRecord(data.assets, assetID, LedgerError(LedgerError::Code::notFound)).valuations;
        valuations.insert(std::ranges::upper_bound(valuations, valuation, earlier), std::move(valuation));
    });
}

void deleteAsset(Ledger& ledger, const Uuid& assetID) {
    const Uuid removedID = assetID;  // `assetID` may refer to the asset about to be erased
    ledger.change([&](LedgerData& data) {
        std::erase_if(data.assets, [&](const Asset& asset) { return asset.id == removedID; });
    });
}

}  // namespace vantello
