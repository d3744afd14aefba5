#include "app/screens/QuickAddTray.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/screens/QuickAddPanel.hpp"
#include "app/settings/QuickAddSetting.hpp"

#include <QApplication>
#include <QCursor>
#include <QMenu>
#include <QScreen>
#include <QShortcut>
#include <QSystemTrayIcon>
#include <QVBoxLayout>

#include <algorithm>

namespace vantello::app {

QuickAddTray::QuickAddTray(ProfilesController& profiles, Preferences& preferences, QObject* parent)
    : QObject(parent), profiles_(profiles), preferences_(preferences) {
    followPreference();
}

QuickAddTray::~QuickAddTray() = default;

bool QuickAddTray::isIconVisible() const { return icon_ && icon_->isVisible(); }

void QuickAddTray::followPreference() {
    if (!QSystemTrayIcon::isSystemTrayAvailable()) return;
    const bool shows = showsQuickAddIcon(preferences_);
    if (shows && !icon_) makeIcon();
    if (icon_) icon_->setVisible(shows);
    if (!shows && popup_) popup_->hide();
}

void QuickAddTray::makeIcon() {
    icon_ = new QSystemTrayIcon(symbolIcon("eurosign.circle"), this);
    icon_->setToolTip(uiText("Aggiunta rapida"));
    menu_ = std::make_unique<QMenu>();
    menu_->addAction(uiText("Aggiungi un movimento…"), this, &QuickAddTray::togglePanel);
    menu_->addSeparator();
    menu_->addAction(uiText("Apri Vantello"), this, &QuickAddTray::showMainWindowRequested);
    // Quitting through the event loop lets the ledger be written first.
    menu_->addAction(uiText("Esci"), qApp, &QCoreApplication::quit);
    icon_->setContextMenu(menu_.get());
    connect(icon_, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick) togglePanel();
    });
}

void QuickAddTray::togglePanel() {
    if (!popup_) {
        popup_ = std::make_unique<QWidget>(nullptr, Qt::Tool | Qt::WindowStaysOnTopHint);
        popup_->setObjectName(QStringLiteral("quickAddWindow"));
        popup_->setWindowTitle(uiText("Aggiunta rapida"));
        auto* layout = new QVBoxLayout(popup_.get());
        layout->setContentsMargins(0, 0, 0, 0);
        panel_ = new QuickAddPanel(profiles_, popup_.get());
        layout->addWidget(panel_);
        auto* close = new QShortcut(QKeySequence(Qt::Key_Escape), popup_.get());
        connect(close, &QShortcut::activated, popup_.get(), &QWidget::hide);
        connect(panel_, &QuickAddPanel::added, this, [this](const QString& summary) {
            popup_->hide();
            if (icon_) icon_->showMessage(uiText("Aggiunta rapida"), summary, QSystemTrayIcon::Information, 4000);
        });
    }
    if (popup_->isVisible()) {
        popup_->hide();
        return;
    }
    // Near the pointer (which is on the tray icon), kept inside the screen.
    popup_->adjustSize();
    const QPoint pointer = QCursor::pos();
    const QScreen* screen = QGuiApplication::screenAt(pointer);
    const QRect area = screen ? screen->availableGeometry() : QRect(pointer, popup_->size());
    const QSize size = popup_->size();
    const int x = std::clamp(pointer.x() - size.width() / 2, area.left(), std::max(area.left(), area.right() - size.width()));
    const int y = pointer.y() + size.height() > area.bottom() ? pointer.y() - size.height() : pointer.y();
    popup_->move(x, std::clamp(y, area.top(), std::max(area.top(), area.bottom() - size.height())));
    popup_->show();
    popup_->raise();
    popup_->activateWindow();
    panel_->focusAmount();
}

}  // namespace vantello::app
