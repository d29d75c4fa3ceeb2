#include "toolkit/qt/accessible_menu.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace toolkit::qt {
namespace {

class ItemInterface : public QAccessibleObject, public QAccessibleActionInterface {
 public:
  explicit ItemInterface(QAction& item) : QAccessibleObject(&item), item_(item) {
    // The first one: a bar that is too narrow shows the item in a drop-down of its own, too.
    for (QObject* owner : item.associatedObjects()) {
      if (owner_ == nullptr && owner->isWidgetType()) owner_ = static_cast<QWidget*>(owner);
    }
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }
  bool isValid() const override { return QAccessibleObject::isValid() && owner_ != nullptr; }
  QAccessible::Role role() const override { return QAccessible::MenuItem; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = !owner_->isVisible();
    state.focused = Active() == &item_;
    state.checkable = item_.isCheckable();
    state.checked = item_.isChecked();
    return state;
  }
  QString text(QAccessible::Text which) const override {
    if (which == QAccessible::Name) return item_.iconText();
    return which == QAccessible::Description ? item_.toolTip() : QString();
  }
  QRect rect() const override {
    const QRect place = Bar() != nullptr ? Bar()->actionGeometry(&item_)
                                         : static_cast<QMenu*>(owner_)->actionGeometry(&item_);
    return {owner_->mapToGlobal(place.topLeft()), place.size()};
  }

  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(owner_);
  }
  int childCount() const override { return DropDown() != nullptr ? 1 : 0; }
  QAccessibleInterface* child(int) const override {
    return DropDown() != nullptr ? QAccessible::queryAccessibleInterface(DropDown()) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return child != nullptr && DropDown() != nullptr && child->object() == DropDown() ? 0 : -1;
  }

  QStringList actionNames() const override {
    return {DropDown() != nullptr ? showMenuAction() : pressAction()};
  }
  void doAction(const QString& action) override {
    if (action == pressAction()) item_.trigger();
    if (action == showMenuAction() && Bar() != nullptr) Bar()->setActiveAction(&item_);
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  QMenuBar* Bar() const { return qobject_cast<QMenuBar*>(owner_); }
  QMenu* DropDown() const { return item_.menu<QMenu*>(); }
  QAction* Active() const {
    return Bar() != nullptr ? Bar()->activeAction() : static_cast<QMenu*>(owner_)->activeAction();
  }

  QAction& item_;
  QWidget* owner_ = nullptr;  // the bar or drop-down that it stands in
};

}  // namespace

QAccessibleInterface* MenuItemInterface(QAction& item) {
  return new ItemInterface(item);
}

}  // namespace toolkit::qt
