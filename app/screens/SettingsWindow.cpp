#include "app/screens/SettingsWindow.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/screens/SettingsAppearanceTab.hpp"
#include "app/screens/SettingsBackupTab.hpp"
#include "app/screens/SettingsGeneralTab.hpp"
#include "app/screens/SettingsProfilesTab.hpp"

#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <string_view>

namespace vantello::app {

namespace {

std::string_view iconOf(SettingsTab tab) {
    switch (tab) {
        case SettingsTab::general: return "gearshape";
        case SettingsTab::backup: return "externaldrive.badge.timemachine";
        case SettingsTab::appearance: return "paintpalette";
        case SettingsTab::profiles: return "person.2";
    }
    return "gearshape";
}

}  // namespace

SettingsWindow::SettingsWindow(ProfilesController& profiles, Preferences& preferences, QWidget* parent)
    : QDialog(parent), preferences_(preferences) {
    setObjectName(QStringLiteral("settingsWindow"));
    setWindowTitle(uiText("Impostazioni"));
    setModal(false);
    auto* layout = new QVBoxLayout(this);
    tabs_ = new QTabWidget(this);
    tabs_->setObjectName(QStringLiteral("settingsTabs"));
    tabs_->setAccessibleName(uiText("Impostazioni"));
    tabs_->setDocumentMode(true);
    layout->addWidget(tabs_);

    auto* general = new SettingsGeneralTab(profiles, preferences, tabs_);
    connect(general, &SettingsGeneralTab::quickAddPreferenceChanged, this, &SettingsWindow::quickAddPreferenceChanged);
    for (const SettingsTab tab : allSettingsTabs) {
        QWidget* page = nullptr;
        switch (tab) {
            case SettingsTab::general: page = general; break;
            case SettingsTab::backup: page = new SettingsBackupTab(profiles, tabs_); break;
            case SettingsTab::appearance: page = new SettingsAppearanceTab(preferences, tabs_); break;
            case SettingsTab::profiles: page = new SettingsProfilesTab(profiles, tabs_); break;
        }
        page->setObjectName(QStringLiteral("settingsTab-") + rawValue(tab));
        tabs_->addTab(page, symbolIcon(iconOf(tab)), label(tab));
    }
    showTab(storedSettingsTab(preferences_));
    connect(tabs_, &QTabWidget::currentChanged, this, [this] { storeSettingsTab(preferences_, currentTab()); });
    resize(680, 520);
}

SettingsTab SettingsWindow::currentTab() const {
    const int index = tabs_->currentIndex();
    return index < 0 ? SettingsTab::general : allSettingsTabs[static_cast<std::size_t>(index)];
}

void SettingsWindow::showTab(SettingsTab tab) {
    const auto found = std::ranges::find(allSettingsTabs, tab);
    tabs_->setCurrentIndex(static_cast<int>(found - allSettingsTabs.begin()));
}

}  // namespace vantello::app
