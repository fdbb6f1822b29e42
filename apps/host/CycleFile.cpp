#include "CycleFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSaveFile>

#include "XmlBytes.h"

namespace mavCycEd::host {
namespace {

QString sentence(QString text) {
  text = text.trimmed();
  if (!text.isEmpty() && !text.endsWith(u'.')) text += u'.';
  return text;
}

QString shown(const QString& path) { return QDir::toNativeSeparators(path); }

ReadDocument failure(const QString& path, DocumentKind kind, const QString& why, const QString& advice) {
  ReadDocument document;
  const QString what = QStringLiteral("The %1 \"%2\" could not be opened.").arg(nameOf(kind), shown(path));
  document.problem = Problem{what, sentence(why), advice};
  return document;
}

Problem saveFailure(const QString& path, const QString& why) {
  const QFileInfo info(path);
  QString advice = QStringLiteral("Save it in another folder or under another name.");
  if (info.isFile()) advice += QStringLiteral(" The file is still what it was before.");
  return {QStringLiteral("\"%1\" could not be written.").arg(shown(path)), sentence(why), advice};
}

/// Why there can be no file at this path, in words that say more than the system's.
QString unwritableBecause(const QString& path) {
  const QFileInfo info(path);
  if (path.isEmpty()) return QStringLiteral("It has no name.");
  if (info.isDir()) return QStringLiteral("It is a folder.");
  // A file is replaced as a whole, and a device must not be.
  if (info.exists() && !info.isFile()) return QStringLiteral("It is a device, not a file.");
  if (!info.dir().exists()) {
    return QStringLiteral("There is no folder \"%1\".").arg(shown(info.absolutePath()));
  }
  if (info.exists() && !info.isWritable()) return QStringLiteral("The file may not be changed (it is read-only).");
  return {};
}

}  // namespace

ReadDocument readDocument(const QString& path, DocumentKind kind) {
  const QFileInfo info(path);
  if (!info.exists()) {
    return failure(path, kind, QStringLiteral("There is no such file."),
                   QStringLiteral("Check its name, and whether it was moved or its drive is connected."));
  }
  if (!info.isFile()) {
    return failure(path, kind, QStringLiteral("It is a folder or a device, not a file."),
                   QStringLiteral("Choose a file."));
  }
  if (info.size() > largestFile) {
    const QLocale english(QLocale::English);
    return failure(path, kind,
                   QStringLiteral("It is too large: it has %1, and %2 is the most.")
                       .arg(english.formattedDataSize(info.size()), english.formattedDataSize(largestFile)),
                   QStringLiteral("Check whether it is the right file."));
  }
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return failure(path, kind, file.errorString(), QStringLiteral("Check whether you may read it."));
  }
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) {
    return failure(path, kind, file.errorString(), QStringLiteral("Check the drive, and try again."));
  }

  DecodedText decoded = decodeXmlBytes(bytes);
  if (!decoded.problem.isEmpty()) {
    return failure(path, kind, decoded.problem, QStringLiteral("Save it as UTF-8 with the program that made it."));
  }
  if (const QString why = unusableBecause(decoded.text, kind); !why.isEmpty()) {
    return failure(path, kind, why, QStringLiteral("Choose another file, or mend this one with a text editor."));
  }
  ReadDocument document;
  document.isMacro = kind == DocumentKind::Cycle && isMacroText(decoded.text);
  document.text = std::move(decoded.text);
  // The editor knows macro texts with CR LF only; files that were carried from system to system may have lost the CR.
  if (document.isMacro && !document.text.contains(QLatin1String("\r\n"))) {
    document.text.replace(u'\r', u'\n').replace(QLatin1String("\n"), QLatin1String("\r\n"));
  }
  return document;
}

std::optional<Problem> saveFile(const QString& path, const QByteArray& bytes) {
  if (const QString why = unwritableBecause(path); !why.isEmpty()) return saveFailure(path, why);
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) {
    return saveFailure(path, QStringLiteral("No file can be made there: ") + file.errorString());
  }
  if (file.write(bytes) != bytes.size()) {
    return saveFailure(path, QStringLiteral("Not all of it could be written. The drive may be full."));
  }
  if (!file.commit()) return saveFailure(path, file.errorString());
  return std::nullopt;
}

std::optional<Problem> saveCycle(const QString& path, const QString& cycle) { return saveFile(path, cycle.toUtf8()); }

}  // namespace mavCycEd::host
