#include "toolkit/qt/menu_mirror.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "toolkit/mnemonic.h"
#include "toolkit/qt/accessibility.h"
#include "toolkit/qt/text.h"

namespace toolkit::qt {
namespace {

class MenuMirror : public Mirror {
 public:
  MenuMirror(MenuItem& item, QAction& action)
      : Mirror(item, [&] { action.setChecked(item.Checked); }) {
    action.setObjectName(Text(item.Name));
    // No platform may take an item for its own "Quit" and move it elsewhere.
    action.setMenuRole(QAction::NoRole);
    action.setCheckable(item.Checkable);
    action.setToolTip(Text(item.Hint));
    SetAccessibleRole(action, QAccessible::MenuItem);
    // Only the user's choice is announced by this signal. Qt has turned the mark over by then; it
    // goes back to what the program says.
    QObject::connect(&action, &QAction::triggered, &action, [this, &item] {
      item.UserClick();
      Refresh();
    });
    Refresh();
  }
};

// The caption for Qt, with an ampersand before its mnemonic.
QString Marked(const std::string& caption, std::optional<std::size_t> mnemonic) {
  if (!mnemonic) return Literal(caption);
  return Literal(caption.substr(0, *mnemonic)) + '&' + Literal(caption.substr(*mnemonic));
}

// `Bar` is the menu bar or a drop-down.
template <class Bar>
void Fill(Bar& bar, const std::vector<MenuItem*>& items,
          std::vector<std::unique_ptr<Mirror>>& mirrors) {
  const std::vector<std::optional<std::size_t>> mnemonics = Mnemonics(items);
  for (std::size_t i = 0; i < items.size(); ++i) {
    MenuItem* item = items[i];
    const QString caption = Marked(item->Caption, mnemonics[i]);
    if (item->items.empty()) {
      mirrors.push_back(std::make_unique<MenuMirror>(*item, *bar.addAction(caption)));
    } else {
      QMenu* menu = bar.addMenu(caption);
      menu->setAccessibleName(Text(item->Caption));
      menu->setToolTipsVisible(true);
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
