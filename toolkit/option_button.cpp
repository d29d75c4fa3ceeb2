#include "toolkit/option_button.h"

#include <utility>

namespace toolkit {

OptionButton::OptionButton(ControlSite& site, OptionGroup& group, const Design& design,
                           std::string caption, bool selected)
    : Control(site, design),
      Caption(*this, std::move(caption)),
      Value(*this, selected),
      group_(group) {
  group.members.push_back(this);
}

OptionButton::SelectedProperty& OptionButton::SelectedProperty::operator=(bool selected) {
  if (selected == selected_) return *this;
  if (selected) {
    for (OptionButton* other : button_.group_.members) {
      if (other != &button_) other->Value = false;
    }
  }
  selected_ = selected;
  button_.Changed();
  if (selected && button_.Click) button_.Click();
  return *this;
}

void OptionButton::UserClick() {
  Events().Deliver([this] {
    if (!Value) {
      Value = true;
    } else if (Click) {
      Click();
    }
  });
}

}  // namespace toolkit
