#include "control/modErr.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include "TestPlatform.h"
#include "control/modGlobal.h"
#include "memory/MemoryModalDialog.h"
#include "memory/MemoryServices.h"

namespace mavCycEd {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// A system whose messages cannot be had.
class BrokenSystem : public platform::SystemMessage {
 public:
  std::string formatMessage(std::int32_t) const override { throw RunTimeError(14, "no string space", "Suite"); }
  std::int32_t lastErrorCode() const override { return 0; }
};

class modErrTest : public ::testing::Test {
 protected:
  test::OneErrorSystem system_;
  modErr errors_{system_};
};

TEST_F(modErrTest, AnErrorIsCopiedIntoTheRecord) {
  errors_.copyError(RunTimeError(13, "Type mismatch", "mavCycEd"));
  EXPECT_EQ(errors_.record().number, 13);
  EXPECT_EQ(errors_.record().description, "Type mismatch");
  EXPECT_EQ(errors_.record().source, "mavCycEd");
  EXPECT_EQ(errors_.record().helpContext, 0);
}

TEST_F(modErrTest, AnErrorWithoutNumberIsRecordedAsAMisuse) {
  errors_.copyError(RunTimeError(0, "nothing", "Suite"));
  EXPECT_EQ(errors_.record().description, "Invalid procedure call or argument. Err.Number cannot be 0");
  EXPECT_EQ(errors_.record().source, "modErr.copyError");
}

TEST_F(modErrTest, AComponentsErrorKeepsTheLastSystemError) {
  system_.last = 32;
  errors_.copyError(RunTimeError(13, "Type mismatch", "Suite"));
  EXPECT_EQ(errors_.record().lastSystemError, 32);
}

TEST_F(modErrTest, AnErrorOfTheEditorItselfHasNoSystemError) {
  system_.last = 32;
  errors_.copyError(RunTimeError(13, "Type mismatch", "Suite"));
  errors_.copyError(RunTimeError(13, "Type mismatch", "mavCycEd"));
  EXPECT_EQ(errors_.record().lastSystemError, 0);
}

TEST_F(modErrTest, ASystemMessageLosesItsLineBreak) { EXPECT_EQ(errors_.GetSystemMessage(5), "Access is denied."); }

TEST_F(modErrTest, ASystemMessageLosesOneLineBreakOnly) {
  system_.text = "Two lines\r\n\r\n";
  EXPECT_EQ(errors_.GetSystemMessage(5), "Two lines\r\n");
}

TEST_F(modErrTest, ACodeWithoutTextIsNoSuchError) { EXPECT_EQ(errors_.GetSystemMessage(6), "(No such error)"); }

TEST_F(modErrTest, AMessageThatCannotBeHadIsToldInFull) {
  const BrokenSystem broken;
  EXPECT_EQ(modErr(broken).GetSystemMessage(-5),
            "An error occured in modErr.GetSystemMessage for lngMsgID = -5.\r\n"
            "Report this error and the circumstances of it's appearence.\r\n\r\n"
            "Original error message:\r\n"
            "Number: 14\r\nDescription: no string space\r\nSource: Suite");
}

TEST_F(modErrTest, AnErrorMessageHasHeadingContextAndRecord) {
  ErrorRecord record;
  record.number = 9;
  record.description = "Subscript out of range";
  record.source = "mavCycEd";
  EXPECT_EQ(errors_.ErrMsg(record, "Editor", "while loading"),
            "Editor - version 1.3.70\r\n\r\nwhile loading\r\n\r\nAn error occured.\r\nNumber: 9\r\nSource: mavCycEd\r\n"
            "Description: Subscript out of range");
}

TEST_F(modErrTest, OnlyOneLineBreakAtTheEndIsRemoved) {
  EXPECT_EQ(modErr::removeTerminatingCRLF("text\r\n"), "text");
  EXPECT_EQ(modErr::removeTerminatingCRLF("text\r\n\r\n"), "text\r\n");
  EXPECT_EQ(modErr::removeTerminatingCRLF("\r\n"), "");
}

TEST_F(modErrTest, WhatIsNoLineBreakAtTheEndStays) {
  for (const char* text : {"", "\n", "\r", "text", "text\n", "text\r", "text\n\r", "\r\ntext"}) {
    EXPECT_EQ(modErr::removeTerminatingCRLF(text), text);
  }
}

TEST(StandardSystemMessage, KnowsTheErrorsOfTheCLibrary) {
  const memory::StandardSystemMessage system;
  EXPECT_THAT(system.formatMessage(ENOENT), Not(IsEmpty()));
  EXPECT_NE(system.formatMessage(ENOENT), system.formatMessage(EACCES));
  EXPECT_EQ(modErr(system).GetSystemMessage(987654), "(No such error)");
  EXPECT_EQ(modErr(system).GetSystemMessage(-1), "(No such error)");
}

TEST(StandardSystemMessage, KnowsTheLastErrorOfTheSystem) {
  const memory::StandardSystemMessage system;
  errno = EACCES;
  EXPECT_EQ(system.lastErrorCode(), EACCES);
  errno = 0;
  EXPECT_EQ(system.lastErrorCode(), 0);
}

TEST(FormTest, AFormIsLoadedWhileItIsShown) {
  memory::MemoryModalDialog dialog;
  bool whileShown = false;
  dialog.setUser([&] { whileShown = modGlobal::formLoaded(&dialog, "caller"); });
  EXPECT_FALSE(modGlobal::formLoaded(&dialog, "caller"));
  dialog.showModal();
  EXPECT_TRUE(whileShown);
  EXPECT_FALSE(modGlobal::formLoaded(&dialog, "caller"));
}

TEST(FormTest, WhatIsNoFormCannotBeTested) {
  try {
    modGlobal::formLoaded(nullptr, "frmparams.Show");
    FAIL() << "no form passed for one";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), 13);
    EXPECT_EQ(error.description(),
              "Cannot test frmFrom. frmForm does not evaluate to type Form.\r\nCalling method: frmparams.Show");
  }
}

}  // namespace
}  // namespace mavCycEd
