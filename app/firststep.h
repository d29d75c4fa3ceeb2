#pragma once

#include <memory>

#include "window/controls.h"

namespace app {

// The program's window with its handlers, one for each control and event that it acts on. A case
// is nothing but the state of the controls: what is shown, checked and selected, whether the timer
// runs, and the picture on the sketch.
struct firststep : window::Controls {
  // Creates the window and runs Form_Load. Nothing is shown yet.
  explicit firststep(toolkit::Desktop& machine);
  ~firststep() override;

  // Start-up, the menu and the cases (cases.cpp).
  void Form_Load();
  void campyles_Click();
  void XANAPISO_Click();
  void TERMATISMOS_Click();
  void DYNAMEISDIAFORES_Click();
  void GUESSFORCE_Click();
  void Option1_Click();
  void Option2_Click();
  void Option3_Click();

  // The track's parameters (parameters.cpp).
  void platosvalue_Change();
  void syxnotikamp_Change();
  void epitaxyno_Change();
  void arxikives_Change();

  // The time-evolution run (run.cpp).
  void Command1_Click();
  void VIMA_Click();
  void STAMATHMA_Click();
  void KSEKINA_Click();
  void Timer1_Timer();
  void vimatimi_Change();

  // The mouse on the sketch (mouse.cpp). Shift is the bits of the shift state; X and Y are sketch
  // units. The button does not matter.
  void eikona_MouseDown(short Button, short Shift, float X, float Y);
  void eikona_MouseUp(short Button, short Shift, float X, float Y);

  // What the mouse pointer looks like at a place of the sketch, as it tells what a press there will
  // do: a cross where the sketch answers, the pointing hand where a point of the track is picked,
  // the closed hand while a button is held that has picked one to guess at.
  toolkit::Cursor eikona_Cursor(float X, float Y, bool pressed) const;

  // The keyboard on the sketch (keyboard.cpp): the arrow keys move a point along the track, Pick
  // presses and releases there; in the guess mode SHIFT with the arrow keys pulls a force from it,
  // which is judged when SHIFT is let go.
  void eikona_KeyDown(toolkit::Key key, short Shift);

  // Shows the window, places every control from the screen's size and draws the opening picture
  // (layout.cpp).
  void ArrangeWindow();

 private:
  void BindHandlers();
  void ShowParameters(bool shown);
  void ShowParameterValues();
  void ShowTimeEvolution(bool shown);
  void ShowEmptySketch();
  void RedrawFactors();
  void MovePointer(toolkit::Key key);
  void PutPointerOnTrack();
  void FollowTrack();
  void PullForce(toolkit::Key key);
  void ReleaseForce(short Shift);
  void DropForce();
};

// Starts the program on a desktop: creates the window, stretches it over the screen, arranges it.
// The program then lives on the window's events until it is ended or the window is closed.
std::unique_ptr<firststep> Main(toolkit::Desktop& machine);

}  // namespace app
