#include "MacroExport.h"

#include <QXmlStreamReader>
#include <algorithm>

namespace mavCycEd::host {
namespace {

/// A cycle document, as far as a macro text has to carry it.
struct Cycle {
  struct AtomLine {
    QString name;
    QStringList values;
  };
  QString description;
  QStringList variables;
  QList<AtomLine> lines;
};

Cycle readCycle(const QString& document) {
  Cycle cycle;
  QXmlStreamReader reader(document);
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    const QStringView element = reader.name();
    if (element == QLatin1String("DESCRIPTION")) {
      cycle.description = reader.readElementText();
    } else if (element == QLatin1String("VALUE")) {
      cycle.variables << reader.readElementText();
    } else if (element == QLatin1String("ATOMNAME")) {
      cycle.lines << Cycle::AtomLine{reader.readElementText(), {}};
    } else if (element == QLatin1String("PARAMVALUE") && !cycle.lines.isEmpty()) {
      cycle.lines.last().values << reader.readElementText();
    }
  }
  return cycle;
}

bool hasLineEnd(const QString& text) { return text.contains(u'\n') || text.contains(u'\r'); }

/// What macro texts take for the name in an atom call.
bool isCallName(const QString& name) {
  return name.size() > 1 && std::ranges::all_of(name, [](QChar c) { return (c >= u'A' && c <= u'Z') || c == u'_'; });
}

bool readsAsVariable(const QString& line) {
  const qsizetype open = line.indexOf(u'(');
  return !line.startsWith(QLatin1String("//")) && (open < 0 || !isCallName(line.left(open)));
}

/// The first atom lines that a property holds for, by their numbers and names; empty when it holds for none.
template <typename Property>
QString linesWith(const Cycle& cycle, Property property) {
  constexpr qsizetype mostNamed = 3;
  QStringList names;
  for (qsizetype i = 0; i < cycle.lines.size(); ++i) {
    if (property(cycle.lines[i])) names << QStringLiteral("%1 %2").arg(i + 1).arg(cycle.lines[i].name);
  }
  const qsizetype more = names.size() - mostNamed;
  if (more <= 0) return names.join(QStringLiteral(", "));
  return names.first(mostNamed).join(QStringLiteral(", ")) + QStringLiteral(" and %1 more").arg(more);
}

}  // namespace

QString macroFileOf(const QString& macroText) { return QStringLiteral("[PMA]\r\n") + macroText; }

QStringList lostInMacroText(const QString& document) {
  const Cycle cycle = readCycle(document);
  QStringList losses;
  const auto tell = [&losses](const QString& sentence, const QString& which) {
    if (!which.isEmpty()) losses << sentence.arg(which);
  };
  const QString description = cycle.description.trimmed();
  if (hasLineEnd(description)) {
    losses << QStringLiteral("Only the first line of the description stays a description.");
  }
  tell(QStringLiteral("An atom line with one parameter loses its value: %1."),
       linesWith(cycle, [](const auto& line) { return line.values.size() == 1 && !line.values.front().isEmpty(); }));
  tell(QStringLiteral("An atom line whose name is not made of A to Z and _ becomes a variable: %1."),
       linesWith(cycle, [](const auto& line) { return !isCallName(line.name); }));
  tell(QStringLiteral("A value with a comma or a line end is torn apart: %1."), linesWith(cycle, [](const auto& line) {
         return line.values.size() > 1 && std::ranges::any_of(line.values, [](const QString& value) {
                  return value.contains(u',') || hasLineEnd(value);
                });
       }));
  QStringList others = cycle.variables;
  others.removeIf(readsAsVariable);
  tell(QStringLiteral("A variable that reads like another kind of line becomes one: %1."),
       others.join(QStringLiteral(", ")));
  return losses;
}

}  // namespace mavCycEd::host
