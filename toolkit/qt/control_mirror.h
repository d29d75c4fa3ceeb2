#pragma once

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

#include "toolkit/controls.h"
#include "toolkit/lengths.h"
#include "toolkit/window.h"

namespace toolkit::qt {

// A control's widget, which goes with it. What the program sets is shown without being taken for
// the user's doing.
class ControlMirror : public Mirror {
 public:
  // `twips` is the window's own, which may change. `show` brings to the widget what only this kind
  // of control has.
  ControlMirror(Control& control, const TwipScale& twips, const std::shared_ptr<QWidget>& widget,
                const std::function<void()>& show);
};

// A mirror for each of the window's controls. Their widgets are children of `client`, in the same
// tab order.
std::vector<std::unique_ptr<Mirror>> MirrorControls(Window& window, const TwipScale& twips,
                                                    QWidget& client);

}  // namespace toolkit::qt
