#pragma once

#include <QAccessible>
#include <QWidget>

namespace toolkit {
class ScrollBar;
}

namespace toolkit::qt {

// Speaks texts to those who do not see the window: a notification on the accessibility bus, which a
// screen reader reads out when it appears, whatever has the focus. It shows nothing on the screen.
class AnnouncementWidget : public QWidget {
 public:
  explicit AnnouncementWidget(QWidget* parent);

  void Say(const QString& text);
};

// What a widget or action that Qt does not know well is on the accessibility bus. A radio button
// must be a QAbstractButton, a menu item a QAction.
void SetAccessibleRole(QObject& object, QAccessible::Role role);

// Lets the widget tell the bar's value in the units of what it stands for.
void SetAccessibleValue(QWidget& widget, ScrollBar& bar);

// Makes Qt ask for what the functions above have said.
void InstallAccessibleInterfaces();

}  // namespace toolkit::qt
