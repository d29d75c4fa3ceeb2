#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

#include <cmath>

#include "app/firststep.h"
#include "toolkit/qt/desktop.h"

namespace {

using enum Qt::Key;
using enum Qt::MouseButton;

// The whole program in its real window.
struct QtWindow : testing::Test, QObject {
  toolkit::qt::QtDesktop desktop{*qApp};
  std::unique_ptr<app::firststep> window = app::Main(desktop);
  QWidget &frame = Find("firststep"), &eikona = Find("eikona");
  const QPoint first{1, 1}, last{eikona.width() - 2, eikona.height() - 2};  // corners of the sketch
  std::string log;
  std::function<void(QMessageBox&)> whileOpen;

  void timerEvent(QTimerEvent* event) override {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box != nullptr) killTimer(event->timerId()), whileOpen(*box), box->accept();
  }
  static QWidget& Find(const std::string& name) {
    const auto all = QApplication::allWidgets();
    return **std::ranges::find(all, name.c_str(), &QObject::objectName);
  }
  static void Click(const std::string& name) { QMetaObject::invokeMethod(&Find(name), "click"); }
  QAction& Action(const char* name) { return *frame.findChild<QAction*>(name); }
  QImage Picture() { return eikona.grab({first, last}).toImage(); }
};

TEST_F(QtWindow, MirrorsTheStateThroughTheCases) {
  EXPECT_EQ(frame.windowTitle(), "first explanation");
  EXPECT_EQ(frame.size(), QApplication::primaryScreen()->size());
  for (const char* name : {"", "campyles", "GUESSFORCE", "GUESSFORCE", "XANAPISO"}) {
    if (*name != '\0') Action(name).trigger();
    for (toolkit::Control* control : window->controls) {
      const QWidget& shown = Find(control->Name);
      const auto pixels = [](float twips) { return static_cast<int>(std::lround(twips / 15)); };
      const QPoint from(pixels(control->Left), pixels(control->Top));
      const QPoint to(pixels(control->Right()) - 1, pixels(control->Bottom()) - 1);
      EXPECT_EQ(shown.geometry(), QRect(from, to)) << control->Name;
      EXPECT_EQ(shown.isVisible(), control->Visible) << name << ' ' << control->Name;
      EXPECT_EQ(shown.font().pixelSize(), std::lround(control->FontSize * 4 / 3));
      control->Left = control->Left + 7, control->FontSize = control->FontSize + 1;
    }
    // Choosing a case again does not take its mark away.
    EXPECT_EQ(Action("GUESSFORCE").isChecked(), window->GUESSFORCE.Checked) << name;
    EXPECT_EQ(Find("Text1").property("plainText"), window->Text1.Text.Get().c_str());
  }
}

TEST_F(QtWindow, OptionsAndMenusReachTheirHandlers) {
  const auto logs = [&](auto& each) { each.Click = [&] { log += each.Name + ' '; }; };
  for (auto* option : window->options.members) logs(*option), option->Visible = true;
  for (auto* item : window->menus) logs(*item);
  for (auto* item : window->periptoseis.items) logs(*item);
  QWidget& corner = Find("Option1");
  for (const QPoint& place : {first, corner.rect().bottomRight()}) {
    QTest::mouseClick(&corner, LeftButton, {}, place);
  }
  const auto type = [](const char* name, Qt::Key key) { QTest::keyClick(&Find(name), key); };
  type("Option1", Key_Space), type("Option1", Key_Down), type("Option2", Key_Right);
  type("Option3", Key_Right), type("Option1", Key_Up);
  const auto choose = [&](auto& menu) {
    for (QAction* item : menu.actions()) {
      QTest::mouseClick(&menu, LeftButton, {}, menu.actionGeometry(item).center());
    }
  };
  choose(*frame.findChild<QMenuBar*>()), choose(*Action("periptoseis").menu());
  EXPECT_EQ(log,
            "Option1 Option1 Option1 Option2 Option3 Option1 Option3 XANAPISO campyles STAMATHMA "
            "KSEKINA TERMATISMOS DYNAMEISDIAFORES GUESSFORCE ");
}

TEST_F(QtWindow, ScrollBarsFollowKeysWheelAndThumb) {
  for (toolkit::ScrollBar* bar : {&window->platosvalue, &window->epitaxyno}) {
    QWidget& shown = Find(bar->Name);
    std::vector<int> heard;
    bar->Change = [&] { heard.push_back(bar->Value); };
    const int min = bar->Min, max = bar->Max, page = min + bar->LargeChange;
    for (const auto key :
         {Key_End, Key_Home, Key_PageDown, Key_Right, Key_Down, Key_Left, Key_Up, Key_PageUp}) {
      QTest::keyClick(&shown, key);
    }
    for (const int turned : {-120, 120}) {
      QWheelEvent wheel({}, {}, {}, {0, turned}, {}, {}, {}, false);
      QApplication::sendEvent(&shown, &wheel);
    }
    // The thumb begins behind the arrow. The picture follows it while it is held.
    const bool upright = bar->Direction == toolkit::Orientation::Vertical;
    const auto along = [&](int way) { return upright ? QPoint(9, way) : QPoint(way, 9); };
    QTest::mousePress(&shown, LeftButton, {}, along(18)), QTest::mouseMove(&shown, along(999));
    // What the program sets in a handler is not heard again as the user's.
    window->events.Deliver([&] { bar->Value = page, bar->Value = min; });
    EXPECT_EQ(shown.property("value"), min);
    EXPECT_EQ(heard, (std::vector{max, min, page, page + 1, page + 2, page + 1, page, min, min + 1,
                                  min, max, page, min}));
  }
}

TEST_F(QtWindow, MouseButtonsKeepTheirNumbersKeysAndPlaces) {
  std::vector<long> heard;
  window->eikona.MouseUp = [&](short button, short shift, float x, float y) {
    heard.insert(heard.end(), {button, shift, std::lround(x * 100), std::lround(y * 100)});
  };
  window->eikona.MouseDown = window->eikona.MouseUp;
  QTest::mousePress(&eikona, LeftButton, Qt::ShiftModifier, first);
  QTest::mousePress(&eikona, RightButton, Qt::ControlModifier | Qt::AltModifier, last);
  QTest::mouseRelease(&eikona, LeftButton, {}, 2 * last - first);
  QTest::mouseDClick(&eikona, MiddleButton, {}, first);
  const std::vector<long> want = {1, 1, 0,    1000,  2, 6, 2000, -1000,
                                  1, 0, 4000, -3000, 4, 0, 0,    1000};
  EXPECT_EQ(heard, want);
}

// A verdict that stands there already changes nothing when it is printed again.
TEST_F(QtWindow, ShiftDragShowsTheForceAndItsVerdict) {
  Action("GUESSFORCE").trigger();
  const QPoint crest(qRound(1 + 0.3 * last.x()), qRound(0.4 * last.y()));
  for (const int pull : {200, -200}) {
    QTest::mousePress(&eikona, LeftButton, Qt::ShiftModifier, crest);
    QTest::mouseRelease(&eikona, LeftButton, Qt::ShiftModifier, crest + QPoint(0, pull));
    const QImage seen = Picture();
    EXPECT_EQ(seen.pixelColor(crest + QPoint(-1, pull / 2)), Qt::blue);
    for (const bool real : {true, false}) {
      window->eikona.CurrentX = 2, window->eikona.CurrentY = 8;
      const std::string verdict = (pull > 0) == real ? "THE CORRECT" : "WRONG";
      window->eikona.Print("FORCE: HAS " + verdict + " DIRECTION FOR THE SHAPE OF THE CURVE");
      EXPECT_EQ(Picture() == seen, real);
    }
  }
}

TEST_F(QtWindow, EventsWaitForTheMessageBoxAndNothingRunsAfterTheEnd) {
  QWidget& bar = Find("platosvalue");
  window->Option1.Click = [&] { log += "option "; };
  window->VIMA.Click = [&] { startTimer(1), desktop.ShowMessage("0 / 0"), log += "closed "; };
  whileOpen = [&](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle() + ": " + box.text(), "first explanation: 0 / 0");
    Click("Option1"), bar.setProperty("value", 30), window->Timer1.Enabled = true;
    QTest::qWait(60);
    EXPECT_TRUE(box.buttons().size() == 1 && bar.property("value") == 20 && log.empty());
  };
  // The end comes from a tick that waited; after it there is neither a box nor a handler.
  window->Timer1.Tick = [&] {
    EXPECT_TRUE(log == "closed option " && bar.property("value") == 30) << log;
    whileOpen = [](QMessageBox&) { ADD_FAILURE(); };
    window->TERMATISMOS_Click(), Click("VIMA"), Click("Option1");
    startTimer(1), desktop.ShowMessage("too late"), QTest::qWait(60), log += "ended";
  };
  Click("VIMA");
  EXPECT_TRUE(desktop.Run() == 0 && log == "closed option ended" && !frame.isVisible()) << log;
}

TEST_F(QtWindow, TheRunKeepsItsPaceAndErasesItsArrows) {
  Click("Option2"), window->vimatimi.Value = 10;
  int ticks = 0;
  window->Timer1.Tick = [&, tick = window->Timer1.Tick] {
    if (++ticks == 5) QTest::qSleep(150);  // is not made up for
    tick();
  };
  QElapsedTimer clock;
  clock.start(), Click("Command1");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !window->Timer1.Enabled; }, 20000) && ticks > 20);
  EXPECT_LE(ticks, (clock.elapsed() - 150) * toolkit::kMaxTicksPerSecond / 1000 + 2);
  // The last arrows lie beyond the sketch. Of the others neither a soft red edge nor blue is left.
  const QImage seen = Picture();
  for (int i = 0; i < seen.width() * seen.height(); ++i) {
    const QColor ink = seen.pixelColor(i % seen.width(), i / seen.width());
    ASSERT_FALSE(ink.red() == 255 && ink.green() > 0 && ink.green() < 255) << i;
    ASSERT_LE(ink.blue(), ink.red() + 80) << i;
  }
}

}  // namespace
