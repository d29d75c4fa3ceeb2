#include "app/firststep.h"
#include "scenes/curvature_scene.h"
#include "window/format.h"

namespace app {

// Every control is placed from what the lines above it have set: the sketch from the screen, the
// others in rows from the sketch's bottom edge and from each other.
void firststep::ArrangeWindow() {
  eikona.Cls();
  Show();
  Width = desktop.ScreenWidth();
  Height = desktop.ScreenHeight();
  Top = 0.0F;
  Left = 0.0F;

  eikona.Height = 0.75F * Height;
  eikona.Width = eikona.Height;

  Option1.Top = eikona.Bottom();
  Option2.Top = eikona.Bottom() + Option1.Height;
  Option3.Top = eikona.Bottom() + 2.0F * Option1.Height;

  syxnotikamp.Left = eikona.Left + eikona.Width / 2.0F;
  syxnotikamp.Top = eikona.Bottom();
  epitaxyno.Left = syxnotikamp.Left;
  epitaxyno.Top = syxnotikamp.Bottom();
  Label2.Left = syxnotikamp.Right();
  Label2.Top = syxnotikamp.Top;
  Label3.Top = epitaxyno.Top;
  Label3.Left = epitaxyno.Right();

  platosvalue.Left = Label2.Left + 1.5F * Label2.Width;
  platosvalue.Top = Label2.Top;
  platosvalue.Height = 1.5F * syxnotikamp.Width;
  platosvalue.Width = syxnotikamp.Height;
  Label1.Left = platosvalue.Right();
  Label1.Width = Label2.Width;

  Command1.Left = eikona.Left;
  Command1.Top = eikona.Bottom();
  VIMA.Left = Command1.Right();
  VIMA.Top = Command1.Top;
  vimatimi.Left = VIMA.Right();
  vimatimi.Top = VIMA.Top;
  Label5.Left = vimatimi.Left;
  Label5.Top = vimatimi.Bottom();
  Timer1.Interval = 1;
  Label5.Caption = "Δt = " + window::Format(window::TimeStep(*this), 2);

  Option1.FontName = "times new roman";
  // The first letter is a Latin E.
  Option1.Caption = "Eξήγηση για τριβή";

  Label1.Top = platosvalue.Top;
  arxikives.Left = Label1.Right();
  arxikives.Top = Label1.Top;
  arxikives.Height = platosvalue.Height;
  arxikives.Width = platosvalue.Width;
  Label4.Top = Label1.Top;
  Label4.Left = arxikives.Right();

  eikona.AutoRedraw = true;
  window::StandardScale(eikona);
  eikona.DrawWidth = 1;

  Text1.Left = eikona.Right();
  Text1.FontName = "Times New Roman";
  Text1.FontSize = 12.0F;

  // The canvas must have the sketch's new size before the picture is drawn.
  ShowChanges();
  scenes::DrawCurvatureScene(*this);
  Text1.Text =
      "We examine the effect of the shape of the curve and of the speed on the centripetal "
      "acceleration";
}

}  // namespace app
