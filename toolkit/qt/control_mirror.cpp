#include "toolkit/qt/control_mirror.h"

#include <QSignalBlocker>

#include "toolkit/qt/font.h"
#include "toolkit/qt/text.h"

namespace toolkit::qt {

// What refreshes owns the widget. So that is there for as long as something may refresh it.
ControlMirror::ControlMirror(Control& control, const TwipScale& twips,
                             const std::shared_ptr<QWidget>& widget,
                             const std::function<void()>& show)
    : Mirror(control, [&control, &twips, widget, show] {
        const QSignalBlocker blocker(widget.get());
        const PixelBox place = twips.PixelsOf(control);
        widget->setGeometry(place.left, place.top, place.width, place.height);
        const QFont font = FontOf(control.FontName, FontPixels(control.FontSize, twips.Zoom()));
        if (font != widget->font()) widget->setFont(font);
        show();
        widget->setVisible(control.Visible);
      }) {
  widget->setObjectName(Text(control.Name));
  widget->setAccessibleName(Text(control.AccessibleName));
  widget->setToolTip(Text(control.Hint));
  widget->setAccessibleDescription(Text(control.Hint));
  Refresh();
}

}  // namespace toolkit::qt
