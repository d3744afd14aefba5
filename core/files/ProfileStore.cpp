#include "core/files/ProfileStore.hpp"

#include "core/base/AtomicFile.hpp"
#include "core/base/Json.hpp"
#include "core/base/Localization.hpp"
#include "core/base/Text.hpp"
#include "core/files/FileOperations.hpp"

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <tuple>
#include <utility>

namespace vantello {

namespace {

namespace fs = std::filesystem;

std::string messageFor(ProfileErrorCode code) {
    switch (code) {
        case ProfileErrorCode::missingFirstName: return L10n::tr("Scrivi il nome della persona.");
        case ProfileErrorCode::missingLastName: return L10n::tr("Scrivi il cognome.");
        case ProfileErrorCode::nameTooLong:
            return L10n::tr("Nome e cognome possono avere al massimo 60 caratteri ciascuno.");
        case ProfileErrorCode::duplicate: return L10n::tr("Esiste già una gestione con questo nome.");
        case ProfileErrorCode::notFound: return L10n::tr("Questa gestione non esiste più.");
    }
    return {};
}

// The profile with trimmed names, or the first rule it breaks.
ManagedProfile validated(ManagedProfile profile, const std::vector<ManagedProfile>& others) {
    profile.firstName = Text::trimmed(profile.firstName);
    profile.lastName = Text::trimmed(profile.lastName);
    if (profile.kind == ManagedProfile::Kind::person && profile.firstName.empty()) {
        throw ProfileError(ProfileError::Code::missingFirstName);
    }
    if (profile.lastName.empty()) throw ProfileError(ProfileError::Code::missingLastName);
    if (Text::characterCount(profile.firstName) > ProfileStore::maximumNameLength ||
        Text::characterCount(profile.lastName) > ProfileStore::maximumNameLength) {
        throw ProfileError(ProfileError::Code::nameTooLong);
    }
    const std::string name = profile.displayName();
    const bool taken = std::any_of(others.begin(), others.end(), [&](const ManagedProfile& other) {
        return other.id != profile.id && Text::equalIgnoringCaseAndAccents(other.displayName(), name);
    });
    if (taken) throw ProfileError(ProfileError::Code::duplicate);
    return profile;
}

void sortProfiles(std::vector<ManagedProfile>& profiles) {
    std::vector<std::pair<std::string, ManagedProfile>> keyed;
    keyed.reserve(profiles.size());
    for (auto& profile : profiles) keyed.emplace_back(Text::folded(profile.displayName()), std::move(profile));
    std::sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) {
        return std::tie(a.first, a.second.createdAt, a.second.id) < std::tie(b.first, b.second.createdAt, b.second.id);
    });
    profiles.clear();
    for (auto& entry : keyed) profiles.push_back(std::move(entry.second));
}

std::vector<ManagedProfile>::iterator existing(std::vector<ManagedProfile>& profiles, const Uuid& id) {
    const auto found = std::find_if(profiles.begin(), profiles.end(),
                                    [&](const ManagedProfile& profile) { return profile.id == id; });
    if (found == profiles.end()) throw ProfileError(ProfileError::Code::notFound);
    return found;
}

}  // namespace

ProfileError::ProfileError(Code code) : CodedError(code, messageFor(code)) {}

ProfileList ProfileStore::load() const {
    const fs::path file = root_ / fileName;
    std::string text;
    try {
        text = readWholeFile(file);
    } catch (const FileError& error) {
        if (error.systemError() == ENOENT) return {};
        throw;
    }
    const Json document = JsonCoding::parse(text);
    ProfileList list{JsonCoding::valueOr<std::vector<ManagedProfile>>(document, "profiles", {})};
    sortProfiles(list.profiles);
    return list;
}

void ProfileStore::save(ProfileList list) const {
    sortProfiles(list.profiles);
    std::error_code error;
    fs::create_directories(root_, error);
    if (error) throw FileError::writing(root_, error.value());
    writeFileAtomically(root_ / fileName,
                        JsonCoding::pretty({{"version", formatVersion}, {"profiles", list.profiles}}));
}

ManagedProfile ProfileStore::add(ManagedProfile::Kind kind, std::string_view firstName, std::string_view lastName,
                                 Instant now) const {
    ProfileList list = load();
    ManagedProfile profile;
    profile.id = Uuid::random();
    profile.kind = kind;
    profile.firstName = std::string(firstName);
    profile.lastName = std::string(lastName);
    profile.createdAt = now;
    profile = validated(std::move(profile), list.profiles);

    const fs::path folder = dataFolder(profile.id);
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) throw FileError::writing(folder, error.value());
    list.profiles.push_back(profile);
    try {
        save(std::move(list));
    } catch (...) {
        fs::remove_all(folder, error);  // still empty: nobody knows the profile yet
        throw;
    }
    return profile;
}

void ProfileStore::update(ManagedProfile profile) const {
    ProfileList list = load();
    auto found = existing(list.profiles, profile.id);
    *found = validated(std::move(profile), list.profiles);
    save(std::move(list));
}

void ProfileStore::remove(const Uuid& id, const MoveToTrash& moveToTrash) const {
    ProfileList list = load();
    list.profiles.erase(existing(list.profiles, id));
    const fs::path folder = dataFolder(id);
    if (FileOperations::itemExists(folder)) moveToTrash(folder);
    save(std::move(list));
}

fs::path ProfileStore::dataFolder(const Uuid& id) const { return root_ / foldersName / id.text(); }

ManagedProfile ProfileStore::find(std::string_view idOrName) const {
    const ProfileList list = load();
    const auto id = Uuid::parse(Text::trimmed(idOrName));
    for (const ManagedProfile& profile : list.profiles) {
        if (id && profile.id == *id) return profile;
    }
    const std::string name = Text::trimmed(idOrName);
    for (const ManagedProfile& profile : list.profiles) {
        if (Text::equalIgnoringCaseAndAccents(profile.displayName(), name)) return profile;
    }
    throw ProfileError(ProfileError::Code::notFound);
}

}  // namespace vantello
