#pragma once

#include <QIcon>

namespace toolkit::qt {

// The program's icon in the sizes that title bars and task bars show: the same picture as the one
// that is installed for menus, which a window of an unpacked program can't find.
QIcon ProgramIcon();

}  // namespace toolkit::qt
