#pragma once
// The assets of a ledger: things of value with a dated list of valuations, kept in ascending
// date order so that the last valuation on or before a day is its value then. Each operation
// throws WealthError (or LedgerError for an unknown asset) and leaves the ledger as it was, or
// changes it.

#include "core/ledger/Ledger.hpp"

namespace vantello {

// Adds the asset, or replaces the one with the same id. The name is kept trimmed and must not
// be empty; no valuation may be negative. Valuations are put in date order (equal dates keep
// their order).
void saveAsset(Ledger& ledger, Asset asset);
// A new value (zero allowed) from a date on; it goes after the valuations dated on or before it.
void addValuation(Ledger& ledger, const Uuid& assetID, Asset::Valuation valuation);
void deleteAsset(Ledger& ledger, const Uuid& assetID);  // an unknown id is ignored

}  // namespace vantello
