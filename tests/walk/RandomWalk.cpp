#include "RandomWalk.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <utility>

#include "Scenario.h"

namespace mavCycEd::walk {
namespace {

constexpr int longestSequence = 40;
constexpr int longestDialog = 15;

constexpr std::array names{"VOL",    "Count", "Zeit",     "Größe",      "A-B", "x'y",
                           " Rack ", "V 2",   "Tray (2)", "\U0001D11E", ""};
constexpr std::array settings{"0", "1", "5", "10", "100", "0.5", "-3", "abc", "1;2", "", "µ", " 7 ", "1e400"};
constexpr std::array units{"ul", "None", "", "mm", "TRAY", "s", "µl", "no unit", "(x)"};
constexpr std::array descriptions{
    "", "one line", "first\nsecond", "Größe µl °C\n\n last", "a & b < c > \"d\" 'e'", "tab\tand \U0001D11E", "ends\n"};
constexpr std::array macros{
    "[PMA]\r\n//from a macro\r\nVOL (ul);10;1;100\r\nREPEAT(3)\r\nWAIT(1.5)\r\nEND()\r\nASPIRATE(VOL,Tray_A)\r\n",
    "[PMA]\r\nNOT_LISTED(1,2)\r\nEND()\r\nSET_LIGHT(1000)\r\nSET_LIGHT()\r\nSamples;TRAY", "[PMA]\r\n"};
constexpr std::array screenControls{"lstAtomSequence",
                                    "atoms",
                                    "lstVariables",
                                    "GrdAtom",
                                    "rows",
                                    "state",
                                    "cboAtom",
                                    "toolTip",
                                    "mnuSubParam",
                                    "tmrUpdateGrid",
                                    "fraCyclePart",
                                    "fraAtom",
                                    "fraSelectedMacro",
                                    "txtCycleDescription"};
constexpr std::array dialogControls{"txtParamName", "optNrValue",   "optObjValue", "fraParamType", "fraValues",
                                    "fraObjects",   "grdParamStnd", "cboUnit",     "lstObject",    "mnuSyrConstant"};

std::string literal(std::string_view text) { return nlohmann::json(text).dump(); }

std::string words(std::initializer_list<std::string> list) {
  std::string line;
  for (const std::string& word : list) line += (line.empty() ? "" : " ") + word;
  return line;
}

// The variable's name in an entry of the list.
std::string nameIn(const std::string& entry) { return entry.substr(0, entry.find_first_of(" (;")); }

// The value of this name in a line that the player wrote.
nlohmann::json written(const std::string& line, const char* name) {
  const auto shown = nlohmann::json::parse(line, nullptr, false);
  return shown.is_object() && shown.contains(name) ? shown[name] : nlohmann::json();
}

// The text that a step handed back in the line that it wrote; empty when it handed back none.
std::string handedBack(const std::string& line, const char* name) {
  const nlohmann::json text = written(line, name);
  return text.is_string() ? text.get<std::string>() : std::string();
}

std::string loadingOf(std::string_view cycle) { return words({"SetXMLStrings @catalogue.xml", literal(cycle)}); }

}  // namespace

RandomWalk::RandomWalk(const play::ControlDriver& driver, Surroundings surroundings, std::filesystem::path samples,
                       unsigned seed, int steps)
    : driver_(driver),
      surroundings_(std::move(surroundings)),
      samples_(std::move(samples)),
      random_(seed),
      stepsLeft_(steps),
      pending_{"SetConfigXML @configuration.xml", "SetXMLStrings @catalogue.xml @cycle-standard.xml"} {}

int RandomWalk::upTo(int highest) { return static_cast<int>(random_() % (static_cast<unsigned>(highest) + 1)); }

template <typename Items>
const auto& RandomWalk::oneOf(const Items& items) {
  return items[static_cast<std::size_t>(upTo(static_cast<int>(items.size()) - 1))];
}

play::Step RandomWalk::next() {
  if (!std::exchange(answered_, true)) {
    answer_ = surroundings_.lastLine();
    showAll();
  }
  std::string line;
  if (pending_.empty()) {
    line = nextStep();
    loaded_ = line.starts_with("SetXMLStrings ");
    answered_ = false;
  } else {
    line = std::move(pending_.front());
    pending_.pop_front();
  }
  surroundings_.onStep(line);
  play::Step step = play::Scenario::parsed(line, samples_);
  step.line = ++lines_;
  return step;
}

void RandomWalk::showAll() {
  const auto show = [this](const char* name) { pending_.push_back(words({"show", name})); };
  std::ranges::for_each(screenControls, show);
  if (driver_.isDialogOpen()) std::ranges::for_each(dialogControls, show);
  show("history");  // the last of all: the next step is chosen by it
}

std::string RandomWalk::nextStep() {
  const bool inDialog = driver_.isDialogOpen();
  if (--stepsLeft_ < 0 && !inDialog) return lastStep();
  stepsInDialog_ = inDialog ? stepsInDialog_ + 1 : 0;
  const nlohmann::json popup = written(answer_, "popup");
  if (popup.is_array() && !popup.empty() && upTo(3) > 0) return stepInPopup(static_cast<int>(popup.size()));
  if (inDialog) return stepInDialog();
  if (goesBack_) {
    goesBack_ = canDo("undo");
    return goesBack_ ? "undo" : "CycleChanged";
  }
  // Whether a cycle reads changed behind its load is what it has to read when all steps are undone.
  if (loaded_ && upTo(1) == 0) return "CycleChanged";
  // What was just handed back comes again.
  const std::string cycle = handedBack(answer_, "RetrieveCycle");
  if (!cycle.empty() && upTo(2) == 0) return loadingOf(cycle);
  const std::string macro = handedBack(answer_, "MacroString");
  if (!macro.empty() && upTo(2) == 0) return loadingOf("[PMA]\r\n" + macro);
  return driver_.frame("fraCyclePart").enabled ? stepOnScreen() : stepOnDisabledScreen();
}

// Back to what was loaded, on again, and the end.
std::string RandomWalk::lastStep() {
  if (!undone_ && canDo("undo")) return "undo";
  if (!std::exchange(undone_, true)) return "CycleChanged";
  if (canDo("redo")) return "redo";
  handedBack_ = true;
  return "RetrieveCycle";
}

bool RandomWalk::canDo(const char* direction) const {
  const nlohmann::json history = written(surroundings_.lastLine(), "history");
  return history.is_object() && !history[direction].is_null();
}

// Single steps, or all the way back.
std::string RandomWalk::stepInHistory() {
  goesBack_ = upTo(9) == 0;
  if (goesBack_) return "CycleChanged";  // asked on the way, it must not be answered from there at the end
  if (upTo(2) > 0 && canDo("undo")) return "undo";
  return canDo("redo") ? "redo" : "tick";
}

std::string RandomWalk::stepInPopup(int entries) { return words({"menu", std::to_string(upTo(entries - 1))}); }

std::string RandomWalk::stepOnScreen() {
  switch (upTo(24)) {
    case 0:
    case 1:
    case 2:
    case 3:
    case 4:
    case 5: return stepInGrid();
    case 6:
    case 7:
    case 8: return stepInList();
    case 9:
    case 10: return words({"choose cboAtom", literal(oneOf(driver_.combo("cboAtom").items))});
    case 11:
    case 12:
    case 13: {
      const auto length = static_cast<int>(driver_.list("lstAtomSequence").items.size());
      return length < longestSequence ? "click cmdInset" : "click cmdDelete";
    }
    case 14: return "click cmdReplace";
    case 15: return "click cmdDelete";
    case 16: return "click cmdDefault";
    case 17: return words({"type txtCycleDescription", literal(oneOf(descriptions))});
    case 18: return "tick";
    case 19:
    case 20:
    case 21:
    case 22: return stepInHistory();
    default: return stepOfHost();
  }
}

// Without a usable catalogue only the host can go on.
std::string RandomWalk::stepOnDisabledScreen() { return upTo(1) == 0 ? loading() : stepOfHost(); }

std::string RandomWalk::stepOfHost() {
  switch (upTo(7)) {
    case 0: return "CycleChanged";
    case 1:
    case 2: return "RetrieveCycle";
    case 3: return "MacroString";
    case 4: return upTo(1) == 0 ? "Ignore_Hidden true" : "Ignore_Hidden false";
    case 5: return "ResetCycle @cycle-standard.xml";
    case 6: return upTo(2) == 0 ? "SetConfigXML \"\"" : "SetConfigXML @configuration.xml";
    default: return loading();
  }
}

std::string RandomWalk::loading() {
  switch (upTo(8)) {
    case 0: return loadingOf("");
    case 1: return loadingOf("<CYCLE>");
    case 2: return "SetXMLStrings \"\" @cycle-standard.xml";
    case 3: return "SetXMLStrings \"<LATESTKAM>\" \"\"";
    case 4:
    case 5: return loadingOf(oneOf(macros));
    case 6: return "SetXMLStrings @catalogue.xml @cycle-old.xml";
    default: return "SetXMLStrings @catalogue.xml @cycle-standard.xml";
  }
}

std::string RandomWalk::randomValue(const play::GridRowView& row) {
  const play::ListView variables = driver_.list("lstVariables");
  switch (upTo(7)) {
    case 0: return "";
    case 1: return std::to_string(upTo(2000) - 500);
    case 2: return std::to_string(upTo(100)) + "." + std::to_string(upTo(9));
    case 3: return "a" + std::string(1, oneOf(std::string_view("\"',;&<>+-"))) + "b";
    case 4:
      if (variables.items.empty()) return "VOL+1";
      return nameIn(oneOf(variables.items)) + (upTo(1) == 0 ? "" : "+" + std::to_string(upTo(9)));
    case 5: return row.items.empty() ? "On" : oneOf(row.items);
    case 6: return upTo(1) == 0 ? "Größe µ" : " \U0001D11E ";
    default: return std::to_string(upTo(20));
  }
}

std::string RandomWalk::stepInGrid() {
  const play::GridView grid = driver_.grid("GrdAtom");
  const auto rows = static_cast<int>(grid.rows.size());
  // Mostly over the values, now and then over the keys, the titles, or below the last row.
  const int x = upTo(2) == 0 ? upTo(300) : 151 + upTo(149);
  const int y = upTo(2) == 0 ? upTo(19 * (rows + 2)) : 19 + upTo(19 * std::max(rows, 1) - 1);
  const std::string at = std::to_string(x) + " " + std::to_string(y);
  const int kind = upTo(7);
  if (kind == 0) return "press GrdAtom " + at;
  if (kind == 1) return "hover GrdAtom " + at;
  if (kind == 2) return "context GrdAtom " + at;
  if (grid.rows.empty()) return "tick";
  const int row = 1 + upTo(rows - 1);
  const play::GridRowView& shown = grid.rows[static_cast<std::size_t>(row) - 1];
  if (kind < 5 && !shown.items.empty()) {
    return words({"choose GrdAtom", std::to_string(row), literal(oneOf(shown.items))});
  }
  return words({"edit GrdAtom", std::to_string(row), literal(randomValue(shown))});
}

std::string RandomWalk::stepInList() {
  const play::ListView sequence = driver_.list("lstAtomSequence");
  const play::ListView variables = driver_.list("lstVariables");
  const auto lines = static_cast<int>(sequence.items.size());
  const auto entries = static_cast<int>(variables.items.size());
  switch (upTo(9)) {
    case 0:
      if (lines > 0) return words({"dblclick lstAtomSequence", std::to_string(upTo(lines - 1))});
      return "tick";
    case 1:
    case 2:
    case 3: return words({"select lstAtomSequence", std::to_string(upTo(lines) - 1)});
    case 4:
    case 5: return words({"select lstVariables", std::to_string(upTo(entries) - 1)});
    case 6:
      if (entries > 0) return words({"dblclick lstVariables", std::to_string(upTo(entries - 1))});
      return "click cmdIns";
    case 7: return "click cmdDel";
    default: return entries < 8 ? "click cmdIns" : "click cmdDel";
  }
}

std::string RandomWalk::stepInDialog() {
  if (stepsInDialog_ > longestDialog) return "close";
  const bool numeric = driver_.option("optNrValue");
  const bool nameOpen = driver_.textBox("txtParamName").enabled;
  const bool typeOpen = driver_.frame("fraParamType").enabled;
  switch (upTo(10)) {
    case 0:
    case 1:
      if (nameOpen) return words({"type txtParamName", literal(oneOf(names))});
      return "show txtParamName";
    case 2:
      if (typeOpen) return upTo(1) == 0 ? "click optNrValue" : "click optObjValue";
      return "show fraParamType";
    case 3: return "click cmdCancel";
    case 4:
    case 5: return "click OKButton";
    default: break;
  }
  if (!numeric) {
    const auto count = static_cast<int>(driver_.selectionList("lstObject").items.size());
    return count > 0 ? words({"select lstObject", std::to_string(upTo(count - 1))}) : "show lstObject";
  }
  return stepInSettings();
}

std::string RandomWalk::stepInSettings() {
  const auto somewhere = [this] {
    return std::to_string(upTo(2) == 0 ? upTo(300) : 151 + upTo(149)) + " " + std::to_string(upTo(90));
  };
  switch (upTo(8)) {
    case 0: return words({"type cboUnit", literal(oneOf(units))});
    case 1: return words({"choose cboUnit", literal(oneOf(driver_.combo("cboUnit").items))});
    case 2: return "leave cboUnit";
    case 3: return "context grdParamStnd " + somewhere();
    case 4: return "press grdParamStnd " + somewhere();
    case 5: return "hover grdParamStnd " + somewhere();
    default: return words({"edit grdParamStnd", std::to_string(1 + upTo(2)), literal(oneOf(settings))});
  }
}

}  // namespace mavCycEd::walk
