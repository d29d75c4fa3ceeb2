#pragma once

#include <QWidget>

namespace toolkit::qt {

// Speaks texts to those who do not see the window: a notification on the accessibility bus, which a
// screen reader reads out when it appears, whatever has the focus. It shows nothing on the screen.
class AnnouncementWidget : public QWidget {
 public:
  explicit AnnouncementWidget(QWidget* parent);

  void Say(const QString& text);
};

// Gives the widgets of this backend that Qt does not know their roles on the accessibility bus.
void InstallAccessibleRoles();

}  // namespace toolkit::qt
