#pragma once
// The "Gestioni" page of the settings: the user's own finances and the managed profiles, the one
// in use marked; adding, renaming and removing profiles and switching between them.

#include "app/model/ProfileListModel.hpp"
#include "app/model/ProfilesController.hpp"

#include <QDialog>
#include <QWidget>

#include <functional>
#include <optional>

class QLabel;
class QLineEdit;
class QListView;
class QPushButton;
class QRadioButton;

namespace vantello::app {

// The small form of a profile's names: a person's first and last name, or a household's last
// name. `save` is asked on confirmation; its error is shown in the form, which stays open.
class ProfileForm : public QDialog {
    Q_OBJECT
public:
    using Save = std::function<std::optional<QString>(ManagedProfile::Kind, const QString& firstName,
                                                      const QString& lastName)>;

    // A new profile when `profile` is absent (the kind can be chosen), else the profile's names.
    ProfileForm(const std::optional<ManagedProfile>& profile, Save save, QWidget* parent = nullptr);

    void accept() override;

private:
    [[nodiscard]] ManagedProfile::Kind kind() const;
    void showKind();

    Save save_;
    QRadioButton* person_ = nullptr;
    QRadioButton* household_ = nullptr;
    QLabel* firstNameLabel_ = nullptr;
    QLineEdit* firstName_ = nullptr;
    QLineEdit* lastName_ = nullptr;
    QLabel* error_ = nullptr;
};

class SettingsProfilesTab : public QWidget {
    Q_OBJECT
public:
    explicit SettingsProfilesTab(ProfilesController& profiles, QWidget* parent = nullptr);

private:
    void showState();
    void addProfile();
    void renameProfile();
    void askToRemove();
    void useSelected();
    [[nodiscard]] int selectedRow() const;

    ProfilesController& profiles_;
    ProfileListModel list_;
    QListView* view_ = nullptr;
    QLabel* error_ = nullptr;
    QPushButton* add_ = nullptr;
    QPushButton* rename_ = nullptr;
    QPushButton* remove_ = nullptr;
    QPushButton* use_ = nullptr;
};

}  // namespace vantello::app
