#pragma once

class QWidget;

namespace toolkit::qt {

// Gives the application the look of the window: the same everywhere, light on any theme, for the
// pictures have dark inks on white. What the style measures (arrows and thumbs of scroll bars, the
// circles of option buttons, margins) and the letters of menus, tooltips and message boxes are as
// large as the program's pixels are: `zoom` logical ones.
void ApplyStyle(double zoom);

// How many logical pixels the widget's style takes for one of the program's.
double ZoomOf(const QWidget& widget);

}  // namespace toolkit::qt
