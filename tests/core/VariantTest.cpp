#include "text/Variant.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace mavCycEd {
namespace {

const Variant nothing;
const Variant object = ObjectReference(std::make_shared<int>(7));

Variant textValue(const char* text) { return std::string(text); }

TEST(Variant, ReadsAsText) {
  EXPECT_EQ(textOf(nothing), "");
  EXPECT_EQ(textOf(object), "");
  EXPECT_EQ(textOf(textValue(" 5 ml")), " 5 ml");
  EXPECT_EQ(textOf(0.1), "0.1");
  EXPECT_EQ(textOf(1.0 / 3), "0.333333333333333");
}

TEST(Variant, ReadsAsNumber) {
  EXPECT_EQ(numberOf(nothing), 0);
  EXPECT_EQ(numberOf(object), 0);
  EXPECT_EQ(numberOf(2.5), 2.5);
  EXPECT_EQ(numberOf(textValue(" 5 ml")), 5);
  EXPECT_EQ(numberOf(textValue("ml")), 0);
}

TEST(Variant, TellsWhetherItIsANumber) {
  EXPECT_TRUE(holdsNumber(0.0));
  EXPECT_TRUE(holdsNumber(textValue(" 5.5 ")));
  EXPECT_FALSE(holdsNumber(textValue("5 ml")));
  EXPECT_FALSE(holdsNumber(textValue("")));
  EXPECT_FALSE(holdsNumber(nothing));
  EXPECT_FALSE(holdsNumber(object));
}

TEST(Variant, TellsWhetherItIsNothing) {
  EXPECT_TRUE(holdsNothing(nothing));
  EXPECT_TRUE(holdsNothing(textValue("")));
  EXPECT_FALSE(holdsNothing(textValue(" ")));
  EXPECT_FALSE(holdsNothing(0.0));
  EXPECT_FALSE(holdsNothing(object));
}

}  // namespace
}  // namespace mavCycEd
