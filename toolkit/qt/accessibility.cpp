#include "toolkit/qt/accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "toolkit/qt/sketch_widget.h"
#include "toolkit/qt/widgets.h"

namespace toolkit::qt {
namespace {

// Qt takes a radio button that does not unselect the others by itself for a check box, and lets an
// assistive technology turn its mark over behind the program's back.
class OptionInterface : public QAccessibleWidget {
 public:
  explicit OptionInterface(OptionWidget* option)
      : QAccessibleWidget(option, QAccessible::RadioButton), option_(option) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = option_->isChecked();
    return state;
  }
  QStringList actionNames() const override {
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action != pressAction()) return QAccessibleWidget::doAction(action);
    option_->click();
  }

 private:
  OptionWidget* option_;
};

QAccessibleInterface* InterfaceOf(const QString&, QObject* object) {
  if (auto* option = dynamic_cast<OptionWidget*>(object)) return new OptionInterface(option);
  if (auto* label = dynamic_cast<LabelWidget*>(object)) {
    return new QAccessibleWidget(label, QAccessible::StaticText);
  }
  if (auto* sketch = dynamic_cast<SketchWidget*>(object)) {
    return new QAccessibleWidget(sketch, QAccessible::Canvas);
  }
  if (auto* announcement = dynamic_cast<AnnouncementWidget*>(object)) {
    return new QAccessibleWidget(announcement, QAccessible::Notification);
  }
  return nullptr;
}

}  // namespace

AnnouncementWidget::AnnouncementWidget(QWidget* parent) : QWidget(parent) {
  resize(1, 1);  // of no size it would count as hidden
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void AnnouncementWidget::Say(const QString& text) {
  if (!QAccessible::isActive()) return;
  setAccessibleName(text);
  QAccessibleEvent appears(this, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&appears);
}

void InstallAccessibleRoles() {
  QAccessible::installFactory(InterfaceOf);
}

}  // namespace toolkit::qt
