#pragma once
// The managed profiles of a data folder: the list in "profili.json" and each profile's own data
// folder "Profili/<ID>". The list is kept sorted by display name (ignoring case and accents),
// then by creation time; two profiles may not share a display name, ignoring case and accents,
// the way every name of the application is compared.

#include "core/base/Instant.hpp"
#include "core/base/UserError.hpp"
#include "core/base/Uuid.hpp"
#include "core/files/ManagedProfile.hpp"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string_view>
#include <vector>

namespace vantello {

enum class ProfileErrorCode { missingFirstName, missingLastName, nameTooLong, duplicate, notFound };

class ProfileError : public CodedError<ProfileErrorCode> {
public:
    using Code = ProfileErrorCode;
    explicit ProfileError(Code code);
};

struct ProfileList {
    std::vector<ManagedProfile> profiles;
    bool operator==(const ProfileList&) const = default;
};

class ProfileStore {
public:
    // Moves a file or folder where the user can still get it back (the desktop's Trash).
    using MoveToTrash = std::function<void(const std::filesystem::path&)>;

    static constexpr std::string_view fileName = "profili.json";
    static constexpr std::string_view foldersName = "Profili";
    static constexpr std::int64_t formatVersion = 1;
    static constexpr std::size_t maximumNameLength = 60;

    // `root` is the data folder holding the user's own data.
    explicit ProfileStore(std::filesystem::path root) : root_(std::move(root)) {}

    [[nodiscard]] const std::filesystem::path& root() const { return root_; }

    // No file means no profiles; DecodingError for a damaged file, FileError when unreadable.
    [[nodiscard]] ProfileList load() const;

    // Validates (names trimmed, ProfileError otherwise), creates the profile and its data
    // folder and saves the list.
    ManagedProfile add(ManagedProfile::Kind kind, std::string_view firstName, std::string_view lastName,
                       Instant now) const;
    // Replaces the profile with the same id after the same validation; notFound when none.
    void update(ManagedProfile profile) const;
    // Moves the profile's data folder, when it still exists, with `moveToTrash` and then takes
    // the profile off the list; when the move fails the list stays as it was. Backups stay.
    void remove(const Uuid& id, const MoveToTrash& moveToTrash) const;

    // "Profili/<ID in upper case>" under the root.
    [[nodiscard]] std::filesystem::path dataFolder(const Uuid& id) const;

    // The profile with this id (either case) or, failing that, this display name (ignoring
    // case and accents); ProfileError notFound otherwise.
    [[nodiscard]] ManagedProfile find(std::string_view idOrName) const;

private:
    void save(ProfileList list) const;

    std::filesystem::path root_;
};

}  // namespace vantello
