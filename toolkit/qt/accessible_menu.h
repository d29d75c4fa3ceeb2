#pragma once

class QAccessibleInterface;
class QAction;

namespace toolkit::qt {

// What a menu item is on the accessibility bus. Qt's own item has no description, which here says
// what the command is for, as its tooltip does.
QAccessibleInterface* MenuItemInterface(QAction& item);

}  // namespace toolkit::qt
