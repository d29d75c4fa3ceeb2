#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/control.h"

namespace toolkit {

// A command of the menu bar or of a drop-down; an item with `items` of its own is a drop-down and
// has no command. A checkable item changes its check mark only when the program sets it.
class MenuItem : public Component {
 public:
  MenuItem(ControlSite& site, std::string name, std::string caption, bool checkable = false)
      : Component(site, std::move(name)),
        Caption(std::move(caption)),
        Checkable(checkable),
        Checked(*this, false) {}

  const std::string Caption;
  const bool Checkable;
  Property<bool> Checked;
  std::function<void()> Click;
  std::vector<MenuItem*> items;

  // The user has chosen the item.
  void UserClick() {
    Events().Deliver([this] {
      if (Click) Click();
    });
  }
};

}  // namespace toolkit
