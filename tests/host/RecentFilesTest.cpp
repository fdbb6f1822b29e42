#include "RecentFiles.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "QtPrinting.h"

namespace mavCycEd::host {
namespace {

TEST(RecentFilesTest, TheNewestStandsInFrontAndOnlyOnce) {
  const QTemporaryDir folder;
  QSettings settings(folder.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
  RecentFiles recent(settings, QStringLiteral("list"));
  EXPECT_TRUE(recent.files().isEmpty());
  recent.add(QStringLiteral("/a/1.xml"));
  recent.add(QStringLiteral("/a/2.xml"));
  recent.add(QStringLiteral("/a/1.xml"));
  EXPECT_EQ(recent.files(), (QStringList{QStringLiteral("/a/1.xml"), QStringLiteral("/a/2.xml")}));
  recent.remove(QStringLiteral("/a/1.xml"));
  EXPECT_EQ(recent.files(), QStringList{QStringLiteral("/a/2.xml")});
  recent.clear();
  EXPECT_TRUE(recent.files().isEmpty());
}

TEST(RecentFilesTest, TheOldestAreForgottenAndTheRestIsKept) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("s.ini"));
  {
    QSettings settings(file, QSettings::IniFormat);
    RecentFiles recent(settings, QStringLiteral("list"));
    for (int i = 0; i < 20; ++i) recent.add(QStringLiteral("/a/%1.xml").arg(i));
  }
  QSettings settings(file, QSettings::IniFormat);
  const QStringList files = RecentFiles(settings, QStringLiteral("list")).files();
  EXPECT_EQ(files.size(), RecentFiles::most);
  EXPECT_EQ(files.constFirst(), QStringLiteral("/a/19.xml"));
}

TEST(RecentFilesTest, MenuTextsAreShortButDiffer) {
  const QStringList files{QStringLiteral("/a/x.xml"), QStringLiteral("/b/x.xml"), QStringLiteral("/b/R&D.xml")};
  EXPECT_EQ(menuText(files[0], files), QStringLiteral("x.xml (/a)"));
  EXPECT_EQ(menuText(files[1], files), QStringLiteral("x.xml (/b)"));
  EXPECT_EQ(menuText(files[2], files), QStringLiteral("R&&D.xml"));
}

}  // namespace
}  // namespace mavCycEd::host
