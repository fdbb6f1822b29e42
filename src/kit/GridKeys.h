#pragma once

#include <optional>

/// What the keys do in a grid of values, whatever they are called on a platform.
namespace mavCycEd::kit {

enum class Key {
  Other,
  Character,  ///< types a character, as a composed one does
  Up,
  Down,
  PageUp,
  PageDown,
  Home,
  End,
  Tab,
  BackTab,
  Enter,
  Escape,
  F2,
  F4,
  F10,
  Delete,
  Backspace,
  Copy,  ///< the platform's own keys for it
  Paste,
};

struct KeyPress {
  Key key = Key::Other;
  bool shift = false;
  bool control = false;
  bool alt = false;
};

/// What a key asks for in a grid in which no value is being edited.
enum class GridAction {
  None,
  Move,        ///< another row (rowBy)
  AskForMenu,  ///< the pop-up menu of the current row; the keyboard's menu key does so by itself
  Copy,
  OpenEditor,
  OpenList,
  BeginEdit,  ///< the key opens the editor and belongs there
};

/// `enterOpens`: whether Enter opens the editor, as F2 does.
GridAction actionOf(const KeyPress& press, bool enterOpens);

/// Whether a key asks for the list of a value: F4, or Alt with an arrow up or down.
bool isListKey(const KeyPress& press);

/// The row that a moving key leads to from the current one; not a parameter row where the key leads nowhere.
int rowBy(Key key, int currentRow, int rowCount, int pageRows);

/// Where the keys lead that end an edit.
enum class Step { NextCell, PreviousCell, NextLine, Up, Down, PageUp, PageDown };

/// The step of a key in an open editor; nothing for a key that is the editor's own.
std::optional<Step> stepOf(const KeyPress& press);

/// The row that a step leads to; not a parameter row where it leads out of the rows.
int rowBehind(Step step, int row, int rowCount, int pageRows);

}  // namespace mavCycEd::kit
