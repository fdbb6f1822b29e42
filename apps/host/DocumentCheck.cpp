#include "DocumentCheck.h"

#include <QXmlStreamReader>
#include <algorithm>

namespace mavCycEd::host {
namespace {

constexpr QLatin1String macroHeader("[PMA]");

QLatin1String rootOf(DocumentKind kind) {
  switch (kind) {
    case DocumentKind::Catalogue: return QLatin1String("LATESTKAM");
    case DocumentKind::Configuration: return QLatin1String("Config");
    case DocumentKind::Cycle: break;
  }
  return QLatin1String("CYCLE");
}

QString place(qint64 line, qint64 column) { return QStringLiteral("Line %1, column %2: ").arg(line).arg(column); }

/// The first character that XML cannot hold, as a sentence; the stream reader lets some of them pass.
QString forbiddenCharacter(const QString& text) {
  qint64 line = 1;
  qsizetype lineStart = 0;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar unit = text[i];
    if (unit == u'\n') {
      ++line;
      lineStart = i + 1;
      continue;
    }
    if (unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
      ++i;
      continue;
    }
    const bool isControl = unit < u' ' && unit != u'\t' && unit != u'\r';
    if (!isControl && !unit.isSurrogate() && unit < QChar(0xFFFE)) continue;
    return place(line, i - lineStart + 1) +
           QStringLiteral("the character with the code %1 is not allowed in XML.").arg(unit.unicode());
  }
  return {};
}

/// The document as far as it is looked at here.
struct Outline {
  QString root;
  bool hasVariables = false;  ///< a VARIABLES element directly in the root
  QString problem;            ///< why the text is no document that the editor reads
};

Outline outlineOf(const QString& text) {
  Outline outline;
  QXmlStreamReader reader(text);
  for (int depth = 0; !reader.atEnd();) {
    const QXmlStreamReader::TokenType token = reader.readNext();
    if (token == QXmlStreamReader::DTD) {
      outline.problem =
          QStringLiteral("Line %1: a document type declaration (DOCTYPE) is not accepted.").arg(reader.lineNumber());
      return outline;
    }
    if (token == QXmlStreamReader::StartElement) {
      if (depth == 0) outline.root = reader.qualifiedName().toString();
      if (depth == 1 && reader.qualifiedName() == QLatin1String("VARIABLES")) outline.hasVariables = true;
      ++depth;
    } else if (token == QXmlStreamReader::EndElement) {
      --depth;
    }
  }
  if (reader.hasError()) {
    QString message = reader.errorString().trimmed();
    if (!message.endsWith(u'.')) message += u'.';
    outline.problem = place(reader.lineNumber(), reader.columnNumber() + 1) + message;
  }
  return outline;
}

QString otherRoot(const QString& root, DocumentKind kind) {
  const QString message =
      QStringLiteral("The outermost element of a %1 is %2, but here it is %3.").arg(nameOf(kind), rootOf(kind), root);
  for (const DocumentKind other : {DocumentKind::Catalogue, DocumentKind::Configuration, DocumentKind::Cycle}) {
    if (root == rootOf(other)) return message + QStringLiteral(" This looks like a %1.").arg(nameOf(other));
  }
  return message;
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
  if (QString problem = forbiddenCharacter(text); !problem.isEmpty()) return problem;
  const Outline outline = outlineOf(text);
  if (!outline.problem.isEmpty()) return QStringLiteral("It is not well-formed XML. ") + outline.problem;
  if (outline.root != rootOf(kind)) return otherRoot(outline.root, kind);
  if (kind == DocumentKind::Cycle && !outline.hasVariables) {
    return QStringLiteral("It has no element VARIABLES, and the editor loads nothing from a cycle without one.");
  }
  return {};
}

}  // namespace mavCycEd::host
