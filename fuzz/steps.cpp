// Any player steps on the memory edition. See ByteSteps for the input; a refused step ends it.
#include <sstream>
#include <string>
#include <vector>

#include "ByteSteps.h"
#include "FuzzEditor.h"
#include "MemoryDriver.h"
#include "Player.h"
#include "Require.h"
#include "text/Strings.h"

namespace mavCycEd::fuzz {
namespace {

/// The steps, and behind each of them what has to hold.
class CheckedSteps : public play::StepSource {
 public:
  /// `rowFailed`: whether the filling of a row was ended by an error.
  CheckedSteps(play::MemoryDriver& driver, const bool& rowFailed, std::string_view bytes)
      : driver_(driver), rowFailed_(rowFailed), steps_(driver, bytes) {}

  bool hasNext() override {
    requireAll();
    return steps_.hasNext();
  }
  int nextLine() const override { return steps_.nextLine(); }
  play::Step next() override { return steps_.next(); }

 private:
  void requireAll() {
    const EditorControl& editor = driver_.editor();
    requireListShowsAtoms(driver_.list("lstAtomSequence").items, editor.atoms());
    require(editor.gridReady(), "the grid is ready");
    requireGrid(driver_.grid("GrdAtom"), editor.parameterRows());
    if (steps_.letter() != 'G' || driver_.isDialogOpen()) return;
    require(!driver_.CycleChanged() || editor.atoms().Count() == 0 || spoiled(),
            "a cycle is unchanged right behind handing it back");
  }

  // Markup in a value that an operator cannot type, but a macro text can bring, spoils the hand-back.
  bool spoiled() { return driver_.RetrieveCycle().find("<VERSION>03</VERSION>\n</CYCLE>\n") == std::string::npos; }

  void requireGrid(const play::GridView& grid, const ParamRowTable& table) const {
    const auto count = static_cast<int>(grid.rows.size());
    require(count == 0 ? grid.row == 0 : grid.row >= 1 && grid.row <= count, "the current row is a row");
    for (int row = 1; row <= count; ++row) {
      require(row <= table.upperBound(), "the row table has an entry for every row");
      const std::vector<std::string>& items = grid.rows[static_cast<std::size_t>(row) - 1].items;
      if (rowFailed_ && items.empty()) continue;  // the list that it was to get has no such default
      requireSame(text::join(items, ";"), table.row(row).Items, "the pick list is that of the row table");
    }
  }

  play::MemoryDriver& driver_;
  const bool& rowFailed_;
  ByteSteps steps_;
};

void run(std::string_view bytes) {
  constexpr std::int32_t unusableCatalogue = -2147220991;
  FuzzPlatform platform;
  std::ostringstream output;
  bool rowFailed = false;
  play::MemoryDriver driver(platform.services(), [&rowFailed](const CycleEditorErrorEvent& event) {
    // A further atom of a configuration may name a list that is shorter in the catalogue.
    rowFailed = rowFailed || event.strProcedure == "FillParams ";
    if (event.lngError == unusableCatalogue || event.strProcedure == "FillParams ") return;
    broken("an error event: " + event.strProcedure + ": " + event.strError);
  });
  driver.SetConfigXML(fileOf("tests/scenarios/data/laboratory-configuration.xml"));
  driver.SetXMLStrings(fileOf("tests/scenarios/data/laboratory.xml"), {});
  CheckedSteps steps(driver, rowFailed, bytes);
  play::Player(driver, output).play(steps);
}

}  // namespace
}  // namespace mavCycEd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  mavCycEd::fuzz::run(mavCycEd::fuzz::asText(data, size));
  return 0;
}
