#include "DocumentCheck.h"

#include <array>
#include <optional>
#include <string>

#include "mavCycEd/Catalogue.h"
#include "mavCycEd/Configuration.h"
#include "mavCycEd/CycleReading.h"

namespace mavCycEd::host {
namespace {

constexpr QLatin1String macroHeader("[PMA]");

/// The text in UTF-8. The first half of a surrogate pair that stands alone is encoded by itself, so that it is found.
std::string utf8Of(const QString& text) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar unit = text[i];
    if (!unit.isSurrogate()) continue;
    if (unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
      ++i;
      continue;
    }
    const unsigned code = unit.unicode();
    const std::array half{static_cast<char>(0xED), static_cast<char>(0x80U | (code >> 6U & 0x3FU)),
                          static_cast<char>(0x80U | (code & 0x3FU))};
    return text.left(i).toStdString().append(half.data(), half.size()).append(text.mid(i + 1).toStdString());
  }
  return text.toStdString();
}

/// Why nothing could be read; nothing where something was.
template <typename Thing>
std::optional<TextFault> reasonIn(const Reading<Thing>& reading) {
  if (reading.value || reading.faults.empty()) return std::nullopt;
  return reading.faults.front();
}

std::optional<TextFault> faultIn(const std::string& text, DocumentKind kind) {
  switch (kind) {
    case DocumentKind::Catalogue: return reasonIn(mavCycEd::Catalogue::read(text));
    case DocumentKind::Configuration: return reasonIn(mavCycEd::Configuration::read(text));
    case DocumentKind::Cycle: break;
  }
  return reasonIn(readCycleDocument(text));
}

/// The fault with its place, as a sentence.
QString placed(const TextFault& fault) {
  const QString message = QString::fromStdString(fault.message);
  return QStringLiteral("Line %1, column %2: ").arg(fault.line).arg(fault.column) + message.left(1).toLower() +
         message.mid(1);
}

}  // namespace

QString nameOf(DocumentKind kind) {
  switch (kind) {
    case DocumentKind::Catalogue: return QStringLiteral("catalogue");
    case DocumentKind::Configuration: return QStringLiteral("configuration");
    case DocumentKind::Cycle: break;
  }
  return QStringLiteral("cycle");
}

bool isMacroText(const QString& text) {
  if (!text.startsWith(macroHeader)) return false;
  return text.size() > macroHeader.size() && (text[macroHeader.size()] == u'\r' || text[macroHeader.size()] == u'\n');
}

QString unusableBecause(const QString& text, DocumentKind kind) {
  if (text.trimmed().isEmpty()) return QStringLiteral("It is empty.");
  if (kind == DocumentKind::Cycle && isMacroText(text)) return {};
  const std::optional<TextFault> fault = faultIn(utf8Of(text), kind);
  if (!fault) return {};
  switch (fault->kind) {
    case TextFault::Kind::ForbiddenCharacter: return placed(*fault);
    case TextFault::Kind::OtherRoot:
    case TextFault::Kind::MissingElement: return QString::fromStdString(fault->message);
    default: return QStringLiteral("It is not well-formed XML. ") + placed(*fault);
  }
}

}  // namespace mavCycEd::host
