#include "toolkit/qt/menu_mirror.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "toolkit/qt/text.h"

namespace toolkit::qt {
namespace {

class MenuMirror : public Mirror {
 public:
  MenuMirror(MenuItem& item, QAction& action) : item_(item), action_(action) {
    action_.setObjectName(Text(item.Name));
    // No platform may take an item for its own "Quit" and move it elsewhere.
    action_.setMenuRole(QAction::NoRole);
    action_.setCheckable(item.Checkable);
    // Only the user's choice is announced by this signal. Qt has turned the mark over by then; it
    // goes back to what the program says.
    QObject::connect(&action_, &QAction::triggered, &action_, [this] {
      item_.UserClick();
      Refresh();
    });
    Refresh();
    item_.Attach(this);
  }
  ~MenuMirror() override { item_.Attach(nullptr); }
  MenuMirror(const MenuMirror&) = delete;
  MenuMirror& operator=(const MenuMirror&) = delete;

  void Refresh() final { action_.setChecked(item_.Checked); }

 private:
  MenuItem& item_;
  QAction& action_;
};

// The caption for Qt, with the mark of a shortcut key before its first letter that no item beside
// it has taken.
QString WithMnemonic(const std::string& caption, QString& taken) {
  QString marked;
  bool found = false;
  for (const QChar letter : Text(caption)) {
    if (!found && letter.isLetter() && !taken.contains(letter, Qt::CaseInsensitive)) {
      found = true;
      taken += letter;
      marked += '&';
    }
    marked += letter == '&' ? QString("&&") : QString(letter);
  }
  return marked;
}

// `Bar` is the menu bar or a drop-down.
template <class Bar>
void Fill(Bar& bar, const std::vector<MenuItem*>& items,
          std::vector<std::unique_ptr<Mirror>>& mirrors) {
  QString taken;
  for (MenuItem* item : items) {
    const QString caption = WithMnemonic(item->Caption, taken);
    if (item->items.empty()) {
      mirrors.push_back(std::make_unique<MenuMirror>(*item, *bar.addAction(caption)));
    } else {
      QMenu* menu = bar.addMenu(caption);
      menu->setAccessibleName(Text(item->Caption));
      mirrors.push_back(std::make_unique<MenuMirror>(*item, *menu->menuAction()));
      Fill(*menu, item->items, mirrors);
    }
  }
}

}  // namespace

std::vector<std::unique_ptr<Mirror>> MirrorMenus(const std::vector<MenuItem*>& items,
                                                 QMenuBar& bar) {
  std::vector<std::unique_ptr<Mirror>> mirrors;
  Fill(bar, items, mirrors);
  return mirrors;
}

}  // namespace toolkit::qt
