#pragma once

#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/firststep.h"
#include "toolkit/qt/desktop.h"

// A screen in its own logical pixels, and what the window makes of it.
struct Screen {
  QRect place{0, 0, 1366, 768};
  double ratio = 1.0;
  double zoom = 1.0;  // the program's pixel, in logical ones
};

inline const std::vector<Screen> kScreens = {
    {},
    {{0, 0, 1366, 768}, 2.0},
    {{0, 0, 911, 512}, 1.5, 98.0 / 139.0},  // what is left of its height, for rows and menu
    {{0, 0, 683, 384}, 2.0, 0.5},
    {{0, 0, 1920, 1440}, 1.0, 4.0 / 3.0},
    {{0, 0, 3840, 2160}, 1.0, 2.0},
};

// Qt's offscreen platform with these screens, the first of them the primary one.
class Screens {
 public:
  explicit Screens(const std::vector<Screen>& screens) {
    QJsonArray list;
    for (const auto& [place, ratio, zoom] : screens) {
      list.append(QJsonObject{{"name", QString::number(list.size())},
                              {"x", place.x()},
                              {"y", place.y()},
                              {"width", place.width()},
                              {"height", place.height()},
                              {"logicalDpi", 96},
                              {"logicalBaseDpi", 96},
                              {"dpr", ratio}});
    }
    EXPECT_TRUE(file_.open());
    file_.write(QJsonDocument(QJsonObject{{"screens", list}}).toJson());
    file_.flush();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file_.fileName().toUtf8());
  }

 private:
  QTemporaryFile file_;
};

// The whole program in its real window.
struct Running {
  explicit Running(
      const std::vector<Screen>& on = {Screen()}, const std::function<void()>& prepare = [] {})
      : screen(on.front()), screens(on) {
    prepare();
    desktop = std::make_unique<toolkit::qt::QtDesktop>(application);
    window = app::Main(*desktop);
    frame = &Find("firststep");
    EXPECT_TRUE(QTest::qWaitForWindowActive(frame));
    EXPECT_TRUE(QTest::qWaitFor([&] { return frame->frameGeometry() == screen.place; }));
    EXPECT_EQ(frame->devicePixelRatio(), screen.ratio);
    QApplication::processEvents();
  }

  QWidget& Find(const std::string& name) {
    const auto all = QApplication::allWidgets();
    return **std::ranges::find(all, name.c_str(), &QObject::objectName);
  }
  void Click(const std::string& name) { QMetaObject::invokeMethod(&Find(name), "click"); }
  QAction& Action(const std::string& name) { return *frame->findChild<QAction*>(name.c_str()); }
  void Focus(const std::string& name) { Find(name).setFocus(); }
  std::string Focused() { return QApplication::focusWidget()->objectName().toStdString(); }
  void Press(Qt::Key key, Qt::KeyboardModifiers held = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, held);
  }

  // What a widget shows, in the screen's pixels.
  QImage Seen(QWidget& widget) {
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
  }
  // Whether the window on the screen has been painted anew since it last changed.
  bool IsUpToDate() {
    QApplication::processEvents();
    const QImage seen = frame->screen()->grabWindow(frame->winId()).toImage();
    return seen == frame->grab().toImage().convertToFormat(seen.format());
  }
  // How many of the screen's pixels a line is wide that has so many of the program's.
  int Thickness(int width) const {
    return std::max(1, static_cast<int>(width * screen.zoom * screen.ratio));
  }
  // Where the sketch shows a place of its picture, in its own logical pixels.
  QPoint OnSketch(double x, double y) {
    const toolkit::Point at = window->eikona.ToPixels()(x, y);
    return (QPointF(at.x, at.y) / screen.ratio).toPoint() + QPoint(1, 1);
  }

  Screen screen;
  Screens screens;
  int none = 0;
  QApplication application{none, nullptr};
  std::unique_ptr<toolkit::qt::QtDesktop> desktop;
  std::unique_ptr<app::firststep> window;
  QWidget* frame = nullptr;
};

// Runs the test on every one of kScreens.
inline void OnEachScreen(const std::function<void(Running&)>& test) {
  for (const Screen& screen : kScreens) {
    SCOPED_TRACE(testing::Message() << screen.place.height() << " at ratio " << screen.ratio);
    Running program({screen});
    test(program);
  }
}

// The part of a picture that has pixels for which `inked` holds.
inline QRect PartOf(const QImage& seen, const std::function<bool(QRgb)>& inked) {
  QRect part;
  for (int y = 0; y < seen.height(); ++y) {
    for (int x = 0; x < seen.width(); ++x) {
      if (inked(seen.pixel(x, y))) part |= QRect(x, y, 1, 1);
    }
  }
  return part;
}

struct QtWindow : testing::Test, Running {
  QWidget& eikona = Find("eikona");
  std::string log;
};
