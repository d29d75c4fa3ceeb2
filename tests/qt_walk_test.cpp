#include <QAction>
#include <QApplication>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QtTest>
#include <gtest/gtest.h>

#include <random>

#include "app/firststep.h"
#include "toolkit/qt/desktop.h"

namespace {

// A random user at the real window: anything in any order, on whatever is to be seen.
struct QtWalk : testing::Test {
  const unsigned seed = std::random_device{}();
  std::mt19937 random{seed};
  toolkit::qt::QtDesktop desktop{*qApp};
  std::unique_ptr<app::firststep> window = app::Main(desktop);

  int Any(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); }
  template <class Found = QWidget>
  Found& Find(const std::string& name) {
    const auto tops = QApplication::topLevelWidgets();
    QWidget* frame = *std::ranges::find(tops, "firststep", &QWidget::objectName);
    return *frame->findChild<Found*>(QString::fromStdString(name));
  }

  void Act() {
    const auto held = Qt::KeyboardModifiers::fromInt(Any(0, 1) * Any(0, 7) << 25);
    const auto any = static_cast<std::size_t>(Any(0, 1000));
    QWidget& widget = Find(window->controls[any % window->controls.size()]->Name);
    const QPoint place(Any(-20, widget.width() + 20), Any(-20, widget.height() + 20));
    const auto button = static_cast<Qt::MouseButton>(1 << Any(0, 2));
    const QPoint global = widget.mapToGlobal(place);
    const auto mouse = [&](QEvent::Type type) {
      QMouseEvent event(type, place, global, button, Qt::MouseButtons(Any(0, 7)), held);
      QApplication::sendEvent(&widget, &event);
    };
    const std::array keys{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up,    Qt::Key_PageDown,
                          Qt::Key_Tab,  Qt::Key_Space, Qt::Key_Shift, Qt::Key_Home};
    QWheelEvent wheel(place, global, {}, {0, Any(-500, 500)}, {}, held, {}, false);
    const std::array items{&window->XANAPISO, &window->DYNAMEISDIAFORES, &window->GUESSFORCE,
                           &window->campyles, &window->STAMATHMA,        &window->KSEKINA};
    const int what = Any(0, 9);
    if (what == 0) return Find<QAction>(items[any % items.size()]->Name).trigger();
    if (what == 1) return QTest::qWait(Any(0, 20));
    if (!widget.isVisible()) return;
    if (what < 4) return QTest::keyClick(&widget, keys[any % keys.size()], held);
    if (what == 4) QApplication::sendEvent(&widget, &wheel);
    if (what > 4) mouse(what < 7 ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease);
    if (what == 9) mouse(QEvent::MouseMove);
  }
};

TEST_F(QtWalk, TheWindowShowsTheStateAfterEveryEvent) {
  for (int event = 0; event < 2000; ++event) {
    SCOPED_TRACE(testing::Message() << "event " << event << " of seed " << seed);
    Act();
    const app::firststep& w = *window;
    ASSERT_FALSE(w.DYNAMEISDIAFORES.Checked && w.GUESSFORCE.Checked);
    ASSERT_LE(w.Option1.Value + w.Option2.Value + w.Option3.Value, 1);
    for (const auto* c : w.controls) ASSERT_EQ(Find(c->Name).isVisible(), c->Visible) << c->Name;
    for (auto* o : w.options.members) ASSERT_EQ(Find<QRadioButton>(o->Name).isChecked(), o->Value);
    for (auto* m : w.periptoseis.items) ASSERT_EQ(Find<QAction>(m->Name).isChecked(), m->Checked);
    for (const auto* b :
         {&w.platosvalue, &w.syxnotikamp, &w.epitaxyno, &w.arxikives, &w.vimatimi}) {
      ASSERT_EQ(Find<QScrollBar>(b->Name).value(), b->Value) << b->Name;
    }
    ASSERT_EQ(Find<QPlainTextEdit>("Text1").toPlainText().toStdString(), w.Text1.Text.Get());
  }
}

}  // namespace
