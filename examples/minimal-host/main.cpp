// The least that a host does: hand the three texts over, show the editor, take the cycle back.
//   minimal-host CONFIGURATION CATALOGUE CYCLE

#include <mavCycEd/ctlCycEd.h>

#include <QApplication>
#include <QFile>
#include <QTextStream>

static QString contentOf(const QString& fileName) {
  QFile file(fileName);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList files = application.arguments().mid(1);
  QTextStream output(stdout);
  QTextStream errors(stderr);
  if (files.size() != 3) {
    errors << "Usage: minimal-host CONFIGURATION CATALOGUE CYCLE\n";
    return 1;
  }

  mavCycEd::ctlCycEd editor;
  QObject::connect(&editor, &mavCycEd::ctlCycEd::CycleEditorError, [&errors](int lngError, const QString& strError) {
    errors << lngError << ": " << strError << Qt::endl;
  });
  editor.SetConfigXML(contentOf(files[0]));
  editor.SetXMLStrings(contentOf(files[1]), contentOf(files[2]));
  editor.resize(900, 600);
  editor.show();
  const int result = application.exec();

  if (editor.CycleChanged()) output << editor.RetrieveCycle();
  return result;
}
