#pragma once

#include <QString>
#include <QStringList>

namespace mavCycEd::host {

/// The content of a file that opens as a macro text, from what the editor writes as one.
QString macroFileOf(const QString& macroText);

/// What a macro text does not carry of a cycle document that the editor handed back, as sentences; empty when a cycle
/// that was written as a macro text comes back whole.
QStringList lostInMacroText(const QString& document);

}  // namespace mavCycEd::host
