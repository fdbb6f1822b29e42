#include "kit/GridKeys.h"

#include <gtest/gtest.h>

namespace mavCycEd::kit {
namespace {

constexpr KeyPress plain(Key key) { return {.key = key}; }
constexpr KeyPress withShift(Key key) { return {.key = key, .shift = true}; }
constexpr KeyPress withControl(Key key) { return {.key = key, .control = true}; }
constexpr KeyPress withAlt(Key key) { return {.key = key, .alt = true}; }
constexpr KeyPress withAltGr(Key key) { return {.key = key, .control = true, .alt = true}; }

GridAction action(const KeyPress& press) { return actionOf(press, true); }

TEST(GridKeys, MovingKeysMoveWhenTheyArePressedAlone) {
  for (const Key key : {Key::Up, Key::Down, Key::PageUp, Key::PageDown, Key::Home, Key::End}) {
    EXPECT_EQ(action(plain(key)), GridAction::Move);
    EXPECT_EQ(action(withShift(key)), GridAction::None);
    EXPECT_EQ(action(withControl(key)), GridAction::None);
  }
}

TEST(GridKeys, F4AndAltWithAnArrowOpenTheList) {
  EXPECT_EQ(action(plain(Key::F4)), GridAction::OpenList);
  EXPECT_EQ(action(withAlt(Key::Up)), GridAction::OpenList);
  EXPECT_EQ(action(withAlt(Key::Down)), GridAction::OpenList);
  EXPECT_EQ(action(withAlt(Key::F4)), GridAction::None) << "that closes windows";
  EXPECT_EQ(action(withAlt(Key::PageDown)), GridAction::None);
  EXPECT_EQ(action(withAltGr(Key::Down)), GridAction::None);
}

TEST(GridKeys, EnterOpensAnEditorUnlessTheWindowHasAnotherUseForIt) {
  EXPECT_EQ(actionOf(plain(Key::Enter), true), GridAction::OpenEditor);
  EXPECT_EQ(actionOf(plain(Key::Enter), false), GridAction::None);
  EXPECT_EQ(actionOf(plain(Key::F2), false), GridAction::OpenEditor);
  EXPECT_EQ(action(withControl(Key::Enter)), GridAction::None);
  EXPECT_EQ(action(withShift(Key::F2)), GridAction::None);
}

TEST(GridKeys, ShiftF10AsksForTheMenu) {
  EXPECT_EQ(action(withShift(Key::F10)), GridAction::AskForMenu);
  EXPECT_EQ(action(plain(Key::F10)), GridAction::None);
}

TEST(GridKeys, WhatTypesOrDeletesBeginsAnEdit) {
  for (const Key key : {Key::Character, Key::Delete, Key::Backspace}) {
    EXPECT_EQ(action(plain(key)), GridAction::BeginEdit);
    EXPECT_EQ(action(withShift(key)), GridAction::BeginEdit);
    EXPECT_EQ(action(withAltGr(key)), GridAction::BeginEdit);
    EXPECT_EQ(action(withControl(key)), GridAction::None);
    EXPECT_EQ(action(withAlt(key)), GridAction::None);
  }
  EXPECT_EQ(action(withControl(Key::Paste)), GridAction::BeginEdit);
  EXPECT_EQ(action(withControl(Key::Copy)), GridAction::Copy);
  for (const Key key : {Key::Other, Key::Tab, Key::BackTab, Key::Escape}) {
    EXPECT_EQ(action(plain(key)), GridAction::None);
  }
}

TEST(GridKeys, KeysLeadToRowsAndNoFurtherThanTheLastPage) {
  constexpr int rowCount = 11;  // ten parameter rows
  constexpr int page = 4;
  EXPECT_EQ(rowBy(Key::Up, 5, rowCount, page), 4);
  EXPECT_EQ(rowBy(Key::Up, 1, rowCount, page), 0);
  EXPECT_EQ(rowBy(Key::Down, 10, rowCount, page), 11);
  EXPECT_EQ(rowBy(Key::PageUp, 3, rowCount, page), 1);
  EXPECT_EQ(rowBy(Key::PageUp, 9, rowCount, page), 5);
  EXPECT_EQ(rowBy(Key::PageDown, 8, rowCount, page), 10);
  EXPECT_EQ(rowBy(Key::Home, 8, rowCount, page), 1);
  EXPECT_EQ(rowBy(Key::End, 8, rowCount, page), 10);
}

TEST(GridKeys, StepsOfAnEdit) {
  EXPECT_EQ(stepOf(plain(Key::Tab)), Step::NextCell);
  EXPECT_EQ(stepOf(withShift(Key::Tab)), Step::PreviousCell);
  EXPECT_EQ(stepOf(withShift(Key::BackTab)), Step::PreviousCell);
  EXPECT_EQ(stepOf(plain(Key::Enter)), Step::NextLine);
  EXPECT_EQ(stepOf(plain(Key::Up)), Step::Up);
  EXPECT_EQ(stepOf(withShift(Key::Down)), Step::Down);
  EXPECT_EQ(stepOf(plain(Key::PageDown)), Step::PageDown);
  for (const KeyPress& own : {plain(Key::Home), plain(Key::Character), withControl(Key::Tab), withAlt(Key::Down)}) {
    EXPECT_FALSE(stepOf(own)) << "the editor's own";
  }
}

TEST(GridKeys, RowsBehindSteps) {
  EXPECT_EQ(rowBehind(Step::NextCell, 10, 11, 4), 11);
  EXPECT_EQ(rowBehind(Step::PreviousCell, 1, 11, 4), 0);
  EXPECT_EQ(rowBehind(Step::NextLine, 2, 11, 4), 3);
  EXPECT_EQ(rowBehind(Step::PageDown, 9, 11, 4), 10);
  EXPECT_EQ(rowBehind(Step::PageUp, 9, 11, 4), 5);
}

}  // namespace
}  // namespace mavCycEd::kit
