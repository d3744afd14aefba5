#include "core/ledger/LedgerStore.hpp"

#include "core/base/AtomicFile.hpp"
#include "core/base/Json.hpp"
#include "core/base/Localization.hpp"
#include "core/base/SideBySide.hpp"
#include "core/files/DataFolder.hpp"
#include "core/ledger/LedgerFileReader.hpp"

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <limits>
#include <system_error>

#include <fcntl.h>

namespace vantello {

namespace {

using FormatVersion = LedgerStore::FormatVersion;

// Fewer movements than this are not worth a second thread.
constexpr std::size_t parallelMovementCount = 2'000;

// The version is an integer; a number such as 7.0 still names one, anything else does not.
FormatVersion decodeVersion(const Json& document) {
    const auto found = document.find("version");
    if (found == document.end()) JsonCoding::fail("version", "manca");
    const Json& value = *found;
    if (value.is_number_integer() && !value.is_number_unsigned()) return {value.get<std::int64_t>()};
    if (value.is_number_unsigned()) {
        const auto unsignedValue = value.get<std::uint64_t>();
        const auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
        return {static_cast<std::int64_t>(std::min(unsignedValue, largest))};
    }
    if (value.is_number_float()) {
        const double number = value.get<double>();
        if (std::trunc(number) == number && std::abs(number) < 9.0e15) {
            return {static_cast<std::int64_t>(number)};
        }
    }
    JsonCoding::fail("version", "ha un valore del tipo sbagliato");
}

SharedList<Transaction> decodeTransactions(const Json& document) {
    const auto found = document.find("transactions");
    if (found == document.end()) JsonCoding::fail("transactions", "manca");
    if (!found->is_array()) JsonCoding::fail("transactions", "ha un valore del tipo sbagliato");

    SharedList<Transaction> transactions;
    transactions.reserve(found->size());
    for (const Json& element : *found) {
        transactions.push_back(JsonCoding::convert<Transaction>(element, "transactions"));
    }
    return transactions;
}

// A budget whose text is not a number is dropped rather than failing the whole file: losing
// one budget is better than refusing the ledger.
std::map<std::string, Decimal> decodeBudgets(const Json& document) {
    const auto texts = JsonCoding::valueOr<std::map<std::string, std::string>>(document, "budgets", {});
    std::map<std::string, Decimal> budgets;
    for (const auto& [categoryID, text] : texts) {
        if (auto amount = Decimal::fromCanonical(text)) budgets.emplace_hint(budgets.end(), categoryID, *amount);
    }
    return budgets;
}

std::set<std::string> decodeIDSet(const Json& document, std::string_view key) {
    auto ids = JsonCoding::valueOr<std::vector<std::string>>(document, key, {});
    return {std::make_move_iterator(ids.begin()), std::make_move_iterator(ids.end())};
}

// The array elements of the movements from `first` to `last`, each on its own lines indented
// by four spaces, as they stand inside the pretty-printed document.
std::string encodeMovements(SharedList<Transaction>::const_iterator first, SharedList<Transaction>::const_iterator last,
                            bool startsTheArray) {
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(last - first) * 400);
    for (auto movement = first; movement != last; ++movement) {
        bytes.append(startsTheArray && movement == first ? "\n    " : ",\n    ");
        const std::string element = JsonCoding::pretty(Json(*movement));
        // pretty() ends with a line break, which the array does not want.
        const std::string_view lines(element.data(), element.size() - 1);
        std::size_t start = 0;
        for (auto end = lines.find('\n'); end != std::string_view::npos; end = lines.find('\n', start)) {
            bytes.append(lines.substr(start, end + 1 - start)).append("    ");
            start = end + 1;
        }
        bytes.append(lines.substr(start));
    }
    return bytes;
}

template <typename Record>
std::vector<Record> decodeList(const Json& document, std::string_view key) {
    return JsonCoding::valueOr<std::vector<Record>>(document, key, {});
}

}  // namespace

LedgerStore::StoreError LedgerStore::StoreError::newerFormat(std::int64_t version) {
    return StoreError(Code::newerFormat,
                      L10n::tr("Il file dei movimenti viene da una versione più recente di Vantello (formato {n}).",
                               {{"n", std::to_string(version)}}),
                      version);
}

LedgerStore::LedgerStore() : file_(dataFolder() / fileName) {}

LedgerStore::LedgerStore(std::filesystem::path file) : file_(std::move(file)) {}

LedgerData LedgerStore::load() const { return loadContents().data; }

LedgerStore::Contents LedgerStore::loadContents() const {
    std::string text;
    try {
        text = readWholeFile(file_);
    } catch (const FileError& error) {
        if (error.systemError() == ENOENT) return {};
        throw;
    }
    return decode(text);
}

LedgerStore::Contents LedgerStore::decode(std::string_view text) {
    LedgerFileText file = readLedgerFileText(text);
    const Json& document = file.document;
    // A bare array of movements (or any other value) is not a ledger file.
    static_cast<void>(JsonCoding::requireObject(document));

    // The version decides whether the rest can be understood at all, so it comes first.
    const FormatVersion version = decodeVersion(document);
    if (!version.isReadable()) throw StoreError::newerFormat(version.value);
    if (file.transactionError) std::rethrow_exception(file.transactionError);

    Contents contents{version, {}};
    LedgerData& data = contents.data;
    data.transactions = file.transactions ? std::move(*file.transactions) : decodeTransactions(document);
    data.customCategories = decodeList<TransactionCategory>(document, "customCategories");
    data.budgets = decodeBudgets(document);
    data.accounts = decodeList<Account>(document, "accounts");
    data.recurringRules = decodeList<RecurringRule>(document, "recurringRules");
    data.categoryRules = decodeList<CategoryRule>(document, "categoryRules");
    data.unemploymentPeriods = decodeList<UnemploymentPeriod>(document, "unemploymentPeriods");
    data.savedSearches = decodeList<SavedSearch>(document, "savedSearches");
    data.savingsGoals = decodeList<SavingsGoal>(document, "savingsGoals");
    data.loans = decodeList<Loan>(document, "loans");
    data.assets = decodeList<Asset>(document, "assets");
    data.ignoredSubscriptions = decodeIDSet(document, "ignoredSubscriptions");
    data.dismissedAlerts = decodeIDSet(document, "dismissedAlerts");
    data.people = decodeList<Person>(document, "people");
    data.sharedEntries = decodeList<SharedEntry>(document, "sharedEntries");
    return contents;
}

std::string LedgerStore::encode(const LedgerData& data) {
    Json budgets = Json::object();
    for (const auto& [categoryID, amount] : data.budgets) budgets[categoryID] = amount.description();

    // Every key is written, empty or not, and the id sets come out in ascending order, so that
    // the same ledger always gives the same bytes.
    Json document = Json::object();
    document["version"] = FormatVersion::written;
    document["transactions"] = Json::array();
    document["customCategories"] = data.customCategories;
    document["budgets"] = std::move(budgets);
    document["accounts"] = data.accounts;
    document["recurringRules"] = data.recurringRules;
    document["categoryRules"] = data.categoryRules;
    document["unemploymentPeriods"] = data.unemploymentPeriods;
    document["savedSearches"] = data.savedSearches;
    document["savingsGoals"] = data.savingsGoals;
    document["loans"] = data.loans;
    document["assets"] = data.assets;
    document["ignoredSubscriptions"] = data.ignoredSubscriptions;
    document["dismissedAlerts"] = data.dismissedAlerts;
    document["people"] = data.people;
    document["sharedEntries"] = data.sharedEntries;
    const std::string frame = JsonCoding::pretty(document);
    if (data.transactions.empty()) return frame;

    // The movements are written one by one into the place of the empty array, each indented
    // as the whole document would indent it, rather than as one big JSON tree. A line break
    // never occurs inside a written string, so the top-level key is found unambiguously.
    constexpr std::string_view emptyMovements = "\n  \"transactions\": []";
    const auto insertion = frame.find(emptyMovements) + emptyMovements.size() - 1;

    const auto& transactions = data.transactions;
    std::string firstHalf;
    std::string secondHalf;
    if (worthSplitting(transactions.size(), parallelMovementCount)) {
        const auto middle = transactions.begin() + static_cast<std::ptrdiff_t>(transactions.size() / 2);
        runSideBySide([&] { firstHalf = encodeMovements(transactions.begin(), middle, true); },
                      [&] { secondHalf = encodeMovements(middle, transactions.end(), false); });
    } else {
        firstHalf = encodeMovements(transactions.begin(), transactions.end(), true);
    }

    std::string bytes;
    bytes.reserve(frame.size() + firstHalf.size() + secondHalf.size() + 4);
    bytes.append(frame, 0, insertion).append(firstHalf).append(secondHalf).append("\n  ");
    bytes.append(frame, insertion, std::string::npos);
    return bytes;
}

void LedgerStore::save(const LedgerData& data) const {
    const std::string bytes = encode(data);
    if (file_.has_parent_path()) {
        std::error_code error;
        std::filesystem::create_directories(file_.parent_path(), error);
        if (error) throw FileError::writing(file_, error.value());
    }
    writeFileAtomically(file_, bytes);
}

std::filesystem::path LedgerStore::moveDamagedFileAside(Instant now) const {
    const auto moved = file_.parent_path() / ("movimenti-danneggiato-" + std::to_string(unixSeconds(now)) + ".json");
    // Two damaged files set aside within one second must not overwrite each other.
    if (::renameat2(AT_FDCWD, file_.c_str(), AT_FDCWD, moved.c_str(), RENAME_NOREPLACE) != 0) {
        int failure = errno;
        if (failure == EINVAL || failure == ENOSYS) {
            // The file system cannot refuse to replace by itself.
            std::error_code error;
            if (std::filesystem::exists(moved, error)) {
                failure = EEXIST;
            } else {
                failure = ::rename(file_.c_str(), moved.c_str()) == 0 ? 0 : errno;
            }
        }
        if (failure != 0) throw FileError::moving(file_, failure);
    }
    return moved;
}

}  // namespace vantello
