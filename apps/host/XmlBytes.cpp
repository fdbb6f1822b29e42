#include "XmlBytes.h"

#include <QRegularExpression>
#include <QStringDecoder>
#include <optional>

namespace mavCycEd::host {
namespace {

constexpr qsizetype declarationSize = 200;

/// The encoding that the XML declaration names; empty for none.
QByteArray declaredEncoding(const QByteArray& bytes) {
  static const QRegularExpression declaration(
      QStringLiteral("^<\\?xml\\s[^>]*?\\bencoding\\s*=\\s*[\"']([A-Za-z][A-Za-z0-9._\\-]*)[\"']"));
  return declaration.match(QString::fromLatin1(bytes.left(declarationSize))).captured(1).toLatin1();
}

bool isOfWideUnits(const QByteArray& encodingName) {
  const QByteArray name = encodingName.toUpper();
  return name.startsWith("UTF-16") || name.startsWith("UTF-32") || name.startsWith("ISO-10646-UCS") ||
         name == "UNICODE";
}

/// The first line that does not decode, counted from 1. It looks at single lines, so it is for encodings in which a
/// line feed is one byte.
qsizetype firstBadLine(const QByteArray& bytes, const QByteArray& encodingName) {
  qsizetype line = 1;
  for (qsizetype start = 0; start < bytes.size(); ++line) {
    qsizetype end = bytes.indexOf('\n', start);
    if (end < 0) end = bytes.size();
    QStringDecoder decoder(encodingName.constData(), QStringConverter::Flag::Stateless);
    const QString text = decoder.decode(QByteArrayView(bytes).sliced(start, end - start));
    if (decoder.hasError()) break;
    start = end + 1;
  }
  return line;
}

DecodedText decodeNamed(const QByteArray& encodingName, bool declared, const QByteArray& bytes) {
  const QString name = QString::fromLatin1(encodingName);
  QStringDecoder decoder(encodingName.constData(), QStringConverter::Flag::Stateless);
  if (!decoder.isValid()) return {{}, QStringLiteral("It is in the encoding %1, which is not known here.").arg(name)};
  DecodedText decoded{decoder.decode(bytes), {}};
  if (!decoder.hasError()) return decoded;
  const QString reason = declared ? QStringLiteral("It says that it is in the encoding %1, but line %2 is not.")
                                  : QStringLiteral("It names no encoding, and as %1 its line %2 cannot be read.");
  return {{}, reason.arg(name).arg(firstBadLine(bytes, encodingName))};
}

}  // namespace

DecodedText decodeXmlBytes(const QByteArray& bytes) {
  const std::optional<QStringConverter::Encoding> detected = QStringConverter::encodingForData(bytes, u'<');
  if (detected && *detected != QStringConverter::Utf8) {
    // The decoders of wide units know no errors: what is no character shows as half a surrogate pair in the text.
    QStringDecoder decoder(*detected, QStringConverter::Flag::Stateless);
    return {decoder.decode(bytes), {}};
  }
  const QByteArray declared = detected ? QByteArray() : declaredEncoding(bytes);
  if (declared.isEmpty() || isOfWideUnits(declared)) return decodeNamed("UTF-8", false, bytes);
  return decodeNamed(declared, true, bytes);
}

}  // namespace mavCycEd::host
