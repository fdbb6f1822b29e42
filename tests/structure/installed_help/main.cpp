// A host of the installed package that opens the help. It prints the page: that must not need anything but the library.

#include <mavCycEd/ctlCycEd.h>

#include <QApplication>
#include <QTextBrowser>
#include <iostream>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  mavCycEd::ctlCycEd editor;
  editor.ShowHelp();
  const auto* const page = editor.findChild<QTextBrowser*>();
  if (page == nullptr) return 1;
  std::cout << page->toPlainText().toStdString() << '\n';
  return 0;
}
