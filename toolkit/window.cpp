#include "toolkit/window.h"

#include <utility>

namespace toolkit {

Window::Window(Desktop& machine, std::string name, std::string caption, const Room& room)
    : Component(static_cast<ControlSite&>(*this), std::move(name)),
      desktop(machine),
      Caption(std::move(caption)),
      Surroundings(room),
      Left(*this, 0.0F),
      Top(*this, 0.0F),
      Width(*this, 4680.0F),
      Height(*this, 3135.0F),
      Visible(*this, false),
      FontCharset(*this, kGreekCharset) {
}

void Window::End() {
  events.End();
  for (Timer* timer : timers) timer->Enabled = false;
  desktop.End();
}

}  // namespace toolkit
