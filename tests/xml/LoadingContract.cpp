// What is a document and what is none.
#include "XmlDocumentContract.h"

namespace mavCycEd::test {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using testing::ElementsAre;

TEST_P(XmlDocumentContract, NewDocumentIsEmpty) {
  EXPECT_EQ(document().childNodes().length(), 0);
  EXPECT_EQ(document().xml(), "");
}

TEST_P(XmlDocumentContract, WellFormedTextIsLoaded) {
  EXPECT_TRUE(document().loadXML("<CYCLE><VERSION>03</VERSION></CYCLE>"));
  EXPECT_EQ(document().selectSingleNode("CYCLE/VERSION").text(), "03");
}

TEST_P(XmlDocumentContract, LoadingReplacesTheDocument) {
  load("<first><one/></first>");
  load("<second/>");
  EXPECT_THAT(names(document().childNodes()), ElementsAre("second"));
  EXPECT_FALSE(document().selectSingleNode("first"));
}

TEST_P(XmlDocumentContract, DocumentMayBeLoadedFromItsOwnText) {
  load("<a><b>text</b></a>");
  EXPECT_TRUE(document().loadXML(document().xml()));
  EXPECT_EQ(document().selectSingleNode("a/b").text(), "text");
  EXPECT_FALSE(document().loadXML(document().selectSingleNode("a/b").nodeName()));
}

TEST_P(XmlDocumentContract, RefusedTextLeavesADocumentThatLoadsAgain) {
  expectRefused("<a>");
  EXPECT_EQ(load("<a>good</a>").text(), "good");
}

TEST_P(XmlDocumentContract, TextWithoutRootIsRefused) {
  for (const auto text : {""sv, " "sv, "\r\n"sv, "text"sv, "<?xml version=\"1.0\"?>"sv, "<!--only a comment-->"sv}) {
    expectRefused(text);
  }
}

TEST_P(XmlDocumentContract, BareMarkupCharactersAreRefused) {
  for (const auto text : {"<a>&</a>"sv, "<a>this & that</a>"sv, "<a>1 < 2</a>"sv, "<a b='<'/>"sv, "<a b='&'/>"sv,
                          "<a>&amp</a>"sv, "<a>&#38</a>"sv, "<a>]]></a>"sv}) {
    expectRefused(text);
  }
}

TEST_P(XmlDocumentContract, UndefinedEntitiesAreRefused) {
  for (const auto text :
       {"<a>&nbsp;</a>"sv, "<a b='&auml;'/>"sv, "<?xml version='1.0' standalone='no'?><a>&x;</a>"sv}) {
    expectRefused(text);
  }
}

TEST_P(XmlDocumentContract, PredefinedEntitiesAndCharacterReferencesAreRead) {
  EXPECT_EQ(load("<a>&lt;&gt;&amp;&quot;&apos;&#65;&#x42;&#xE4;&#x1F9EA;</a>").text(), "<>&\"'ABä🧪");
}

TEST_P(XmlDocumentContract, SecondRootIsRefused) {
  expectRefused("<a/><b/>");
  expectRefused("<a></a>\n<a></a>");
}

TEST_P(XmlDocumentContract, TextOutsideTheRootIsRefused) {
  for (const auto text : {"x<a/>"sv, "<a/>x"sv, "<a/>&#32;"sv, "<a/><![CDATA[x]]>"sv}) expectRefused(text);
}

TEST_P(XmlDocumentContract, TagsThatDoNotMatchAreRefused) {
  for (const auto text : {"<a>"sv, "</a>"sv, "<a></b>"sv, "<a></A>"sv, "<a><b></a></b>"sv, "<a"sv, "<a/"sv, "<a></a"sv,
                          "<a b/>"sv, "<a b=c/>"sv, "<a b='c/>"sv, "< a/>"sv, "<1/>"sv, "<a b='1'c='2'/>"sv}) {
    expectRefused(text);
  }
}

TEST_P(XmlDocumentContract, CommentsInstructionsAndSectionsMustBeWellFormed) {
  for (const auto text :
       {"<a><!-- x -- y --></a>"sv, "<a><!-- x</a>"sv, "<a><![CDATA[x</a>"sv, "<a><?x</a>"sv, "<a><?xml?></a>"sv}) {
    expectRefused(text);
  }
}

TEST_P(XmlDocumentContract, DuplicateAttributesAreRefused) {
  expectRefused("<a b='1' b='2'/>");
  expectRefused("<a xmlns:p='u' xmlns:q='u' p:b='1' q:b='2'/>");
}

TEST_P(XmlDocumentContract, ForbiddenCharactersAreRefused) {
  for (const auto& text :
       {"<a>\x01</a>"s, "<a>\x1B</a>"s, "<a b='\x0B'/>"s, "<a><!--\x0C--></a>"s, "<a>\xEF\xBF\xBE</a>"s,
        "<a b='\xEF\xBF\xBF'/>"s, "<a>&#0;</a>"s, "<a>&#1;</a>"s, "<a b='&#x1F;'/>"s, "<a>&#xFFFE;</a>"s,
        "<a>&#xFFFF;</a>"s, "<a>&#xD800;</a>"s, "<a>&#x110000;</a>"s}) {
    expectRefused(text);
  }
}

TEST_P(XmlDocumentContract, AllowedCharactersAreKept) {
  const std::string allowed =
      "\x7F\xC2\x85\xC2\xA0\xE2\x80\xA8\xEF\xB7\x90\xEF\xBF\xBD\xF0\x9F\xBF\xBF\xF4\x8F\xBF\xBF";
  EXPECT_EQ(load("<a>" + allowed + "</a>").text(), allowed);
  EXPECT_EQ(attribute(load("<a b='" + allowed + "'/>"), "b"), allowed);
}

TEST_P(XmlDocumentContract, EmbeddedZeroIsRefused) {
  for (const auto& text : {"<a>\0</a>"s, "<a/>\0"s, "\0<a/>"s, "<a\0/>"s, "<\0a\0/\0>\0"s}) expectRefused(text);
}

TEST_P(XmlDocumentContract, InvalidUtf8IsRefused) {
  const std::vector<std::pair<const char*, std::string>> cases = {
      {"a lone continuation", "\x80"},
      {"a lone lead", "\xC3"},
      {"a truncated sequence of three", "\xE2\x82"},
      {"a truncated sequence of four", "\xF0\x9F\xA7"},
      {"an overlong form of two", "\xC1\x81"},
      {"an overlong zero", "\xC0\x80"},
      {"an overlong form of three", "\xE0\x81\x81"},
      {"an overlong form of four", "\xF0\x80\x81\x81"},
      {"a surrogate", "\xED\xA0\x80"},
      {"a pair of surrogates", "\xED\xA0\xBD\xED\xB7\xAA"},
      {"beyond the last character", "\xF4\x90\x80\x80"},
      {"a byte of no sequence", "\xFF"},
      {"a letter of another code page", "\xE4 "},
  };
  for (const auto& [what, bytes] : cases) {
    SCOPED_TRACE(what);
    expectRefused("<a>" + bytes + "</a>");
    expectRefused("<a>x" + bytes);
    expectRefused("<a b='" + bytes + "'/>");
    expectRefused("<a><!--" + bytes + "--></a>");
    expectRefused("<a><![CDATA[" + bytes + "]]></a>");
    expectRefused("<a><?p " + bytes + "?></a>");
    expectRefused("<a/><!--" + bytes + "-->");
    expectRefused("<a" + bytes + "/>");
  }
}

TEST_P(XmlDocumentContract, OtherEncodingsAreNoXml) {
  expectRefused("\xFF\xFE<\0a\0/\0>\0"sv);
  expectRefused("\xFE\xFF\0<\0a\0/\0>"sv);
  expectRefused("<\0?\0x\0m\0l\0"sv);
  expectRefused("\x4C\x6F\xA7\x94\x93\x40"sv);  // a declaration in EBCDIC begins so
}

TEST_P(XmlDocumentContract, UndeclaredPrefixesAreRefused) {
  for (const auto text :
       {"<p:a/>"sv, "<a p:b='1'/>"sv, "<a><p:b xmlns:q='u'/></a>"sv, "<a><b xmlns:p='u'/><p:c/></a>"sv,
        "<a xmlns:p=''/>"sv, "<p:a:b xmlns:p='u'/>"sv, "<:a/>"sv, "<a:/>"sv}) {
    expectRefused(text);
  }
}

TEST_P(XmlDocumentContract, DeclaredPrefixesAreAccepted) {
  EXPECT_EQ(load("<p:a xmlns:p='u'><p:b/></p:a>").nodeName(), "p:a");
  EXPECT_EQ(load("<a xmlns='u'><b xmlns=''/></a>").nodeName(), "a");
  EXPECT_EQ(attribute(load("<a xml:space='preserve'/>"), "xml:space"), "preserve");
}

TEST_P(XmlDocumentContract, NamespaceNamesNeedNotBeAddresses) {
  EXPECT_EQ(load("<a xmlns='relative'/>").nodeName(), "a");
  EXPECT_EQ(load("<p:a xmlns:p='two words'/>").nodeName(), "p:a");
}

TEST_P(XmlDocumentContract, DeclaredEncodingIsIgnored) {
  for (const auto encoding :
       {"UTF-8"sv, "utf-8"sv, "ISO-8859-1"sv, "ISO-8859-15"sv, "windows-1252"sv, "US-ASCII"sv, "UTF-16"sv, "UTF-16LE"sv,
        "UCS-4"sv, "UTF-7"sv, "Shift_JIS"sv, "EBCDIC-CP-US"sv, "no-such-encoding"sv}) {
    SCOPED_TRACE(encoding);
    const std::string declaration = "<?xml version=\"1.0\" encoding=\"" + std::string(encoding) + "\"?>";
    const auto root = load(declaration + "<a b=\"5 µl\">Spülen für 5 µl – 液体 🧪</a>");
    EXPECT_EQ(root.text(), "Spülen für 5 µl – 液体 🧪");
    EXPECT_EQ(attribute(root, "b"), "5 µl");
  }
}

TEST_P(XmlDocumentContract, LeadingByteOrderMarkIsAccepted) {
  EXPECT_EQ(load("\xEF\xBB\xBF<a>ä</a>").text(), "ä");
  EXPECT_EQ(load("\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n<a>ä</a>").text(), "ä");
  expectRefused("\xEF\xBB\xBF");
  expectRefused("\xEF\xBB\xBF\xEF\xBB\xBF<a/>");
  expectRefused("<a/>\xEF\xBB\xBF");
}

TEST_P(XmlDocumentContract, DeclarationStandsFirstOrNowhere) {
  EXPECT_EQ(load("\r\n <a>x</a> \r\n").text(), "x");
  expectRefused(" <?xml version=\"1.0\"?><a/>");
  expectRefused("<?xml?><a/>");
}

TEST_P(XmlDocumentContract, DocumentTypesAreRefused) {
  for (const auto text :
       {"<!DOCTYPE a><a/>"sv, "<!DOCTYPE a []><a/>"sv, "<!DOCTYPE a [<!ELEMENT a ANY>]><a/>"sv,
        "<!DOCTYPE a [<!ENTITY x 'y'>]><a>&x;</a>"sv, "<!DOCTYPE a [<!ATTLIST a b CDATA 'c'>]><a/>"sv,
        "<!DOCTYPE a SYSTEM 'a.dtd'><a/>"sv, "<!DOCTYPE a PUBLIC '-//x//y' 'http://127.0.0.1/a.dtd'><a/>"sv,
        "<?xml version='1.0'?>\n<!--c-->\n<!DOCTYPE a [<!ENTITY x SYSTEM 'file:///etc/hostname'>]>\n<a>&x;</a>"sv}) {
    expectRefused(text);
  }
}

TEST_P(XmlDocumentContract, EntitiesAreNotExpandedBeforeTheRefusal) {
  std::string text = "<!DOCTYPE bomb [<!ENTITY e0 \"" + repeated("x", 1000) + "\">";
  for (int i = 1; i < 40; ++i) {
    const std::string inner = "&e" + std::to_string(i - 1) + ";";
    text += "<!ENTITY e" + std::to_string(i) + " \"" + repeated(inner, 10) + "\">";
  }
  expectRefused(text + "]><bomb a=\"&e39;\">&e39;</bomb>");
}

TEST_P(XmlDocumentContract, NothingOutsideTheTextIsRead) {
  const std::string text =
      "<a xmlns:xi='http://www.w3.org/2001/XInclude'><xi:include href='file:///etc/hostname' parse='text'/></a>";
  const auto root = load("<?xml-stylesheet href='file:///etc/hostname'?>" + text);
  EXPECT_THAT(names(root.childNodes()), ElementsAre("xi:include"));
  EXPECT_EQ(root.text(), "");
}

TEST_P(XmlDocumentContract, RefusalsPrintNothing) {
  testing::internal::CaptureStderr();
  testing::internal::CaptureStdout();
  for (const auto text :
       {"<a>"sv, "<p:a/>"sv, "<!DOCTYPE a><a/>"sv, "<a>&x;</a>"sv, "<a>\xFF</a>"sv, "<a xmlns='b c'/>"sv,
        "<a xml:id='1'/>"sv, "<a xml:lang='!'/>"sv, "<?xml version='7'?><a/>"sv}) {
    document().loadXML(text);
  }
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace mavCycEd::test
