#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "control/PlatformServices.h"
#include "libxml2/Libxml2DocumentFactory.h"
#include "memory/MemoryServices.h"
#include "platform/ErrorSink.h"

/// What the tests of the core share: services and sinks that remember, and services that fail.
namespace mavCycEd::test {

/// Remembers what procedures report.
class RecordingSink : public ErrorSink {
 public:
  struct Report {
    std::int32_t number = 0;
    std::string procedure;
    std::string description;
  };

  void report(const RunTimeError& error, std::string_view procedure) noexcept override {
    reports.push_back({error.number(), std::string(procedure), error.description()});
  }
  /// The procedures that reported, in order.
  std::vector<std::string> procedures() const {
    std::vector<std::string> names;
    for (const Report& report : reports) names.push_back(report.procedure);
    return names;
  }

  std::vector<Report> reports;
};

/// A clock that is set by hand.
class HandSetClock : public platform::Clock {
 public:
  explicit HandSetClock(std::string timestamp = "2024-03-09T14:05:00") : now(std::move(timestamp)) {}
  std::string localTimestamp() const override { return now; }
  std::string now;
};

/// A clock that has stopped for good.
class BrokenClock : public platform::Clock {
 public:
  std::string localTimestamp() const override { throw RunTimeError(77, "no time"); }
};

/// An XML service that makes no documents.
class BrokenDocumentFactory : public platform::XmlDocumentFactory {
 public:
  std::unique_ptr<platform::XmlDocument> createDocument() override { throw RunTimeError(78, "no documents"); }
  bool readDocument(std::string_view, platform::XmlContent&) override { throw RunTimeError(78, "no documents"); }
  std::optional<platform::XmlFault> faultIn(std::string_view) override { throw RunTimeError(78, "no documents"); }
};

/// A system with one error code.
class OneErrorSystem : public platform::SystemMessage {
 public:
  std::string formatMessage(std::int32_t code) const override { return code == known ? text : std::string(); }
  std::int32_t lastErrorCode() const override { return last; }
  std::int32_t known = 5;
  std::string text = "Access is denied.\r\n";
  std::int32_t last = 0;
};

/// All services of an editor, in memory.
class TestPlatform {
 public:
  PlatformServices services() { return {xml, messageBox, systemMessage, codePage, clock}; }

  libxml2::Libxml2DocumentFactory xml;
  std::vector<std::string> messages;
  memory::MemoryMessageBox messageBox{
      [this](std::string_view message, std::string_view, int) { messages.emplace_back(message); }};
  memory::StandardSystemMessage systemMessage;
  memory::Utf8CodePage codePage;
  HandSetClock clock;
};

/// A document that holds the text; a test whose text is no XML fails.
inline std::unique_ptr<platform::XmlDocument> parsed(std::string_view text) {
  auto document = libxml2::Libxml2DocumentFactory().createDocument();
  EXPECT_TRUE(document->loadXML(text)) << text;
  return document;
}

/// The number of the run-time error that `body` ends with; 0 when it ends without one.
template <typename Body>
std::int32_t errorNumberOf(Body&& body) {
  try {
    std::forward<Body>(body)();
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

}  // namespace mavCycEd::test
