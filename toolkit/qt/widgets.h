#pragma once

#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QWidget>

namespace toolkit::qt {

// A text that wraps inside its box and paints nothing behind it: the boxes of the layout overlap,
// and an empty part of one must not hide a neighbour's text.
class LabelWidget : public QWidget {
 public:
  using QWidget::QWidget;

  // `spoken` is what a screen reader reads out: it says what the number in the text is about.
  void SetText(const QString& text, const QString& spoken);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text_;
};

// A scroll bar that takes the keyboard and shows when it has it.
class ScrollWidget : public QScrollBar {
 public:
  ScrollWidget(Qt::Orientation orientation, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  int wheel_ = 0;  // what has been turned since the last whole notch
};

// A menu bar that shows to which item the Alt key and the arrow keys have come, and whose line
// below is whole: the style draws it item by item, each too short where the item ends between two
// device pixels.
class MenuBarWidget : public QMenuBar {
 public:
  using QMenuBar::QMenuBar;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// A page of text that shows when it has the keyboard, not by its cursor alone.
class TextWidget : public QPlainTextEdit {
 public:
  explicit TextWidget(QWidget* parent);

 protected:
  bool event(QEvent* event) override;
};

// A radio button whose text wraps, which can be clicked all over its box, and whose mark is set by
// the program alone: a click only says that the user has clicked.
class OptionWidget : public QRadioButton {
 public:
  explicit OptionWidget(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool hitButton(const QPoint& place) const override { return rect().contains(place); }
  void nextCheckState() override {}
};

}  // namespace toolkit::qt
