#include <gtest/gtest.h>

#include <fstream>

#include "pictures.h"

// What the program tells those who do not see it, or do not read Greek.

namespace {

using toolkit::Cursor;

// All that is to be read or heard, by its control and by the ways to the pictures. After a wanted
// change, put the lines that the test prints in place of the old ones.
TEST(Told, InTheseWords) {
  std::vector<std::string> words;
  const auto add = [&](const std::string& of, const std::string& text) {
    words.push_back(of + ": " + text);
  };
  const Program opening;
  for (const auto* items : {&opening.window->menus, &opening.window->periptoseis.items}) {
    for (const toolkit::MenuItem* item : *items) {
      add(item->Name, item->Caption);
      add(item->Name, item->Hint);
    }
  }
  for (const toolkit::Control* control : opening.window->controls) {
    add(control->Name, control->AccessibleName);
    add(control->Name, control->Hint);
  }
  for (const PictureWay& way : kPictureWays) {
    Program p;
    way.go(p);
    add(way.name, p.window->Text1.Text);
    add(way.name, p.window->eikona.Description);
  }
  Program trough;
  trough.window->campyles.UserClick();
  add("choice", trough.window->eikona.Description);
  trough.window->DYNAMEISDIAFORES.UserClick();
  add("curvature", trough.window->Text1.Text);
  add("curvature", trough.window->eikona.Description);
  trough.Release(18, -2);
  add("point in a trough", trough.window->eikona.Description);
  trough.Release(0, 0);
  add("point on a straight part", trough.window->eikona.Description);
  std::ifstream known(FIRSTSTEP_WORDS);
  for (const std::string& now : words) {
    std::string then;
    std::getline(known, then);
    EXPECT_EQ(now, then);
  }
}

TEST(Told, ValuesAsTheLabelsShowThem) {
  Program p;
  const auto told = [&] {
    std::string values;
    for (const toolkit::ScrollBar* bar : p.bars) values += bar->Told() + "; ";
    return values;
  };
  EXPECT_EQ(told(), "2.0; 1.5; 2.00; 3; 50, Δt = 0.02; ");
  p.Scroll({35, 1, -20, 15, 300});
  EXPECT_EQ(told(), "3.5; 0.1; -2.0; 15; 300, Δt = 0.003; ");
}

// By case: nothing to be done, a place to press, a point of the track to pick, and one that is held
// and can be pulled at.
TEST(Told, ByTheMousePointer) {
  Program p;
  app::firststep& w = *p.window;
  const auto over = [&](double x, double y) { return w.eikona.CursorAt(p.Pixel(x, y)); };
  EXPECT_TRUE(over(6, 2) == Cursor::Arrow && over(6, 5) == Cursor::Arrow);
  for (toolkit::MenuItem* item : w.periptoseis.items) {
    item->UserClick();
    for (const double off : {-0.101, -0.099, 0.099, 0.101}) {
      EXPECT_EQ(over(6, 2 + off), std::abs(off) < 0.1 ? Cursor::PointingHand : Cursor::Cross)
          << off;
    }
    const bool guess = item == &w.GUESSFORCE;
    p.Press(6, 2);
    EXPECT_EQ(over(9, 9), guess ? Cursor::ClosedHand : Cursor::Cross);
    p.Release(9, 9);
    EXPECT_EQ(over(9, 9), Cursor::Cross);
    p.Press(6, 5);
    EXPECT_TRUE(over(9, 9) == Cursor::Cross && over(6, 2) == Cursor::PointingHand);
  }
}

// Marks with a label, as long as the body is on the sketch; the end of a run, once.
TEST(Told, WhatARunAddsToThePicture) {
  Program p;
  using Texts = std::vector<std::string>;
  Texts said;
  p.window->eikona.AttachAnnouncer([&](const std::string& text) { said.push_back(text); });
  p.Scroll({20, 15, 1, 2, 20});
  p.window->Option2.UserClick();
  p.window->Command1.UserClick();
  while (p.window->Timer1.Enabled) p.desktop.Tick();
  const char* const left = "The run has ended: the body has left the sketch";
  p.window->VIMA.UserClick();
  EXPECT_EQ(said, (Texts{"Ds =3.23 t =3.00", "Ds = 1.14 X3.23 t = 6.00", left}));

  said.clear();
  p.Scroll({20, 15, 0, 0, 20});
  p.window->Command1.UserClick();
  for (int i = 0; i < window::PathRecords::kLastStep + 3; ++i) p.desktop.Tick();
  EXPECT_EQ(said, (Texts{"Ds =0.00 t =3.00", "The run has ended: the records are full"}));
}

}  // namespace
