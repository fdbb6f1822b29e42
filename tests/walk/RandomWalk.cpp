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

constexpr std::array names{"VOL", "Count", "Zeit", "Größe", "A-B", "x'y", " Rack ", "V 2", ""};
constexpr std::array settings{"0", "1", "5", "10", "100", "0.5", "-3", "abc", "1;2", "", "µ"};
constexpr std::array units{"ul", "None", "", "mm", "TRAY", "s"};
constexpr std::array descriptions{"", "one line", "first\nsecond", "Größe µl °C\n\n last", "a & b < c > \"d\" 'e'"};

std::string literal(std::string_view text) { return nlohmann::json(text).dump(); }

std::string words(std::initializer_list<std::string> list) {
  std::string line;
  for (const std::string& word : list) line += (line.empty() ? "" : " ") + word;
  return line;
}

// The variable's name in an entry of the list.
std::string nameIn(const std::string& entry) { return entry.substr(0, entry.find_first_of(" (;")); }

// How many entries the pop-up menu shows that was opened last; 0 when none is open.
int shownEntries(const std::string& line) {
  const auto shown = nlohmann::json::parse(line, nullptr, false);
  if (!shown.is_object() || !shown.contains("popup") || shown["popup"].is_null()) return 0;
  return static_cast<int>(shown["popup"].size());
}

}  // namespace

RandomWalk::RandomWalk(const play::ControlDriver& driver, std::function<std::string()> lastLine,
                       std::filesystem::path samples, unsigned seed, int steps)
    : driver_(driver), lastLine_(std::move(lastLine)), samples_(std::move(samples)), random_(seed), stepsLeft_(steps) {
  pending_ = {"SetXMLStrings @catalogue.xml @cycle-standard.xml", "SetConfigXML @configuration.xml"};
}

int RandomWalk::upTo(int highest) { return static_cast<int>(random_() % (static_cast<unsigned>(highest) + 1)); }

template <typename Items>
const auto& RandomWalk::oneOf(const Items& items) {
  return items[static_cast<std::size_t>(upTo(static_cast<int>(items.size()) - 1))];
}

play::Step RandomWalk::next() {
  const bool showing = !pending_.empty();
  std::string line;
  if (showing) {
    line = std::move(pending_.back());
    pending_.pop_back();
  } else {
    --stepsLeft_;
    const bool inDialog = driver_.isDialogOpen();
    stepsInDialog_ = inDialog ? stepsInDialog_ + 1 : 0;
    const int entries = lines_.empty() ? 0 : shownEntries(lastLine_());
    if (entries > 0 && upTo(3) > 0) {
      line = stepInPopup(entries);
    } else {
      line = inDialog ? stepInDialog() : stepOnScreen();
    }
    if (!line.starts_with("context")) {
      pending_ = {"show state", "show rows", "show GrdAtom", "show lstVariables", "show atoms", "show lstAtomSequence"};
    }
  }
  lines_.push_back(line);
  play::Step step = play::Scenario::parsed(line, samples_);
  step.line = static_cast<int>(lines_.size());
  return step;
}

std::string RandomWalk::stepInPopup(int entries) { return words({"menu", std::to_string(upTo(entries - 1))}); }

std::string RandomWalk::stepOnScreen() {
  switch (upTo(19)) {
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
    default: return stepOfHost();
  }
}

std::string RandomWalk::stepOfHost() {
  switch (upTo(6)) {
    case 0: return "CycleChanged";
    case 1: return "RetrieveCycle";
    case 2: return "MacroString";
    case 3: return upTo(1) == 0 ? "Ignore_Hidden true" : "Ignore_Hidden false";
    case 4: return "ResetCycle @cycle-standard.xml";
    case 5: return upTo(3) == 0 ? "SetXMLStrings @catalogue.xml @cycle-old.xml" : "tick";
    default: return upTo(3) == 0 ? "SetXMLStrings @catalogue.xml \"\"" : "tick";
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
    case 6: return "Größe µ";
    default: return std::to_string(upTo(20));
  }
}

std::string RandomWalk::stepInGrid() {
  const play::GridView grid = driver_.grid("GrdAtom");
  const int x = upTo(300);
  const int y = upTo(19 * (static_cast<int>(grid.rows.size()) + 2));
  const std::string at = std::to_string(x) + " " + std::to_string(y);
  const int kind = upTo(7);
  if (kind == 0) return "press GrdAtom " + at;
  if (kind == 1) return "hover GrdAtom " + at;
  if (kind == 2) return "context GrdAtom " + at;
  if (grid.rows.empty()) return "tick";
  const int row = 1 + upTo(static_cast<int>(grid.rows.size()) - 1);
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
  switch (upTo(11)) {
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
    case 6: return "show cboUnit";
    default: break;
  }
  if (!numeric) {
    const auto count = static_cast<int>(driver_.selectionList("lstObject").items.size());
    return count > 0 ? words({"select lstObject", std::to_string(upTo(count - 1))}) : "show lstObject";
  }
  switch (upTo(7)) {
    case 0: return words({"type cboUnit", literal(oneOf(units))});
    case 1: return words({"choose cboUnit", literal(oneOf(driver_.combo("cboUnit").items))});
    case 2: return "leave cboUnit";
    case 3: return words({"context grdParamStnd", std::to_string(upTo(300)), std::to_string(upTo(90))});
    case 4: return words({"press grdParamStnd", std::to_string(upTo(300)), std::to_string(upTo(90))});
    default: return words({"edit grdParamStnd", std::to_string(1 + upTo(2)), literal(oneOf(settings))});
  }
}

}  // namespace mavCycEd::walk
