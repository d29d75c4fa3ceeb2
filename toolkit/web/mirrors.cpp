#include "toolkit/web/mirrors.h"

#include <map>
#include <utility>

#include "toolkit/mnemonic.h"
#include "toolkit/picture_box.h"
#include "toolkit/scroll_bar.h"
#include "toolkit/web/page.h"

namespace toolkit::web {
namespace {

std::vector<Component*> components;  // by the numbers of their elements
// What each element was told last, by its number and by what it shows.
std::map<std::pair<int, const char*>, std::string> told;

// Makes the elements, and says of each kind of control what only that kind has to show.
class Builder : public ControlVisitor {
 public:
  Builder(const Scale& scale, std::vector<std::unique_ptr<Mirror>>& mirrors)
      : scale_(scale), mirrors_(mirrors) {}

  void Visit(Label& label) override {
    Add(label, "Label", [&](int at) { page::Tell(at, "text", label.Caption); });
  }
  void Visit(CommandButton& button) override {
    Add(button, "Button", [&](int at) { page::Tell(at, "text", button.Caption); });
  }
  void Visit(TextBox& box) override {
    Add(box, "Text", [&](int at) { page::Set(at, "text", box.Text); });
  }
  void Visit(OptionButton& option) override {
    Add(option, "Option", [&](int at) {
      page::Tell(at, "text", option.Caption);
      page::Tell(at, "aria-checked", option.Value);
    });
  }
  void Visit(ScrollBar& bar) override {
    Add(bar, bar.Direction == Orientation::Vertical ? "UprightBar" : "Bar", [&](int at) {
      page::Tell(at, "min", std::to_string(bar.Min));
      page::Tell(at, "max", std::to_string(bar.Max));
      page::Set(at, "value", std::to_string(bar.Value));
      page::Tell(at, "aria-valuetext", bar.Told());
    });
  }
  void Visit(PictureBox& box) override { Add(box, "Sketch", SketchOf(box, scale_)); }

  void AddMenus(const std::vector<MenuItem*>& items, int in) {
    const std::vector<std::optional<std::size_t>> mnemonics = Mnemonics(items);
    for (std::size_t i = 0; i < items.size(); ++i) {
      MenuItem& item = *items[i];
      const char* command = item.Checkable ? "Check" : "Command";
      const int at = MakeElement(item, item.items.empty() ? command : "Menu", in);
      page::Tell(at, "text", item.Caption);
      if (mnemonics[i]) page::Tell(at, "mnemonic", item.Caption.substr(*mnemonics[i], 1));
      Mirrored(item, [&item, at] {
        if (item.Checkable) page::Tell(at, "aria-checked", item.Checked);
      });
      AddMenus(item.items, at);
    }
  }

 private:
  void Add(Control& control, const char* kind, const std::function<void(int)>& show) {
    const int at = MakeElement(control, kind);
    page::Tell(at, "name", control.AccessibleName);
    Mirrored(control, [&, &scale = scale_, at, show] {
      const PixelBox box = scale.twips.PixelsOf(control);
      const double letters = scale.Letters(control.FontSize);
      page::Place(at, box.left, box.top, box.width, box.height, letters);
      show(at);
      page::Tell(at, "hidden", !control.Visible);
    });
  }

  void Mirrored(Component& component, std::function<void()> show) {
    mirrors_.push_back(std::make_unique<Mirror>(component, std::move(show)));
    mirrors_.back()->Refresh();
  }

  const Scale& scale_;
  std::vector<std::unique_ptr<Mirror>>& mirrors_;
};

}  // namespace

void page::Tell(int element, const char* what, const std::string& text) {
  const auto [place, first] = told.try_emplace({element, what}, text);
  if (first || std::exchange(place->second, text) != text) Set(element, what, text);
}

int MakeElement(Component& component, const char* kind, int in) {
  components.push_back(&component);
  const int at = page::Make(kind, component.Name.c_str(), in);
  if (!component.Hint.empty()) page::Tell(at, "title", component.Hint);
  return at;
}

Component& ComponentOf(int element) {
  return *components[static_cast<std::size_t>(element)];
}

void MirrorAll(Window& window, const Scale& scale, std::vector<std::unique_ptr<Mirror>>& mirrors) {
  Builder builder(scale, mirrors);
  builder.AddMenus(window.menus, 0);
  for (Control* control : window.controls) control->Accept(builder);
}

}  // namespace toolkit::web
