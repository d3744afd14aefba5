#pragma once
// Makes the screen of a sidebar item on the model in use. The main window keeps what it makes
// until the model changes.

#include "app/model/LedgerViewModel.hpp"
#include "app/model/SidebarItems.hpp"

#include <QWidget>

namespace vantello::app {

[[nodiscard]] QWidget* makeScreen(const SidebarItem& item, LedgerViewModel& model, QWidget* parent);

}  // namespace vantello::app
