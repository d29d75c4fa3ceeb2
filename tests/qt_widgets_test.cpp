#include <random>

#include "qt_window.h"

namespace {

using enum Qt::Key;
using enum Qt::MouseButton;

// The widgets show the program's state.
void ExpectMirrored(Running& program) {
  const double zoom = program.screen.zoom;
  const auto pixels = [zoom](float twips) {
    return static_cast<int>(std::lround(twips / 15 * zoom));
  };
  app::firststep& window = *program.window;
  for (toolkit::Control* control : window.controls) {
    SCOPED_TRACE(control->Name);
    const QWidget& shown = program.Find(control->Name);
    const QPoint from(pixels(control->Left), pixels(control->Top));
    const QPoint to(pixels(control->Right()) - 1, pixels(control->Bottom()) - 1);
    EXPECT_EQ(shown.geometry(), QRect(from, to));
    EXPECT_EQ(shown.isVisibleTo(program.frame), control->Visible);
    // Letters that shrink must not be rounded up, out of their boxes.
    const double letters = control->FontSize * 4 / 3 * zoom;
    EXPECT_EQ(shown.font().pixelSize(), zoom < 1 ? std::floor(letters) : std::round(letters));
  }
  for (const auto* bar : {&window.platosvalue, &window.syxnotikamp, &window.epitaxyno,
                          &window.arxikives, &window.vimatimi}) {
    EXPECT_EQ(program.Find(bar->Name).property("value"), +bar->Value) << bar->Name;
  }
  for (const auto* option : window.options.members) {
    const QWidget& shown = program.Find(option->Name);
    EXPECT_EQ(shown.property("checked").toBool(), option->Value) << option->Name;
    EXPECT_EQ(shown.property("text"), option->Caption.Get().c_str());
  }
  for (const auto* item : window.periptoseis.items) {
    EXPECT_EQ(program.Action(item->Name).isChecked(), item->Checked) << item->Name;
  }
  EXPECT_EQ(program.Find("Text1").property("plainText"), window.Text1.Text.Get().c_str());
}

TEST(QtScreens, EachShowsTheStateInItsPixels) {
  OnEachScreen(ExpectMirrored);
}

// A random user: anything in any order, on whatever is to be seen. The program moves its controls.
TEST_F(QtWindow, ShowsTheStateAfterEveryEvent) {
  const int asked = GTEST_FLAG_GET(random_seed);
  const int seed = asked != 0 ? asked : static_cast<int>(std::random_device{}() % 99999 + 1);
  std::mt19937 random(seed);
  const auto any = [&](int a, int b) { return std::uniform_int_distribution(a, b)(random); };
  const std::array keys{Key_Left,  Key_Right, Key_Up,   Key_PageDown, Key_Tab,
                        Key_Space, Key_Shift, Key_Home, Key_Return,   Key_F10};
  const std::array edits{QKeySequence::Paste, QKeySequence::Cut, QKeySequence::Copy,
                         QKeySequence::SelectAll};
  const auto items = frame->findChildren<QAction*>();
  window->TERMATISMOS.Click = nullptr;
  EXPECT_EQ(frame->windowTitle(), "first explanation");
  QTest::keyClicks(&Find("Text1"), "typed");
  for (int event = 0; event < 2000 && !HasFailure(); ++event) {
    SCOPED_TRACE(testing::Message() << "event " << event << ", --gtest_random_seed=" << seed);
    ExpectMirrored(*this);
    toolkit::Control& control = *window->controls.at(any(0, 16));
    QWidget& widget = Find(control.Name);
    const QPoint at(any(-20, widget.width() + 20), any(-20, widget.height() + 20));
    const auto held = Qt::KeyboardModifiers::fromInt(any(0, 1) * any(0, 7) << 25);
    const auto button = static_cast<Qt::MouseButton>(1 << any(0, 2));
    const auto type = static_cast<QEvent::Type>(any(QEvent::MouseButtonPress, QEvent::MouseMove));
    QMouseEvent mouse(type, at, widget.mapToGlobal(at), button, Qt::MouseButtons(any(0, 7)), held);
    QWheelEvent wheel(at, {}, {}, {any(-99, 99), any(-500, 500)}, {}, held, {}, false);
    const int what = any(0, widget.isVisible() ? 10 : 3);
    if (what == 0) control.Left = static_cast<float>(any(-99, 19999));
    if (what == 1) control.FontSize = static_cast<float>(any(1, 30));
    if (what == 2) QTest::qWait(any(0, 20));
    if (what == 3) items[any(0, static_cast<int>(items.size()) - 1)]->trigger();
    if (what == 4) QApplication::sendEvent(&widget, &wheel);
    if (what == 5) QTest::keyClick(&widget, keys.at(any(0, keys.size() - 1)), held);
    if (what == 6) QTest::keySequence(&Find("Text1"), edits.at(any(0, edits.size() - 1)));
    if (what > 6) QApplication::sendEvent(&widget, &mouse);
  }
}

TEST_F(QtWindow, OptionsAndMenusReachTheirHandlers) {
  const auto logs = [&](auto& each) { each.Click = [&] { log += each.Name + ' '; }; };
  for (auto* option : window->options.members) logs(*option), option->Visible = true;
  for (auto* item : window->menus) logs(*item);
  for (auto* item : window->periptoseis.items) logs(*item);
  QWidget& corner = Find("Option1");
  QTest::mouseClick(&corner, LeftButton, {}, {1, 1});
  QTest::mouseClick(&corner, LeftButton, {}, corner.rect().bottomRight());
  const auto bar = frame->findChild<QMenuBar*>()->actions();
  for (QAction* item : bar + Action("periptoseis").menu()->actions()) {
    log += item->text().toStdString() + '=';
    item->trigger();
  }
  EXPECT_EQ(log,
            "Option1 Option1 &back=XANAPISO &CASES=periptoseis &TIME DEPENDENT=campyles "
            "&STOP=STAMATHMA C&ONTINUE=KSEKINA &end=TERMATISMOS "
            "&RADIUS OF CURVATURE=DYNAMEISDIAFORES &GUESS A FORCE=GUESSFORCE ");
}

TEST(QtBars, FollowThumbAndWheelAtEveryZoom) {
  OnEachScreen([](Running& program) {
    for (toolkit::ScrollBar* bar : {&program.window->platosvalue, &program.window->epitaxyno}) {
      QWidget& shown = program.Find(bar->Name);
      std::vector<int> heard;
      bar->Change = [&] { heard.push_back(bar->Value); };
      for (const QPoint turned : {QPoint(0, -120), QPoint(0, 60), QPoint(60, 0), QPoint(-120, 0)}) {
        QWheelEvent wheel({}, {}, {}, turned, {}, {}, {}, false);
        QApplication::sendEvent(&shown, &wheel);
      }
      const int start = 20, min = bar->Min, max = bar->Max;
      EXPECT_EQ(heard, (std::vector{start + 1, start, start + 1}));
      heard.clear();
      program.window->events.Deliver([&] { bar->Value = min; });
      // The thumb begins behind the arrow and has at least its own length to go. The picture
      // follows it while it is held.
      const bool upright = bar->Direction == toolkit::Orientation::Vertical;
      const int middle = (upright ? shown.width() : shown.height()) / 2;
      const auto along = [&](double way) {
        return upright ? QPoint(middle, qRound(way)) : QPoint(qRound(way), middle);
      };
      const double arrow = 14 * program.screen.zoom, thumb = 12 * program.screen.zoom;
      QTest::mousePress(&shown, LeftButton, {}, along(arrow + thumb / 2));
      QTest::mouseMove(&shown, along(arrow + 1.5 * thumb));
      EXPECT_LT(bar->Value, max);
      QTest::mouseMove(&shown, along(9999));
      // What the program sets in a handler is not heard again as the user's.
      program.window->events.Deliver([&] { bar->Value = max - 1, bar->Value = min; });
      EXPECT_EQ(shown.property("value"), min);
      EXPECT_TRUE(heard.size() == 5 && heard[2] == max && heard[4] == min)
          << testing::PrintToString(heard);
      QTest::mouseRelease(&shown, LeftButton);
    }
  });
}

TEST_F(QtWindow, MouseButtonsKeepTheirNumbersKeysAndPlaces) {
  const QPoint first(1, 1), last(eikona.width() - 2, eikona.height() - 2);
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
    desktop->ShowMessage("0 / 0"), log += "closed ";
  };
  // The end comes from a tick that waited; after it there is neither a box nor a handler.
  window->Timer1.Tick = [&] {
    EXPECT_TRUE(log == "closed option " && bar.property("value") == 30) << log;
    window->TERMATISMOS_Click(), Click("VIMA"), Click("Option1");
    desktop->ShowMessage("too late"), QTest::qWait(60), log += "ended";
  };
  Click("VIMA");
  EXPECT_TRUE(desktop->Run() == 0 && log == "closed option ended") << log;
  window->Left = 15.0F;
  EXPECT_FALSE(frame->isVisible());
}

// Counts how often a timer of the toolkit wakes the program.
struct Wakes : QObject {
  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == QEvent::Timer;
    return false;
  }
  int count = 0;
};

TEST_F(QtWindow, TheRunKeepsItsPaceAndIsSeenAndThenTheProgramSleeps) {
  Wakes wakes;
  application.installEventFilter(&wakes);
  Click("Option2"), window->vimatimi.Value = 10;
  int ticks = 0;
  window->Timer1.Tick = [&, tick = window->Timer1.Tick] {
    if (++ticks == 5) QTest::qSleep(150);  // is not made up for
    tick();
  };
  QElapsedTimer clock;
  clock.start(), Click("Command1");
  while (window->Timer1.Enabled && clock.elapsed() < 20000) {
    QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  EXPECT_TRUE(!window->Timer1.Enabled && ticks > 20);
  EXPECT_LE(ticks, (clock.elapsed() - 150) * toolkit::kMaxTicksPerSecond / 1000 + 2);
  EXPECT_LT(wakes.count, 4 * ticks);
  EXPECT_TRUE(QTest::qWaitFor([&] { return IsUpToDate(); }));
  // An idle timer wakes nobody: once the window has settled, there is a long sleep.
  const auto sleeps = [] {
    QTimer pause;
    pause.setSingleShot(true), pause.start(200);
    int woken = 0;
    for (; pause.isActive(); ++woken) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return woken <= 3;
  };
  bool slept = false;
  for (int look = 0; look < 50 && !slept; ++look) slept = sleeps();
  EXPECT_TRUE(slept);
}

}  // namespace
