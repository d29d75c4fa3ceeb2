#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/controls.h"
#include "toolkit/keys.h"

namespace toolkit {

// The option buttons of a window form one group: at most one of them is selected.
class OptionGroup {
 public:
  std::vector<OptionButton*> members;

  // A key while one of the buttons has the focus: the arrow keys go round among those that show and
  // click the one that they come to; Enter and Space click. The button that has the focus from then
  // on; null for a key that does nothing here.
  OptionButton* UserKey(OptionButton& focused, const KeyEvent& key);
};

class OptionButton : public Control {
 public:
  // Selecting a button unselects the others and, when it was not selected before, raises its click
  // event, whether a user or the program selects it and whether it is shown or not. Unselecting
  // raises nothing.
  class SelectedProperty {
   public:
    SelectedProperty(OptionButton& button, bool selected) : button_(button), selected_(selected) {}
    SelectedProperty(const SelectedProperty&) = delete;
    SelectedProperty& operator=(const SelectedProperty&) = delete;
    SelectedProperty& operator=(bool selected);
    operator bool() const { return selected_; }

   private:
    OptionButton& button_;
    bool selected_;
  };

  OptionButton(ControlSite& site, OptionGroup& group, const Design& design, std::string caption,
               bool selected = false);

  Property<std::string> Caption;
  SelectedProperty Value;
  std::function<void()> Click;

  // The user has clicked. A click on the selected button runs its handler again: after a command
  // that cleared the sketch it is the only way back to the button's picture.
  void UserClick();
  // A key while the button has the focus (see OptionGroup::UserKey).
  OptionButton* UserKey(const KeyEvent& key) { return group_.UserKey(*this, key); }
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

 private:
  OptionGroup& group_;
};

}  // namespace toolkit
