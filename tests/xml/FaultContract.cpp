// Why a text holds no document, and where.
#include "XmlDocumentContract.h"

#include <array>

namespace mavCycEd::test {
namespace {

using namespace std::string_literals;
using Kind = platform::XmlFault::Kind;

/// "kind line:column" of the fault in a text; empty when there is none.
std::string faultOf(platform::XmlDocumentFactory& factory, std::string_view text) {
  const auto fault = factory.faultIn(text);
  if (!fault) return {};
  const std::array kinds{"empty", "broken", "forbidden", "doctype"};
  return kinds.at(static_cast<std::size_t>(fault->kind)) + " "s + std::to_string(fault->line) + ":" +
         std::to_string(fault->column);
}

TEST_P(XmlDocumentContract, ADocumentHasNoFault) {
  EXPECT_EQ(faultOf(factory(), "<a/>"), "");
  EXPECT_EQ(faultOf(factory(), "\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-16'?>\n<a b='&lt;'>ä<!--x--></a>\n"), "");
}

TEST_P(XmlDocumentContract, ATextOfWhiteSpaceIsEmpty) {
  for (const auto* text : {"", " \r\n\t", "\xEF\xBB\xBF", "\xEF\xBB\xBF\n"})
    EXPECT_EQ(faultOf(factory(), text).substr(0, 5), "empty");
}

TEST_P(XmlDocumentContract, ForbiddenCharactersArePlaced) {
  EXPECT_EQ(faultOf(factory(), "<a>\n  x\x01</a>"), "forbidden 2:4");
  EXPECT_EQ(faultOf(factory(), "\xEF\xBB\xBF<a>\xEF\xBF\xBF</a>"), "forbidden 1:4");
  EXPECT_EQ(faultOf(factory(), "<a>äö🧪\xFF</a>"), "forbidden 1:7");
  EXPECT_EQ(faultOf(factory(), "\x01"), "forbidden 1:1");
  EXPECT_EQ(factory().faultIn("<a>\x0B</a>")->message, "The character with the code 11 is not allowed in XML.");
  EXPECT_EQ(factory().faultIn("<a>\xED\xA0\xBD</a>")->message,
            "The character with the code 55357 is not allowed in XML.");
  EXPECT_EQ(factory().faultIn("<a>\xE4 </a>")->message, "The text is not UTF-8.");
}

TEST_P(XmlDocumentContract, ADocumentTypeIsPlacedWhereItStarts) {
  EXPECT_EQ(faultOf(factory(), "<!DOCTYPE a><a/>"), "doctype 1:1");
  EXPECT_EQ(faultOf(factory(), "<?xml version='1.0'?>\r\n <!DOCTYPE a [<!ENTITY b 'c'>]>\r\n<a/>"), "doctype 2:2");
  EXPECT_NE(factory().faultIn("<!DOCTYPE a><a/>")->message.find("DOCTYPE"), std::string::npos);
}

TEST_P(XmlDocumentContract, WhatIsNotWellFormedIsPlacedInItsLine) {
  EXPECT_EQ(faultOf(factory(), "no xml"), "broken 1:1");
  EXPECT_EQ(faultOf(factory(), "<a>\n<b>\n</a>").substr(0, 9), "broken 3:");
  EXPECT_EQ(faultOf(factory(), "<a>\r\nx & y</a>"), "broken 2:4");
  EXPECT_EQ(faultOf(factory(), "<a>\ry\r&</a>"), "broken 3:2");
  EXPECT_EQ(faultOf(factory(), "<a>ää&ä</a>").substr(0, 9), "broken 1:");
  EXPECT_EQ(faultOf(factory(), "<a/>\n<b/>"), "broken 2:1");
  EXPECT_EQ(faultOf(factory(), "<a>\n\n"), "broken 3:1");
}

TEST_P(XmlDocumentContract, ColumnsCountCharacters) {
  EXPECT_EQ(faultOf(factory(), "<a>\xC3\xA4\xF0\x9F\xA7\xAA&</a>"), "broken 1:7");
  EXPECT_EQ(faultOf(factory(), "<a>xy&</a>"), "broken 1:7");
}

TEST_P(XmlDocumentContract, FaultsBehindALongTextArePlaced) {
  const std::string text = "<a>" + repeated("<b>ä</b>\n", 100'000) + "<c></d></a>";
  EXPECT_EQ(faultOf(factory(), text).substr(0, 14), "broken 100001:");
}

TEST_P(XmlDocumentContract, TheFirstFaultIsTold) {
  EXPECT_EQ(faultOf(factory(), "<a>\n<p:b/>\n</c>").substr(0, 9), "broken 2:");
  EXPECT_EQ(faultOf(factory(), "<a>\n</b>\n<c").substr(0, 9), "broken 2:");
}

TEST_P(XmlDocumentContract, AFaultIsToldInASentence) {
  EXPECT_EQ(factory().faultIn("<a>\n<b>\n</a>")->message, "The element b, which starts in line 2, is ended as a.");
  EXPECT_EQ(factory().faultIn("<a>&nbsp;</a>")->message, "There is no reference \"&nbsp;\".");
  EXPECT_EQ(factory().faultIn("<p:a/>")->message, "The prefix p is not declared.");
  EXPECT_EQ(factory().faultIn("<a b='1' b='2'/>")->message, "The attribute b stands in the element twice.");
}

TEST_P(XmlDocumentContract, ALongNameIsToldInPart) {
  const std::string text = "<" + repeated("ä", 1000) + "></b>";
  EXPECT_LT(factory().faultIn(text)->message.size(), 200U);
}

}  // namespace
}  // namespace mavCycEd::test
