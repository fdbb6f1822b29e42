// Saves two cycles over each other, time and again, until it is killed.
#include <QFile>
#include <cstdio>

#include "CycleFile.h"

int main(int argc, char** argv) {
  if (argc != 4) return 1;
  const QString target = QFile::decodeName(argv[1]);
  QByteArray contents[2];
  for (int i = 0; i < 2; ++i) {
    QFile file(QFile::decodeName(argv[2 + i]));
    if (!file.open(QIODevice::ReadOnly)) return 1;
    contents[i] = file.readAll();
  }
  std::puts("saving");
  std::fflush(stdout);
  for (int i = 0;; i = 1 - i) {
    if (mavCycEd::host::saveFile(target, contents[i])) return 2;
  }
}
