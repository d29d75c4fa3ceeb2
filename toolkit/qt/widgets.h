#pragma once

#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QWidget>

#include "toolkit/option_button.h"
#include "toolkit/scroll_bar.h"

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

// A scroll bar that takes the keyboard and shows when it has it. Its arrows are drawn in proportion
// to it, where the style's own have one size.
class ScrollWidget : public QScrollBar {
 public:
  ScrollWidget(ScrollBar& bar, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  ScrollBar& bar_;
};

// A push button that the Enter keys click, too.
class ButtonWidget : public QPushButton {
 public:
  using QPushButton::QPushButton;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

// A menu bar that shows to which item the Alt key and the arrow keys have come, and whose line
// below is whole: the style draws it item by item, each too short where the item ends between two
// device pixels. Its items have tooltips, which Qt knows in drop-downs only.
class MenuBarWidget : public QMenuBar {
 public:
  using QMenuBar::QMenuBar;

  // Goes to the first item, or, if the bar has the keyboard already, back to where it was.
  void Enter();

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

// A page of text that shows when it has the keyboard, not by its cursor alone.
class TextWidget : public QPlainTextEdit {
 public:
  explicit TextWidget(QWidget* parent);

 protected:
  bool event(QEvent* event) override;
  // An empty clipboard comes as a null pointer or as data without a text; the editor's own function
  // takes neither.
  void insertFromMimeData(const QMimeData* source) override;
};

// A radio button whose text wraps, which can be clicked all over its box, and whose mark is set by
// the program alone: a click only says that the user has clicked.
class OptionWidget : public QRadioButton {
 public:
  // `focus` gives the keyboard to the widget of another button of the group.
  OptionWidget(OptionGroup& group, OptionButton& option,
               std::function<void(const OptionButton&)> focus, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool hitButton(const QPoint& place) const override { return rect().contains(place); }
  void nextCheckState() override {}

 private:
  OptionGroup& group_;
  OptionButton& option_;
  std::function<void(const OptionButton&)> focus_;
};

}  // namespace toolkit::qt
