#include <unordered_map>
#include <utility>

#include "toolkit/picture_box.h"
#include "toolkit/qt/accessibility.h"
#include "toolkit/qt/control_mirror.h"
#include "toolkit/qt/sketch_widget.h"
#include "toolkit/qt/text.h"
#include "toolkit/qt/widgets.h"

namespace toolkit::qt {
namespace {

// A picture box's mirror, which also lends it its canvas and its voice.
class PictureMirror : public ControlMirror {
 public:
  // Becomes the owner of the widget.
  PictureMirror(PictureBox& box, const TwipScale& twips, SketchWidget* shown,
                AnnouncementWidget* voice)
      : ControlMirror(box, twips, std::shared_ptr<QWidget>(shown),
                      [&box, &twips, shown] {
                        shown->canvas().SetFont(box.FontName, box.FontSize);
                        shown->FitCanvas(twips.Zoom());
                        // Qt would report the same text as a new one.
                        const QString seen = Text(box.Description);
                        if (seen != shown->accessibleDescription()) {
                          shown->setAccessibleDescription(seen);
                        }
                        shown->update();  // the keyboard's pointer may have moved
                      }),
        box_(box) {
    box.AttachAnnouncer([voice](const std::string& text) { voice->Say(Text(text)); });
    box.AttachCanvas(&shown->canvas());
  }
  ~PictureMirror() override {
    box_.AttachCanvas(nullptr);
    box_.AttachAnnouncer(nullptr);
  }

 private:
  PictureBox& box_;
};

// Makes the widget that each kind of control needs and ties the user's events to the control. The
// widget shows the control's state again after each of them: while an event waits for its turn, the
// widget must not show what it has not done yet.
class Builder : public ControlVisitor {
 public:
  Builder(Window& window, const TwipScale& twips, QWidget& client)
      : window_(window), twips_(twips), client_(client), voice_(new AnnouncementWidget(&client)) {}

  void Visit(Label& label) override {
    auto* shown = new LabelWidget(&client_);
    SetAccessibleRole(*shown, QAccessible::StaticText);
    Add(label, shown, [&label, shown] {
      const QString caption = Text(label.Caption);
      shown->SetText(caption, Text(label.AccessibleName) + ": " + caption);
    });
  }

  void Visit(ScrollBar& bar) override {
    auto* shown = new ScrollWidget(bar, &client_);
    Mirror& mirror = Add(bar, shown, [&bar, shown] { shown->setValue(bar.Value); });
    QObject::connect(shown, &QScrollBar::valueChanged, shown, [&bar, &mirror](int value) {
      bar.UserScroll(value);
      mirror.Refresh();
    });
  }

  void Visit(CommandButton& button) override {
    auto* shown = new ButtonWidget(&client_);
    Add(button, shown, [&button, shown] { shown->setText(Literal(button.Caption)); });
    QObject::connect(shown, &QPushButton::clicked, shown, [&button] { button.UserClick(); });
  }

  void Visit(OptionButton& button) override {
    const auto focus = [options = options_](const OptionButton& next) {
      options->at(&next)->setFocus(Qt::TabFocusReason);
    };
    auto* shown = new OptionWidget(window_.options, button, focus, &client_);
    SetAccessibleRole(*shown, QAccessible::RadioButton);
    options_->emplace(&button, shown);
    Add(button, shown, [&button, shown] {
      shown->setText(Text(button.Caption));
      shown->setChecked(button.Value);
    });
    QObject::connect(shown, &OptionWidget::clicked, shown, [&button] { button.UserClick(); });
  }

  void Visit(TextBox& box) override {
    auto* shown = new TextWidget(&client_);
    Add(box, shown, [&box, shown, voice = voice_] {
      const QString text = Text(box.Text);
      if (shown->toPlainText() == text) return;
      shown->setPlainText(text);
      voice->Say(text);
    });
    QObject::connect(shown, &TextWidget::textChanged, shown,
                     [&box, shown] { box.UserEdit(shown->toPlainText().toStdString()); });
  }

  void Visit(PictureBox& box) override {
    auto* shown = new SketchWidget(box, &client_);
    SetAccessibleRole(*shown, QAccessible::Canvas);
    Chain(shown);
    mirrors_.push_back(std::make_unique<PictureMirror>(box, twips_, shown, voice_));
  }

  std::vector<std::unique_ptr<Mirror>> Take() { return std::move(mirrors_); }

 private:
  Mirror& Add(Control& control, QWidget* shown, const std::function<void()>& show) {
    Chain(shown);
    mirrors_.push_back(
        std::make_unique<ControlMirror>(control, twips_, std::shared_ptr<QWidget>(shown), show));
    return *mirrors_.back();
  }

  void Chain(QWidget* shown) {
    if (last_ != nullptr) QWidget::setTabOrder(last_, shown);
    last_ = shown;
  }

  using OptionWidgets = std::unordered_map<const OptionButton*, OptionWidget*>;

  Window& window_;
  const TwipScale& twips_;
  QWidget& client_;
  AnnouncementWidget* voice_;  // the client's child
  QWidget* last_ = nullptr;
  std::shared_ptr<OptionWidgets> options_ = std::make_shared<OptionWidgets>();
  std::vector<std::unique_ptr<Mirror>> mirrors_;
};

}  // namespace

std::vector<std::unique_ptr<Mirror>> MirrorControls(Window& window, const TwipScale& twips,
                                                    QWidget& client) {
  Builder builder(window, twips, client);
  for (Control* control : window.controls) control->Accept(builder);
  return builder.Take();
}

}  // namespace toolkit::qt
