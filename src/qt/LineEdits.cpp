#include "qt/LineEdits.h"

#include "qt/Text.h"

namespace mavCycEd::qt {

kit::TypedLine lineIn(const QLineEdit& edit) {
  const QString text = edit.text();
  return {fromQt(text), fromQt(text.left(edit.cursorPosition())).size()};
}

void writeLine(QLineEdit& edit, const kit::TypedLine& line) {
  edit.setText(toQt(line.text));
  edit.setCursorPosition(static_cast<int>(toQt(std::string_view(line.text).substr(0, line.cursor)).size()));
}

QString keepOnOneLine(QLineEdit& edit) {
  const kit::TypedLine typed = lineIn(edit);
  const kit::TypedLine line = kit::onOneLine(typed);
  if (line != typed) writeLine(edit, line);
  return toQt(line.text);
}

}  // namespace mavCycEd::qt
