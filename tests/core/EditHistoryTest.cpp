// What taking steps back, and a program's own edits, do to the screen.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestDocuments.h"
#include "TestEditor.h"

namespace mavCycEd {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class EditHistoryTest : public ::testing::Test {
 protected:
  EditHistoryTest() {
    test::Catalogue catalogue;
    catalogue.atoms = {{"A", {"Volume;0;100;5;1;ul"}}, {"B", {}}, {"REPEAT", {}}, {"END", {}}};
    test::CycleOf cycle;
    cycle.lines = {{"A", {{"Volume", "1"}}}, {"A", {{"Volume", "2"}}}, {"B", {}}};
    editor_.load(xmlOf(catalogue), xmlOf(cycle));
  }
  EditorControl& control() { return editor_.control(); }
  static AtomLine lineOf(const char* name, const char* parameters) { return {name, ParameterText(parameters)}; }

  test::TestEditor editor_;
};

TEST_F(EditHistoryTest, AProgramsEditIsShownAndCanBeTakenBack) {
  editor_.select(2);
  EXPECT_TRUE(control().Perform(edits::insertLines(0, {lineOf("B", ""), lineOf("A", "Volume;9")}), "Import"));
  EXPECT_THAT(editor_.lines(), ElementsAre("01 B", "02 A", "03 A", "04 A", "05 B"));
  EXPECT_EQ(editor_.selected(), 4) << "the line that was selected";
  EXPECT_EQ(control().undoText(), "Import");
  EXPECT_TRUE(control().Undo());
  EXPECT_THAT(editor_.lines(), ElementsAre("01 A", "02 A", "03 B"));
  EXPECT_EQ(editor_.selected(), 2);
}

TEST_F(EditHistoryTest, ASelectedLineThatAProgramChangesIsShownInTheGrid) {
  editor_.select(1);
  control().Perform(edits::replaceLine(1, lineOf("A", "Volume;77")), "Change");
  EXPECT_THAT(editor_.gridValues(), ElementsAre("77"));
  EXPECT_EQ(editor_.selected(), 1);
}

TEST_F(EditHistoryTest, AnotherLinesChangeLeavesWhatIsTyped) {
  editor_.select(1);
  editor_.screen().GrdAtom.type(1, "33");
  control().Perform(edits::replaceLine(0, lineOf("A", "Volume;77")), "Change");
  EXPECT_THAT(editor_.gridValues(), ElementsAre("33"));
  control().Undo();
  EXPECT_THAT(editor_.gridValues(), ElementsAre("33"));
}

TEST_F(EditHistoryTest, LinesFarApartAreShownAndTheSelectionFollowsItsLine) {
  editor_.select(1);
  editor_.screen().GrdAtom.type(1, "33");
  CycleEdit edit = edits::removeLines(0, 1);
  edit.then(edits::insertLines(2, {lineOf("B", "")}));
  EXPECT_TRUE(control().Perform(std::move(edit), "Several"));
  EXPECT_THAT(editor_.lines(), ElementsAre("01 A", "02 B", "03 B"));
  EXPECT_EQ(editor_.selected(), 0);
  EXPECT_THAT(editor_.gridValues(), ElementsAre("33")) << "it is the same line";
}

TEST_F(EditHistoryTest, AnEditThatDoesNotFitIsReportedAndChangesNothing) {
  EXPECT_FALSE(control().Perform(edits::removeLines(3, 1), "Remove"));
  EXPECT_THAT(editor_.failedProcedures(), ElementsAre("Perform "));
  EXPECT_EQ(editor_.lines().size(), 3U);
  EXPECT_FALSE(control().undoText());
}

TEST_F(EditHistoryTest, AnEditThatChangesNothingIsNoStep) {
  EXPECT_FALSE(control().Perform(edits::replaceLine(2, lineOf("B", "")), "Same"));
  EXPECT_FALSE(control().undoText());
}

TEST_F(EditHistoryTest, InsideOfAProcedureNothingIsTakenBackOrChanged) {
  std::vector<bool> done;
  editor_.insert();
  editor_.platform.messageBox = memory::MemoryMessageBox([&](std::string_view, std::string_view, int) {
    done.push_back(control().Undo());
    done.push_back(control().Redo());
    done.push_back(control().Perform(edits::removeLines(0, 1), "Remove"));
  });
  editor_.screen().GrdAtom.setValue(1, 1, "999");
  editor_.insert();
  EXPECT_THAT(done, ElementsAre(false, false, false));
  EXPECT_EQ(editor_.lines().size(), 4U);
}

TEST_F(EditHistoryTest, IsToldBehindTheProcedureAndOnce) {
  std::vector<std::string> texts;
  control().setHistoryChanged([&] {
    EXPECT_FALSE(control().isRunning());
    texts.push_back(control().undoText().value_or("-"));
  });
  editor_.insert();
  control().Undo();
  EXPECT_THAT(texts, ElementsAre("Insert", "-"));
}

TEST_F(EditHistoryTest, UndoShowsNoMessageForAValueThatIsOutOfRange) {
  control().Perform(edits::replaceLine(0, lineOf("A", "Volume;999")), "Change");
  editor_.select(0);
  editor_.screen().GrdAtom.setValue(1, 1, "5");
  editor_.replace();
  editor_.platform.messages.clear();
  EXPECT_TRUE(control().Undo());
  EXPECT_THAT(editor_.gridValues(), ElementsAre("999"));
  EXPECT_THAT(editor_.platform.messages, IsEmpty());
}

}  // namespace
}  // namespace mavCycEd
