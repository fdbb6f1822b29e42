#include "panels/DialogSetup.h"

#include "catalogue/CatalogueText.h"
#include "text/Strings.h"

namespace mavCycEd {

void selectVariableType(std::string_view definition, platform::OptionButton& optObjValue,
                        platform::OptionButton& optNrValue) {
  const auto fields = text::split(definition, ';');
  if (fields.size() < 2) return;
  (isObjectName(fields[1]) ? optObjValue : optNrValue).select();
}

void resetGrid(platform::ValueListActiveX& grid) {
  if (grid.RowCount() != 2 && grid.Row() >= 1) {
    for (int row = grid.RowCount() - 2; row >= 1; --row) grid.DeleteRow(row);
  }
  grid.setValue(1, 1, "");
  grid.DeleteRow(1);
}

}  // namespace mavCycEd
