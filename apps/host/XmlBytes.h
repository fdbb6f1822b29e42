#pragma once

#include <QByteArray>
#include <QString>

namespace mavCycEd::host {

/// The text of a file, or why there is none.
struct DecodedText {
  QString text;
  QString problem;  ///< empty: the text is complete
};

/// Decodes a file: by its byte order mark, else by the encoding that its XML declaration names, else as UTF-8. A
/// declaration that names an encoding which the bytes around it cannot be in (UTF-16 in a file of single bytes) is
/// not believed. Bytes that make no character are a problem; in UTF-16 and UTF-32 they come as halves of surrogate
/// pairs.
DecodedText decodeXmlBytes(const QByteArray& bytes);

}  // namespace mavCycEd::host
