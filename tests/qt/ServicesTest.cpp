#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <cerrno>
#include <cstring>

#include "qt/QtClock.h"
#include "qt/QtMessageBox.h"
#include "qt/QtSystemMessage.h"
#include "qt/Utf8CodePage.h"
#include "qt/WindowHandles.h"

namespace mavCycEd::test {
namespace {

TEST(SystemMessage, KnownCodesHaveTheirTexts) {
  const qt::QtSystemMessage messages;
  EXPECT_EQ(messages.formatMessage(ENOENT), std::strerror(ENOENT));
}

TEST(SystemMessage, UnknownCodesHaveNone) {
  const qt::QtSystemMessage messages;
  for (const int code : {0, -1, 99999, -2147220991}) EXPECT_EQ(messages.formatMessage(code), "") << code;
}

TEST(SystemMessage, LastCodeIsThatOfTheThread) {
  errno = EACCES;
  EXPECT_EQ(qt::QtSystemMessage().lastErrorCode(), EACCES);
}

TEST(Clock, TellsLocalTimeWithoutAZone) {
  const QString now = QString::fromStdString(qt::QtClock().localTimestamp());
  EXPECT_TRUE(QRegularExpression(QStringLiteral(R"(^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d$)")).match(now).hasMatch());
  EXPECT_LT(QDateTime::fromString(now, Qt::ISODate).secsTo(QDateTime::currentDateTime()), 5);
}

TEST(CodePage, IsUtf8) { EXPECT_EQ(qt::Utf8CodePage().fromUtf8("µ\xFF"), "µ\xFF"); }

// Shows a message box and looks at it before it is answered.
template <typename Look>
int answered(platform::MessageBox& messages, std::string_view text, int flags, const Look& look) {
  QTimer::singleShot(0, [&look] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    look(*box);
    box->close();
  });
  return messages.messageBox(0, text, "cycle editor component", flags);
}

TEST(MessageBox, ShowsTitleTextAndIcon) {
  QWidget window;
  window.show();
  QWidget control(&window);
  qt::QtMessageBox messages(&control);
  const std::pair<int, QMessageBox::Icon> icons[] = {{platform::Critical, QMessageBox::Critical},
                                                     {platform::Exclamation, QMessageBox::Warning},
                                                     {platform::Information, QMessageBox::Information},
                                                     {platform::OkOnly, QMessageBox::NoIcon}};
  for (const auto& [flags, icon] : icons) {
    const int answer = answered(messages, "first\r\n\r\n   <b>second</b>", flags, [&, wanted = icon](QMessageBox& box) {
      EXPECT_EQ(box.icon(), wanted);
      EXPECT_EQ(box.windowTitle(), "cycle editor component");
      EXPECT_EQ(box.text(), "first\n\n   <b>second</b>");
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      EXPECT_EQ(box.windowModality(), Qt::WindowModal);
      EXPECT_EQ(box.parentWidget(), &window);
      EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    });
    EXPECT_EQ(answer, platform::OkButton);
  }
}

// Window managers write titles in bold letters, with an icon before them and three buttons behind.
TEST(MessageBox, IsWideEnoughForItsTitle) {
  QWidget window;
  window.show();
  qt::QtMessageBox messages(&window);
  answered(messages, "text", platform::Critical, [](QMessageBox& box) {
    QFont bold = box.font();
    bold.setBold(true);
    const int title = QFontMetrics(bold).horizontalAdvance(box.windowTitle());
    EXPECT_GE(box.width(), title + 16 * box.fontMetrics().averageCharWidth());
  });
}

TEST(MessageBox, TextHigherThanTheScreenIsScrolled) {
  QWidget window;
  window.show();
  qt::QtMessageBox messages(&window);
  std::string lines;
  for (int i = 1; i <= 500; ++i) lines += "Line " + std::to_string(i) + " - atom \"MIX\", parameter \"Volume\"\r\n";
  answered(messages, lines, platform::Exclamation, [](QMessageBox& box) {
    EXPECT_LT(box.height(), box.screen()->availableSize().height());
    EXPECT_TRUE(box.rect().contains(box.button(QMessageBox::Ok)->geometry()));
    const auto* const area = box.findChild<QScrollArea*>();
    ASSERT_NE(area, nullptr);
    const QRect seen = area->viewport()->rect();
    EXPECT_GT(area->widget()->height(), 500 * box.fontMetrics().height());
    EXPECT_LE(area->widget()->width(), seen.width()) << "whole lines are in view";
    area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum());
    EXPECT_TRUE(seen.contains(area->widget()->geometry().bottomLeft()));
  });
}

TEST(MessageBox, LongLinesThatWrapBeyondTheScreenAreScrolled) {
  QWidget window;
  window.show();
  qt::QtMessageBox messages(&window);
  std::string line;
  for (int i = 1; i <= 5000; ++i) line += "word" + std::to_string(i) + ' ';
  answered(messages, line, platform::Exclamation, [](QMessageBox& box) {
    EXPECT_LT(box.height(), box.screen()->availableSize().height());
    EXPECT_LT(box.width(), box.screen()->availableSize().width());
    EXPECT_TRUE(box.rect().contains(box.button(QMessageBox::Ok)->geometry()));
    const auto* const area = box.findChild<QScrollArea*>();
    ASSERT_NE(area, nullptr);
    EXPECT_LE(area->widget()->width(), area->viewport()->width()) << "whole lines are in view";
  });
}

TEST(MessageBox, EndlessWordIsShownAtOnce) {
  QWidget window;
  window.show();
  qt::QtMessageBox messages(&window);
  answered(messages, std::string(200'000, 'x') + "\r\nis refused", platform::Exclamation, [](QMessageBox& box) {
    EXPECT_LT(box.width(), box.screen()->availableSize().width());
    EXPECT_LT(box.height(), box.screen()->availableSize().height());
  });
}

TEST(MessageBox, ShortTextHasNoScrollBar) {
  QWidget window;
  window.show();
  qt::QtMessageBox messages(&window);
  answered(messages, "first\r\nsecond", platform::Exclamation,
           [](QMessageBox& box) { EXPECT_EQ(box.findChild<QScrollArea*>(), nullptr); });
}

TEST(MessageBox, OutlivesItsWindow) {
  auto* const window = new QWidget;
  window->show();
  qt::QtMessageBox messages(window);
  QTimer::singleShot(0, [window] { delete window; });
  EXPECT_EQ(messages.messageBox(0, "text", "title", platform::Critical), platform::OkButton);
}

TEST(WindowHandles, LeadBackToTheWindowAsLongAsItLives) {
  platform::WindowHandle handle = 0;
  {
    const QWidget window;
    handle = qt::handleOf(&window);
    EXPECT_EQ(qt::widgetOf(handle), &window);
  }
  EXPECT_EQ(qt::widgetOf(handle), nullptr);
  EXPECT_EQ(qt::widgetOf(0), nullptr);
}

}  // namespace
}  // namespace mavCycEd::test
