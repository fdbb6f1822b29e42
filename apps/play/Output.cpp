#include "Output.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace mavCycEd::play {
namespace {

Json asJson(const Variant& value) {
  const auto* number = std::get_if<double>(&value);
  if (number == nullptr) return textOf(value);
  constexpr double exactWholes = 9007199254740992.0;  // below it every whole number is a double
  if (std::trunc(*number) == *number && std::fabs(*number) < exactWholes) return static_cast<std::int64_t>(*number);
  return *number;
}

Json gridJson(const GridView& grid) {
  Json rows = Json::array();
  for (const GridRowView& row : grid.rows) {
    rows.push_back({{"key", row.key}, {"value", row.value}, {"items", row.items}});
  }
  return {{"titles", grid.titles}, {"rows", rows}, {"row", grid.row}};
}

Json atomsJson(const cAtoms& atoms) {
  Json lines = Json::array();
  for (const cAtom& atom : atoms) {
    lines.push_back({{"AtomName", atom.AtomName()},
                     {"AtomParameters", textOf(atom.AtomParameters())},
                     {"Duration", atom.Duration()},
                     {"GroupIndex", atom.GroupIndex()}});
  }
  return lines;
}

Json rowsJson(const ParamRowTable& table, std::size_t rowCount) {
  Json rows = Json::array();
  for (int row = 1; row <= table.upperBound() && static_cast<std::size_t>(row) <= rowCount; ++row) {
    const ParamRowInfo& info = table.row(row);
    rows.push_back({{"Lower", asJson(info.Lower)},
                    {"Upper", asJson(info.Upper)},
                    {"Value", asJson(info.Value)},
                    {"Step", asJson(info.Step)},
                    {"Factor", info.Factor},
                    {"Default", asJson(info.Default)},
                    {"ExtraValues", info.ExtraValues},
                    {"Description", info.Description},
                    {"Items", info.Items},
                    {"Unit", info.Unit},
                    {"IsNumeric", info.IsNumeric}});
  }
  return rows;
}

Json stateJson(const EditorControl& editor) {
  return {
      {"changed", editor.changedFlag()}, {"gridReady", editor.gridReady()}, {"currentRow", editor.currentGridRow()}};
}

Json historyJson(const EditorControl& editor) {
  const auto nameOrNull = [](const std::optional<std::string>& name) { return name ? Json(*name) : Json(); };
  return {{"undo", nameOrNull(editor.undoText())}, {"redo", nameOrNull(editor.redoText())}};
}

// The name box of the dialog can be locked; the description cannot.
Json textBoxJson(const TextBoxView& box, std::string_view name) {
  if (name == "txtCycleDescription") return {{"text", box.text}};
  return {{"text", box.text}, {"enabled", box.enabled}};
}

// Only the dialog's frames come and go.
Json frameJson(const FrameView& frame, std::string_view name) {
  constexpr std::array dialogFrames{"fraValue", "fraParamType", "fraValues", "fraObjects"};
  Json json = {{"caption", frame.caption}, {"enabled", frame.enabled}};
  if (std::ranges::find(dialogFrames, name) != dialogFrames.end()) json["visible"] = frame.visible;
  return json;
}

Json stateOf(const ControlDriver& driver, std::string_view name) {
  if (name == "atoms") return atomsJson(driver.editor().atoms());
  if (name == "state") return stateJson(driver.editor());
  if (name == "history") return historyJson(driver.editor());
  if (name == "rows") return rowsJson(driver.editor().parameterRows(), driver.grid("GrdAtom").rows.size());
  if (name == "toolTip") return driver.toolTip();
  if (name == "lstObject") {
    const SelectionListView list = driver.selectionList(name);
    return {{"items", list.items}, {"selected", list.selected}};
  }
  if (name.starts_with("lst")) {
    const ListView list = driver.list(name);
    return {{"items", list.items}, {"index", list.index}};
  }
  if (name.starts_with("cbo")) {
    const ComboView combo = driver.combo(name);
    return {{"items", combo.items}, {"text", combo.text}, {"index", combo.index}};
  }
  if (name.starts_with("txt")) return textBoxJson(driver.textBox(name), name);
  if (name.starts_with("fra")) return frameJson(driver.frame(name), name);
  if (name.starts_with("opt")) return {{"value", driver.option(name)}};
  if (name.starts_with("mnu")) return {{"items", driver.menu(name)}};
  if (name.starts_with("tmr")) {
    const TimerView timer = driver.timer(name);
    return {{"enabled", timer.enabled}, {"interval", timer.interval}};
  }
  return gridJson(driver.grid(name));
}

}  // namespace

void writeLine(std::ostream& output, const Json& object) {
  output << object.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n' << std::flush;
}

Json asLine(const CycleEditorErrorEvent& event) {
  return {{"CycleEditorError",
           {{"lngError", event.lngError},
            {"strError", event.strError},
            {"strApplication", event.strApplication},
            {"strModule", event.strModule},
            {"strProcedure", event.strProcedure},
            {"intLineNumber", event.intLineNumber}}}};
}

Json messageBoxLine(std::string_view text, std::string_view title, int flags) {
  return {{"MessageBox", {{"text", text}, {"title", title}, {"flags", flags}}}};
}

Json shown(const ControlDriver& driver, std::string_view name) {
  Json line = Json::object();
  line[std::string(name)] = stateOf(driver, name);
  return line;
}

}  // namespace mavCycEd::play
