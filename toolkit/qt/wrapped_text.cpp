#include "toolkit/qt/wrapped_text.h"

#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace toolkit::qt {

void DrawWrapped(QPainter& painter, const QRect& box, const QString& text, bool centred) {
  QTextOption option(Qt::AlignLeft);
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  QTextLayout layout(text, painter.font(), painter.device());
  layout.setTextOption(option);
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(box.width());
  }
  layout.endLayout();
  const int lines = layout.lineCount();
  if (lines == 0) return;
  const double height = layout.lineAt(0).height();
  // Below three quarters of its height a line would run into the letters of the next.
  const double room = lines > 1 ? (box.height() - height) / (lines - 1) : height;
  const double pitch = std::floor(std::clamp(room, 0.75 * height, height));
  const double spare = box.height() - height - (lines - 1) * pitch;
  const double top = centred ? std::floor(std::max(spare, 0.0) / 2.0) : 0.0;
  for (int i = 0; i < lines; ++i) layout.lineAt(i).setPosition(QPointF(0.0, top + i * pitch));
  layout.draw(&painter, box.topLeft());
}

}  // namespace toolkit::qt
