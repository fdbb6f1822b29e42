// Whoever has no window gets what an operator gets: the same texts, read by the editor and by the public functions.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "TestEditor.h"
#include "mavCycEd/CycleReading.h"

namespace mavCycEd {
namespace {

std::string contentOf(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  EXPECT_TRUE(stream) << file;
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// An instrument: the names of its two files.
struct Instrument {
  std::string configuration;
  std::string catalogue;
};

class EditorAgreementTest : public testing::TestWithParam<Instrument> {
 protected:
  EditorAgreementTest() { editor_.control().SetConfigXML(configuration_); }

  std::string configuration_ = contentOf(GetParam().configuration);
  std::string text_ = contentOf(GetParam().catalogue);
  mavCycEd::Catalogue catalogue_ =
      mavCycEd::Catalogue::read(text_, mavCycEd::Configuration::read(configuration_).value.value()).value.value();
  test::TestEditor editor_;
};

TEST_P(EditorAgreementTest, TheRowsOfEveryAtomAreTheSame) {
  editor_.load(text_);
  EXPECT_EQ(catalogue_.atomNames(), editor_.screen().cboAtom.items());
  for (const std::string& name : catalogue_.atomNames()) {
    SCOPED_TRACE(name);
    editor_.choose(name);
    std::vector<std::string> keys;
    std::vector<std::string> values;
    int row = 0;
    for (const ParameterRow& each : catalogue_.parametersOf(name).rows) {
      keys.push_back(each.key);
      values.push_back(each.firstValue);
      EXPECT_EQ(each.items, editor_.pickList(++row));
    }
    EXPECT_EQ(keys, editor_.gridKeys());
    EXPECT_EQ(values, editor_.gridValues());
  }
}

TEST_P(EditorAgreementTest, TheSameValuesAreRefused) {
  editor_.load(text_);
  for (const std::string& name : catalogue_.atomNames()) {
    for (const char* value : {"0", "1", "2.5", "3", "10", "33.3", "100", "1e6", "1e300", "-5", "Fill", ""}) {
      SCOPED_TRACE(name + " " + value);
      editor_.choose(name);
      const auto rows = catalogue_.parametersOf(name).rows;
      bool stands = true;
      for (std::size_t i = 0; i < rows.size(); ++i) {
        editor_.screen().GrdAtom.setValue(1, static_cast<int>(i) + 1, value);
        stands = stands && !catalogue_.checkValue(name, i, value);
      }
      const std::size_t before = editor_.lines().size();
      editor_.insert();
      EXPECT_EQ(editor_.lines().size() - before, stands ? 1U : 0U);
    }
  }
}

TEST_P(EditorAgreementTest, AMacroTextBecomesTheSameCycle) {
  for (const std::string lines :
       {"", "//one // two\r\nV (µl);1;0;9\r\n\r\n//three\r\n[PMA]",
        "REPEAT(2)\r\nEND()\r\nREPEAT(0)\r\nREPEAT(3,4)\r\nEND", "UNKNOWN(1,2)\r\nREPEAT()\r\nREPEAT(",
        "ASPIRATE(1\r\nASPIRATE(,,,,,,)\r\nASPIRATE(a,b,c,d,e,f)\r\nASPIRATE(25)",
        "WASH(2)\r\nWASH(100)\r\nWAIT(1.5)\r\nWAIT(\n)\r\nREPEAT(x\ry)\r\nWASH(Vol(max))"}) {
    SCOPED_TRACE(lines);
    const std::string text = "[PMA]\r\n" + lines;
    editor_.load(text_, text);
    const Reading<ReadCycle> reading = readCycle(text, catalogue_);
    ASSERT_TRUE(reading.value);
    EXPECT_EQ(reading.value->cycle, editor_.control().cycle());
  }
}

TEST_P(EditorAgreementTest, EveryAtomIsCalledTheSame) {
  std::string text = "[PMA]";
  for (const std::string& name : catalogue_.atomNames()) {
    text += "\r\n" + name + "()\r\n" + name + "(1)\r\n" + name + "(5,5,5,5,5,5,5)";
  }
  editor_.load(text_, text);
  EXPECT_EQ(readCycle(text, catalogue_).value->cycle, editor_.control().cycle());
}

INSTANTIATE_TEST_SUITE_P(, EditorAgreementTest,
                         testing::Values(Instrument{SAMPLES "/configuration.xml", SAMPLES "/catalogue.xml"},
                                         Instrument{DATA "/laboratory-configuration.xml", DATA "/laboratory.xml"}),
                         [](const auto& instance) { return instance.index == 0 ? "Samples" : "Laboratory"; });

}  // namespace
}  // namespace mavCycEd
