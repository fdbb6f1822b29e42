// Texts that were made to hurt: each gives a thing or a fault, in time.
#include <gtest/gtest.h>

#include <random>

#include "TestTexts.h"
#include "mavCycEd/CycleCheck.h"
#include "mavCycEd/CycleWriting.h"

namespace mavCycEd::test {
namespace {

std::string repeated(std::string_view text, std::size_t times) {
  std::string result;
  for (std::size_t i = 0; i < times; ++i) result += text;
  return result;
}

// Every reader of a text; a reading of no value has a fault, whose place lies in the text.
void readEverywhere(const std::string& text, const Catalogue& catalogue) {
  const auto expectTold = [&](const auto& reading) {
    EXPECT_TRUE(reading.value || !reading.faults.empty()) << text.substr(0, 200);
    for (const TextFault& fault : reading.faults) {
      EXPECT_GE(fault.line, 1U);
      EXPECT_GE(fault.column, 1U);
      EXPECT_LE(fault.line + fault.column, text.size() + 2);
      EXPECT_FALSE(fault.message.empty());
    }
  };
  const Reading<Configuration> configuration = Configuration::read(text);
  expectTold(configuration);
  expectTold(Catalogue::read(text, configuration.value.value_or(Configuration())));
  const Reading<ReadCycle> cycle = readCycle(text, catalogue);
  expectTold(cycle);
  if (!cycle.value) return;
  checkCycle(cycle.value->cycle, catalogue);
  const WrittenCycle written = writeCycleDocument(cycle.value->cycle, cycle.value->facts);
  EXPECT_NE(written.text.empty(), !written.fault.has_value());
  writeMacroText(cycle.value->cycle);
}

TEST(HostileTextTest, EveryCutOfADocumentIsAThingOrAFault) {
  const Catalogue catalogue = laboratoryCatalogue();
  for (const std::string& text :
       {laboratory(), laboratoryConfiguration(), cycleDocument(atom("A", {{"B", "C"}}), "<VALUE>ä</VALUE>"),
        std::string("[PMA]\r\n//ä\r\nV (µl);1;0;9\r\nASPIRATE(Tray1,0.3,9)\r\nUNKNOWN(1)")}) {
    for (std::size_t size = 0; size <= text.size(); ++size) readEverywhere(text.substr(0, size), catalogue);
  }
}

TEST(HostileTextTest, ChangedBytesAreAThingOrAFault) {
  const Catalogue catalogue = laboratoryCatalogue();
  std::mt19937 random(4711);
  const std::string bytes("<>&;/\"'=!?\r\n(),\0\x01\x80\xC3\xFF 9", 24);
  for (int i = 0; i < 2000; ++i) {
    std::string text = i % 2 == 0 ? cycleDocument(atom("WASH", {{"Cycles", "3"}})) : laboratory();
    for (int change = 0; change < 3; ++change) text[random() % text.size()] = bytes[random() % bytes.size()];
    readEverywhere(text, catalogue);
  }
}

TEST(HostileTextTest, DeepAndLongTextsAreReadInTime) {
  const Catalogue catalogue = laboratoryCatalogue();
  readEverywhere(repeated("<a>", 200'000), catalogue);
  readEverywhere("<CYCLE>" + repeated("<a>", 100'000) + repeated("</a>", 100'000) + "</CYCLE>", catalogue);
  readEverywhere("[PMA]\r\n" + repeated("WASH(1000)\r\n", 50'000), catalogue);
  readEverywhere("[PMA]\r\n" + repeated("WASH(3,4)\r\n", 50'000), catalogue);
  readEverywhere("<x:a>" + repeated("<y:b/>", 50'000), catalogue);
  readEverywhere(cycleDocument(repeated(atom("WASH", {{"Cycles", "1000"}}), 20'000) + "<ATOM/>"), catalogue);
}

}  // namespace
}  // namespace mavCycEd::test
