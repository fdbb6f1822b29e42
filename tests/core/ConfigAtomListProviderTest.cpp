#include "catalogue/ConfigAtomListProvider.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "TestDocuments.h"
#include "TestPlatform.h"

namespace mavCycEd {
namespace {

using test::element;
using ::testing::ElementsAre;

class ConfigAtomListProviderTest : public ::testing::Test {
 protected:
  void setCatalogue(std::string_view xml) { helper_.setCatalogue(test::parsed(xml)); }
  void setUnits(const std::string& units) {
    helper_.configuration().setText(element("Config", element("Units", units)));
  }
  void setFurtherAtoms(const std::string& atoms) {
    helper_.configuration().setText(element("Config", element("FurtherAtoms", atoms)));
  }

  libxml2::Libxml2DocumentFactory xml_;
  modCycleHelper helper_{xml_};
  ConfigAtomListProvider provider_{helper_};
};

TEST_F(ConfigAtomListProviderTest, AConfiguredUnitHasItsTextAndFactor) {
  setUnits(
      "<UNIT><UNITNAME>ul</UNITNAME><UNITTEXT>µl</UNITTEXT><FACTOR>1000</FACTOR></UNIT>"
      "<UNIT><FACTOR>60</FACTOR><UNITTEXT>min</UNITTEXT><UNITNAME>sec</UNITNAME></UNIT>");
  EXPECT_EQ(provider_.lookUpUnit("ul").text, "µl");
  EXPECT_EQ(provider_.lookUpUnit("ul").factor, 1000);
  EXPECT_EQ(provider_.lookUpUnit("sec").text, "min");
  EXPECT_EQ(provider_.lookUpUnit("sec").factor, 60);
}

TEST_F(ConfigAtomListProviderTest, AnUnknownUnitIsShownByItsNameWithTheFactor1) {
  setUnits("<UNIT><UNITNAME>ul</UNITNAME><UNITTEXT>µl</UNITTEXT><FACTOR>1000</FACTOR></UNIT>");
  EXPECT_EQ(provider_.lookUpUnit("UL").text, "UL");
  EXPECT_EQ(provider_.lookUpUnit("UL").factor, 1);
  EXPECT_EQ(provider_.lookUpUnit("").text, "");
  EXPECT_EQ(provider_.lookUpUnit("").factor, 1);
}

TEST_F(ConfigAtomListProviderTest, WithoutAConfigurationEveryUnitIsUnknown) {
  EXPECT_EQ(provider_.lookUpUnit("°C").text, "°C");
  EXPECT_EQ(provider_.lookUpUnit("°C").factor, 1);
}

TEST_F(ConfigAtomListProviderTest, FurtherAtomsComeInOrderBeforeRepeatAndEnd) {
  setFurtherAtoms("<ATOM><AtomName>WASH</AtomName></ATOM><ATOM><AtomName>BEEP</AtomName></ATOM>");
  EXPECT_THAT(provider_.furtherAtomNames(), ElementsAre("WASH", "BEEP", "REPEAT", "END"));
}

TEST_F(ConfigAtomListProviderTest, RepeatAndEndAreOfferedByDefault) {
  EXPECT_THAT(provider_.furtherAtomNames(), ElementsAre("REPEAT", "END"));
  helper_.configuration().setText("no XML");
  EXPECT_THAT(provider_.furtherAtomNames(), ElementsAre("REPEAT", "END"));
  EXPECT_EQ(provider_.furtherParameters("REPEAT"), "Repetitions;1;9999;1;1;None");
  EXPECT_EQ(provider_.furtherParameters("END"), "");
}

TEST_F(ConfigAtomListProviderTest, RepeatAndEndOfTheCatalogueAreNotOfferedAgain) {
  setCatalogue(test::catalogueOf({"REPEAT", "MIX"}));
  EXPECT_THAT(provider_.furtherAtomNames(), ElementsAre("END"));
  EXPECT_EQ(provider_.furtherParameters("REPEAT"), "") << "the catalogue defines it";
  setCatalogue(test::catalogueOf({"END", "REPEAT"}));
  EXPECT_THAT(provider_.furtherAtomNames(), ElementsAre());
}

TEST_F(ConfigAtomListProviderTest, RepeatAndEndOfTheConfigurationAreOfferedOnce) {
  setFurtherAtoms(
      "<ATOM><AtomName>END</AtomName></ATOM>"
      "<ATOM><AtomName>REPEAT</AtomName><Param>Times;1;5;1;1;None</Param></ATOM>");
  EXPECT_THAT(provider_.furtherAtomNames(), ElementsAre("END", "REPEAT"));
  EXPECT_EQ(provider_.furtherParameters("REPEAT"), "Times;1;5;1;1;None");
}

TEST_F(ConfigAtomListProviderTest, ANameOfTheCatalogueIsNotOfferedTwice) {
  setCatalogue(test::catalogueOf({"MIX"}));
  setFurtherAtoms(
      "<ATOM><AtomName>MIX</AtomName><Param>Extra;1;5;1;1;None</Param></ATOM>"
      "<ATOM><AtomName>WASH</AtomName></ATOM>");
  EXPECT_THAT(provider_.furtherAtomNames(), ElementsAre("WASH", "REPEAT", "END"));
  EXPECT_EQ(provider_.furtherParameters("MIX"), "Extra;1;5;1;1;None") << "its definitions follow the catalogue's own";
}

TEST_F(ConfigAtomListProviderTest, FurtherParametersAreSeparatedByBars) {
  setFurtherAtoms(
      "<ATOM><AtomName>WASH</AtomName><Param>Port;1;2;1;1;None</Param><Param>Liquid;LIQUID</Param></ATOM>"
      "<ATOM><AtomName>BEEP</AtomName></ATOM>");
  EXPECT_EQ(provider_.furtherParameters("WASH"), "Port;1;2;1;1;None|Liquid;LIQUID");
  EXPECT_EQ(provider_.furtherParameters("BEEP"), "");
  EXPECT_EQ(provider_.furtherParameters("OTHER"), "");
}

TEST_F(ConfigAtomListProviderTest, HiddenAtomsAreLeftOutUnlessTheyAreAskedFor) {
  setFurtherAtoms(
      "<ATOM Hidden=\"1\"><AtomName>SERVICE</AtomName></ATOM>"
      "<ATOM Hidden=\"0\"><AtomName>WASH</AtomName></ATOM>"
      "<ATOM hidden=\"1\"><AtomName>BEEP</AtomName></ATOM>");
  EXPECT_THAT(provider_.furtherAtomNames(), ElementsAre("WASH", "BEEP", "REPEAT", "END"));
  provider_.setIgnoreHidden(true);
  EXPECT_THAT(provider_.furtherAtomNames(), ElementsAre("SERVICE", "WASH", "BEEP", "REPEAT", "END"));
  provider_.setIgnoreHidden(false);
  EXPECT_THAT(provider_.furtherAtomNames(), ElementsAre("WASH", "BEEP", "REPEAT", "END"));
}

TEST_F(ConfigAtomListProviderTest, AHiddenRepeatIsNotOfferedByDefault) {
  setFurtherAtoms("<ATOM Hidden=\"1\"><AtomName>REPEAT</AtomName></ATOM>");
  EXPECT_THAT(provider_.furtherAtomNames(), ElementsAre("END")) << "the configuration names it";
}

TEST_F(ConfigAtomListProviderTest, HiddenObjectsAreHiddenUnlessTheyAreAskedFor) {
  const auto document = test::parsed("<OBJECTS><A Hidden=\"1\"/><A Hidden=\"0\"/><A/><A Hidden=\"\"/></OBJECTS>");
  const platform::XmlNodeList objects = document->documentNode().firstChild().childNodes();
  ASSERT_EQ(objects.length(), 4);
  EXPECT_TRUE(provider_.isObjectHidden(objects.item(0)));
  for (int index = 1; index < 4; ++index) EXPECT_FALSE(provider_.isObjectHidden(objects.item(index))) << index;
  provider_.setIgnoreHidden(true);
  EXPECT_TRUE(provider_.isObjectHidden(objects.item(0))) << "not before the next load";
  provider_.furtherAtomNames();
  EXPECT_FALSE(provider_.isObjectHidden(objects.item(0)));
  provider_.setIgnoreHidden(false);
  EXPECT_FALSE(provider_.isObjectHidden(objects.item(0))) << "not before the next load";
  provider_.furtherAtomNames();
  EXPECT_TRUE(provider_.isObjectHidden(objects.item(0)));
}

TEST_F(ConfigAtomListProviderTest, ParametersOfHiddenAtomsAppearWithTheirNames) {
  setFurtherAtoms("<ATOM Hidden=\"1\"><AtomName>SERVICE</AtomName><Param>Level;1;3;3;1;None</Param></ATOM>");
  EXPECT_EQ(provider_.furtherParameters("SERVICE"), "");
  provider_.setIgnoreHidden(true);
  EXPECT_EQ(provider_.furtherParameters("SERVICE"), "") << "not before the next load";
  provider_.furtherAtomNames();
  EXPECT_EQ(provider_.furtherParameters("SERVICE"), "Level;1;3;3;1;None");
}

}  // namespace
}  // namespace mavCycEd
