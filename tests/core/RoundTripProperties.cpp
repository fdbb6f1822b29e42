#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

#include "RandomCycles.h"

namespace mavCycEd::test {
namespace {

/// Loads a random cycle and works on it at random.
void workAtRandom(TestEditor& editor) {
  editor.load(roomyCatalogue(), xmlOf(*cycles().as("cycle")));
  for (const Step& step : *steps().as("steps")) perform(step, editor);
}

/// That a cycle which was handed back loads into a fresh editor as it was.
void requireLoadsUnchanged(const std::string& cycle, const std::string& catalogue) {
  TestEditor fresh;
  fresh.platform.clock.now = "2099-12-31T23:59:59";
  fresh.load(catalogue, cycle);
  RC_ASSERT(!fresh.control().CycleChanged());
  RC_ASSERT(fresh.control().RetrieveCycle() == cycle);
  RC_ASSERT(!fresh.control().CycleChanged());
  RC_ASSERT(fresh.errors.empty());
}

RC_GTEST_PROP(HandedBackCycle, LoadsUnchangedIntoAFreshEditor, ()) {
  TestEditor editor;
  workAtRandom(editor);
  const std::string cycle = editor.control().RetrieveCycle();
  RC_ASSERT(editor.errors.empty());
  RC_ASSERT(cycle.empty() == (editor.control().atoms().Count() == 0));
  if (!cycle.empty()) requireLoadsUnchanged(cycle, roomyCatalogue());
}

RC_GTEST_PROP(HandedBackCycle, LoadsUnchangedUnderAnotherCatalogue, ()) {
  TestEditor editor;
  workAtRandom(editor);
  const std::string cycle = editor.control().RetrieveCycle();
  if (!cycle.empty()) requireLoadsUnchanged(cycle, catalogueOf({"MIX", "OTHER"}));
}

RC_GTEST_PROP(HandedBackCycle, ShowsTheSameScreenInAFreshEditor, ()) {
  TestEditor editor;
  workAtRandom(editor);
  const std::string cycle = editor.control().RetrieveCycle();
  RC_PRE(!cycle.empty());
  TestEditor fresh;
  fresh.load(roomyCatalogue(), cycle);
  RC_ASSERT(fresh.atomNames() == editor.atomNames());
  RC_ASSERT(fresh.lines().size() == editor.lines().size());
}

RC_GTEST_PROP(HandedBackCycle, IsTheNewBaseline, ()) {
  TestEditor editor;
  workAtRandom(editor);
  const std::string cycle = editor.control().RetrieveCycle();
  RC_ASSERT(!editor.control().CycleChanged());
  editor.platform.clock.now = "2099-12-31T23:59:59";
  RC_ASSERT(editor.control().RetrieveCycle() == cycle);
  RC_ASSERT(!editor.control().CycleChanged());
  RC_ASSERT(!editor.control().changedFlag());
}

RC_GTEST_PROP(HandedBackCycle, ReadsChangedAfterAnotherDescription, ()) {
  TestEditor editor;
  workAtRandom(editor);
  RC_PRE(!editor.control().RetrieveCycle().empty());
  const std::string before = editor.screen().txtCycleDescription.text();
  editor.screen().txtCycleDescription.replace(before + "x");
  RC_ASSERT(editor.control().CycleChanged());
  editor.control().Undo();
  RC_ASSERT(editor.screen().txtCycleDescription.text() == before);
  RC_ASSERT(!editor.control().CycleChanged());
}

RC_GTEST_PROP(HandedBackCycle, HasOneElementPerAtomLine, ()) {
  TestEditor editor;
  workAtRandom(editor);
  const std::string cycle = editor.control().RetrieveCycle();
  RC_PRE(!cycle.empty());
  const auto document = parsed(cycle);
  const int count = editor.control().atoms().Count();
  RC_ASSERT(document->selectNodes("CYCLE/ATOMSEQUENCE/ATOMS/ATOM").length() == count);
  RC_ASSERT(document->selectNodes("CYCLE/CYCLEATOMS/ATOMLINE").length() == count);
  RC_ASSERT(document->selectNodes("CYCLE/VERSION").length() == 1);
}

TEST(HandedBackCycleOfAThousandLines, LoadsUnchangedIntoAFreshEditor) {
  CycleOf cycle;
  cycle.description = "//Tausend Zeilen\nin µl\n";
  for (int line = 0; line < 1000; ++line) {
    const int place = line % 10;
    if (place == 0) {
      cycle.lines.push_back({"REPEAT", {{"Repetitions", std::to_string(line)}}});
    } else if (place == 9) {
      cycle.lines.push_back({"END", {}});
    } else {
      cycle.lines.push_back({"MIX", {{"Volume(ml)", std::to_string(line)}, {"Größe", "µ " + std::to_string(place)}}});
    }
  }
  TestEditor editor;
  editor.load(roomyCatalogue(), xmlOf(cycle));
  ASSERT_EQ(editor.lines().size(), 1000U);
  EXPECT_EQ(editor.lines()[0], "01 REPEAT");
  EXPECT_EQ(editor.lines()[998], "999    MIX");
  EXPECT_EQ(editor.lines()[999], "1000 END");
  const std::string text = editor.control().RetrieveCycle();
  TestEditor fresh;
  fresh.platform.clock.now = "2099-12-31T23:59:59";
  fresh.load(roomyCatalogue(), text);
  EXPECT_FALSE(fresh.control().CycleChanged());
  EXPECT_EQ(fresh.control().RetrieveCycle(), text);
  EXPECT_EQ(fresh.lines(), editor.lines());
  EXPECT_EQ(fresh.atomParameters(), editor.atomParameters());
}

}  // namespace
}  // namespace mavCycEd::test
