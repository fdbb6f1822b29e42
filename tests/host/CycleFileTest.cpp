#include "CycleFile.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <csignal>

#include "QtPrinting.h"

namespace mavCycEd::host {
namespace {

class CycleFileTest : public testing::Test {
 protected:
  QString at(const char* name) const { return folder_.filePath(QString::fromUtf8(name)); }
  QString write(const char* name, const QByteArray& bytes) const {
    QFile file(at(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
  }
  static QByteArray read(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
  }
  QStringList names() const { return QDir(folder_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }

 private:
  QTemporaryDir folder_;
};

// For the superuser, who may read and write everywhere, "nobody" takes over together with the folder.
class WithoutSuperuser {
 public:
  explicit WithoutSuperuser(const QString& folder) : superuser_(::geteuid() == 0) {
    if (!superuser_) return;
    const QFileInfoList entries = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden);
    for (const QFileInfo& entry : entries) give(entry.filePath());
    give(folder);
    EXPECT_EQ(::setresuid(nobody, nobody, superuser), 0);
  }
  ~WithoutSuperuser() {
    if (!superuser_) return;
    EXPECT_EQ(::setresuid(superuser, superuser, superuser), 0);
  }
  WithoutSuperuser(const WithoutSuperuser&) = delete;
  WithoutSuperuser& operator=(const WithoutSuperuser&) = delete;

 private:
  static constexpr uid_t superuser = 0;
  static constexpr uid_t nobody = 65534;
  static void give(const QString& path) {
    EXPECT_EQ(::chown(QFile::encodeName(path).constData(), nobody, gid_t(-1)), 0);
  }

  bool superuser_;
};

QString cycleWith(const QString& description) {
  return QStringLiteral("<CYCLE><DESCRIPTION>//%1</DESCRIPTION><VARIABLES/><VERSION>03</VERSION></CYCLE>")
      .arg(description);
}

std::string whyOf(const ReadDocument& document) {
  return document.problem ? document.problem->why.toStdString() : "no problem";
}

TEST_F(CycleFileTest, ReadsUtf8WithAndWithoutByteOrderMark) {
  const QString cycle = cycleWith(QStringLiteral("Größe µl °C – 試料 🧪"));
  for (const char* mark : {"", "\xEF\xBB\xBF"}) {
    const ReadDocument document = readDocument(write("c.xml", mark + cycle.toUtf8()), DocumentKind::Cycle);
    EXPECT_FALSE(document.problem) << whyOf(document);
    EXPECT_EQ(document.text, cycle);
  }
}

TEST_F(CycleFileTest, ReadsUtf16WithAndWithoutByteOrderMark) {
  const QString cycle = cycleWith(QStringLiteral("Größe µl 🧪"));
  for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE, QStringConverter::Utf32LE}) {
    for (const auto flag : {QStringConverter::Flag::Default, QStringConverter::Flag::WriteBom}) {
      QStringEncoder encoder(encoding, flag);
      const QByteArray bytes = encoder.encode(cycle);
      const ReadDocument document = readDocument(write("c.xml", bytes), DocumentKind::Cycle);
      EXPECT_FALSE(document.problem) << whyOf(document);
      EXPECT_EQ(document.text, cycle) << encoding;
    }
  }
}

TEST_F(CycleFileTest, ReadsTheEncodingThatTheDeclarationNames) {
  const QByteArray body =
      "<CYCLE><DESCRIPTION>//Gr\xF6\xDF"
      "e \xB5l</DESCRIPTION><VARIABLES/></CYCLE>";
  for (const QByteArray name : {"ISO-8859-1", "iso-8859-1", "windows-1252"}) {
    const QByteArray bytes = "<?xml version=\"1.0\" encoding='" + name + "' standalone='yes'?>\n" + body;
    const ReadDocument document = readDocument(write("c.xml", bytes), DocumentKind::Cycle);
    EXPECT_FALSE(document.problem) << whyOf(document);
    EXPECT_TRUE(document.text.contains(QStringLiteral("//Größe µl<"))) << document.text.toStdString();
  }
}

TEST_F(CycleFileTest, ADeclarationThatCannotBeTrueIsNotBelieved) {
  const QString cycle = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-16\"?>") + cycleWith(QStringLiteral("µ"));
  const ReadDocument document = readDocument(write("c.xml", cycle.toUtf8()), DocumentKind::Cycle);
  EXPECT_FALSE(document.problem) << whyOf(document);
  EXPECT_EQ(document.text, cycle);
}

TEST_F(CycleFileTest, BytesThatAreNoTextAreTold) {
  const ReadDocument undeclared = readDocument(write("c.xml",
                                                     "<CYCLE>\n<DESCRIPTION>//Gr\xF6\xDF"
                                                     "e</DESCRIPTION></CYCLE>"),
                                               DocumentKind::Cycle);
  EXPECT_EQ(whyOf(undeclared), "It names no encoding, and as UTF-8 its line 2 cannot be read.");
  const ReadDocument declared = readDocument(
      write("c.xml", "<?xml version='1.0' encoding='utf-8'?>\n\n<CYCLE>\xC3</CYCLE>"), DocumentKind::Cycle);
  EXPECT_EQ(whyOf(declared), "It says that it is in the encoding utf-8, but line 3 is not.");
  const ReadDocument cutOff = readDocument(write("c.xml", "<CYCLE/>\n\xC3"), DocumentKind::Cycle);
  EXPECT_EQ(whyOf(cutOff), "It names no encoding, and as UTF-8 its line 2 cannot be read.");
  const ReadDocument lone = readDocument(write("c.xml", QByteArray("\xFF\xFE<\0\x00\xD8<\0", 8)), DocumentKind::Cycle);
  EXPECT_EQ(whyOf(lone), "Line 1, column 2: the character with the code 55296 is not allowed in XML.");
  const ReadDocument unknown =
      readDocument(write("c.xml", "<?xml version='1.0' encoding='no-such-code'?><CYCLE/>"), DocumentKind::Cycle);
  EXPECT_EQ(whyOf(unknown), "It is in the encoding no-such-code, which is not known here.");
}

TEST_F(CycleFileTest, AFileThatCannotBeReadIsTold) {
  const ReadDocument missing = readDocument(at("missing.xml"), DocumentKind::Catalogue);
  ASSERT_TRUE(missing.problem);
  EXPECT_EQ(missing.problem->what, QStringLiteral("The catalogue \"%1\" could not be opened.").arg(at("missing.xml")));
  EXPECT_EQ(whyOf(missing), "There is no such file.");
  EXPECT_EQ(whyOf(readDocument(at("."), DocumentKind::Cycle)), "It is a folder or a device, not a file.");
  EXPECT_EQ(whyOf(readDocument(QStringLiteral("/dev/zero"), DocumentKind::Cycle)),
            "It is a folder or a device, not a file.");
  EXPECT_EQ(whyOf(readDocument(write("empty.xml", "\n "), DocumentKind::Configuration)), "It is empty.");

  QFile large(write("large.xml", ""));
  ASSERT_TRUE(large.resize(largestFile + 1));
  EXPECT_EQ(whyOf(readDocument(large.fileName(), DocumentKind::Cycle)),
            "It is too large: it has 256.00 MiB, and 256.00 MiB is the most.");
}

TEST_F(CycleFileTest, AFileThatMayNotBeReadIsTold) {
  const QString path = write("secret.xml", "<CYCLE/>");
  ASSERT_TRUE(QFile::setPermissions(path, {}));
  const WithoutSuperuser user(at("."));
  EXPECT_EQ(whyOf(readDocument(path, DocumentKind::Cycle)), "Permission denied.");
}

TEST_F(CycleFileTest, AMacroTextIsNoXml) {
  const ReadDocument macro = readDocument(write("m.txt", "[PMA]\r\n//a & b < c\r\n"), DocumentKind::Cycle);
  EXPECT_FALSE(macro.problem) << whyOf(macro);
  EXPECT_TRUE(macro.isMacro);
  EXPECT_EQ(macro.text, QStringLiteral("[PMA]\r\n//a & b < c\r\n"));
  EXPECT_EQ(whyOf(readDocument(write("m.txt", "[PMA]\r\n"), DocumentKind::Catalogue)).substr(0, 28),
            "It is not well-formed XML. L");
}

TEST_F(CycleFileTest, LineEndsOfAMacroTextAreMended) {
  for (const char* bytes : {"[PMA]\nWAIT(1)\n", "[PMA]\rWAIT(1)\r"}) {
    const ReadDocument macro = readDocument(write("m.txt", bytes), DocumentKind::Cycle);
    EXPECT_EQ(macro.text, QStringLiteral("[PMA]\r\nWAIT(1)\r\n"));
  }
  const ReadDocument mixed = readDocument(write("m.txt", "[PMA]\r\na\nb\r\n"), DocumentKind::Cycle);
  EXPECT_EQ(mixed.text, QStringLiteral("[PMA]\r\na\nb\r\n"));
}

TEST_F(CycleFileTest, SavesUtf8WithoutByteOrderMark) {
  const QString path = at("c.xml");
  const QString cycle = cycleWith(QStringLiteral("Größe 試料"));
  EXPECT_FALSE(saveCycle(path, cycle));
  EXPECT_EQ(read(path), cycle.toUtf8());
  EXPECT_FALSE(saveCycle(path, QStringLiteral("<CYCLE/>")));
  EXPECT_EQ(read(path), "<CYCLE/>");
  EXPECT_EQ(names(), QStringList{QStringLiteral("c.xml")}) << "nothing else is left behind";
}

TEST_F(CycleFileTest, SavingKeepsLinksAndPermissions) {
  const QString path = write("real.xml", "old");
  ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
  ASSERT_TRUE(QFile::link(path, at("link.xml")));
  EXPECT_FALSE(saveCycle(at("link.xml"), QStringLiteral("new")));
  EXPECT_EQ(read(path), "new");
  EXPECT_TRUE(QFileInfo(at("link.xml")).isSymLink());
  EXPECT_FALSE(QFile::permissions(path) & (QFile::ReadOther | QFile::ReadGroup));
}

TEST_F(CycleFileTest, WhatCannotBeWrittenIsTold) {
  const auto why = [](const QString& path) {
    const auto problem = saveCycle(path, QStringLiteral("<CYCLE/>"));
    return problem ? problem->why : QStringLiteral("no problem");
  };
  EXPECT_EQ(why({}), QStringLiteral("It has no name."));
  EXPECT_EQ(why(at(".")), QStringLiteral("It is a folder."));
  EXPECT_EQ(why(at("none/c.xml")), QStringLiteral("There is no folder \"%1\".").arg(at("none")));
}

TEST_F(CycleFileTest, WhatIsNoRegularFileIsNeverReplaced) {
  const QString pipe = at("pipe");
  ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  ASSERT_TRUE(QFile::link(pipe, at("link.xml")));
  for (const QString& path : {pipe, at("link.xml")}) {
    const auto problem = saveCycle(path, QStringLiteral("<CYCLE/>"));
    ASSERT_TRUE(problem);
    EXPECT_EQ(problem->why, QStringLiteral("It is a device, not a file."));
    EXPECT_EQ(whyOf(readDocument(path, DocumentKind::Cycle)), "It is a folder or a device, not a file.");
  }
  struct stat after {};
  ASSERT_EQ(::lstat(QFile::encodeName(pipe).constData(), &after), 0);
  EXPECT_TRUE(S_ISFIFO(after.st_mode));
}

// The disk is full after a few bytes: a limit on the size of files stands in for it.
TEST_F(CycleFileTest, AFullDiskIsToldAndTheFileIsStillTheOldOne) {
  const QString path = write("c.xml", "old");
  struct rlimit before {};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
  auto* const oldHandler = std::signal(SIGXFSZ, SIG_IGN);
  const struct rlimit small { 10, before.rlim_max };
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  const auto problem = saveCycle(path, QString(100000, u'x'));
  EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
  std::signal(SIGXFSZ, oldHandler);
  ASSERT_TRUE(problem);
  EXPECT_EQ(problem->why, QStringLiteral("Not all of it could be written. The drive may be full."));
  EXPECT_TRUE(problem->advice.endsWith(QStringLiteral("The file is still what it was before.")));
  EXPECT_EQ(read(path), "old");
  EXPECT_EQ(names(), QStringList{QStringLiteral("c.xml")}) << "nothing else is left behind";
}

TEST_F(CycleFileTest, AReadOnlyFileAndAReadOnlyFolderAreTold) {
  const QString path = write("c.xml", "old");
  const WithoutSuperuser user(at("."));
  ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner));
  const auto file = saveCycle(path, QStringLiteral("new"));
  ASSERT_TRUE(file);
  EXPECT_EQ(file->why, QStringLiteral("The file may not be changed (it is read-only)."));
  EXPECT_TRUE(file->advice.endsWith(QStringLiteral("The file is still what it was before.")));

  ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
  ASSERT_TRUE(QFile::setPermissions(at("."), QFile::ReadOwner | QFile::ExeOwner));
  const auto folder = saveCycle(path, QStringLiteral("new"));
  EXPECT_TRUE(QFile::setPermissions(at("."), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
  ASSERT_TRUE(folder);
  EXPECT_TRUE(folder->why.startsWith(QStringLiteral("No file can be made there: "))) << folder->why.toStdString();
  EXPECT_EQ(read(path), "old");
}

}  // namespace
}  // namespace mavCycEd::host
