#include "toolkit/qt/accessibility.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QAction>

#include "toolkit/qt/accessible_menu.h"
#include "toolkit/scroll_bar.h"

namespace toolkit::qt {
namespace {

constexpr const char* kKind = "accessibleKind";
constexpr const char* kBar = "scrollBar";

// Qt takes a radio button that does not unselect the others by itself for a check box, and lets an
// assistive technology turn its mark over behind the program's back.
class OptionInterface : public QAccessibleWidget {
 public:
  explicit OptionInterface(QAbstractButton* option)
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
  QAbstractButton* option_;
};

// A scroll bar whose values are what they stand for: 2.0 is told where the label shows 2.0, not the
// 20 tenths that the bar counts.
class ScrollInterface : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  ScrollInterface(QWidget* shown, ScrollBar& bar)
      : QAccessibleWidget(shown, QAccessible::ScrollBar), bar_(bar) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type != QAccessible::ValueInterface) return QAccessibleWidget::interface_cast(type);
    return static_cast<QAccessibleValueInterface*>(this);
  }
  QVariant currentValue() const override { return Told(bar_.Value); }
  QVariant minimumValue() const override { return Told(bar_.Min); }
  QVariant maximumValue() const override { return Told(bar_.Max); }
  QVariant minimumStepSize() const override { return Told(bar_.SmallChange); }
  void setCurrentValue(const QVariant& value) override {
    bar_.UserScroll(qRound(value.toDouble() / bar_.Unit));
  }

 private:
  // Divided, as a tenth is no double: 3 times 0.1 is not 0.3.
  double Told(int value) const { return value / (1.0 / bar_.Unit); }

  ScrollBar& bar_;
};

QAccessibleInterface* InterfaceOf(const QString&, QObject* object) {
  const QVariant kind = object->property(kKind);
  if (!kind.isValid()) return nullptr;
  const auto role = static_cast<QAccessible::Role>(kind.toInt());
  // Qt asks for one that is being destroyed, too, when it is no more than a plain widget or object.
  if (role == QAccessible::MenuItem) {
    auto* action = qobject_cast<QAction*>(object);
    return action != nullptr ? MenuItemInterface(*action) : nullptr;
  }
  if (role == QAccessible::RadioButton) {
    auto* option = qobject_cast<QAbstractButton*>(object);
    return option != nullptr ? new OptionInterface(option) : nullptr;
  }
  auto* widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr) return nullptr;
  if (role == QAccessible::ScrollBar) {
    return new ScrollInterface(widget,
                               *static_cast<ScrollBar*>(object->property(kBar).value<void*>()));
  }
  return new QAccessibleWidget(widget, role);
}

}  // namespace

void SetAccessibleRole(QObject& object, QAccessible::Role role) {
  object.setProperty(kKind, static_cast<int>(role));
}

void SetAccessibleValue(QWidget& widget, ScrollBar& bar) {
  SetAccessibleRole(widget, QAccessible::ScrollBar);
  widget.setProperty(kBar, QVariant::fromValue(static_cast<void*>(&bar)));
}

AnnouncementWidget::AnnouncementWidget(QWidget* parent) : QWidget(parent) {
  resize(1, 1);  // of no size it would count as hidden
  setAttribute(Qt::WA_TransparentForMouseEvents);
  SetAccessibleRole(*this, QAccessible::Notification);
}

void AnnouncementWidget::Say(const QString& text) {
  if (!QAccessible::isActive()) return;
  setAccessibleName(text);
  QAccessibleEvent appears(this, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&appears);
}

void InstallAccessibleInterfaces() {
  QAccessible::installFactory(InterfaceOf);
}

}  // namespace toolkit::qt
