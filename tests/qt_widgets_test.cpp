#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QtTest>
#include <gtest/gtest.h>

#include <cmath>

#include "app/firststep.h"
#include "toolkit/qt/desktop.h"

namespace {

using enum Qt::MouseButton;
using Log = std::vector<std::string>;

// The whole program in its real window.
struct QtWindow : testing::Test {
  toolkit::qt::QtDesktop desktop{*qApp};
  std::unique_ptr<app::firststep> window = app::Main(desktop);
  Log log;
  QTimer watch;  // does something once the event loop runs

  QWidget& Frame() {
    const auto tops = QApplication::topLevelWidgets();
    return **std::ranges::find(tops, "firststep", &QWidget::objectName);
  }
  template <class Widget = QWidget>
  Widget& Find(const std::string& name) {
    return *Frame().findChild<Widget*>(QString::fromStdString(name));
  }
  QAction& Action(const toolkit::MenuItem& item) { return Find<QAction>(item.Name); }
  std::function<void()> Logged(const std::string& what) {
    return [this, what] { log.push_back(what); };
  }
  // Looks at the message box as soon as it is open, and closes it.
  void WatchBox(const std::function<void(QMessageBox&)>& look) {
    watch.callOnTimeout([this, look] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      watch.stop();
      look(*box);
      box->accept();
    });
    watch.start(1);
  }
  void ExpectMirrored() {
    for (const toolkit::Control* control : window->controls) {
      const QWidget& shown = Find(control->Name);
      const auto pixels = [](float twips) { return static_cast<int>(std::lround(twips / 15)); };
      EXPECT_EQ(shown.geometry(),
                QRect(QPoint(pixels(control->Left), pixels(control->Top)),
                      QPoint(pixels(control->Right()) - 1, pixels(control->Bottom()) - 1)));
      EXPECT_EQ(shown.isVisible(), control->Visible) << control->Name;
      EXPECT_EQ(shown.font().pixelSize(), std::lround(control->FontSize * 4 / 3));
      EXPECT_TRUE(shown.accessibleName().toStdString().starts_with(control->AccessibleName));
    }
    for (const toolkit::OptionButton* option : window->options.members) {
      EXPECT_EQ(Find<QRadioButton>(option->Name).text().toStdString(), option->Caption.Get());
      EXPECT_EQ(Find<QRadioButton>(option->Name).isChecked(), option->Value) << option->Name;
    }
    for (const toolkit::MenuItem* item : window->periptoseis.items) {
      EXPECT_EQ(Action(*item).isChecked(), item->Checked) << item->Name;
    }
    EXPECT_EQ(Find<QScrollBar>("vimatimi").value(), window->vimatimi.Value);
    EXPECT_TRUE(
        Find("Label5").accessibleName().toStdString().ends_with(window->Label5.Caption.Get()));
    EXPECT_EQ(Find<QPlainTextEdit>("Text1").toPlainText().toStdString(), window->Text1.Text.Get());
  }
};

TEST_F(QtWindow, MirrorsTheStateThroughTheCases) {
  EXPECT_EQ(Frame().windowTitle(), "first explanation");
  EXPECT_EQ(Frame().size(), QApplication::primaryScreen()->size());
  ExpectMirrored();
  for (const auto& change : std::vector<std::function<void()>>{
           [&] { Action(window->campyles).trigger(); }, [&] { window->Option2.Value = true; },
           [&] { window->vimatimi.Value = 77; }, [&] { Action(window->GUESSFORCE).trigger(); },
           [&] { window->Option1.Value = true; }, [&] { window->vimatimi.Value = 1000; },
           [&] { Action(window->XANAPISO).trigger(); },
           [&] { window->Label1.Left = 1506, window->Label1.Width = 156; }}) {
    change();
    ExpectMirrored();
  }
  // What the program draws is seen where it belongs, up to the corners.
  window->eikona.Cls();
  window->eikona.PSet(0, 10);
  window->eikona.PSet(20, -10);
  const QImage seen = Find("eikona").grab().toImage();
  EXPECT_EQ(seen.pixelColor(1, 1), QColor(1, 0, 66));
  EXPECT_EQ(seen.pixelColor(seen.width() - 2, seen.height() - 2), QColor(1, 0, 66));
  watch.callOnTimeout(&Frame(), &QWidget::close);
  watch.start(0);
  EXPECT_EQ(desktop.Run(), 0);
  EXPECT_TRUE(window->events.Ended());
}

TEST_F(QtWindow, ScrollBarsFollowKeysWheelAndThumb) {
  window->vimatimi.Visible = true;
  for (toolkit::ScrollBar* bar : {&window->platosvalue, &window->syxnotikamp, &window->epitaxyno,
                                  &window->arxikives, &window->vimatimi}) {
    auto& shown = Find<QScrollBar>(bar->Name);
    std::vector<int> heard;
    bar->Change = [&] { heard.push_back(bar->Value); };
    const int min = bar->Min;
    const int page = min + bar->LargeChange;
    for (const auto key : {Qt::Key_End, Qt::Key_Home, Qt::Key_PageDown, Qt::Key_Right, Qt::Key_Down,
                           Qt::Key_Left, Qt::Key_Up, Qt::Key_PageUp}) {
      QTest::keyClick(&shown, key);
    }
    // What the program sets in a handler is not heard again as the user's.
    window->events.Deliver([&] { bar->Value = page, bar->Value = min; });
    const QPointF middle = shown.rect().center();
    for (const int turned : {-120, 120}) {
      QWheelEvent wheel(middle, shown.mapToGlobal(middle), {}, {0, turned}, {}, {}, {}, false);
      QApplication::sendEvent(&shown, &wheel);
    }
    EXPECT_EQ(heard, (std::vector<int>{bar->Max, min, page, page + 1, page + 2, page + 1, page, min,
                                       page, min, min + 1, min}));
    // The picture follows the thumb, which begins behind the arrow, while it is held.
    const bool upright = bar->Direction == toolkit::Orientation::Vertical;
    const auto along = [&](int way) { return upright ? QPoint(9, way) : QPoint(way, 9); };
    QTest::mousePress(&shown, LeftButton, {}, along(18));
    for (const int way : {25, 1000}) {
      QMouseEvent move(QEvent::MouseMove, along(way), shown.mapToGlobal(along(way)), {}, LeftButton,
                       {});
      heard.clear();
      QApplication::sendEvent(&shown, &move);
      EXPECT_EQ(heard, std::vector<int>{shown.value()}) << bar->Name;
    }
    QTest::mouseRelease(&shown, LeftButton);
    EXPECT_EQ(shown.value(), bar->Value);
  }
}

TEST_F(QtWindow, OptionsMenusAndTextReachTheirHandlers) {
  for (toolkit::OptionButton* option : window->options.members) {
    option->Visible = true;
    option->Click = Logged(option->Name);
  }
  QWidget& first = Find("Option1");
  QTest::mouseClick(&first, LeftButton, {}, first.rect().bottomRight());
  QTest::mouseClick(&first, LeftButton, {}, QPoint(1, 1));
  ExpectMirrored();
  QTest::keyClick(&first, Qt::Key_Space);
  QTest::keyClick(&first, Qt::Key_Down);
  QTest::keyClick(&Find("Option2"), Qt::Key_Right);
  QTest::keyClick(&Find("Option3"), Qt::Key_Right);
  QTest::keyClick(&first, Qt::Key_Up);
  EXPECT_EQ(log,
            (Log{"Option1", "Option1", "Option1", "Option2", "Option3", "Option1", "Option3"}));
  ExpectMirrored();

  log.clear();
  auto& bar = *Frame().findChild<QMenuBar*>();
  const auto choose = [&](auto& menu, toolkit::MenuItem& item) {
    item.Click = Logged(Action(item).text().remove("&").toStdString());
    QTest::mouseClick(&menu, LeftButton, {}, menu.actionGeometry(&Action(item)).center());
  };
  for (toolkit::MenuItem* item : window->menus) choose(bar, *item);
  choose(bar, window->periptoseis);
  choose(*Action(window->periptoseis).menu(), window->GUESSFORCE);
  EXPECT_EQ(log, (Log{"back", "TIME DEPENDENT", "STOP", "CONTINUE", "end", "GUESS A FORCE"}));
  ExpectMirrored();  // the handler above has set no mark, so there is none

  window->Text1.Text = "";
  QTest::keyClicks(&Find("Text1"), "v = 3");
  EXPECT_EQ(window->Text1.Text.Get(), "v = 3");
}

TEST_F(QtWindow, TabWalksTheControlsInTheirOrder) {
  QApplication::setActiveWindow(&Frame());
  Find("eikona").setFocus();
  for (toolkit::Control* control : window->controls) control->Visible = true;
  for (const toolkit::Control* control : window->controls) {
    if (control->Name.starts_with("Label")) continue;
    EXPECT_TRUE(Find(control->Name).hasFocus()) << control->Name;
    QTest::keyClick(&Find(control->Name), Qt::Key_Tab);
  }
}

TEST_F(QtWindow, MouseButtonsKeepTheirNumbersKeysAndPlaces) {
  std::vector<std::vector<long>> seen;
  window->eikona.MouseDown = [&](short button, short shift, float x, float y) {
    seen.push_back({button, shift, std::lround(x * 100), std::lround(y * 100)});
  };
  window->eikona.MouseUp = window->eikona.MouseDown;
  QWidget& sketch = Find("eikona");
  const QPoint origin(1, 1);
  const QPoint corner(sketch.width() - 2, sketch.height() - 2);
  QTest::mousePress(&sketch, LeftButton, Qt::ShiftModifier, origin);
  QTest::mousePress(&sketch, RightButton, Qt::ControlModifier | Qt::AltModifier, corner);
  QTest::mouseRelease(&sketch, RightButton, {}, origin);
  QTest::mouseRelease(&sketch, LeftButton, {}, 2 * corner - origin);
  QTest::mouseDClick(&sketch, MiddleButton, {}, origin);
  EXPECT_EQ(seen, (std::vector<std::vector<long>>{{1, 1, 0, 1000},
                                                  {2, 6, 2000, -1000},
                                                  {2, 0, 0, 1000},
                                                  {1, 0, 4000, -3000},
                                                  {4, 0, 0, 1000}}));
}

TEST_F(QtWindow, KeysPointOnTheSketch) {
  QWidget& sketch = Find("eikona");
  const QImage before = sketch.grab().toImage();
  QApplication::setActiveWindow(&Frame());
  sketch.setFocus();
  Action(window->DYNAMEISDIAFORES).trigger();
  for (const auto key : {Qt::Key_Home, Qt::Key_Right, Qt::Key_Up}) QTest::keyClick(&sketch, key);
  // The pointer is over the picture, not in it.
  const QImage pointed = sketch.grab().toImage();
  Find("Text1").setFocus();
  const QImage after = sketch.grab().toImage();
  EXPECT_NE(pointed, after);
  EXPECT_EQ(after, before);
  std::vector<toolkit::Key> seen;
  window->eikona.KeyDown = [&](toolkit::Key key, short) { seen.push_back(key); };
  for (const auto key : {Qt::Key_Enter, Qt::Key_Shift, Qt::Key_Escape, Qt::Key_X}) {
    QTest::keyClick(&sketch, key);
  }
  using toolkit::Key;
  EXPECT_EQ(seen, (std::vector<Key>{Key::Pick, Key::ShiftReleased, Key::Cancel}));
}

TEST_F(QtWindow, EventsWaitForTheMessageBoxAndNothingRunsAfterTheEnd) {
  window->VIMA.Click = [this] {
    desktop.ShowMessage("invalid arguments");
    log.push_back("closed");
  };
  window->Option1.Click = Logged("option");
  window->Timer1.Tick = Logged("tick");
  auto& bar = Find<QScrollBar>("platosvalue");
  WatchBox([&](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), "first explanation");
    EXPECT_EQ(box.text(), "invalid arguments");
    EXPECT_EQ(box.buttons().size(), 1);
    Find<QRadioButton>("Option1").click();
    bar.setValue(30);
    EXPECT_EQ(bar.value(), 20);
    window->Timer1.Enabled = true;
    QTest::qWait(60);
    window->Timer1.Enabled = false;
    EXPECT_TRUE(log.empty());
  });
  Find<QPushButton>("VIMA").click();
  EXPECT_EQ(log, (Log{"closed", "option"}));
  EXPECT_EQ(bar.value(), 30);

  window->Timer1.Tick = [&] {
    window->TERMATISMOS_Click();
    log.clear();
    Find<QRadioButton>("Option1").click();
    WatchBox([](QMessageBox&) { ADD_FAILURE(); });
    desktop.ShowMessage("too late");
    QTest::qWait(60);
  };
  window->Timer1.Enabled = true;
  EXPECT_EQ(desktop.Run(), 0);
  EXPECT_TRUE(log.empty());
  EXPECT_FALSE(Frame().isVisible());
}

TEST_F(QtWindow, TheRunKeepsItsPaceAndErasesItsArrows) {
  Find<QRadioButton>("Option2").click();
  window->vimatimi.Value = 10;
  int ticks = 0;
  window->Timer1.Tick = [&, tick = window->Timer1.Tick] {
    if (++ticks == 5) QTest::qSleep(150);  // is not made up for
    tick();
  };
  QElapsedTimer clock;
  clock.start();
  Find<QPushButton>("Command1").click();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !window->Timer1.Enabled; }, 20000));
  EXPECT_GT(ticks, 20);
  EXPECT_LE(ticks, (clock.elapsed() - 150) * toolkit::kMaxTicksPerSecond / 1000 + 2);
  // The last arrows lie beyond the sketch. Of the others nothing is left: no soft red edge, no
  // blue.
  const QImage picture = Find("eikona").grab().toImage();
  const int width = picture.width() - 2;
  for (int i = 0; i < width * (picture.height() - 2); ++i) {
    const QColor pixel = picture.pixelColor(1 + i % width, 1 + i / width);
    ASSERT_FALSE(pixel.red() == 255 && pixel.green() > 0 && pixel.green() < 255) << i;
    ASSERT_LE(pixel.blue(), pixel.red() + 80) << i;
  }
}

}  // namespace
