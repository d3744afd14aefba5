#pragma once
// Whose data the application shows: the user's own or a managed profile's. Owns the model of the
// profile in use and replaces it on a switch (the old model's writes finish first); keeps the
// profile list and the choice, remembered under "currentProfile". Lives on the main thread.

#include "app/model/LedgerViewModel.hpp"
#include "app/model/RatesKeeper.hpp"
#include "app/notifications/ModelNotifications.hpp"
#include "app/notifications/NotificationService.hpp"
#include "app/settings/Preferences.hpp"
#include "core/files/ProfileStore.hpp"

#include <QObject>
#include <QString>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

namespace vantello::app {

class ProfilesController : public QObject {
    Q_OBJECT

public:
    struct Setup {
        // The folder of the user's own data; absent when it could not be found.
        std::optional<std::filesystem::path> rootFolder;
        Calendar calendar = Calendar::current();
        std::function<Instant()> now;  // the system's clock when empty
        Preferences* preferences = nullptr;
        ProfileStore::MoveToTrash moveToTrash;
        // The desktop's notifications, kept in step with the model in use; none in tests.
        NotificationService* notifications = nullptr;
        // The reference rates shared by every profile (kept beside the user's own data); none in
        // tests that do not need them.
        RatesKeeper* rates = nullptr;
    };

    explicit ProfilesController(Setup setup, QObject* parent = nullptr);

    [[nodiscard]] LedgerViewModel& model() const { return *model_; }
    [[nodiscard]] const ProfileList& list() const { return list_; }
    [[nodiscard]] const std::optional<QString>& errorMessage() const { return errorMessage_; }
    [[nodiscard]] bool isAddingProfile() const { return isAddingProfile_; }
    void setAddingProfile(bool adding);

    // Shows the profile's data (nothing: the user's own) and remembers the choice.
    void switchTo(const std::optional<Uuid>& profileID);
    // Adds a profile; its error is returned to the sheet that asked, with nothing changed.
    std::optional<QString> addProfile(ManagedProfile::Kind kind, const QString& firstName, const QString& lastName);
    std::optional<QString> renameProfile(ManagedProfile profile);
    // Moves the profile's data to the Trash; the profile in use goes back to the user's own data.
    void removeProfile(const Uuid& profileID);

    // Waits for every write of the model in use (the application's quit).
    void flush();

Q_SIGNALS:
    void modelChanged();
    void listChanged();
    void errorMessageChanged();
    void addingProfileChanged();

private:
    // The model of the profile (or of the user's own data), with its notifications.
    void showModel(const std::optional<ManagedProfile>& profile);
    void reloadList();
    void setErrorMessage(std::optional<QString> message);

    Setup setup_;
    std::optional<ProfileStore> store_;
    ProfileList list_;
    std::optional<QString> errorMessage_;
    bool isAddingProfile_ = false;
    std::unique_ptr<LedgerViewModel> model_;
    std::unique_ptr<ModelNotifications> modelNotifications_;
};

}  // namespace vantello::app
