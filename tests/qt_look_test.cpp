#include "qt_window.h"
#include "toolkit/qt/sketch_widget.h"

namespace {

const QRgb kHighlight = qRgb(38, 110, 190);

// How thick a frame of this colour stands around the picture, if on all sides alike.
int FrameOf(const QImage& seen, QRgb colour) {
  const QRect inside = PartOf(seen, [colour](QRgb at) { return at != colour; });
  const int side = inside.left();
  return inside == seen.rect().adjusted(side, side, -side, -side) ? side : -1;
}

bool Dark(QRgb pixel) {
  return qGray(pixel) < 128;
}

// Frames are as thick as the zoom says, and whole on all four sides.
TEST(QtLook, WhatHasTheKeyboardIsFramed) {
  OnEachScreen([](Running& program) {
    program.Action("campyles").trigger();
    program.Focus("Option3");
    // How wide the frame is, and whether it goes round all of the control, also without the
    // keyboard.
    using Framed = std::tuple<const char*, int, bool>;
    for (const auto& [name, width, whole] : {Framed("Text1", 1, true),
                                             {"platosvalue", 1, true},
                                             {"syxnotikamp", 1, true},
                                             {"eikona", 2, true},
                                             {"Option2", 1, false}}) {
      SCOPED_TRACE(name);
      QWidget& widget = program.Find(name);
      const QImage idle = program.Seen(widget);
      program.Focus(name);
      const QImage focused = program.Seen(widget);
      const QRect ring = PartOf(focused, [](QRgb at) { return at == kHighlight; });
      EXPECT_EQ(FrameOf(focused.copy(ring), kHighlight), program.Thickness(width));
      // It crosses no letter.
      for (int y = 0; y < idle.height(); ++y) {
        for (int x = 0; x < idle.width() && !whole; ++x) {
          EXPECT_FALSE(Dark(idle.pixel(x, y)) && focused.pixel(x, y) == kHighlight);
        }
      }
      if (whole) {
        EXPECT_EQ(ring, focused.rect());
        EXPECT_EQ(FrameOf(idle, idle.pixel(0, 0)), program.Thickness(1));
        EXPECT_LT(qGray(idle.pixel(0, 0)), 200);
      }
    }
    // The item of the menu bar to which the keyboard has come. A line is under all of them.
    QMenuBar& bar = *program.frame->findChild<QMenuBar*>();
    const QRect first = bar.actionGeometry(bar.actions().first());
    const QImage idle = program.Seen(bar);
    const auto line = [](QRgb at) { return qGray(at) > 205 && qGray(at) < 225; };
    EXPECT_EQ(PartOf(idle.copy(0, idle.height() - 3, idle.width(), 3), line).width(), idle.width());
    program.Press(Qt::Key_F10);
    const QImage seen = program.Seen(*program.frame);
    const QRect item = PartOf(seen, [](QRgb at) { return at == kHighlight; });
    EXPECT_EQ(FrameOf(seen.copy(item), kHighlight), program.Thickness(1));
    EXPECT_NEAR(item.width(), first.width() * program.screen.ratio, 1);
  });
}

// How many of the picture's pixels are dark in a column.
int Ink(const QImage& seen, int column) {
  const QRect line(column, 0, 1, seen.height());
  return PartOf(seen.copy(line), Dark).height();
}

// Their arrows are triangles, whose tips point outward.
TEST_F(QtWindow, BarsHaveArrowsThatPoint) {
  for (const char* name : {"syxnotikamp", "platosvalue"}) {
    QImage bar = Seen(Find(name));
    // An upright bar is looked at as one that lies.
    if (bar.width() < bar.height()) bar = bar.transformed(QTransform().rotate(-90));
    for (const bool last : {false, true}) {
      SCOPED_TRACE(testing::Message() << name << (last ? ", last" : ", first"));
      constexpr int kLength = 12;  // of the arrow's box without its frame
      QImage end = bar.copy(1, 1, kLength, bar.height() - 2);
      if (last) end = bar.copy(bar.width() - 1 - kLength, 1, kLength, bar.height() - 2);
      const QRect arrow = PartOf(end, Dark);
      EXPECT_GT(arrow.height(), arrow.width());
      EXPECT_LT(arrow.height(), 10);
      const int tip = last ? arrow.right() : arrow.left();
      const int base = last ? arrow.left() : arrow.right();
      EXPECT_LT(2 * Ink(end, tip), Ink(end, base));
    }
  }
}

// Also where the sketch begins between two of the screen's pixels.
TEST(QtLook, ThePictureIsShownPixelByPixel) {
  OnEachScreen([](Running& program) {
    auto& sketch = static_cast<toolkit::qt::SketchWidget&>(program.Find("eikona"));
    program.Focus("Text1");
    const toolkit::raster::Pixels picture = sketch.canvas().Look({});
    const int frame = program.Thickness(1);
    const QImage seen = program.Seen(*program.frame);
    const QPointF corner = QPointF(sketch.mapTo(program.frame, QPoint())) * program.screen.ratio;
    const QPoint from = corner.toPoint() + QPoint(frame, frame);
    int wrong = 0;
    // At a fractional ratio the frame may cover the last row and column.
    for (int y = 0; y < picture.height - 1; ++y) {
      for (int x = 0; x < picture.width - 1; ++x) {
        const QRgb want = 0xff000000 | picture.bits[y * picture.stride + x];
        wrong += seen.pixel(from.x() + x, from.y() + y) != want;
      }
    }
    EXPECT_EQ(wrong, 0);
  });
}

// A ring where the keyboard points, a smaller one at the tip of what it pulls, dashes between them;
// nothing of it without the keyboard.
TEST(QtLook, TheKeyboardsPointerIsSeenOverThePicture) {
  OnEachScreen([](Running& program) {
    const double pixel = program.screen.zoom * program.screen.ratio;
    const int frame = program.Thickness(1);
    QWidget& sketch = program.Find("eikona");
    program.Action("GUESSFORCE").trigger();
    program.Focus("eikona");
    program.Press(Qt::Key_Home);
    for (int i = 0; i < 30; ++i) program.Press(Qt::Key_Right);
    for (int i = 0; i < 20; ++i) QTest::keyPress(&sketch, Qt::Key_Up, Qt::ShiftModifier);
    const toolkit::KeyPointer at = *program.window->eikona.PointerOnCanvas();
    const auto dark = [&](toolkit::Point place, double right, double down) {
      const int x = qRound(place.x + right * pixel), y = qRound(place.y + down * pixel);
      return Dark(program.Seen(sketch).pixel(x + frame, y + frame));
    };
    EXPECT_TRUE(dark(at.place, 7, 0));
    EXPECT_TRUE(dark(at.place, 0, 7));
    EXPECT_TRUE(dark(*at.tip, 2, 0));
    EXPECT_TRUE(dark(*at.tip, 0, -2));
    EXPECT_TRUE(dark(at.place, 0, -23));   // a dash
    EXPECT_FALSE(dark(at.place, 0, -28));  // a gap
    program.Focus("Text1");
    EXPECT_FALSE(dark(at.place, 7, 0));
  });
}

TEST_F(QtWindow, LabelsStandAtTheTopLeftAndSqueezeTheirLines) {
  auto& label = window->Label1;
  QWidget& shown = Find("Label1");
  label.FontSize = 15.0F;
  label.Width = 4500.0F;
  const auto show = [&](const char* caption, int height) {
    label.Height = static_cast<float>(height * 15);
    label.Caption = caption;
    return PartOf(Seen(shown), Dark);
  };
  constexpr int kMuch = 200;
  const QRect one = show("HIH", kMuch);
  EXPECT_LT(one.left(), 3);
  EXPECT_LT(one.bottom(), QFontMetrics(shown.font()).height());
  // Two lines stand as far apart as their box lets them, but not so near that letters touch.
  label.Width = static_cast<float>(15 * (one.right() + 5));
  const int line = show("HIH HIH", kMuch).bottom() - one.bottom();
  EXPECT_NEAR(line, QFontMetrics(shown.font()).height(), 1);
  const int shortByThree = 2 * line - 3, muchTooShort = 2 * line - 9;
  for (const auto& [height, pitch] :
       {std::pair(shortByThree, line - 3), std::pair(muchTooShort, 3 * line / 4)}) {
    EXPECT_EQ(show("HIH HIH", height), one.adjusted(0, 0, 0, pitch)) << height << ' ' << line;
  }
  // The caption of an option button stands in the middle of its height, of one line or of two.
  auto& option = window->Option1;
  option.Visible = true;
  constexpr int kCircle = 30;
  for (const char* caption : {"HIH", "HIHIHIHIH HIHIHIHIH"}) {
    option.Caption = caption;
    const QImage seen = Seen(Find("Option1"));
    const QRect words(kCircle, 0, seen.width() - kCircle, seen.height());
    const QRect letters = PartOf(seen.copy(words), Dark);
    EXPECT_NEAR(letters.top(), seen.height() - letters.bottom(), 4) << caption;
    EXPECT_GT(letters.top(), 0) << caption;
  }
}

// The typeface's name is one that the desktop stands another in for, of the same measures.
TEST_F(QtWindow, LettersAreOfOneSerifTypeface) {
  for (const toolkit::Control* control : window->controls) {
    EXPECT_EQ(QFontInfo(Find(control->Name).font()).family(), "Liberation Serif") << control->Name;
  }
  window->Text1.FontName = "No such typeface";
  EXPECT_TRUE(QFontInfo(Find("Text1").font()).family().contains("Serif"));
  // On the sketch they are smooth, in shades of their ink alone.
  const char* words = "jΤαχύτης fW";  // reaches beyond its left and right edges
  toolkit::raster::Tile tile =
      toolkit::qt::Letters().Draw(words, {"Times New Roman", 40}, {1, 0, 66});
  QFont serif("Liberation Serif");
  serif.setPixelSize(40);
  QPainterPath outline;
  outline.addText(-tile.left, QFontMetrics(serif).ascent(), serif, words);
  EXPECT_GE(tile.width, outline.boundingRect().right());
  EXPECT_EQ(tile.height, QFontMetrics(serif).height());
  QImage want(tile.width, tile.height, QImage::Format_RGB32);
  want.fill(Qt::white);
  QPainter painter(&want);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillPath(outline, QColor(1, 0, 66));
  double off = 0.0;
  for (std::size_t i = 0; i < tile.pixels.size(); ++i) {
    const QRgb seen = tile.pixels[i], ideal = want.pixel(static_cast<int>(i) % tile.width,
                                                         static_cast<int>(i) / tile.width);
    off += std::abs(qRed(seen) - qRed(ideal)) + std::abs(qBlue(seen) - qBlue(ideal));
  }
  EXPECT_LT(off / static_cast<double>(tile.pixels.size()), 14.0);
}

// Light, left to right and in one style, whatever the desktop's own are.
TEST(QtLook, IsTheSameOnAnyDesktop) {
  const auto strange = [] {
    QApplication::setPalette(QPalette(Qt::black));
    QApplication::setLayoutDirection(Qt::RightToLeft);
    QApplication::setStyle("Windows");
  };
  QImage seen[2];
  for (const bool own : {false, true}) {
    Running program(
        {Screen()}, own ? std::function<void()>(strange) : [] {});
    seen[own] = program.Seen(*program.frame);
    QRadioButton& option = static_cast<QRadioButton&>(program.Find("Option2"));
    EXPECT_EQ(option.palette().color(QPalette::WindowText), QColor(Qt::black));
    EXPECT_EQ(program.frame->palette().color(QPalette::Window), QColor(239, 239, 239));
  }
  EXPECT_EQ(seen[0], seen[1]);
}

TEST_F(QtWindow, TheIconIsDrawnInAllSizes) {
  const auto velocity = [](QRgb at) {
    return qRed(at) > qBlue(at) + 90 && qRed(at) > qGreen(at) + 90;
  };
  const auto acceleration = [](QRgb at) { return qBlue(at) > qRed(at) + 90; };
  const QIcon icon = frame->windowIcon();
  for (const int side : {16, 24, 32, 48, 64, 128}) {
    const QImage seen = icon.pixmap(side).toImage();
    ASSERT_EQ(seen.size(), QSize(side, side));
    EXPECT_EQ(qAlpha(seen.pixel(0, 0)), 0) << side;
    EXPECT_EQ(qAlpha(seen.pixel(side / 2, side / 2)), 255) << side;
    EXPECT_GT(PartOf(seen, velocity).width(), side / 3) << side;
    EXPECT_NEAR(PartOf(seen, acceleration).height(), side / 4.0, side / 16.0 + 1.0) << side;
  }
  // A sine, seen where no arrow lies over it, with the circle of curvature at its crest.
  const QImage seen = icon.pixmap(128).toImage();
  const double crest = 47, middle = 74, amplitude = 36, quarter = 48, curve = M_PI / 2 / quarter;
  for (int x = 12; x < 117; x += x == 40 ? 36 : 2) {
    const double y = middle - amplitude * std::cos(curve * (x - crest));
    EXPECT_TRUE(Dark(seen.pixel(x, qRound(y)))) << x;
    EXPECT_FALSE(Dark(seen.pixel(x, qRound(x < crest ? y - 8 : y + 8)))) << x;
  }
  const double radius = 1 / (amplitude * curve * curve), dot = 2.25, pitch = 7.47;
  const auto pink = [](QRgb at) { return qRed(at) > 200 && qGreen(at) < 150; };
  const QRect circle = PartOf(seen, pink);
  EXPECT_NEAR(circle.left(), crest - radius - dot, 1.5);
  EXPECT_NEAR(circle.bottom(), middle - amplitude + 2 * radius + dot, 1.5);
  int dots = 0;
  constexpr double kStep = 0.02;
  for (double angle = M_PI / 2; angle < M_PI * 5 / 4; angle += kStep) {
    const auto inked = [&](double at) {
      return pink(seen.pixel(qRound(crest + radius * std::cos(at)),
                             qRound(middle - amplitude + radius * (1 + std::sin(at)))));
    };
    dots += inked(angle) && !inked(angle - kStep);
  }
  EXPECT_NEAR(dots, M_PI * 3 / 4 * radius / pitch, 1);
}

}  // namespace
