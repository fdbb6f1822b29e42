#include "kit/Notify.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "kit/Lifeline.h"

namespace mavCycEd::kit {
namespace {

TEST(Notify, WithoutAHandlerNothingHappens) { tell(std::function<void(int)>(), 1); }

TEST(Notify, AHandlerMayTakeItselfBackWhileItRuns) {
  const auto told = std::make_shared<std::string>();
  std::function<void(const std::string&)> handler = [&handler, told](const std::string& text) {
    handler = nullptr;
    *told += text;  // what the handler holds is still there
  };
  tell(handler, std::string("once"));
  tell(handler, std::string("twice"));
  EXPECT_EQ(*told, "once");
}

TEST(Lifeline, ShowsWhetherTheObjectIsStillThere) {
  auto object = std::make_unique<Lifeline>();
  const Lifeline::Watch alive = object->watch();
  EXPECT_TRUE(alive);
  object.reset();
  EXPECT_FALSE(alive);
}

TEST(Lifeline, AnObjectInThePlaceOfTheOldOneIsAnother) {
  std::optional<Lifeline> object(std::in_place);
  const Lifeline::Watch alive = object->watch();
  object.emplace();
  EXPECT_FALSE(alive);
  EXPECT_TRUE(object->watch());
}

}  // namespace
}  // namespace mavCycEd::kit
