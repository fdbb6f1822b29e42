#include "MacroExport.h"

#include <cstddef>
#include <vector>

#include "mavCycEd/CycleReading.h"
#include "mavCycEd/MacroLosses.h"

namespace mavCycEd::host {
namespace {

/// The first of some atom lines, by their numbers and names.
QString named(const std::vector<std::size_t>& lines, const Cycle& cycle) {
  constexpr std::size_t mostNamed = 3;
  QStringList names;
  for (const std::size_t line : lines) {
    if (names.size() == mostNamed) break;
    names << QStringLiteral("%1 %2").arg(line + 1).arg(QString::fromStdString(cycle.lines[line].name));
  }
  if (lines.size() <= mostNamed) return names.join(QStringLiteral(", "));
  return names.join(QStringLiteral(", ")) + QStringLiteral(" and %1 more").arg(lines.size() - mostNamed);
}

QString named(const std::vector<std::size_t>& variables, const std::vector<VariableDefinition>& all) {
  QStringList names;
  for (const std::size_t variable : variables) names << QString::fromStdString(all[variable].text());
  return names.join(QStringLiteral(", "));
}

}  // namespace

QString macroFileOf(const QString& macroText) { return QStringLiteral("[PMA]\r\n") + macroText; }

QStringList lostInMacroText(const QString& document) {
  const Reading<ReadCycle> reading = readCycleDocument(document.toStdString());
  if (!reading.value) return {};
  const Cycle& cycle = reading.value->cycle;
  const MacroLosses losses = mavCycEd::lostInMacroText(cycle);
  QStringList sentences;
  const auto tell = [&sentences](const QString& sentence, const QString& which) {
    if (!which.isEmpty()) sentences << sentence.arg(which);
  };
  if (losses.description) {
    sentences << QStringLiteral("Only the first line of the description stays a description.");
  }
  tell(QStringLiteral("An atom line with one parameter loses its value: %1."), named(losses.droppedValues, cycle));
  tell(QStringLiteral("An atom line whose name is not made of A to Z and _ becomes a variable: %1."),
       named(losses.noCalls, cycle));
  tell(QStringLiteral("A value with a comma or a line end is torn apart: %1."), named(losses.tornValues, cycle));
  tell(QStringLiteral("A variable that reads like another kind of line becomes one: %1."),
       named(losses.otherVariables, cycle.variables));
  return sentences;
}

}  // namespace mavCycEd::host
