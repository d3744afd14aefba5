#pragma once
// The "Generali" page of the settings: the interface language (in effect at the next start),
// the quick-add icon in the tray and the salary reminder of the data in use.

#include "app/model/ProfilesController.hpp"
#include "app/settings/Preferences.hpp"

#include <QMetaObject>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;
class QWidget;

namespace vantello::app {

class SettingsGeneralTab : public QWidget {
    Q_OBJECT
public:
    SettingsGeneralTab(ProfilesController& profiles, Preferences& preferences, QWidget* parent = nullptr);

Q_SIGNALS:
    // The user turned the quick-add icon on or off (QuickAddTray::followPreference).
    void quickAddPreferenceChanged();

private:
    void chooseLanguage(int index);
    void showReminder();
    void storeReminder();
    void followModel();

    ProfilesController& profiles_;
    Preferences& preferences_;
    QMetaObject::Connection reminderConnection_;
    QComboBox* language_ = nullptr;
    QWidget* restartRow_ = nullptr;
    QLabel* restartProblem_ = nullptr;
    QCheckBox* quickAdd_ = nullptr;
    QCheckBox* reminderOn_ = nullptr;
    QSpinBox* reminderDay_ = nullptr;
    QSpinBox* reminderHour_ = nullptr;
};

}  // namespace vantello::app
