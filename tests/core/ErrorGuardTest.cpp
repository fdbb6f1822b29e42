#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <optional>
#include <source_location>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include "TestPlatform.h"
#include "control/ErrorReporter.h"
#include "control/Version.h"
#include "platform/ErrorSink.h"
#include "platform/RunTimeError.h"

namespace mavCycEd {
namespace {

using test::RecordingSink;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// What the guard reports of an exception.
template <typename Exception>
RecordingSink::Report reportOf(const Exception& exception) {
  RecordingSink sink;
  guarded(sink, "Procedure", [&] { throw exception; });
  EXPECT_THAT(sink.reports, SizeIs(1));
  return sink.reports.empty() ? RecordingSink::Report{} : sink.reports.front();
}

TEST(ErrorGuard, GivesTheResultOfTheBody) {
  RecordingSink sink;
  EXPECT_EQ(guarded(sink, "Procedure", [] { return std::string("result"); }), "result");
  EXPECT_TRUE(guarded(sink, "Procedure", [] { return true; }));
  EXPECT_THAT(sink.reports, IsEmpty());
}

TEST(ErrorGuard, GivesAnEmptyResultAfterAnError) {
  RecordingSink sink;
  EXPECT_EQ(guarded(sink, "Text", []() -> std::string { throw RunTimeError(ErrorNumber::Overflow); }), "");
  EXPECT_FALSE(guarded(sink, "Flag", []() -> bool { throw RunTimeError(ErrorNumber::Overflow); }));
  EXPECT_EQ(guarded(sink, "Number", []() -> int { throw 7; }), 0);
  EXPECT_THAT(sink.procedures(), ::testing::ElementsAre("Text", "Flag", "Number"));
}

TEST(ErrorGuard, ReportsARunTimeErrorAsItIs) {
  const auto report = reportOf(RunTimeError(1234, "the pump is gone", "Suite"));
  EXPECT_EQ(report.number, 1234);
  EXPECT_EQ(report.description, "the pump is gone");
  EXPECT_EQ(report.procedure, "Procedure");
}

TEST(ErrorGuard, GivesExceptionsOfTheLibraryTheNumberThatFits) {
  EXPECT_EQ(reportOf(std::invalid_argument("x")).number, 5);
  EXPECT_EQ(reportOf(std::overflow_error("x")).number, 6);
  EXPECT_EQ(reportOf(std::bad_alloc()).number, 7);
  EXPECT_EQ(reportOf(std::out_of_range("x")).number, 9);
}

TEST(ErrorGuard, GivesEveryOtherExceptionTheNumber51) {
  EXPECT_EQ(reportOf(std::runtime_error("x")).number, 51);
  EXPECT_EQ(reportOf(std::logic_error("x")).number, 51);
  EXPECT_EQ(reportOf(std::exception()).number, 51);
  EXPECT_EQ(reportOf(std::system_error(std::make_error_code(std::errc::io_error))).number, 51);
  EXPECT_EQ(reportOf(7).number, 51);
  EXPECT_EQ(reportOf(std::string("thrown text")).number, 51);
  EXPECT_EQ(reportOf("thrown literal").number, 51);
  EXPECT_EQ(reportOf(std::make_shared<int>(7)).number, 51);
}

TEST(ErrorGuard, KeepsTheDescriptionOfAnException) {
  EXPECT_THAT(reportOf(std::runtime_error("disk is full")).description, HasSubstr("disk is full"));
  EXPECT_THAT(reportOf(7).description, ::testing::Not(IsEmpty()));
}

TEST(ErrorGuard, CatchesWhatAnInnerGuardReportedOnlyOnce) {
  RecordingSink sink;
  guarded(sink, "Outer", [&] { guarded(sink, "Inner", [] { throw RunTimeError(ErrorNumber::TypeMismatch); }); });
  EXPECT_THAT(sink.procedures(), ::testing::ElementsAre("Inner"));
}

TEST(RunTimeErrors, HaveTheUsualNumbersAndTexts) {
  EXPECT_EQ(static_cast<int>(ErrorNumber::InvalidProcedureCall), 5);
  EXPECT_EQ(static_cast<int>(ErrorNumber::Overflow), 6);
  EXPECT_EQ(static_cast<int>(ErrorNumber::OutOfMemory), 7);
  EXPECT_EQ(static_cast<int>(ErrorNumber::SubscriptOutOfRange), 9);
  EXPECT_EQ(static_cast<int>(ErrorNumber::DivisionByZero), 11);
  EXPECT_EQ(static_cast<int>(ErrorNumber::TypeMismatch), 13);
  EXPECT_EQ(static_cast<int>(ErrorNumber::Unexpected), 51);
  EXPECT_EQ(static_cast<int>(ErrorNumber::ObjectNotSet), 91);
  EXPECT_EQ(static_cast<int>(ErrorNumber::KeyInUse), 457);
  EXPECT_EQ(describe(ErrorNumber::SubscriptOutOfRange), "Subscript out of range");
  for (const ErrorNumber number :
       {ErrorNumber::InvalidProcedureCall, ErrorNumber::Overflow, ErrorNumber::OutOfMemory, ErrorNumber::DivisionByZero,
        ErrorNumber::TypeMismatch, ErrorNumber::Unexpected, ErrorNumber::ObjectNotSet, ErrorNumber::KeyInUse}) {
    EXPECT_THAT(describe(number), ::testing::Not(IsEmpty())) << static_cast<int>(number);
    EXPECT_EQ(RunTimeError(number).description(), describe(number));
  }
}

TEST(RunTimeErrors, KnowWhereTheyWereRaised) {
  const auto here = std::source_location::current();
  const RunTimeError error(ErrorNumber::Overflow);
  EXPECT_EQ(error.lineNumber(), static_cast<int>(here.line()) + 1);
  EXPECT_EQ(error.source(), "mavCycEd");
  EXPECT_STREQ(error.what(), error.description().c_str());
}

TEST(RunTimeErrors, OfTheLibraryHaveNoLine) {
  try {
    throw std::runtime_error("x");
  } catch (...) {
    EXPECT_EQ(currentError().lineNumber(), 0);
  }
}

class ErrorReporterTest : public ::testing::Test {
 protected:
  test::OneErrorSystem system_;
  modErr errors_{system_};
};

TEST_F(ErrorReporterTest, TheEventHasSixArguments) {
  std::vector<CycleEditorErrorEvent> events;
  ErrorReporter reporter(errors_, [&](const CycleEditorErrorEvent& event) { events.push_back(event); });
  const RunTimeError error(9, "Subscript out of range", "mavCycEd");
  reporter.report(error, "FillCycle");
  ASSERT_THAT(events, SizeIs(1));
  EXPECT_EQ(events[0].lngError, 9);
  EXPECT_EQ(events[0].strError, "Subscript out of range");
  EXPECT_EQ(events[0].strApplication, "mavCycEdVersion: 1.3.70");
  EXPECT_EQ(events[0].strModule, "ctlCycEd");
  EXPECT_EQ(events[0].strProcedure, "FillCycle ") << "one blank behind the name";
  EXPECT_EQ(events[0].intLineNumber, error.lineNumber());
}

TEST_F(ErrorReporterTest, TheErrorRecordIsFilled) {
  ErrorReporter reporter(errors_, {});
  reporter.report(RunTimeError(457, "Key in use", "Suite"), "Add");
  EXPECT_EQ(errors_.record().number, 457);
  EXPECT_EQ(errors_.record().description, "Key in use");
  EXPECT_EQ(errors_.record().source, "Suite");
}

TEST_F(ErrorReporterTest, AHandlerThatThrowsIsOnItsOwn) {
  int calls = 0;
  ErrorReporter reporter(errors_, [&](const CycleEditorErrorEvent&) {
    ++calls;
    throw std::runtime_error("the host is confused");
  });
  EXPECT_NO_THROW(reporter.report(RunTimeError(ErrorNumber::Overflow), "CycleChanged"));
  EXPECT_NO_THROW(guarded(reporter, "CycleChanged", [] { throw 1; }));
  EXPECT_EQ(calls, 2);
  EXPECT_EQ(errors_.record().number, 51);
}

TEST_F(ErrorReporterTest, WithoutAHandlerErrorsEndInTheRecord) {
  ErrorReporter reporter(errors_, {});
  EXPECT_NO_THROW(guarded(reporter, "CycleChanged", [] { throw RunTimeError(ErrorNumber::DivisionByZero); }));
  EXPECT_EQ(errors_.record().number, 11);
}

TEST(Version, TheApplicationTextHasNoBlankBehindTheName) {
  EXPECT_EQ(libraryVersion(), "1.3.70");
  EXPECT_EQ(applicationText(), "mavCycEdVersion: 1.3.70");
}

TEST(Version, TheErrorNumberOfUnusableXmlIsTheAgreedOne) {
  EXPECT_EQ(mavCycEdErrorInvalidXML, -2147220991);
  EXPECT_EQ(static_cast<std::uint32_t>(mavCycEdErrorInvalidXML), 0x80040201U);
}

}  // namespace
}  // namespace mavCycEd
