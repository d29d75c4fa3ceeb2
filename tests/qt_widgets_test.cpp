#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "app/firststep.h"
#include "toolkit/qt/desktop.h"

namespace {

using enum Qt::Key;
using enum Qt::MouseButton;

// The whole program in its real window.
struct QtWindow : testing::Test {
  int none = 0;
  QApplication application{none, nullptr};
  toolkit::qt::QtDesktop desktop{application};
  std::unique_ptr<app::firststep> window = app::Main(desktop);
  QWidget &frame = Find("firststep"), &eikona = Find("eikona");
  const QPoint first{1, 1}, last{eikona.width() - 2, eikona.height() - 2};  // corners of the sketch
  std::string log;

  static QWidget& Find(const std::string& name) {
    const auto all = QApplication::allWidgets();
    return **std::ranges::find(all, name.c_str(), &QObject::objectName);
  }
  static void Click(const std::string& name) { QMetaObject::invokeMethod(&Find(name), "click"); }
  QAction& Action(const std::string& name) { return *frame.findChild<QAction*>(name.c_str()); }

  // The widgets show the program's state.
  void ExpectMirrored() {
    for (toolkit::Control* control : window->controls) {
      SCOPED_TRACE(control->Name);
      const QWidget& shown = Find(control->Name);
      const auto pixels = [](float twips) { return static_cast<int>(std::lround(twips / 15)); };
      const QPoint from(pixels(control->Left), pixels(control->Top));
      const QPoint to(pixels(control->Right()) - 1, pixels(control->Bottom()) - 1);
      EXPECT_EQ(shown.geometry(), QRect(from, to));
      EXPECT_EQ(shown.isVisible(), control->Visible);
      EXPECT_EQ(shown.font().pixelSize(), std::lround(control->FontSize * 4 / 3));
      if (const auto* bar = dynamic_cast<toolkit::ScrollBar*>(control)) {
        EXPECT_EQ(shown.property("value"), +bar->Value);
      }
    }
    for (const auto* option : window->options.members) {
      EXPECT_EQ(Find(option->Name).property("checked").toBool(), option->Value) << option->Name;
      EXPECT_EQ(Find(option->Name).property("text"), option->Caption.Get().c_str());
    }
    for (const auto* item : window->periptoseis.items) {
      EXPECT_EQ(Action(item->Name).isChecked(), item->Checked) << item->Name;
    }
    EXPECT_EQ(Find("Text1").property("plainText"), window->Text1.Text.Get().c_str());
  }
};

// A random user: anything in any order, on whatever is to be seen. The program moves its controls.
TEST_F(QtWindow, ShowsTheStateAfterEveryEvent) {
  const unsigned seed = std::random_device{}();
  std::mt19937 random(seed);
  const auto any = [&](int a, int b) { return std::uniform_int_distribution(a, b)(random); };
  const std::array keys{Key_Left, Key_Right, Key_Up,    Key_PageDown,
                        Key_Tab,  Key_Space, Key_Shift, Key_Home};
  const auto items = frame.findChildren<QAction*>();
  window->TERMATISMOS.Click = nullptr;
  EXPECT_EQ(frame.windowTitle(), "first explanation");
  EXPECT_EQ(frame.size(), QApplication::primaryScreen()->size());
  QTest::keyClicks(&Find("Text1"), "typed");
  for (int event = 0; event < 2000 && !HasFailure(); ++event) {
    SCOPED_TRACE(testing::Message() << "event " << event << " of seed " << seed);
    ExpectMirrored();
    toolkit::Control& control = *window->controls.at(any(0, 16));
    QWidget& widget = Find(control.Name);
    const QPoint at(any(-20, widget.width() + 20), any(-20, widget.height() + 20));
    const auto held = Qt::KeyboardModifiers::fromInt(any(0, 1) * any(0, 7) << 25);
    const auto button = static_cast<Qt::MouseButton>(1 << any(0, 2));
    const auto type = static_cast<QEvent::Type>(any(QEvent::MouseButtonPress, QEvent::MouseMove));
    QMouseEvent mouse(type, at, widget.mapToGlobal(at), button, Qt::MouseButtons(any(0, 7)), held);
    QWheelEvent wheel(at, {}, {}, {0, any(-500, 500)}, {}, held, {}, false);
    const int what = any(0, widget.isVisible() ? 9 : 3);
    if (what == 0) control.Left = static_cast<float>(any(-99, 19999));
    if (what == 1) control.FontSize = static_cast<float>(any(1, 30));
    if (what == 2) QTest::qWait(any(0, 20));
    if (what == 3) items[any(0, static_cast<int>(items.size()) - 1)]->trigger();
    if (what == 4) QApplication::sendEvent(&widget, &wheel);
    if (what == 5) QTest::keyClick(&widget, keys.at(any(0, 7)), held);
    if (what > 5) QApplication::sendEvent(&widget, &mouse);
  }
}

TEST_F(QtWindow, OptionsAndMenusReachTheirHandlers) {
  const auto logs = [&](auto& each) { each.Click = [&] { log += each.Name + ' '; }; };
  for (auto* option : window->options.members) logs(*option), option->Visible = true;
  for (auto* item : window->menus) logs(*item);
  for (auto* item : window->periptoseis.items) logs(*item);
  QWidget& corner = Find("Option1");
  QTest::mouseClick(&corner, LeftButton, {}, first);
  QTest::mouseClick(&corner, LeftButton, {}, corner.rect().bottomRight());
  const auto type = [](const char* name, Qt::Key key) { QTest::keyClick(&Find(name), key); };
  type("Option1", Key_Space), type("Option1", Key_Down), type("Option2", Key_Right);
  type("Option3", Key_Right), type("Option1", Key_Up);
  const auto bar = frame.findChild<QMenuBar*>()->actions();
  for (QAction* item : bar + Action("periptoseis").menu()->actions()) {
    log += item->text().toStdString() + '=', item->trigger();
  }
  EXPECT_EQ(log,
            "Option1 Option1 Option1 Option2 Option3 Option1 Option3 &back=XANAPISO "
            "&CASES=periptoseis &TIME DEPENDENT=campyles &STOP=STAMATHMA C&ONTINUE=KSEKINA "
            "&end=TERMATISMOS &RADIUS OF CURVATURE=DYNAMEISDIAFORES &GUESS A FORCE=GUESSFORCE ");
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
    QTest::mouseRelease(&shown, LeftButton);
  }
}

TEST_F(QtWindow, MouseButtonsKeepTheirNumbersKeysAndPlaces) {
  std::vector<long> heard;
  window->eikona.MouseUp = [&](short button, short shift, float x, float y) {
    heard.insert(heard.end(), {button, shift, std::lround(x * 100), std::lround(y * 100)});
  };
  window->eikona.MouseDown = window->eikona.MouseUp;
  QTest::mousePress(&eikona, LeftButton, Qt::ShiftModifier, first);
  QTest::mouseRelease(&eikona, LeftButton, {}, 2 * last - first);
  QTest::mouseClick(&eikona, RightButton, Qt::ControlModifier | Qt::AltModifier, last);
  QTest::mouseDClick(&eikona, MiddleButton, {}, first);
  QTest::mouseRelease(&eikona, MiddleButton, {}, first);
  const std::vector<long> want = {1, 1, 0,    1000,  1, 0, 4000, -3000, 2, 6, 2000, -1000,
                                  2, 6, 2000, -1000, 4, 0, 0,    1000,  4, 0, 0,    1000};
  EXPECT_EQ(heard, want);
}

TEST_F(QtWindow, EventsWaitForTheMessageBoxAndNothingRunsAfterTheEnd) {
  QWidget& bar = Find("platosvalue");
  window->Option1.Click = [&] { log += "option "; };
  window->VIMA.Click = [&] {
    const auto whileOpen = [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      EXPECT_EQ(box->windowTitle() + ": " + box->text(), "first explanation: 0 / 0");
      Click("Option1"), bar.setProperty("value", 30), window->Timer1.Enabled = true;
      QTest::qWait(60);
      EXPECT_TRUE(box->buttons().size() == 1 && bar.property("value") == 20 && log.empty());
      box->accept();
    };
    QTimer opened;
    opened.setSingleShot(true), opened.callOnTimeout(whileOpen), opened.start(0);
    desktop.ShowMessage("0 / 0"), log += "closed ";
  };
  // The end comes from a tick that waited; after it there is neither a box nor a handler.
  window->Timer1.Tick = [&] {
    EXPECT_TRUE(log == "closed option " && bar.property("value") == 30) << log;
    window->TERMATISMOS_Click(), Click("VIMA"), Click("Option1");
    desktop.ShowMessage("too late"), QTest::qWait(60), log += "ended";
  };
  Click("VIMA");
  EXPECT_TRUE(desktop.Run() == 0 && log == "closed option ended" && !frame.isVisible()) << log;
}

TEST_F(QtWindow, TheRunKeepsItsPaceAndIsSeen) {
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
  QTest::qWait(20);
  const QImage seen = frame.screen()->grabWindow(frame.winId()).toImage();
  EXPECT_EQ(seen, frame.grab().toImage().convertToFormat(seen.format()));
}

}  // namespace
