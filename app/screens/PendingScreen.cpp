#include "app/screens/PendingScreen.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/SidebarItems.hpp"
#include "app/model/SymbolIcons.hpp"

#include <QLabel>
#include <QVBoxLayout>

namespace vantello::app {

PendingScreen::PendingScreen(const SidebarItem& item, QWidget* parent) : QWidget(parent) {
    setObjectName(item.rawValue + QStringLiteral("Screen"));
    auto* icon = new QLabel(this);
    icon->setPixmap(symbolIcon(item.symbolName).pixmap(48, 48));
    icon->setAlignment(Qt::AlignCenter);
    auto* title = new QLabel(uiText(item.labelKey), this);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setBold(true);
    title->setFont(font);
    title->setAlignment(Qt::AlignCenter);
    auto* line = new QLabel(uiText("Questa schermata arriva con la prossima versione di Vantello."), this);
    line->setAlignment(Qt::AlignCenter);
    line->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addWidget(icon);
    layout->addWidget(title);
    layout->addWidget(line);
    layout->addStretch();
}

}  // namespace vantello::app
