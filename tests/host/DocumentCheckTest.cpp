#include "DocumentCheck.h"

#include <gtest/gtest.h>

namespace mavCycEd::host {
namespace {

std::string why(const char* text, DocumentKind kind = DocumentKind::Cycle) {
  return unusableBecause(QString::fromUtf8(text), kind).toStdString();
}

TEST(DocumentCheckTest, GoodDocumentsPass) {
  EXPECT_EQ(why("<CYCLE><VARIABLES/></CYCLE>"), "");
  EXPECT_EQ(why("<?xml version='1.0' encoding='ISO-8859-1'?><!-- a --><CYCLE><VARIABLES>🧪</VARIABLES></CYCLE>\n"),
            "");
  EXPECT_EQ(why("<LATESTKAM/>", DocumentKind::Catalogue), "");
  EXPECT_EQ(why("<Config><Units/></Config>", DocumentKind::Configuration), "");
  EXPECT_EQ(why("[PMA]\r\nWAIT(1)"), "");
}

TEST(DocumentCheckTest, LineAndColumnOfWhatIsNotWellFormed) {
  EXPECT_TRUE(why("<CYCLE>\n  <VARIABLES>\n</CYCLE>").starts_with("It is not well-formed XML. Line 3, column "))
      << why("<CYCLE>\n  <VARIABLES>\n</CYCLE>");
  EXPECT_TRUE(why("<CYCLE><VARIABLES/>").starts_with("It is not well-formed XML. Line 1, column "));
  EXPECT_TRUE(why("<CYCLE>a & b</CYCLE>").starts_with("It is not well-formed XML. Line 1, column "));
  EXPECT_TRUE(why("<x:CYCLE/>").starts_with("It is not well-formed XML. "));
  EXPECT_TRUE(why("no xml at all").starts_with("It is not well-formed XML. Line 1, column "));
  EXPECT_TRUE(why("<CYCLE/><CYCLE/>").starts_with("It is not well-formed XML. "));
}

TEST(DocumentCheckTest, CharactersThatXmlCannotHold) {
  EXPECT_EQ(why("<CYCLE>\n<VARIABLES/>\x01</CYCLE>"),
            "Line 2, column 13: the character with the code 1 is not allowed in XML.");
  EXPECT_EQ(why("<CYCLE>\xEF\xBF\xBF</CYCLE>"),
            "Line 1, column 8: the character with the code 65535 is not allowed in XML.");
}

TEST(DocumentCheckTest, ADocumentTypeIsRefused) {
  EXPECT_EQ(why("\n<!DOCTYPE CYCLE [<!ENTITY a 'b'>]>\n<CYCLE><VARIABLES/></CYCLE>").substr(0, 27),
            "It is not well-formed XML. ");
  EXPECT_NE(why("<!DOCTYPE CYCLE><CYCLE><VARIABLES/></CYCLE>").find("DOCTYPE"), std::string::npos);
}

TEST(DocumentCheckTest, AnotherKindOfDocumentIsNamed) {
  EXPECT_EQ(why("<LATESTKAM/>"),
            "The outermost element of a cycle is CYCLE, but here it is LATESTKAM. This looks like a catalogue.");
  EXPECT_EQ(why("<CYCLE/>", DocumentKind::Configuration),
            "The outermost element of a configuration is Config, but here it is CYCLE. This looks like a cycle.");
  EXPECT_EQ(why("<html/>", DocumentKind::Catalogue),
            "The outermost element of a catalogue is LATESTKAM, but here it is html.");
}

TEST(DocumentCheckTest, ACycleNeedsVariables) {
  const std::string needed = "It has no element VARIABLES, and the editor loads nothing from a cycle without one.";
  EXPECT_EQ(why("<CYCLE/>"), needed);
  EXPECT_EQ(why("<CYCLE><ATOMSEQUENCE><VARIABLES/></ATOMSEQUENCE></CYCLE>"), needed);
}

TEST(DocumentCheckTest, TheHeaderOfAMacroTextIsExact) {
  EXPECT_TRUE(isMacroText(QStringLiteral("[PMA]\r\n")));
  EXPECT_TRUE(isMacroText(QStringLiteral("[PMA]\n")));
  EXPECT_FALSE(isMacroText(QStringLiteral("[PMA]")));
  EXPECT_FALSE(isMacroText(QStringLiteral(" [PMA]\r\n")));
  EXPECT_FALSE(isMacroText(QStringLiteral("[pma]\r\n")));
}

}  // namespace
}  // namespace mavCycEd::host
