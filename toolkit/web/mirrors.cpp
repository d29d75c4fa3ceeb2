#include "toolkit/web/mirrors.h"

#include <utility>

#include "toolkit/mnemonic.h"
#include "toolkit/picture_box.h"
#include "toolkit/scroll_bar.h"
#include "toolkit/web/page.h"

namespace toolkit::web {
namespace {

std::vector<Component*> components;  // by the numbers of their elements

const char* Truth(bool value) {
  return value ? "true" : "false";
}

class ElementMirror : public Mirror {
 public:
  ElementMirror(Component& component, std::function<void()> show)
      : component_(component), show_(std::move(show)) {
    show_();
    component.Attach(this);
  }
  ~ElementMirror() override { component_.Attach(nullptr); }
  ElementMirror(const ElementMirror&) = delete;
  ElementMirror& operator=(const ElementMirror&) = delete;

  void Refresh() final { show_(); }

 private:
  Component& component_;
  std::function<void()> show_;
};

// Makes the elements, and says of each kind of control what only that kind has to show.
class Builder : public ControlVisitor {
 public:
  explicit Builder(const Scale& scale) : scale_(scale) {}

  void Visit(Label& label) override {
    Add(label, "Label", [&](int at) { page::Set(at, "text", label.Caption); });
  }
  void Visit(CommandButton& button) override {
    Add(button, "Button", [&](int at) { page::Set(at, "text", button.Caption); });
  }
  void Visit(TextBox& box) override {
    Add(box, "Text", [&](int at) { page::Set(at, "text", box.Text); });
  }
  void Visit(OptionButton& option) override {
    Add(option, "Option", [&](int at) {
      page::Set(at, "text", option.Caption);
      page::Set(at, "aria-checked", Truth(option.Value));
    });
  }
  void Visit(ScrollBar& bar) override {
    Add(bar, bar.Direction == Orientation::Vertical ? "UprightBar" : "Bar", [&](int at) {
      page::Set(at, "min", std::to_string(bar.Min));
      page::Set(at, "max", std::to_string(bar.Max));
      page::Set(at, "value", std::to_string(bar.Value));
      page::Set(at, "aria-valuetext", bar.Told());
    });
  }
  void Visit(PictureBox& box) override { Add(box, "Sketch", SketchOf(box, scale_)); }

  void AddMenus(const std::vector<MenuItem*>& items, int in) {
    const std::vector<std::optional<std::size_t>> mnemonics = Mnemonics(items);
    for (std::size_t i = 0; i < items.size(); ++i) {
      MenuItem& item = *items[i];
      const char* command = item.Checkable ? "Check" : "Command";
      const int at = MakeElement(item, item.items.empty() ? command : "Menu", in);
      page::Set(at, "text", item.Caption);
      if (mnemonics[i]) page::Set(at, "mnemonic", item.Caption.substr(*mnemonics[i], 1));
      mirrors.push_back(std::make_unique<ElementMirror>(item, [&item, at] {
        if (item.Checkable) page::Set(at, "aria-checked", Truth(item.Checked));
      }));
      AddMenus(item.items, at);
    }
  }

  std::vector<std::unique_ptr<Mirror>> mirrors;

 private:
  void Add(Control& control, const char* kind, const std::function<void(int)>& show) {
    const int at = MakeElement(control, kind);
    page::Set(at, "name", control.AccessibleName);
    mirrors.push_back(std::make_unique<ElementMirror>(control, [&, &scale = scale_, at, show] {
      const PixelBox box = scale.twips.PixelsOf(control);
      const double letters = scale.Letters(control.FontSize);
      page::Place(at, box.left, box.top, box.width, box.height, letters);
      show(at);
      page::Set(at, "hidden", control.Visible ? nullptr : "");
    }));
  }

  const Scale& scale_;
};

}  // namespace

int MakeElement(Component& component, const char* kind, int in) {
  components.push_back(&component);
  const int at = page::Make(kind, component.Name.c_str(), in);
  if (!component.Hint.empty()) page::Set(at, "title", component.Hint);
  return at;
}

Component& ComponentOf(int element) {
  return *components[static_cast<std::size_t>(element)];
}

std::vector<std::unique_ptr<Mirror>> MirrorAll(Window& window, const Scale& scale) {
  Builder builder(scale);
  builder.AddMenus(window.menus, 0);
  for (Control* control : window.controls) control->Accept(builder);
  return std::move(builder.mirrors);
}

}  // namespace toolkit::web
