#pragma once

#include <gtest/gtest.h>
#include <mavCycEd/ctlCycEd.h>

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <stdexcept>

#include "HostWindow.h"
#include "QtPrinting.h"

namespace mavCycEd::host {

/// Answers the next message box, and keeps what it said.
class Answer : public QObject {
 public:
  explicit Answer(QMessageBox::StandardButton button) {
    connect(&timer_, &QTimer::timeout, this, [this, button] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr || box->button(button) == nullptr) return;
      said_ << box->text() + u' ' + box->informativeText();
      timer_.stop();
      box->button(button)->click();
    });
    timer_.start(10);
  }
  QString said() const { return said_.join(u'\n'); }
  bool asked() const { return !said_.isEmpty(); }

 private:
  QTimer timer_;
  QStringList said_;
};

class HostWindowTest : public testing::Test {
 protected:
  HostWindowTest() {
    connectWatchdog();
    window_.show();
  }

  QString at(const char* name) const { return folder_.filePath(QString::fromUtf8(name)); }
  static QString sample(const char* name) { return QStringLiteral(SAMPLES "/") + QString::fromUtf8(name); }
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
  QString copyOfStandard() const {
    EXPECT_TRUE(QFile::copy(sample("cycle-standard.xml"), at("c.xml")));
    return at("c.xml");
  }
  void openInstrument() {
    EXPECT_FALSE(window_.openConfiguration(sample("configuration.xml")));
    EXPECT_FALSE(window_.openCatalogue(sample("catalogue.xml")));
  }

  template <typename Widget>
  Widget& the(const char* name) {
    auto* const found = window_.findChild<Widget*>(QString::fromLatin1(name));
    if (found == nullptr) throw std::runtime_error(std::string("There is no ") + name);
    return *found;
  }
  QAction& command(const char* text) {
    for (QAction* const action : window_.findChildren<QAction*>()) {
      if (action->text().remove(u'&') == QString::fromUtf8(text)) return *action;
    }
    throw std::runtime_error(std::string("There is no command ") + text);
  }
  ctlCycEd& editor() { return *window_.findChild<ctlCycEd*>(); }
  void describe(const QString& text) {
    auto& box = the<QPlainTextEdit>("txtCycleDescription");
    box.moveCursor(QTextCursor::End);
    QTest::keyClicks(&box, text);
  }
  QString description() { return the<QPlainTextEdit>("txtCycleDescription").toPlainText(); }
  void insertLine() { QTest::mouseClick(&the<QAbstractButton>("cmdInset"), Qt::LeftButton); }
  /// Closes with an answer to the question; an answer of NoButton expects none.
  bool closes(QMessageBox::StandardButton button, QString* said = nullptr) {
    Answer answer(button);
    const bool closed = window_.close();
    EXPECT_EQ(answer.asked(), button != QMessageBox::NoButton);
    if (said != nullptr) *said = answer.said();
    return closed;
  }

  /// A box that no test answers would stand there for ever.
  void connectWatchdog() {
    QObject::connect(&watchdog_, &QTimer::timeout, &watchdog_, [this] {
      auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      const bool known = dialog != nullptr && dialog == unanswered_;
      unanswered_ = dialog;
      if (!known) return;
      const auto* const box = qobject_cast<QMessageBox*>(dialog);
      ADD_FAILURE() << "Nobody answered " << (box != nullptr ? box->text() : dialog->windowTitle()).toStdString();
      dialog->reject();
    });
    watchdog_.start(3000);
  }

  QTimer watchdog_;
  QPointer<QDialog> unanswered_;
  QTemporaryDir folder_;
  QSettings settings_{folder_.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat};
  HostWindow window_{settings_};
};

}  // namespace mavCycEd::host
