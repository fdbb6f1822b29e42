#include "qt/Fonts.h"

#include <QFont>
#include <algorithm>

#include "qt/Text.h"

namespace mavCycEd::qt {

platform::Font fontOf(const QWidget& widget) {
  const QFont& font = widget.font();
  return {fromQt(font.family()), std::max(font.pointSizeF(), 0.0)};
}

void setFontOf(QWidget& widget, const platform::Font& font) {
  QFont wanted = widget.font();
  if (!font.faceName.empty()) wanted.setFamily(toQt(font.faceName));
  if (font.pointSize > 0) wanted.setPointSizeF(font.pointSize);
  if (wanted != widget.font()) widget.setFont(wanted);
}

}  // namespace mavCycEd::qt
