#include "app/model/ProfilesController.hpp"

#include "core/base/Localization.hpp"

#include <algorithm>
#include <chrono>
#include <utility>

namespace vantello::app {

namespace {

QString text(const std::string& message) { return QString::fromStdString(message); }


}  // namespace

ProfilesController::ProfilesController(Setup setup, QObject* parent) : QObject(parent), setup_(std::move(setup)) {
    if (!setup_.now) setup_.now = clockNow;
    if (setup_.rates) {
        connect(setup_.rates, &RatesKeeper::ratesChanged, this,
                [this] { model_->setExchangeRates(setup_.rates->rates()); });
    }
    if (setup_.rootFolder) store_.emplace(*setup_.rootFolder);
    reloadList();
    const std::optional<Uuid> chosen = setup_.preferences->currentProfile();
    const auto profile = std::ranges::find(list_.profiles, chosen, [](const ManagedProfile& p) {
        return std::optional<Uuid>(p.id);
    });
    showModel(profile == list_.profiles.end() ? std::nullopt : std::optional(*profile));
}

void ProfilesController::showModel(const std::optional<ManagedProfile>& profile) {
    // The old model finishes its writes before the new one reads.
    modelNotifications_.reset();
    model_.reset();
    LedgerViewModel::Setup modelSetup{std::nullopt, profile, setup_.calendar, setup_.now, setup_.preferences, {}};
    if (store_) {
        modelSetup.dataFolder = profile ? store_->dataFolder(profile->id) : store_->root();
        modelSetup.defaultBackupFolder = BackupStore::inDataFolder(store_->root()).folder;
    }
    model_ = std::make_unique<LedgerViewModel>(std::move(modelSetup), this);
    if (setup_.rates && !setup_.rates->rates().hasNoRates()) model_->setExchangeRates(setup_.rates->rates());
    if (setup_.notifications) {
        model_->setNotificationsDenied(setup_.notifications->isDenied());
        modelNotifications_ = std::make_unique<ModelNotifications>(*model_, *setup_.notifications);
    }
}

void ProfilesController::reloadList() {
    if (!store_) return;
    try {
        list_ = store_->load();
    } catch (const UserError& error) {
        list_ = {};
        setErrorMessage(text(error.message()));
    }
    Q_EMIT listChanged();
}

void ProfilesController::setErrorMessage(std::optional<QString> message) {
    if (errorMessage_ == message) return;
    errorMessage_ = std::move(message);
    Q_EMIT errorMessageChanged();
}

void ProfilesController::setAddingProfile(bool adding) {
    if (isAddingProfile_ == adding) return;
    isAddingProfile_ = adding;
    Q_EMIT addingProfileChanged();
}

void ProfilesController::switchTo(const std::optional<Uuid>& profileID) {
    std::optional<ManagedProfile> profile;
    if (profileID) {
        const auto found = std::ranges::find(list_.profiles, *profileID, &ManagedProfile::id);
        if (found == list_.profiles.end()) return;
        profile = *found;
    }
    if (model_->profile() == profile) return;
    setup_.preferences->setCurrentProfile(profileID);
    showModel(profile);
    Q_EMIT modelChanged();
}

std::optional<QString> ProfilesController::addProfile(ManagedProfile::Kind kind, const QString& firstName,
                                                      const QString& lastName) {
    if (!store_) return text(L10n::tr("Non trovo la cartella dei dati: le modifiche non verranno salvate."));
    try {
        store_->add(kind, firstName.toStdString(), lastName.toStdString(), setup_.now());
    } catch (const UserError& error) {
        return text(error.message());
    }
    setAddingProfile(false);
    reloadList();
    return std::nullopt;
}

std::optional<QString> ProfilesController::renameProfile(ManagedProfile profile) {
    if (!store_) return text(L10n::tr("Non trovo la cartella dei dati: le modifiche non verranno salvate."));
    try {
        store_->update(std::move(profile));
    } catch (const UserError& error) {
        return text(error.message());
    }
    reloadList();
    return std::nullopt;
}

void ProfilesController::removeProfile(const Uuid& profileID) {
    if (!store_) return;
    if (model_->profile() && model_->profile()->id == profileID) switchTo(std::nullopt);
    try {
        store_->remove(profileID, setup_.moveToTrash);
    } catch (const UserError& error) {
        setErrorMessage(text(error.message()));
    }
    reloadList();
}

void ProfilesController::flush() { model_->flushWrites(); }

}  // namespace vantello::app
