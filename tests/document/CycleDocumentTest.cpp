#include "mavCycEd/CycleDocument.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace mavCycEd {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Transaction = CycleDocument::Transaction;

AtomLine line(const std::string& name) { return {name, {}}; }

class Listener : public CycleListener {
 public:
  void cycleChanged(const CycleNotice& notice) override { notices.push_back(notice); }
  void historyChanged() noexcept override { ++histories; }
  std::vector<CycleNotice> notices;
  int histories = 0;
};

class CycleDocumentTest : public ::testing::Test {
 protected:
  CycleDocumentTest() {
    Cycle cycle;
    for (const char* name : {"A", "B", "C"}) cycle.lines.push_back(line(name));
    document_.load(std::move(cycle));
    document_.addListener(listener_);
  }
  ~CycleDocumentTest() override { document_.removeListener(listener_); }

  void insert(std::size_t at, const std::string& name) {
    document_.perform(edits::insertLines(at, {line(name)}), "Insert");
  }
  void type(const std::string& text) {
    const Transaction stretch(document_, "Typing", {}, Transaction::Kind::Stretch);
    document_.perform(edits::changeDescription(document_.cycle().description, text));
  }
  std::vector<std::string> names() const {
    std::vector<std::string> result;
    for (const AtomLine& each : document_.cycle().lines) result.push_back(each.name);
    return result;
  }

  CycleDocument document_;
  Listener listener_;
};

TEST_F(CycleDocumentTest, TakesStepsBackAndBringsThemAgain) {
  insert(1, "X");
  document_.perform(edits::removeLines(0, 1), "Delete");
  EXPECT_THAT(names(), ElementsAre("X", "B", "C"));
  EXPECT_EQ(document_.undoName(), "Delete");
  EXPECT_TRUE(document_.undo().has_value());
  EXPECT_TRUE(document_.undo().has_value());
  EXPECT_FALSE(document_.undo().has_value());
  EXPECT_THAT(names(), ElementsAre("A", "B", "C"));
  EXPECT_EQ(document_.redoName(), "Insert");
  EXPECT_TRUE(document_.redo().has_value());
  EXPECT_TRUE(document_.redo().has_value());
  EXPECT_FALSE(document_.redo().has_value());
  EXPECT_THAT(names(), ElementsAre("X", "B", "C"));
}

TEST_F(CycleDocumentTest, ARevisionStandsForOneState) {
  const auto loaded = document_.revision();
  insert(0, "X");
  const auto inserted = document_.revision();
  EXPECT_NE(inserted, loaded);
  document_.undo();
  EXPECT_EQ(document_.revision(), loaded);
  insert(0, "Y");
  EXPECT_NE(document_.revision(), inserted) << "another state, though it is one step away as well";
  document_.undo();
  EXPECT_EQ(document_.revision(), loaded);
}

TEST_F(CycleDocumentTest, ANewStepDropsWhatCouldBeBroughtAgain) {
  insert(0, "X");
  document_.undo();
  insert(0, "Y");
  EXPECT_FALSE(document_.redoName().has_value());
  EXPECT_FALSE(document_.redo().has_value());
}

TEST_F(CycleDocumentTest, ATransactionIsOneStepWithTheSelectionsAroundIt) {
  {
    Transaction step(document_, "Move", {2, -1});
    document_.perform(edits::removeLines(2, 1));
    document_.perform(edits::insertLines(0, {line("C")}));
    EXPECT_FALSE(document_.undo().has_value()) << "not in the middle of a step";
    step.setAfter({0, -1});
  }
  EXPECT_THAT(names(), ElementsAre("C", "A", "B"));
  EXPECT_EQ(document_.undo(), (CycleSelection{2, -1}));
  EXPECT_THAT(names(), ElementsAre("A", "B", "C"));
  EXPECT_EQ(document_.redo(), (CycleSelection{0, -1}));
  EXPECT_THAT(names(), ElementsAre("C", "A", "B"));
}

TEST_F(CycleDocumentTest, WithoutAnEditThereIsNoStep) {
  { const Transaction step(document_, "Nothing", {}); }
  document_.perform(edits::replaceLine(0, line("A")), "Same");
  EXPECT_FALSE(document_.undoName().has_value());
  EXPECT_THAT(listener_.notices, IsEmpty());
}

TEST_F(CycleDocumentTest, AnEditThatDoesNotFitChangesNothing) {
  const auto before = document_.revision();
  EXPECT_THROW(document_.perform(edits::removeLines(3, 1)), std::out_of_range);
  EXPECT_EQ(document_.revision(), before);
  EXPECT_FALSE(document_.undoName().has_value());
}

TEST_F(CycleDocumentTest, LoadingEmptiesTheHistory) {
  insert(0, "X");
  document_.undo();
  insert(0, "Y");
  listener_ = {};
  document_.load({});
  EXPECT_FALSE(document_.undoName().has_value());
  EXPECT_FALSE(document_.redoName().has_value());
  EXPECT_EQ(listener_.histories, 1);
  ASSERT_EQ(listener_.notices.size(), 1U);
  EXPECT_TRUE(listener_.notices.front().loaded);
}

TEST_F(CycleDocumentTest, EditsOfALoadingMakeNoSteps) {
  insert(0, "X");
  {
    const CycleDocument::Loading loading(document_);
    insert(0, "Y");
  }
  EXPECT_THAT(names(), ElementsAre("Y", "X", "A", "B", "C"));
  EXPECT_FALSE(document_.undoName().has_value());
  insert(0, "Z");
  EXPECT_EQ(document_.undoName(), "Insert");
}

TEST_F(CycleDocumentTest, AStretchOfTypingIsOneStep) {
  type("a");
  type("ab");
  type("abc");
  document_.undo();
  EXPECT_EQ(document_.cycle().description, "");
  document_.redo();
  EXPECT_EQ(document_.cycle().description, "abc");
}

TEST_F(CycleDocumentTest, AStretchEndsWhenItIsSealedOrAnotherStepOrUndoComes) {
  type("a");
  document_.sealStretch();
  type("ab");
  insert(0, "X");
  type("abc");
  document_.undo();
  EXPECT_EQ(document_.cycle().description, "ab");
  document_.undo();
  type("abd");
  document_.undo();
  EXPECT_EQ(document_.cycle().description, "ab");
  document_.undo();
  EXPECT_EQ(document_.cycle().description, "a");
}

TEST_F(CycleDocumentTest, AStretchThatEndsWhereItBeganIsNoStep) {
  const auto before = document_.revision();
  type("a");
  type("");
  EXPECT_FALSE(document_.undoName().has_value());
  EXPECT_EQ(document_.revision(), before);
}

TEST_F(CycleDocumentTest, BehindAStretchThatEndsWhereItBeganTypingJoinsNoOlderOne) {
  type("a");
  document_.sealStretch();
  type("ab");
  type("a");
  type("ac");
  document_.undo();
  EXPECT_EQ(document_.cycle().description, "a");
}

TEST_F(CycleDocumentTest, KeepsTheLastTenThousandSteps) {
  constexpr int kept = 10'000;
  for (int i = 0; i < kept + 5; ++i) insert(0, std::to_string(i));
  int undone = 0;
  while (document_.undo()) ++undone;
  EXPECT_EQ(undone, kept);
  EXPECT_EQ(document_.cycle().lines.size(), 8U);
}

TEST_F(CycleDocumentTest, ANoticeNamesTheLinesThatChanged) {
  document_.perform(edits::insertLines(1, {line("X"), line("Y")}));
  ASSERT_EQ(listener_.notices.size(), 1U);
  const auto& range = listener_.notices.front().lines.front();
  EXPECT_EQ(range.at, 1U);
  EXPECT_EQ(range.removed, 0U);
  EXPECT_EQ(range.added, 2U);
  document_.undo();
  const auto& back = listener_.notices.back().lines.front();
  EXPECT_EQ(back.at, 1U);
  EXPECT_EQ(back.removed, 2U);
  EXPECT_EQ(back.added, 0U);
}

TEST_F(CycleDocumentTest, ANoticeTellsVariablesAndDescriptionApart) {
  document_.perform(edits::insertVariable(0, VariableDefinition("V;T")));
  document_.perform(edits::changeDescription("", "text"));
  ASSERT_EQ(listener_.notices.size(), 2U);
  EXPECT_EQ(listener_.notices[0].variables.size(), 1U);
  EXPECT_FALSE(listener_.notices[0].description);
  EXPECT_TRUE(listener_.notices[1].description);
  EXPECT_THAT(listener_.notices[1].lines, IsEmpty());
}

TEST_F(CycleDocumentTest, AListenerThatWasRemovedHearsNothing) {
  document_.removeListener(listener_);
  insert(0, "X");
  EXPECT_THAT(listener_.notices, IsEmpty());
}

TEST_F(CycleDocumentTest, WhatAListenerThrowsLeavesTheChangeInPlace) {
  class Failing : public CycleListener {
   public:
    void cycleChanged(const CycleNotice&) override { throw std::runtime_error("no screen"); }
  } failing;
  document_.addListener(failing);
  EXPECT_THROW(insert(0, "X"), std::runtime_error);
  document_.removeListener(failing);
  EXPECT_THAT(names(), ElementsAre("X", "A", "B", "C"));
  document_.undo();
  EXPECT_THAT(names(), ElementsAre("A", "B", "C"));
}

}  // namespace
}  // namespace mavCycEd
