#pragma once

/// Positions over a value list, in its own units, whatever the fonts, the scaling and the column widths on screen are.
namespace mavCycEd::platform::gridUnits {

inline constexpr int rowHeight = 19;
inline constexpr int keyColumnEnd = 150;
inline constexpr int valueColumnBegin = 151;
/// How far the pointer may stray from the last press and still be on its row.
inline constexpr int sameRowDistance = 22;
/// The three rows of the variable dialog's settings: between these two, both exclusive.
inline constexpr int settingsTop = 16;
inline constexpr int settingsBottom = 76;

}  // namespace mavCycEd::platform::gridUnits
