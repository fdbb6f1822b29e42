#pragma once

#include <QString>
#include <ostream>

/// Lets failed comparisons show a text as a text; GoogleTest finds it beside QString.
inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }
