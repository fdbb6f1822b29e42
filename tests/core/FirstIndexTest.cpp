#include "text/FirstIndex.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mavCycEd::text {
namespace {

TEST(FirstIndex, TheFirstOfEqualItemsIsFound) {
  FirstIndex places;
  const std::vector<std::string> items = {"Tray", "Rack", "Tray"};
  EXPECT_EQ(places.of("Tray", items), 0);
  EXPECT_EQ(places.of("Rack", items), 1);
}

TEST(FirstIndex, OnlyExactlyTheTextIsFound) {
  FirstIndex places;
  const std::vector<std::string> items = {"Tray", ""};
  EXPECT_EQ(places.of("tray", items), -1);
  EXPECT_EQ(places.of("Tra", items), -1);
  EXPECT_EQ(places.of("", items), 1);
}

TEST(FirstIndex, ItemsAddedSinceTheLastQuestionAreFound) {
  FirstIndex places;
  std::vector<std::string> items = {"Tray"};
  EXPECT_EQ(places.of("Rack", items), -1);
  items.emplace_back("Rack");
  EXPECT_EQ(places.of("Rack", items), 1);
}

TEST(FirstIndex, ForgottenItemsAreNotFound) {
  FirstIndex places;
  EXPECT_EQ(places.of("Tray", {"Tray"}), 0);
  places.forget();
  EXPECT_EQ(places.of("Tray", {"Rack"}), -1);
  EXPECT_EQ(places.of("Rack", {"Rack"}), 0);
}

}  // namespace
}  // namespace mavCycEd::text
