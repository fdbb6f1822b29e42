#pragma once

#include <QString>
#include <QStringConverter>
#include <cstddef>
#include <string>
#include <string_view>

namespace mavCycEd::qt {

/// A text of the editor (UTF-8) for a widget: every character of it, also a U+FEFF at its beginning, which is no mark
/// of an encoding here. fromQt() gives the same text back, where its bytes are characters.
inline QString toQt(std::string_view text) {
  using Flag = QStringConverter::Flag;
  QStringDecoder decode(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
  return decode(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
}

/// As much of a text as a line on the screen is good for: measuring more takes time and shows nobody anything.
inline QString toQtLine(std::string_view text) {
  constexpr qsizetype mostCharacters = 10'000;
  constexpr std::size_t mostBytes = 4;  // of a character
  QString line = toQt(text.substr(0, mostBytes * mostCharacters));
  if (line.size() > mostCharacters) line = line.left(mostCharacters) + QChar(0x2026);
  return line;
}

/// A widget's text for the editor (UTF-8).
inline std::string fromQt(const QString& text) { return text.toStdString(); }

/// A text for a widget that takes "&" for the mark of an access key, where the text means the character itself.
inline QString withoutAccessKey(std::string_view text) {
  return toQtLine(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace mavCycEd::qt
