#pragma once

#include <QString>

namespace mavCycEd::host {

/// What a file is opened as.
enum class DocumentKind { Catalogue, Configuration, Cycle };

/// "catalogue", "configuration" or "cycle".
QString nameOf(DocumentKind kind);

/// Whether a text is a cycle in macro form: its first line is "[PMA]".
bool isMacroText(const QString& text);

/// Why the editor could not use a text as such a document, as sentences; empty when it can. The editor itself takes
/// what it cannot use for nothing, without a word.
QString unusableBecause(const QString& text, DocumentKind kind);

}  // namespace mavCycEd::host
