#pragma once
// The "Aspetto" page of the settings: one small card per colour theme drawn in its own colours,
// the chosen one checked; choosing one stores it and puts it into effect at once.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QAbstractButton>
#include <QWidget>

#include "app/settings/AppTheme.hpp"
#include "app/settings/Preferences.hpp"

class QButtonGroup;

namespace vantello::app {

// A theme's swatch: its window, card, accent, income and expense colours, and its name under
// them, with a check mark and bold name when chosen.
class ThemeSwatch : public QAbstractButton {
    Q_OBJECT
public:
    ThemeSwatch(AppTheme theme, QWidget* parent = nullptr);

    [[nodiscard]] AppTheme theme() const { return theme_; }
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    AppTheme theme_;
};

class SettingsAppearanceTab : public QWidget {
    Q_OBJECT
public:
    explicit SettingsAppearanceTab(Preferences& preferences, QWidget* parent = nullptr);

private:
    void choose(AppTheme theme);

    Preferences& preferences_;
    QButtonGroup* swatches_ = nullptr;
};

}  // namespace vantello::app
