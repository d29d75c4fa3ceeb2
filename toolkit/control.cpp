#include "toolkit/control.h"

#include <utility>

namespace toolkit {

void ControlSite::ShowChanges() {
  // A mirror may change the state in turn, as a widget does that has lost the focus.
  while (!changed_.empty()) {
    for (Component* component : std::exchange(changed_, {})) {
      component->changed_ = false;
      if (component->mirror_ != nullptr) component->mirror_->Refresh();
    }
  }
}

void Component::Changed() {
  if (mirror_ == nullptr || changed_) return;
  changed_ = true;
  site_.changed_.push_back(this);
  if (!site_.events.Running()) site_.ShowChanges();
}

Mirror::Mirror(Component& component, std::function<void()> refresh)
    : Refresh(std::move(refresh)), component_(component) {
  component_.mirror_ = this;
}

Mirror::~Mirror() {
  component_.mirror_ = nullptr;
}

Control::Control(ControlSite& site, const Design& design)
    : Component(site, design.name),
      AccessibleName(design.accessibleName),
      Left(*this, design.left),
      Top(*this, design.top),
      Width(*this, design.width),
      Height(*this, design.height),
      Visible(*this, design.visible),
      FontName(*this, "Times New Roman"),
      FontSize(*this, 8.25F) {
  site.controls.push_back(this);
}

}  // namespace toolkit
