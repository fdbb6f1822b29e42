#include "catalogue/ConfigurationReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "TestDocuments.h"
#include "TestPlatform.h"

namespace mavCycEd {
namespace {

using test::element;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ConfigurationReaderTest : public ::testing::Test {
 protected:
  /// Takes these elements for the configuration's arguments.
  void setArguments(const std::string& objects) {
    configuration_.setText(element("Config", element("Arguments", objects)));
  }
  ValueList argumentsOf(std::string_view objectName, ValueList list = {}) {
    configuration_.appendArguments(objectName, list);
    return list;
  }

  libxml2::Libxml2DocumentFactory xml_;
  ConfigurationReader configuration_{xml_};
};

TEST_F(ConfigurationReaderTest, KeepsTheTextAsItIs) {
  EXPECT_EQ(configuration_.text(), "");
  configuration_.setText("no XML at all \r\n");
  EXPECT_EQ(configuration_.text(), "no XML at all \r\n");
}

TEST_F(ConfigurationReaderTest, WithoutATextThereAreNoElementsAndNoArguments) {
  EXPECT_EQ(configuration_.elements("Units/UNIT").length(), 0);
  EXPECT_THAT(argumentsOf("TRAY"), IsEmpty());
}

TEST_F(ConfigurationReaderTest, ATextThatDoesNotParseHasNoElementsAndNoArguments) {
  for (const char* text : {"<Config><Arguments>", "text", "<Config/><Config/>", "<Config>&</Config>"}) {
    configuration_.setText(text);
    EXPECT_EQ(configuration_.elements("Arguments").length(), 0) << text;
    EXPECT_THAT(argumentsOf("TRAY"), IsEmpty()) << text;
  }
}

TEST_F(ConfigurationReaderTest, ElementsStandBelowTheRootConfig) {
  configuration_.setText("<Config><Units><UNIT>a</UNIT><Other/><UNIT>b</UNIT></Units></Config>");
  const platform::XmlNodeList units = configuration_.elements("Units/UNIT");
  ASSERT_EQ(units.length(), 2);
  EXPECT_EQ(units.item(0).text(), "a");
  EXPECT_EQ(units.item(1).text(), "b");
  configuration_.setText("<Other><Units><UNIT>a</UNIT></Units></Other>");
  EXPECT_EQ(configuration_.elements("Units/UNIT").length(), 0);
}

TEST_F(ConfigurationReaderTest, ANewTextReplacesTheOldOne) {
  setArguments("<OBJECT><OBJECTNAME>TRAY</OBJECTNAME><A>old</A></OBJECT>");
  EXPECT_THAT(argumentsOf("TRAY"), ElementsAre("old"));
  setArguments("<OBJECT><OBJECTNAME>TRAY</OBJECTNAME><A>new</A></OBJECT>");
  EXPECT_THAT(argumentsOf("TRAY"), ElementsAre("new"));
  configuration_.setText("");
  EXPECT_THAT(argumentsOf("TRAY"), IsEmpty());
}

TEST_F(ConfigurationReaderTest, EveryChildBehindTheFirstIsAnArgument) {
  setArguments(
      "<OBJECT><OBJECTNAME>TRAY</OBJECTNAME><ARGUMENT>one</ARGUMENT><x>two µl</x><ARGUMENT>three</ARGUMENT>"
      "</OBJECT>");
  EXPECT_THAT(argumentsOf("TRAY"), ElementsAre("one", "two µl", "three"));
}

TEST_F(ConfigurationReaderTest, TheFirstChildIsNeverAnArgument) {
  setArguments("<OBJECT><A>first</A><OBJECTNAME>TRAY</OBJECTNAME><A>last</A></OBJECT>");
  EXPECT_THAT(argumentsOf("TRAY"), ElementsAre("TRAY", "last"));
}

TEST_F(ConfigurationReaderTest, SeveralObjectsOfTheNameAllContribute) {
  setArguments(
      "<OBJECT><OBJECTNAME>TRAY</OBJECTNAME><A>one</A></OBJECT>"
      "<OBJECT><OBJECTNAME>RACK</OBJECTNAME><A>other</A></OBJECT>"
      "<OBJECT><OBJECTNAME>TRAY</OBJECTNAME><A>two</A></OBJECT>");
  EXPECT_THAT(argumentsOf("TRAY"), ElementsAre("one", "two"));
}

TEST_F(ConfigurationReaderTest, NamesAreComparedExactly) {
  setArguments(
      "<OBJECT><OBJECTNAME>Tray</OBJECTNAME><A>a</A></OBJECT>"
      "<OBJECT><OBJECTNAME>TRAY </OBJECTNAME><A>b</A></OBJECT>"
      "<OBJECT><OBJECTNAME>TRAYS</OBJECTNAME><A>c</A></OBJECT>");
  EXPECT_THAT(argumentsOf("TRAY"), IsEmpty());
  EXPECT_THAT(argumentsOf("Tray"), ElementsAre("a"));
}

TEST_F(ConfigurationReaderTest, AnArgumentInAnotherCaseIsNotAddedAgain) {
  setArguments(
      "<OBJECT><OBJECTNAME>TRAY</OBJECTNAME><A>Tray</A></OBJECT>"
      "<OBJECT><OBJECTNAME>TRAY</OBJECTNAME><A>TRAY</A><A>Größe</A><A>GRÖẞE</A><A>Лоток</A><A>ЛОТОК</A>"
      "<A>\u00B5</A><A>\u03BC</A></OBJECT>");
  EXPECT_THAT(argumentsOf("TRAY"), ElementsAre("Tray", "Größe", "Лоток", "\u00B5"));
}

TEST_F(ConfigurationReaderTest, AnArgumentThatTheListHoldsIsNotAddedAgain) {
  setArguments("<OBJECT><OBJECTNAME>TRAY</OBJECTNAME><A>one</A><A>two</A></OBJECT>");
  EXPECT_THAT(argumentsOf("TRAY", {"ONE", "zero"}), ElementsAre("ONE", "zero", "two"));
}

TEST_F(ConfigurationReaderTest, AnObjectWithoutANameEndsTheSearch) {
  setArguments(
      "<OBJECT><OBJECTNAME>TRAY</OBJECTNAME><A>one</A></OBJECT>"
      "<OBJECT><A>nameless</A></OBJECT>"
      "<OBJECT><OBJECTNAME>TRAY</OBJECTNAME><A>two</A></OBJECT>");
  EXPECT_THAT(argumentsOf("TRAY"), ElementsAre("one"));
}

TEST_F(ConfigurationReaderTest, ElementsOtherThanObjectsAreNotSearched) {
  setArguments("<Thing><A>nameless</A></Thing><OBJECT><OBJECTNAME>TRAY</OBJECTNAME><A>one</A></OBJECT>");
  EXPECT_THAT(argumentsOf("TRAY"), ElementsAre("one"));
}

TEST_F(ConfigurationReaderTest, WithoutArgumentsTheListStaysAsItIs) {
  configuration_.setText("<Config><Units/></Config>");
  EXPECT_THAT(argumentsOf("TRAY", {"zero"}), ElementsAre("zero"));
}

}  // namespace
}  // namespace mavCycEd
