#pragma once
// The application's main window: the sidebar of screens and the content beside it, the menu bar
// with every action and its shortcut, the error, demo and message banners, and the profile in
// use with the way to switch. It opens the sheets (the movement editor, the import sheet) over
// itself. Everything it shows comes from the model in use, and every action is an operation of
// it; a profile switch rebuilds the screens on the new model.

#include "app/model/ProfilesController.hpp"
#include "app/settings/Preferences.hpp"

#include <QMainWindow>
#include <QPointer>

#include <map>

class QAction;
class QComboBox;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace vantello::app {

class MessageBar;
class MovementsScreen;
class SettingsWindow;

class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    MainWindow(ProfilesController& profiles, Preferences& preferences, QWidget* parent = nullptr);
    ~MainWindow() override;

    // Shows the screen remembered by its raw text ("movements", "charts"…).
    void showScreen(const QString& rawValue);
    [[nodiscard]] QWidget* currentScreen() const;
    // The sheets, for the menu, the shortcuts and the tests.
    void openNewMovement(TransactionKind kind = TransactionKind::expense);
    void openMovement(const Uuid& transactionID);
    void openSalary();
    void chooseImportFile();
    void openImportFile(const QString& path);
    void openSettings();
    [[nodiscard]] QString messageText() const;

Q_SIGNALS:
    // The switch of the tray's quick add changed in the settings.
    void quickAddPreferenceChanged();

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    LedgerViewModel& model() const { return profiles_.model(); }
    void buildMenus();
    QWidget* buildBanners();
    QWidget* buildSidebar();
    // Makes the screens for the model in use, keeping the one shown.
    void followModel();
    void refreshBanners();
    void refreshUndoActions();
    void refreshProfiles();
    // The saved searches under "Cerca", with rename and delete in their menu.
    void refreshSavedSearches();
    void showSavedSearchMenu(const QPoint& position);
    void offerExport();
    void showImportSheet();
    void announce(const QString& text, bool offersUndo);
    void exportMovements(bool all);

    ProfilesController& profiles_;
    Preferences& preferences_;
    QTreeWidget* sidebar_ = nullptr;
    QStackedWidget* pages_ = nullptr;
    std::map<QString, QWidget*> screens_;  // made when first shown
    MovementsScreen* movements_ = nullptr;
    QComboBox* profileChoice_ = nullptr;
    QWidget* errorBanner_ = nullptr;
    QLabel* errorText_ = nullptr;
    QWidget* demoBanner_ = nullptr;
    MessageBar* messageBar_ = nullptr;
    QAction* undoAction_ = nullptr;
    QAction* redoAction_ = nullptr;
    QPointer<SettingsWindow> settings_;
    QList<QMetaObject::Connection> modelConnections_;
};

}  // namespace vantello::app
