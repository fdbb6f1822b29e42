#include <gtest/gtest.h>

#include <QApplication>
#include <iostream>

namespace {

// What the offscreen platform cannot do is of no interest here.
void writeMessage(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (!text.startsWith(QLatin1String("This plugin does not support"))) std::cerr << text.toStdString() << '\n';
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(writeMessage);
  const QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
