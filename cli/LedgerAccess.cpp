#include "cli/LedgerAccess.hpp"

#include "core/files/DataFolder.hpp"
#include "core/files/LedgerStore.hpp"

namespace vantello::cli {

Ledger readLedger(const Arguments& arguments) {
    return Ledger(LedgerStore(arguments.dataFolder() / LedgerStore::fileName).load());
}

bool changeLedger(const Arguments& arguments, const std::function<void(Ledger&)>& change) {
    const std::filesystem::path folder = arguments.dataFolder();
    const DataFolderLock lock(folder);
    const LedgerStore store(folder / LedgerStore::fileName);
    const Ledger before(store.load());
    Ledger after = before;
    change(after);
    if (after == before) return false;
    store.save(after.data());
    return true;
}

}  // namespace vantello::cli
