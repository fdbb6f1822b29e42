#pragma once

#include <QLineEdit>

#include "kit/TypedLine.h"

/// What happens to a line edit while its user types: the cursor stays where the typing goes on.
namespace mavCycEd::qt {

kit::TypedLine lineIn(const QLineEdit& edit);
void writeLine(QLineEdit& edit, const kit::TypedLine& line);

/// Puts what a paste brought along of line ends and tabs onto one line. Gives the text that the line then has.
QString keepOnOneLine(QLineEdit& edit);

}  // namespace mavCycEd::qt
