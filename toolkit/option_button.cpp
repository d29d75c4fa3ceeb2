#include "toolkit/option_button.h"

#include <algorithm>
#include <utility>

namespace toolkit {

OptionButton* OptionGroup::UserKey(OptionButton& focused, const KeyEvent& key) {
  OptionButton* next = &focused;
  if (const int direction = StepOf(key.code); direction != 0) {
    const auto count = static_cast<std::ptrdiff_t>(members.size());
    std::ptrdiff_t place = std::find(members.begin(), members.end(), next) - members.begin();
    do {
      place = (place + direction + count) % count;
      next = members[static_cast<std::size_t>(place)];
    } while (next != &focused && !next->Visible);
    if (next == &focused) return next;
  } else if (!Clicks(key)) {
    return nullptr;
  }
  next->UserClick();
  return next;
}

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
