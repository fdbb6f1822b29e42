#include "kit/TypeAhead.h"

#include <gtest/gtest.h>

#include <vector>

namespace mavCycEd::kit {
namespace {

using namespace std::chrono_literals;

class TypeAheadTest : public ::testing::Test {
 protected:
  /// Types characters one soon after another; the item that is current then.
  int type(std::string_view characters) {
    for (const char& character : characters) {
      now_ += 100ms;
      const int found = typeAhead_.type(
          {&character, 1}, now_, {.count = static_cast<int>(items_.size()), .current = current_, .text = [this](int i) {
                                    return items_.at(static_cast<std::size_t>(i));
                                  }});
      if (found >= 0) current_ = found;
    }
    return current_;
  }

  std::vector<std::string> items_{"ADD", "ASPIRATE", "wait", "WASH", "Äther"};
  int current_ = -1;
  TypeAhead::Time now_ = 10'000ms;
  TypeAhead typeAhead_{1s};
};

TEST_F(TypeAheadTest, WhatIsTypedWithoutAPauseIsOneText) {
  EXPECT_EQ(type("was"), 3);
  now_ += 1001ms;
  EXPECT_EQ(type("as"), 1);
}

TEST_F(TypeAheadTest, TheSameCharacterGoesFromOneToTheNext) {
  EXPECT_EQ(type("a"), 0);
  EXPECT_EQ(type("a"), 1);
  EXPECT_EQ(type("a"), 0) << "round the end";
}

TEST_F(TypeAheadTest, BehindSomethingElseItBeginsAnew) {
  EXPECT_EQ(type("w"), 2);
  typeAhead_.restart();
  EXPECT_EQ(type("a"), 0) << "not the item that begins with wa";
  typeAhead_.restart();
  EXPECT_EQ(type("a"), 1);
}

TEST_F(TypeAheadTest, LettersOfEitherCaseAreTheSame) {
  EXPECT_EQ(type("WA"), 2);
  EXPECT_EQ(typeAhead_.type("ä", now_ + 2s, {.count = 1, .current = -1, .text = [this](int) { return items_[4]; }}), 0);
}

TEST_F(TypeAheadTest, WhatNothingBeginsWithIsNotFound) {
  EXPECT_EQ(type("x"), -1);
  EXPECT_EQ(typeAhead_.type("a", now_, {.count = 0, .current = -1, .text = {}}), -1);
}

}  // namespace
}  // namespace mavCycEd::kit
