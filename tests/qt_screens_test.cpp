#include "qt_window.h"
#include "toolkit/qt/window_mirror.h"

namespace {

TEST(QtScreens, ThePrimaryOneIsCoveredWhereverItStands) {
  const Screen right{{1024, 200, 1366, 768}}, left{{0, 0, 1024, 600}};
  const Running program({right, left});
  EXPECT_EQ(program.frame->frameGeometry(), right.place);
}

// A quarter of a screen's width is too little for the rows under the sketch at their full size.
TEST(QtScreens, ANarrowOneShowsEverything) {
  Running program({{{0, 0, 600, 1024}}});
  program.Action("campyles").trigger();
  const auto& area = *program.frame->findChild<QScrollArea*>();
  EXPECT_LE(area.widget()->minimumWidth(), 600 - 10);  // a window manager's frame
  EXPECT_GT(area.widget()->minimumWidth(), 600 - 20);
  EXPECT_FALSE(area.horizontalScrollBar()->isVisible());
  EXPECT_FALSE(area.verticalScrollBar()->isVisible());
}

TEST(QtScreens, TheWindowStandsWhereTheProgramPutsIt) {
  Running program;
  app::firststep& window = *program.window;
  const auto expect = [&](const QRect& want) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return program.frame->frameGeometry() == want; }))
        << program.frame->width() << " x " << program.frame->height();
  };
  window.Left = 450.0F;
  window.Top = 750.0F;
  expect(program.screen.place.translated(30, 50));
  window.Height = 10500.0F;
  const int told = 1366 - 10;  // the screen's width without a frame's sides
  expect({30, 50, told, 700});
  window.Width = 19500.0F;
  expect({30, 50, 1300, 700});
}

TEST(QtScreens, ASmallerWindowScrollsAndALargerOneIsWhole) {
  OnEachScreen([](Running& program) {
    program.Action("campyles").trigger();
    const QSize whole = program.frame->size();
    auto& area = *program.frame->findChild<QScrollArea*>();
    const auto scrolls = [&] {
      QApplication::processEvents();
      return area.horizontalScrollBar()->isVisible() || area.verticalScrollBar()->isVisible();
    };
    EXPECT_FALSE(scrolls());
    const toolkit::Size needed = toolkit::Extents(program.window->controls);
    EXPECT_GE(area.widget()->minimumWidth(), needed.width * program.screen.zoom);
    EXPECT_GE(area.widget()->minimumHeight(), needed.height * program.screen.zoom);
    program.frame->resize(whole / 3);
    EXPECT_TRUE(scrolls());
    // The tab key comes to every control that shows, and each is seen when it has the keyboard.
    std::vector<std::string> unseen;
    for (const toolkit::Control* control : program.window->controls) {
      if (control->Visible && program.Find(control->Name).focusPolicy() != Qt::NoFocus) {
        unseen.push_back(control->Name);
      }
    }
    EXPECT_EQ(unseen.size(), 8);
    for (std::size_t i = unseen.size(); i > 0; --i) {
      program.Press(Qt::Key_Tab);
      const QWidget& focused = *QApplication::focusWidget();
      const QRect view(focused.mapFrom(program.frame, area.mapTo(program.frame, QPoint())),
                       area.viewport()->size());
      if (view.intersects(focused.rect().marginsRemoved({3, 3, 3, 3}))) {
        std::erase(unseen, program.Focused());
      }
    }
    EXPECT_EQ(unseen, std::vector<std::string>());
    program.frame->resize(whole);
    EXPECT_FALSE(scrolls());
  });
}

// The layout stays and all of it shrinks or grows, with a picture as sharp as one drawn there.
TEST(QtScreens, AnotherOneShowsTheSamePicture) {
  Running program;
  QWidget& sketch = program.Find("eikona");
  const auto draw = [&] { program.Action("DYNAMEISDIAFORES").trigger(); };
  program.window->platosvalue.UserScroll(30);
  draw();
  program.Focus("Text1");
  const float left = program.window->Text1.Left;
  for (const Screen& screen : kScreens) {
    if (screen.ratio != 1.0) continue;
    static_cast<toolkit::qt::WindowMirror*>(program.frame)->Cover(screen.place);
    EXPECT_TRUE(QTest::qWaitFor([&] { return program.frame->frameGeometry() == screen.place; }));
    EXPECT_EQ(program.window->Text1.Left, left);
    EXPECT_EQ(sketch.height(), screen.place.height() * 3 / 4);
    const QImage kept = program.Seen(sketch);
    draw();
    EXPECT_EQ(program.Seen(sketch), kept);
  }
}

TEST(QtScreens, APressIsWhereThePictureShowsIt) {
  OnEachScreen([](Running& program) {
    program.Action("GUESSFORCE").trigger();
    std::vector<double> places;
    program.window->eikona.MouseDown = [&](short, short, float x, float y) { places = {x, y}; };
    QTest::mousePress(&program.Find("eikona"), Qt::LeftButton, {}, program.OnSketch(6, -2));
    ASSERT_EQ(places.size(), 2U);
    const double pixel = 20.0 * program.screen.ratio / program.window->eikona.ToPixels().size.width;
    EXPECT_NEAR(places[0], 6, 2 * pixel);
    EXPECT_NEAR(places[1], -2, 2 * pixel);
  });
}

// Menus, tooltips and message boxes have letters of one size, which follows the zoom.
TEST(QtScreens, EverythingThatIsReadFollowsTheZoom) {
  OnEachScreen([](Running& program) {
    const double zoom = program.screen.zoom, letters = 12 * zoom;
    const int want = static_cast<int>(zoom < 1 ? std::floor(letters) : std::round(letters));
    const QMenuBar& bar = *program.frame->findChild<QMenuBar*>();
    EXPECT_EQ(bar.font().pixelSize(), want);
    EXPECT_EQ(program.Action("periptoseis").menu()->font().pixelSize(), want);
    EXPECT_EQ(QToolTip::font().pixelSize(), want);
    EXPECT_EQ(QMessageBox().font().pixelSize(), want);
    EXPECT_LE(bar.height(), 26 * zoom);
    const QWidget& option = program.Find("Option2");
    const int circle =
        option.style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, &option);
    EXPECT_NEAR(circle, 14 * zoom, 0.5);
  });
}

}  // namespace
