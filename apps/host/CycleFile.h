#pragma once

#include <QString>
#include <optional>

#include "DocumentCheck.h"
#include "Problem.h"

namespace mavCycEd::host {

/// A document as it was read, or why it could not be.
struct ReadDocument {
  QString text;  ///< decoded, without byte order mark
  bool isMacro = false;
  std::optional<Problem> problem;
};

/// Larger files are not opened.
inline constexpr qint64 largestFile = qint64{256} * 1024 * 1024;

/// Reads a catalogue, a configuration or a cycle, and makes sure that the editor can use it.
ReadDocument readDocument(const QString& path, DocumentKind kind);

/// Writes a file as a whole or not at all: what was there before stays until everything new is on the disk.
std::optional<Problem> saveFile(const QString& path, const QByteArray& bytes);

/// Writes a cycle as UTF-8.
std::optional<Problem> saveCycle(const QString& path, const QString& cycle);

}  // namespace mavCycEd::host
