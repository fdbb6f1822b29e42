#include "panels/DialogSetup.h"

#include <string>

#include "catalogue/CatalogueText.h"
#include "mavCycEd/VariableDefinition.h"

namespace mavCycEd {

void selectVariableType(std::string_view definition, platform::OptionButton& optObjValue,
                        platform::OptionButton& optNrValue) {
  const VariableDefinition variable{std::string(definition)};
  const auto values = variable.valueFields();
  if (!values.empty()) (isObjectName(values.front()) ? optObjValue : optNrValue).select();
}

void resetGrid(platform::ValueListActiveX& grid) {
  if (grid.RowCount() != 2 && grid.Row() >= 1) {
    for (int row = grid.RowCount() - 2; row >= 1; --row) grid.DeleteRow(row);
  }
  grid.setValue(1, 1, "");
  grid.DeleteRow(1);
}

}  // namespace mavCycEd
