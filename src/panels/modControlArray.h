#pragma once

#include "platform/PopupMenu.h"

/// A pop-up menu's items as an array that grows and shrinks at run time. Item 0 always stays.
namespace mavCycEd::modControlArray {

/// Removes every item but item 0.
void deleteItems(platform::PopupMenu& menu);

/// Whether the items stand at 0, 1, 2, ... without a gap.
bool isContinuous(const platform::PopupMenu& menu);

/// The lowest index at which no item stands.
int firstFreePlace(const platform::PopupMenu& menu);

}  // namespace mavCycEd::modControlArray
