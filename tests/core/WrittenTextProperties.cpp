#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "TestPlatform.h"
#include "cycle/CycleXml.h"

namespace mavCycEd::test {
namespace {

/// A text of pieces that mean something to XML, to the parameter text, or to UTF-8.
rc::Gen<std::string> oddText() {
  const auto piece = rc::gen::weightedElement<std::string>({{8, "a"},        {4, "VOL"},      {3, " "},
                                                            {2, ";"},        {2, ","},        {2, "\r"},
                                                            {1, "µ"},        {1, "\u00C4"},   {1, "\u4E2D\U0001F600"},
                                                            {1, ">"},        {1, "]]>"},      {1, "<"},
                                                            {1, "&"},        {1, "&lt;"},     {1, "\n"},
                                                            {1, "\t"},       {1, "\""},       {1, "'"},
                                                            {1, "\x01"},     {1, "\x7F"},     {1, "\xC3"},
                                                            {1, "\uFFFE"},   {1, "<b>x</b>"}, {1, "\xED\xA0\x80"},
                                                            {1, "</VALUE>"}, {1, "]]"},       {1, "\u2028"}});
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(piece), [](const std::vector<std::string>& pieces) {
    std::string text;
    for (const std::string& one : pieces) text += one;
    return text;
  });
}

std::string throughADocument(const CycleContent& content) {
  const auto document = parsed(rawCycleText(content));
  platform::XmlNode cycle = document->selectSingleNode("CYCLE");
  if (!cycle) return {};
  platform::XmlNode description = document->createNode("DESCRIPTION");
  description.setText(content.description);
  cycle.insertBefore(description, document->selectSingleNode("CYCLE/VARIABLES"));
  if (content.facts.created) cycle.attributes().setNamedItem({"Created", *content.facts.created});
  if (content.facts.modified) cycle.attributes().setNamedItem({"Modified", *content.facts.modified});
  return document->xml();
}

RC_GTEST_PROP(WrittenCycle, ReadsAsIfItCameFromADocument, ()) {
  Cycle cycle;
  for (int i = *rc::gen::inRange(0, 4); i > 0; --i) {
    const std::string name = *oddText();
    cycle.lines.push_back({name, ParameterText(*oddText())});
  }
  for (const std::string& variable : *rc::gen::container<std::vector<std::string>>(oddText())) {
    cycle.variables.emplace_back(variable);
  }
  const std::string description = "//" + *oddText();
  CycleFacts facts{.version = *rc::gen::element<std::string>("02", "03"), .created = {}, .modified = {}};
  if (facts.version == "03") {
    facts.created = *rc::gen::element<std::string>("2024-03-09T14:05:00", "", "any text", "a\"b<&>\n");
    facts.modified = *rc::gen::element<std::string>("2024-03-09T14:05:01", "2001");
  }
  const CycleContent content{cycle, description, facts};
  const std::optional<std::string> xml = plainCycleXml(content);
  RC_CLASSIFY(xml.has_value());
  if (xml) RC_ASSERT(*xml == throughADocument(content));
}

// The first ones must not need a document, or the rule above says nothing.
TEST(WrittenCycle, NeedsNoDocumentForOrdinaryTexts) {
  Cycle cycle;
  cycle.lines = {{"Größe > 1", ParameterText("VOLUME;10;20\rµl;SYR.1 [a]\rEMPTY;\rNAME")}};
  for (const char* variable : {"Vol (µl);10;0;100", "  ", " Rack;TRAY"}) cycle.variables.emplace_back(variable);
  const CycleFacts facts{.version = "03", .created = "2024-03-09T14:05:00", .modified = "2024-03-09T14:05:00"};
  const CycleContent content{cycle, "//a<b & c\r\nd", facts};
  const std::optional<std::string> xml = plainCycleXml(content);
  ASSERT_TRUE(xml.has_value());
  EXPECT_EQ(*xml, throughADocument(content));
}

}  // namespace
}  // namespace mavCycEd::test
