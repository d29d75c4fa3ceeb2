#include "toolkit/qt/control_mirror.h"

#include <QSignalBlocker>

#include <utility>

#include "toolkit/qt/font.h"
#include "toolkit/qt/text.h"

namespace toolkit::qt {

ControlMirror::ControlMirror(Control& control, const TwipScale& twips,
                             std::unique_ptr<QWidget> widget, std::function<void()> show)
    : Mirror(control, [this] { Show(); }),
      control_(control),
      twips_(twips),
      widget_(std::move(widget)),
      show_(std::move(show)) {
  widget_->setObjectName(Text(control.Name));
  widget_->setAccessibleName(Text(control.AccessibleName));
  widget_->setToolTip(Text(control.Hint));
  widget_->setAccessibleDescription(Text(control.Hint));
  Show();
}

void ControlMirror::Show() {
  const QSignalBlocker blocker(widget_.get());
  const PixelBox place = twips_.PixelsOf(control_);
  widget_->setGeometry(place.left, place.top, place.width, place.height);
  const QFont font = FontOf(control_.FontName, FontPixels(control_.FontSize, twips_.Zoom()));
  if (font != widget_->font()) widget_->setFont(font);
  show_();
  widget_->setVisible(control_.Visible);
}

}  // namespace toolkit::qt
