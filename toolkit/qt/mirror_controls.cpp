#include <QPushButton>
#include <QTimer>

#include <utility>

#include "toolkit/option_button.h"
#include "toolkit/picture_box.h"
#include "toolkit/qt/accessibility.h"
#include "toolkit/qt/control_mirror.h"
#include "toolkit/qt/sketch_widget.h"
#include "toolkit/qt/text.h"
#include "toolkit/qt/widgets.h"
#include "toolkit/scroll_bar.h"

namespace toolkit::qt {
namespace {

// A picture box's mirror, which also lends it its canvas and its voice.
class PictureMirror : public ControlMirror {
 public:
  // Becomes the owner of the widget.
  PictureMirror(PictureBox& box, const TwipScale& twips, SketchWidget* shown,
                AnnouncementWidget* voice)
      : ControlMirror(box, twips, std::unique_ptr<QWidget>(shown),
                      [&box, shown] {
                        shown->FitCanvas();
                        shown->canvas().SetFont(box.FontName, box.FontSize);
                        shown->Describe(Text(box.Description));
                        shown->update();  // the keyboard's pointer may have moved
                      }),
        box_(box) {
    shown->pressed = [&box](const MouseEvent& event) { box.UserMouseDown(event); };
    shown->released = [&box](const MouseEvent& event) { box.UserMouseUp(event); };
    shown->keyed = [&box](Key key, int shift) { box.UserKey(key, shift); };
    shown->pointer = [&box] { return box.PointerOnCanvas(); };
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
// widget shows the control's state again after each of them: an event may have to wait for its
// turn, and then the screen waits with it.
class Builder : public ControlVisitor {
 public:
  Builder(const TwipScale& twips, QWidget& client)
      : twips_(twips), client_(client), voice_(new AnnouncementWidget(&client)) {}

  void Visit(Label& label) override {
    auto* shown = new LabelWidget(&client_);
    Add(label, shown, [&label, shown] {
      const QString caption = Text(label.Caption);
      shown->SetText(caption, Text(label.AccessibleName) + ": " + caption);
    });
  }

  void Visit(ScrollBar& bar) override {
    const bool upright = bar.Direction == Orientation::Vertical;
    auto* shown = new ScrollWidget(upright ? Qt::Vertical : Qt::Horizontal, &client_);
    shown->setRange(bar.Min, bar.Max);
    shown->setSingleStep(bar.SmallChange);
    shown->setPageStep(bar.LargeChange);
    Mirror& mirror = Add(bar, shown, [&bar, shown] { shown->setValue(bar.Value); });
    QObject::connect(shown, &QScrollBar::valueChanged, shown, [&bar, &mirror](int value) {
      bar.UserScroll(value);
      mirror.Refresh();
    });
  }

  void Visit(CommandButton& button) override {
    auto* shown = new QPushButton(&client_);
    Add(button, shown, [&button, shown] { shown->setText(Literal(button.Caption)); });
    QObject::connect(shown, &QPushButton::clicked, shown, [&button] { button.UserClick(); });
  }

  void Visit(OptionButton& button) override {
    auto* shown = new OptionWidget(&client_);
    Add(button, shown, [&button, shown] {
      shown->setText(Text(button.Caption));
      shown->setChecked(button.Value);
    });
    QObject::connect(shown, &OptionWidget::clicked, shown, [&button] { button.UserClick(); });
  }

  void Visit(TextBox& box) override {
    auto* shown = new TextWidget(&client_);
    // Handlers may set several texts; what is left after the last is spoken.
    auto* changed = new QTimer(shown);
    changed->setSingleShot(true);
    QObject::connect(changed, &QTimer::timeout, shown,
                     [shown, voice = voice_] { voice->Say(shown->toPlainText()); });
    Add(box, shown, [&box, shown, changed] {
      const QString text = Text(box.Text);
      if (shown->toPlainText() == text) return;
      shown->setPlainText(text);
      changed->start(0);
    });
    QObject::connect(shown, &TextWidget::textChanged, shown,
                     [&box, shown] { box.UserEdit(shown->toPlainText().toStdString()); });
  }

  void Visit(PictureBox& box) override {
    auto* shown = new SketchWidget(&client_, twips_.Zoom());
    Chain(shown);
    mirrors_.push_back(std::make_unique<PictureMirror>(box, twips_, shown, voice_));
  }

  std::vector<std::unique_ptr<Mirror>> Take() { return std::move(mirrors_); }

 private:
  Mirror& Add(Control& control, QWidget* shown, std::function<void()> show) {
    Chain(shown);
    mirrors_.push_back(std::make_unique<ControlMirror>(
        control, twips_, std::unique_ptr<QWidget>(shown), std::move(show)));
    return *mirrors_.back();
  }

  void Chain(QWidget* shown) {
    if (last_ != nullptr) QWidget::setTabOrder(last_, shown);
    last_ = shown;
  }

  TwipScale twips_;
  QWidget& client_;
  AnnouncementWidget* voice_;  // the client's child
  QWidget* last_ = nullptr;
  std::vector<std::unique_ptr<Mirror>> mirrors_;
};

}  // namespace

std::vector<std::unique_ptr<Mirror>> MirrorControls(const std::vector<Control*>& controls,
                                                    const TwipScale& twips, QWidget& client) {
  Builder builder(twips, client);
  for (Control* control : controls) control->Accept(builder);
  return builder.Take();
}

}  // namespace toolkit::qt
