#pragma once

#include <QLineEdit>

/// What happens to a line edit while its user types: the cursor stays where the typing goes on.
namespace mavCycEd::qt {

/// Puts what a paste brought along of line ends and tabs onto one line. Gives the text that the line then has.
QString keepOnOneLine(QLineEdit& line);

/// Writes the text without the characters that have to go; any other text leaves the cursor at its end.
void writeBehindTyping(QLineEdit& line, const QString& text);

}  // namespace mavCycEd::qt
