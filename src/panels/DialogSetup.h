#pragma once

#include <string_view>

#include "platform/OptionButton.h"
#include "platform/ValueListActiveX.h"

namespace mavCycEd {

/// Selects the option that fits a variable's definition: the object option when its second ";"-separated field is an
/// object name, the numeric option when it is another text. A definition without ";" changes nothing.
void selectVariableType(std::string_view definition, platform::OptionButton& optObjValue,
                        platform::OptionButton& optNrValue);

/// Empties a settings grid for new rows.
void resetGrid(platform::ValueListActiveX& grid);

}  // namespace mavCycEd
