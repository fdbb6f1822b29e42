#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "TestLines.h"
#include "platform/ItemListBox.h"
#include "platform/LineListBox.h"
#include "platform/RunTimeError.h"

/// What list boxes do on every edition. An edition is a class with the members items() and lines(), which are the two
/// kinds of list boxes; INSTANTIATE_TYPED_TEST_SUITE_P(Name, ListBoxContract, Edition) runs the tests on it.
namespace mavCycEd::test {

template <typename Edition>
class ListBoxContract : public ::testing::Test {
 protected:
  ListBoxContract() {
    items().assign({"a", "b", "c", "d"});
    lines().showLines(owned_);
    const auto note = [this](platform::ListBox& list) {
      return platform::ListBoxEvents{.Click = [this, &list] { told_.push_back(list.index()); }, .DblClick = {}};
    };
    items().setEvents(note(items()));
    lines().setEvents(note(lines()));
  }

  platform::ItemListBox& items() { return edition_.items(); }
  platform::LineListBox& lines() { return edition_.lines(); }

  /// The owner changes its lines and tells the list.
  void splice(int at, int removed, const std::vector<std::string>& added) {
    owned_.splice(at, removed, added);
    lines().spliced(at, removed, static_cast<int>(added.size()));
  }
  static std::vector<std::string> textsOf(const platform::ListBox& list) {
    std::vector<std::string> texts;
    for (int i = 0; i < list.itemCount(); ++i) texts.push_back(list.itemText(i));
    return texts;
  }
  /// Which line is selected behind a change, when `selected` was before.
  int selectedBehind(int selected, int at, int removed, const std::vector<std::string>& added) {
    owned_.texts = {"a", "b", "c", "d"};
    lines().showLines(owned_);
    lines().setIndex(selected);
    told_.clear();
    splice(at, removed, added);
    return lines().index();
  }
  template <typename Call>
  static int errorOf(const Call& call) {
    try {
      call();
    } catch (const RunTimeError& error) {
      return error.number();
    }
    return 0;
  }

  TestLines owned_{{"a", "b", "c", "d"}};
  std::vector<int> told_;
  Edition edition_;
};

TYPED_TEST_SUITE_P(ListBoxContract);

TYPED_TEST_P(ListBoxContract, SettingTheIndexIsToldEveryTime) {
  for (platform::ListBox* const list : std::initializer_list<platform::ListBox*>{&this->items(), &this->lines()}) {
    this->told_.clear();
    for (const int index : {1, 1, -1, -1}) list->setIndex(index);
    EXPECT_THAT(this->told_, ::testing::ElementsAre(1, 1, -1, -1));
  }
}

TYPED_TEST_P(ListBoxContract, ChangesAreNotTold) {
  this->items().setIndex(2);
  this->lines().setIndex(2);
  this->told_.clear();
  this->items().addItem("e");
  this->items().insertItem(0, "z");
  this->items().setItemText(3, "C");
  this->items().removeItem(3);
  this->items().assign({"x"});
  this->items().clear();
  this->splice(0, 0, {"z"});
  this->splice(3, 1, {});
  this->lines().showLines(this->owned_);
  this->lines().clear();
  EXPECT_THAT(this->told_, ::testing::IsEmpty());
}

TYPED_TEST_P(ListBoxContract, TheSelectionStaysWithItsItem) {
  platform::ItemListBox& list = this->items();
  list.setIndex(1);
  list.addItem("e");
  list.setItemText(1, "B");
  EXPECT_EQ(list.index(), 1);
  list.insertItem(1, "in front of it");
  EXPECT_EQ(list.index(), 2);
  list.insertItem(3, "behind it");
  list.removeItem(4);
  EXPECT_EQ(list.index(), 2);
  list.removeItem(0);
  EXPECT_EQ(list.index(), 1);
  EXPECT_THAT(this->textsOf(list), ::testing::ElementsAre("in front of it", "B", "behind it", "d", "e"));
  list.removeItem(1);
  EXPECT_EQ(list.index(), -1);
}

TYPED_TEST_P(ListBoxContract, AnItemMayBeInsertedAtTheEnd) {
  this->items().insertItem(4, "e");
  this->items().clear();
  this->items().insertItem(0, "only");
  EXPECT_THAT(this->textsOf(this->items()), ::testing::ElementsAre("only"));
}

TYPED_TEST_P(ListBoxContract, NewContentsHaveNoSelection) {
  this->items().setIndex(1);
  this->items().assign({"x", "y"});
  EXPECT_EQ(this->items().index(), -1);
  this->items().setIndex(1);
  this->items().clear();
  EXPECT_EQ(this->items().index(), -1);
  EXPECT_EQ(this->items().itemCount(), 0);
  this->lines().setIndex(1);
  this->lines().showLines(this->owned_);
  EXPECT_EQ(this->lines().index(), -1);
  this->lines().clear();
  EXPECT_EQ(this->lines().itemCount(), 0);
}

TYPED_TEST_P(ListBoxContract, IndexesBeyondTheListAreErrors) {
  for (const int index : {-2, 4, 1000}) {
    EXPECT_EQ(this->errorOf([&] { this->items().setIndex(index); }), 5) << index;
    EXPECT_EQ(this->errorOf([&] { this->items().itemText(index); }), 5) << index;
    EXPECT_EQ(this->errorOf([&] { this->items().removeItem(index); }), 5) << index;
    EXPECT_EQ(this->errorOf([&] { this->items().setItemText(index, "x"); }), 5) << index;
    EXPECT_EQ(this->errorOf([&] { this->lines().setIndex(index); }), 5) << index;
    EXPECT_EQ(this->errorOf([&] { this->lines().itemText(index); }), 5) << index;
  }
  EXPECT_EQ(this->errorOf([&] { this->items().insertItem(5, "x"); }), 5);
  EXPECT_EQ(this->errorOf([&] { this->items().insertItem(-1, "x"); }), 5);
  EXPECT_EQ(this->errorOf([&] { this->items().removeItem(-1); }), 5);
  EXPECT_THAT(this->told_, ::testing::IsEmpty());
  EXPECT_THAT(this->textsOf(this->items()), ::testing::ElementsAre("a", "b", "c", "d"));
}

TYPED_TEST_P(ListBoxContract, SplicesOfLinesThatAreNotShownAreErrors) {
  platform::LineListBox& list = this->lines();
  EXPECT_EQ(this->errorOf([&] { list.spliced(-1, 0, 1); }), 5);
  EXPECT_EQ(this->errorOf([&] { list.spliced(5, 0, 1); }), 5);
  EXPECT_EQ(this->errorOf([&] { list.spliced(3, 2, 0); }), 5);
  EXPECT_EQ(this->errorOf([&] { list.spliced(0, -1, 0); }), 5);
  EXPECT_EQ(this->errorOf([&] { list.spliced(0, 0, -1); }), 5);
  EXPECT_EQ(list.itemCount(), 4);
  list.clear();
  EXPECT_EQ(this->errorOf([&] { list.spliced(0, 0, 1); }), 5) << "no lines are shown";
}

TYPED_TEST_P(ListBoxContract, SplicedLinesAreShown) {
  this->splice(1, 2, {"x", "y", "z"});
  EXPECT_THAT(this->textsOf(this->lines()), ::testing::ElementsAre("a", "x", "y", "z", "d"));
  this->splice(5, 0, {"end"});
  this->splice(0, 1, {});
  EXPECT_THAT(this->textsOf(this->lines()), ::testing::ElementsAre("x", "y", "z", "d", "end"));
  this->splice(0, 5, {});
  EXPECT_EQ(this->lines().itemCount(), 0);
  this->splice(0, 0, {"again"});
  EXPECT_THAT(this->textsOf(this->lines()), ::testing::ElementsAre("again"));
}

TYPED_TEST_P(ListBoxContract, ASelectionBehindTheChangeMovesAlong) {
  EXPECT_EQ(this->selectedBehind(2, 1, 0, {"x", "y"}), 4);
  EXPECT_EQ(this->selectedBehind(2, 2, 0, {"x"}), 3) << "in front of the selected line";
  EXPECT_EQ(this->selectedBehind(3, 0, 2, {}), 1);
  EXPECT_EQ(this->selectedBehind(3, 0, 3, {"x"}), 1);
  EXPECT_EQ(this->selectedBehind(1, 2, 1, {"x", "y"}), 1) << "in front of the change";
  EXPECT_EQ(this->selectedBehind(-1, 0, 2, {"x"}), -1) << "no selection";
  EXPECT_THAT(this->told_, ::testing::IsEmpty());
}

TYPED_TEST_P(ListBoxContract, ASelectionOnALineThatWentIsGone) {
  EXPECT_EQ(this->selectedBehind(1, 1, 1, {}), -1);
  EXPECT_EQ(this->selectedBehind(3, 3, 1, {}), -1) << "the last line";
  EXPECT_EQ(this->selectedBehind(0, 0, 4, {}), -1) << "all lines";
  EXPECT_EQ(this->selectedBehind(1, 1, 1, {"x", "y"}), -1);
  EXPECT_EQ(this->selectedBehind(2, 1, 2, {"x"}), -1);
  EXPECT_THAT(this->told_, ::testing::IsEmpty());
}

TYPED_TEST_P(ListBoxContract, LinesThatChangeInPlaceStaySelected) {
  EXPECT_EQ(this->selectedBehind(1, 1, 1, {"x"}), 1);
  EXPECT_EQ(this->lines().itemText(1), "x");
  EXPECT_EQ(this->selectedBehind(2, 0, 3, {"x", "y", "z"}), 2);
  EXPECT_THAT(this->told_, ::testing::IsEmpty());
}

REGISTER_TYPED_TEST_SUITE_P(ListBoxContract, SettingTheIndexIsToldEveryTime, ChangesAreNotTold,
                            TheSelectionStaysWithItsItem, AnItemMayBeInsertedAtTheEnd, NewContentsHaveNoSelection,
                            IndexesBeyondTheListAreErrors, SplicesOfLinesThatAreNotShownAreErrors, SplicedLinesAreShown,
                            ASelectionBehindTheChangeMovesAlong, ASelectionOnALineThatWentIsGone,
                            LinesThatChangeInPlaceStaySelected);

}  // namespace mavCycEd::test
