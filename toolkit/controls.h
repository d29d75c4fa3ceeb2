#pragma once

#include <functional>
#include <string>
#include <utility>

#include "toolkit/control.h"
#include "toolkit/keys.h"

namespace toolkit {

class Label;
class ScrollBar;
class CommandButton;
class OptionButton;
class TextBox;
class PictureBox;

// How a backend learns the kind of each control when it builds the window.
class ControlVisitor {
 public:
  virtual ~ControlVisitor() = default;
  virtual void Visit(Label& label) = 0;
  virtual void Visit(ScrollBar& bar) = 0;
  virtual void Visit(CommandButton& button) = 0;
  virtual void Visit(OptionButton& button) = 0;
  virtual void Visit(TextBox& box) = 0;
  virtual void Visit(PictureBox& box) = 0;
};

// A short text that wraps inside its box.
class Label : public Control {
 public:
  Label(ControlSite& site, const Design& design, std::string caption)
      : Control(site, design), Caption(*this, std::move(caption)) {}

  Property<std::string> Caption;

  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
};

class CommandButton : public Control {
 public:
  CommandButton(ControlSite& site, const Design& design, std::string caption)
      : Control(site, design), Caption(*this, std::move(caption)) {}

  Property<std::string> Caption;
  std::function<void()> Click;

  // A key while the button has the focus. False for one that does not click it.
  bool UserKey(const KeyEvent& key) {
    if (Clicks(key)) UserClick();
    return Clicks(key);
  }
  // The user has pressed the button.
  void UserClick() {
    Events().Deliver([this] {
      if (Click) Click();
    });
  }
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
};

// A page of text, several lines, that the user may also edit.
class TextBox : public Control {
 public:
  TextBox(ControlSite& site, const Design& design, std::string text)
      : Control(site, design), Text(*this, std::move(text)) {}

  Property<std::string> Text;

  // The user has typed: the state follows the screen.
  void UserEdit(std::string text) {
    Events().Deliver([this, text = std::move(text)] { Text = text; });
  }
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
};

}  // namespace toolkit
