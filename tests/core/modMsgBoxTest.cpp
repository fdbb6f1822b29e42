#include "control/modMsgBox.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "TestPlatform.h"
#include "memory/MemoryModalDialog.h"

namespace mavCycEd {
namespace {

using ::testing::_;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::InSequence;
using ::testing::MatchesRegex;
using ::testing::Return;
using ::testing::StartsWith;
using ::testing::StrictMock;

class MockMessageBox : public platform::MessageBox {
 public:
  MOCK_METHOD(int, messageBox,
              (platform::WindowHandle owner, std::string_view message, std::string_view caption, int flags),
              (override));
};

class modMsgBoxTest : public ::testing::Test {
 protected:
  /// The service fails to show the message once; what the user is told instead.
  std::string toldInstead(std::string_view message) {
    const InSequence inOrder;
    std::string told;
    EXPECT_CALL(service_, messageBox(7, message, std::string_view("title"), 48)).WillOnce(Return(platform::NoButton));
    EXPECT_CALL(service_, messageBox(_, _, _, platform::Critical))
        .WillOnce([&](platform::WindowHandle, std::string_view text, std::string_view, int) {
          told = text;
          return platform::OkButton;
        });
    EXPECT_EQ(messages_.messageBox(7, message, "title", 48), platform::NoButton);
    return told;
  }

  StrictMock<MockMessageBox> service_;
  test::OneErrorSystem system_;
  modErr errors_{system_};
  modMsgBox messages_{service_, system_, errors_};
};

TEST_F(modMsgBoxTest, AMessageGoesToTheServiceAsItIs) {
  system_.last = 5;
  EXPECT_CALL(service_, messageBox(7, std::string_view("Größe\r\n"), std::string_view("title"), 64))
      .WillOnce(Return(platform::OkButton));
  EXPECT_EQ(messages_.messageBox(7, "Größe\r\n", "title", 64), platform::OkButton);
  EXPECT_EQ(errors_.record().number, 0);
}

TEST_F(modMsgBoxTest, WhateverButtonWasPressedIsTheResult) {
  EXPECT_CALL(service_, messageBox).WillOnce(Return(6));
  EXPECT_EQ(messages_.messageBox(0, "question", "title", 4), 6);
}

TEST_F(modMsgBoxTest, AFailureWithASystemErrorIsRecordedAndTold) {
  system_.last = 5;
  const std::string told = toldInstead("The value is too high.");
  EXPECT_EQ(errors_.record().source, "MessageBoxEx@modMsgBox.messageBox");
  EXPECT_EQ(errors_.record().lastSystemError, 5);
  EXPECT_THAT(told, StartsWith("MessageBoxEx API was unable to show a message."));
  const auto number = told.find("Err.Number: " + std::to_string(errors_.record().number));
  const auto source = told.find("Err.Source: MessageBoxEx@modMsgBox.messageBox");
  const auto description = told.find("Err.Description: &  g_structError.strDescription & CONST_DBLLINE");
  const auto original = told.find("original message was: The value is too high.");
  ASSERT_NE(number, std::string::npos) << told;
  ASSERT_NE(source, std::string::npos) << told;
  ASSERT_NE(description, std::string::npos) << told;
  ASSERT_NE(original, std::string::npos) << told;
  EXPECT_LT(number, source);
  EXPECT_LT(source, description);
  EXPECT_LT(description, original);
}

TEST_F(modMsgBoxTest, AFailureWithoutASystemErrorIsTold) {
  const std::string told = toldInstead("The value is too high.");
  const auto first = told.find("The non-blocking messagebox returned an unreported error. The message was:");
  const auto message = told.find("The value is too high.");
  const auto last = told.find("Look in the system event log for specifics on the messagebox error.");
  EXPECT_EQ(first, 0U) << told;
  ASSERT_NE(message, std::string::npos) << told;
  ASSERT_NE(last, std::string::npos) << told;
  EXPECT_LT(message, last);
  EXPECT_EQ(errors_.record().number, 0) << "nothing is known that could be recorded";
}

TEST_F(modMsgBoxTest, AFormIsKnownByItsWindowHandle) {
  memory::MemoryModalDialog dialog;
  platform::WindowHandle whileShown = 0;
  dialog.setUser([&] { whileShown = modMsgBox::formHwnd(dialog); });
  dialog.showModal();
  EXPECT_NE(whileShown, 0U);
  EXPECT_EQ(modMsgBox::formHwnd(dialog), 0U);
}

}  // namespace
}  // namespace mavCycEd
