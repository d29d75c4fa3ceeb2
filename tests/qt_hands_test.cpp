#include "qt_window.h"

namespace {

using enum Qt::Key;
using enum Qt::MouseButton;

struct QtHands : QtWindow {
  QMenuBar& bar = *frame->findChild<QMenuBar*>();
  QPlainTextEdit& text = static_cast<QPlainTextEdit&>(Find("Text1"));
};

TEST_F(QtHands, F10AndAltGoToTheMenuBarAndComeBack) {
  Action("campyles").trigger();
  const auto press = [&](Qt::Key key) {
    QTest::keyPress(QApplication::focusWidget(), key);
    QTest::keyRelease(QApplication::focusWidget(), key);
  };
  for (const char* from : {"eikona", "Text1", "Option2", "platosvalue"}) {
    for (const auto& [enter, leave] : {std::pair(Key_F10, Key_F10),
                                       {Key_F10, Key_Escape},
                                       {Key_Alt, Key_Alt},
                                       {Key_Alt, Key_F10}}) {
      SCOPED_TRACE(testing::Message() << from << ' ' << enter << ' ' << leave);
      Focus(from);
      press(enter);
      EXPECT_EQ(QApplication::focusWidget(), &bar);
      EXPECT_EQ(bar.activeAction(), bar.actions().first());
      press(leave);
      EXPECT_EQ(Focused(), from);
      EXPECT_EQ(bar.activeAction(), nullptr);
    }
  }
}

TEST_F(QtHands, BothEnterKeysAndTheSpaceBarClickOnceWhenPressed) {
  for (toolkit::Control* control : window->controls) control->Visible = true;
  window->VIMA.Click = [&] { log += "button "; };
  window->Option1.Click = [&] { log += "option "; };
  window->eikona.KeyDown = [&](toolkit::Key key, short) {
    log += key == toolkit::Key::Pick ? "pick " : "? ";
  };
  Focus("Text1");
  log.clear();
  for (const char* name : {"VIMA", "Option1", "eikona"}) {
    for (const auto key : {Key_Return, Key_Enter, Key_Space}) {
      Focus(name);
      QKeyEvent press(QEvent::KeyPress, key, {}), release(QEvent::KeyRelease, key, {});
      QKeyEvent held(QEvent::KeyPress, key, {}, "", true);
      QApplication::sendEvent(&Find(name), &press);
      for (int i = 0; i < 3; ++i) QApplication::sendEvent(&Find(name), &held);
      QApplication::sendEvent(&Find(name), &release);
    }
  }
  EXPECT_EQ(log, "button button button option option option pick pick pick ");
}

// The arrow keys take the keyboard along among the options that show.
TEST_F(QtHands, KeysReachTheOptionsAndTheBars) {
  Action("campyles").trigger();
  for (auto* option : window->options.members) {
    option->Click = [&, option] { log += option->Name + ' '; };
  }
  Focus("Option2");
  for (const auto key : {Key_Down, Key_Right, Key_Up, Key_Left}) {
    Press(key);
    log += "at " + Focused() + ' ';
  }
  EXPECT_EQ(log, "Option3 at Option3 Option2 at Option2 Option3 at Option3 Option2 at Option2 ");
  std::vector<int> heard;
  window->epitaxyno.Change = [&] { heard.push_back(window->epitaxyno.Value); };
  Focus("epitaxyno");
  for (const auto key :
       {Key_End, Key_Left, Key_Up, Key_PageUp, Key_Home, Key_Right, Key_Down, Key_PageDown}) {
    Press(key);
  }
  EXPECT_EQ(heard, (std::vector{35, 34, 33, 32, -35, -34, -33, -32}));
}

TEST_F(QtHands, TheSketchHearsKeysThatAreLetGoAndThatTheKeyboardLeaves) {
  Action("GUESSFORCE").trigger();
  Focus("eikona");
  EXPECT_TRUE(IsUpToDate());
  Press(Key_Right);
  EXPECT_TRUE(IsUpToDate());  // the pointer has moved
  std::vector<std::pair<toolkit::Key, int>> heard;
  window->eikona.KeyDown = [&](toolkit::Key key, short shift) {
    heard.emplace_back(key, shift & ~toolkit::kShiftMask);
  };
  QTest::keyPress(&eikona, Key_Shift);
  QTest::keyRelease(&eikona, Key_Shift, Qt::ControlModifier);
  Press(Key_Escape);
  Press(Key_Q);
  Focus("Text1");
  using enum toolkit::Key;
  const int ctrl = toolkit::kCtrlMask;
  EXPECT_EQ(heard, (std::vector<std::pair<toolkit::Key, int>>{
                       {ShiftReleased, ctrl}, {Cancel, 0}, {Cancel, 0}}));
}

TEST_F(QtHands, TheCursorTellsWhatAPressWillDo) {
  const QPoint crest = OnSketch(6, 2), besides = OnSketch(6, 4);
  const auto over = [&](QPoint place) {
    QTest::mouseMove(&eikona, place);
    return eikona.cursor().shape();
  };
  EXPECT_EQ(over(crest), Qt::ArrowCursor);
  Action("DYNAMEISDIAFORES").trigger();
  const QImage before = Seen(eikona);
  EXPECT_EQ(over(besides), Qt::CrossCursor);
  EXPECT_EQ(over(crest), Qt::PointingHandCursor);
  EXPECT_EQ(frame->cursor().shape(), Qt::ArrowCursor);
  EXPECT_EQ(Seen(eikona), before);
  Action("GUESSFORCE").trigger();
  EXPECT_EQ(over(crest), Qt::PointingHandCursor);
  QTest::mousePress(&eikona, LeftButton, Qt::ShiftModifier, crest);
  EXPECT_EQ(eikona.cursor().shape(), Qt::ClosedHandCursor);
  EXPECT_EQ(over(besides), Qt::ClosedHandCursor);
  QTest::mouseRelease(&eikona, LeftButton, Qt::ShiftModifier, besides);
  EXPECT_EQ(eikona.cursor().shape(), Qt::CrossCursor);
  Action("campyles").trigger();
  EXPECT_EQ(over(crest), Qt::ArrowCursor);
}

TEST_F(QtHands, HintsAreShownAndDescribe) {
  const auto tip = [](QWidget& widget, const QPoint& place) {
    QHelpEvent help(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &help);
    return QToolTip::text().toStdString();
  };
  const auto described = [](QObject& object) {
    const auto* spoken = QAccessible::queryAccessibleInterface(&object);
    return spoken->text(QAccessible::Description).toStdString();
  };
  for (toolkit::Control* control : window->controls) {
    QWidget& shown = Find(control->Name);
    if (control->Hint.empty()) continue;
    EXPECT_EQ(tip(shown, {2, 2}), control->Hint);
    EXPECT_EQ(described(shown), control->Hint);
  }
  for (const toolkit::MenuItem* item : window->menus) {
    QAction& action = Action(item->Name);
    EXPECT_EQ(tip(bar, bar.actionGeometry(&action).center()), item->Hint);
    EXPECT_EQ(described(action), item->Hint);
  }
  tip(bar, {bar.width() - 1, 5});
  EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
  EXPECT_TRUE(Action("periptoseis").menu()->toolTipsVisible());
  for (const toolkit::MenuItem* item : window->periptoseis.items) {
    EXPECT_EQ(Action(item->Name).toolTip().toStdString(), item->Hint);
  }
}

TEST_F(QtHands, MenuItemsCanBeReadAndWorkedFromOutside) {
  QAccessibleInterface* root = QAccessible::queryAccessibleInterface(&bar);
  ASSERT_EQ(root->childCount(), 6);
  QAccessibleInterface* cases = root->child(1);
  EXPECT_EQ(cases->text(QAccessible::Name), "CASES");
  EXPECT_TRUE(cases->parent() == root && root->indexOfChild(cases) == 1);
  EXPECT_TRUE(bar.geometry().translated(frame->pos()).contains(cases->rect().center()));
  EXPECT_FALSE(cases->state().checkable || cases->state().invisible || cases->state().focused);
  Press(Key_F10);
  EXPECT_TRUE(root->child(0)->state().focused);

  const auto work = [](QAccessibleInterface* item) {
    item->actionInterface()->doAction(item->actionInterface()->actionNames().first());
  };
  QAccessibleInterface* menu = cases->child(0);
  ASSERT_TRUE(cases->childCount() == 1 && cases->indexOfChild(menu) == 0);
  EXPECT_TRUE(menu->text(QAccessible::Name) == "CASES" && menu->childCount() == 2);
  EXPECT_EQ(cases->indexOfChild(root), -1);
  QAccessibleInterface* guess = menu->child(1);
  EXPECT_TRUE(guess->state().invisible && guess->state().checkable && !guess->state().checked);
  work(cases);
  EXPECT_FALSE(guess->state().invisible);
  EXPECT_TRUE(menu->rect().contains(guess->rect()));
  work(guess);
  EXPECT_TRUE(window->GUESSFORCE.Checked && guess->state().checked);
  const auto option = QAccessible::queryAccessibleInterface(&Find("Option2"))->state();
  EXPECT_TRUE(option.checkable && !option.checked);
}

// A clipboard on which nothing has been laid, or no text.
TEST_F(QtHands, OnlyTextIsPastedIntoTheTextBox) {
  text.setPlainText("here ");
  text.moveCursor(QTextCursor::End);
  Focus("Text1");
  const auto paste = [&] {
    Press(Key_V, Qt::ControlModifier);
    Press(Key_Insert, Qt::ShiftModifier);
    return window->Text1.Text.Get();
  };
  const auto drop = [&](const QMimeData& data) {
    QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, LeftButton, {});
    QDropEvent event({9, 9}, Qt::CopyAction, &data, LeftButton, {});
    QApplication::sendEvent(text.viewport(), &enter);
    QApplication::sendEvent(text.viewport(), &event);
    return window->Text1.Text.Get();
  };
  QMimeData picture, word;
  picture.setImageData(QImage(5, 5, QImage::Format_RGB32));
  word.setText("dropped");
  EXPECT_EQ(paste(), "here ");
  QApplication::clipboard()->setImage(QImage(5, 5, QImage::Format_RGB32));
  EXPECT_EQ(paste(), "here ");
  EXPECT_EQ(drop(picture), "here ");
  QApplication::clipboard()->setText("pasted ");
  EXPECT_EQ(paste(), "here pasted pasted ");
  EXPECT_NE(drop(word).find("dropped"), std::string::npos);
}

}  // namespace
