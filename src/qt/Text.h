#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace mavCycEd::qt {

/// A text of the editor (UTF-8) for a widget.
inline QString toQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A widget's text for the editor (UTF-8).
inline std::string fromQt(const QString& text) { return text.toStdString(); }

/// A text for a widget that takes "&" for the mark of an access key, where the text means the character itself.
inline QString withoutAccessKey(std::string_view text) {
  return toQt(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace mavCycEd::qt
