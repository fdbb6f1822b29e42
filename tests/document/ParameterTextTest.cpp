#include "mavCycEd/ParameterText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace mavCycEd {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> textsOf(const std::vector<ParameterSegment>& segments) {
  std::vector<std::string> texts;
  for (const ParameterSegment& segment : segments) texts.emplace_back(segment.text());
  return texts;
}

std::vector<std::string> walked(const ParameterText& parameters) {
  std::vector<std::string> texts;
  parameters.forEachSegment([&](const ParameterSegment& segment) { texts.emplace_back(segment.text()); });
  return texts;
}

TEST(ParameterText, HasASegmentForEachParameter) {
  const ParameterText parameters("Amount(ul);100\rSpeed;Fast");
  EXPECT_THAT(textsOf(parameters.segments()), ElementsAre("Amount(ul);100", "Speed;Fast"));
}

TEST(ParameterText, WalksTheSegmentsThatItLists) {
  for (const char* text : {"", "a", "\r", "a;1\r", "\ra;1", "a;1\r\rb;2", "a;1\rb;2"}) {
    const ParameterText parameters(text);
    EXPECT_EQ(walked(parameters), textsOf(parameters.segments())) << text;
  }
  EXPECT_THAT(walked(ParameterText()), IsEmpty());
}

TEST(ParameterText, TakesASegmentApartAtItsFirstSeparator) {
  const ParameterSegment segment("Volume;10;20");
  EXPECT_EQ(segment.name(), "Volume");
  EXPECT_EQ(segment.value(), "10;20");
  EXPECT_TRUE(segment.hasValue());
  EXPECT_THAT(segment.fields(), ElementsAre("Volume", "10", "20"));
}

TEST(ParameterText, ASegmentWithoutASeparatorIsAValue) {
  const ParameterSegment segment("10");
  EXPECT_EQ(segment.value(), "10");
  EXPECT_EQ(segment.name(), "10");
  EXPECT_FALSE(segment.hasValue());
}

TEST(ParameterText, WalksTheValuesOfASegmentUntilToldToStop) {
  std::vector<std::string> values;
  const auto take = [&](std::string_view value) {
    values.emplace_back(value);
    return values.size() < 2;
  };
  EXPECT_FALSE(ParameterSegment("n;1;;3").forEachValue(take));
  EXPECT_THAT(values, ElementsAre("1", ""));
  EXPECT_TRUE(ParameterSegment("n").forEachValue(take));
  EXPECT_THAT(values, ElementsAre("1", ""));
}

TEST(ParameterText, IsPutTogetherFromADocumentsParameters) {
  ParameterText parameters;
  parameters.append("Volume", "");
  parameters.append("", " x ");
  parameters.endAppending();
  EXPECT_EQ(parameters.text(), "Volume;\r; x ");
}

TEST(ParameterText, OfADocumentBeginsWithNoSeparator) {
  ParameterText parameters;
  parameters.append("", "");
  parameters.append("Volume", "10");
  parameters.endAppending();
  EXPECT_EQ(parameters.text(), "\rVolume;10");
}

TEST(ParameterText, OfTheRowsOfAGridHasBareValuesForNamelessRows) {
  EXPECT_EQ(ParameterText::of({}).text(), "");
  EXPECT_EQ(ParameterText::of({{"A", "1"}, {"B", ""}, {"", "3"}, {"", ""}}).text(), "A;1\rB;\r3\r");
  EXPECT_EQ(ParameterText::of({{"", ""}}).text(), "");
}

}  // namespace
}  // namespace mavCycEd
