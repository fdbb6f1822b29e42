// What concerns the library beneath: its settings belong to the host, and documents live in any thread.
#include <gtest/gtest.h>
#include <libxml/globals.h>
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlerror.h>

#include <string>
#include <thread>
#include <vector>

#include "XmlDocumentContract.h"
#include "libxml2/Libxml2DocumentFactory.h"

namespace mavCycEd::test {
namespace {

std::string rewritten(const std::string& text) {
  libxml2::Libxml2DocumentFactory factory;
  const auto document = factory.createDocument();
  return document->loadXML(text) ? document->xml() : "(refused)";
}

// Settings of the host, as unfavourable as they can be, until the end of the test.
class HostSettings {
 public:
  HostSettings() {
    xmlKeepBlanksDefault(0);
    xmlSubstituteEntitiesDefault(1);
    xmlLoadExtDtdDefaultValue = 1;
    xmlDoValidityCheckingDefaultValue = 1;
    xmlPedanticParserDefaultValue = 1;
    xmlIndentTreeOutput = 0;
    xmlTreeIndentString = "\t";
    xmlSaveNoEmptyTags = 0;
    xmlSetStructuredErrorFunc(&errors_, [](void* errors, auto) { ++*static_cast<int*>(errors); });
  }
  ~HostSettings() {
    xmlSetStructuredErrorFunc(nullptr, nullptr);
    xmlTreeIndentString = "  ";
    xmlIndentTreeOutput = 1;
    xmlPedanticParserDefaultValue = 0;
    xmlDoValidityCheckingDefaultValue = 0;
    xmlLoadExtDtdDefaultValue = 0;
    xmlSubstituteEntitiesDefault(0);
    xmlKeepBlanksDefault(1);
  }
  HostSettings(const HostSettings&) = delete;
  HostSettings& operator=(const HostSettings&) = delete;

  int errors() const { return errors_; }

 private:
  int errors_ = 0;
};

TEST(Libxml2Document, SettingsOfTheHostChangeNothing) {
  const HostSettings settings;
  EXPECT_EQ(rewritten("<a><b> </b> <c/></a>"), "<a>\n  <b> </b>\n  <c/>\n</a>\n");
  EXPECT_EQ(rewritten("<a> x <b/>&lt;</a>"), "<a> x <b/>&lt;</a>\n");
}

TEST(Libxml2Document, SettingsOfTheHostAreLeftAsTheyAre) {
  const HostSettings settings;
  rewritten("<a><b/></a>");
  EXPECT_EQ(xmlIndentTreeOutput, 0);
  EXPECT_STREQ(xmlTreeIndentString, "\t");
}

TEST(Libxml2Document, HostDoesNotHearOfRefusals) {
  const HostSettings settings;
  for (const char* text : {"<a>", "<p:a/>", "<!DOCTYPE a><a/>", "<a xmlns='relative'/>"}) rewritten(text);
  EXPECT_EQ(settings.errors(), 0);
}

TEST(Libxml2Document, DocumentsLiveInThreadsOfTheirOwn) {
  const std::string text = "<a b=\"µ\">\n" + repeated("  <b>x</b>\n", 1000) + "</a>\n";
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&text] {
      for (int round = 0; round < 50; ++round) {
        EXPECT_EQ(rewritten(text), text);
        EXPECT_EQ(rewritten("<a><b></a>"), "(refused)");
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

TEST(Libxml2Document, IndentGrowsUpToLevel30) {
  const std::string written = rewritten(repeated("<a>", 40) + "x" + repeated("</a>", 40));
  EXPECT_NE(written.find("\n" + std::string(60, ' ') + "<a>"), std::string::npos);
  EXPECT_EQ(written.find(std::string(61, ' ')), std::string::npos);
  EXPECT_EQ(rewritten(written), written);
}

}  // namespace
}  // namespace mavCycEd::test
