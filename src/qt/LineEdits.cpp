#include "qt/LineEdits.h"

#include "qt/Text.h"
#include "text/LineEnds.h"

namespace mavCycEd::qt {
namespace {

QString onOneLine(const QString& text) { return toQt(text::onOneLine(fromQt(text))); }

void write(QLineEdit& line, const QString& text, qsizetype cursor) {
  line.setText(text);
  line.setCursorPosition(static_cast<int>(cursor));
}

// How much of `text` stands before a position of `before`, when `text` is what is left of it; otherwise all of it.
qsizetype keptBefore(qsizetype position, const QString& before, const QString& text) {
  qsizetype kept = 0;
  qsizetype keptAtPosition = 0;
  for (qsizetype i = 0; i < before.size(); ++i) {
    if (i == position) keptAtPosition = kept;
    if (kept < text.size() && before[i] == text[kept]) ++kept;
  }
  return position >= before.size() || kept < text.size() ? text.size() : keptAtPosition;
}

}  // namespace

QString keepOnOneLine(QLineEdit& line) {
  const QString typed = line.text();
  QString text = onOneLine(typed);
  if (text != typed) write(line, text, onOneLine(typed.left(line.cursorPosition())).size());
  return text;
}

void writeBehindTyping(QLineEdit& line, const QString& text) {
  write(line, text, keptBefore(line.cursorPosition(), line.text(), text));
}

}  // namespace mavCycEd::qt
