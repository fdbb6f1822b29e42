#include "ByteSteps.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>
#include <vector>

#include "FuzzEditor.h"
#include "text/Strings.h"

namespace mavCycEd::fuzz {
namespace {

using Words = std::vector<play::Step::Word>;

play::Step::Word word(std::string text) { return {std::move(text), false}; }
play::Step::Word text(std::string text) { return {std::move(text), true}; }

/// The numbers and the text behind a step's letter.
class Arguments {
 public:
  explicit Arguments(std::string_view rest) : rest_(rest) {}

  int number() {
    int value = 0;
    const char* const end = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value).ptr;
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    if (rest_.starts_with(',')) rest_.remove_prefix(1);
    return value;
  }
  std::string text() const { return std::string(rest_); }

  play::Step::Word index(std::size_t count) { return word(std::to_string(pick(count))); }
  play::Step::Word row(std::size_t count) { return word(std::to_string(pick(count) + 1)); }
  play::Step::Word coordinate() { return word(std::to_string(number())); }
  play::Step::Word item(const std::vector<std::string>& items) {
    return fuzz::text(items.empty() ? std::string() : items[pick(items.size())]);
  }

 private:
  std::size_t pick(std::size_t count) { return count == 0 ? 0 : static_cast<unsigned>(number()) % count; }

  std::string_view rest_;
};

template <typename Names>
std::string fileAt(const Names& names, int at) {
  const std::string name(names[static_cast<unsigned>(at) % names.size()]);
  return name.empty() ? std::string() : fileOf(name);
}

std::string catalogueAt(int at) {
  constexpr std::array<std::string_view, 6> names{"tests/scenarios/data/laboratory.xml",
                                                  "tests/scenarios/data/instrument.xml",
                                                  "tests/scenarios/data/offers.xml",
                                                  "tests/scenarios/data/units.xml",
                                                  "samples/catalogue.xml",
                                                  ""};
  return fileAt(names, at);
}

std::string configurationAt(int at) {
  constexpr std::array<std::string_view, 4> names{"tests/scenarios/data/laboratory-configuration.xml",
                                                  "samples/configuration.xml",
                                                  "tests/scenarios/data/offers-configuration.xml", ""};
  return fileAt(names, at);
}

std::string cycleAt(int at) {
  constexpr std::array<std::string_view, 6> names{
      "tests/scenarios/data/working-day.xml", "tests/scenarios/data/nested.xml", "tests/scenarios/data/cycle-02.xml",
      "tests/scenarios/data/plain-03.xml",    "samples/cycle-standard.xml",      ""};
  return fileAt(names, at);
}

struct Simple {
  char letter;
  std::string_view step;
  std::string_view control;
};
constexpr std::array simpleSteps{Simple{'C', "CycleChanged", ""},    Simple{'G', "RetrieveCycle", ""},
                                 Simple{'M', "MacroString", ""},     Simple{'i', "click", "cmdInset"},
                                 Simple{'r', "click", "cmdReplace"}, Simple{'d', "click", "cmdDelete"},
                                 Simple{'f', "click", "cmdDefault"}, Simple{'I', "click", "cmdIns"},
                                 Simple{'X', "click", "cmdDel"},     Simple{'t', "tick", ""},
                                 Simple{'o', "click", "optNrValue"}, Simple{'O', "click", "optObjValue"},
                                 Simple{'q', "leave", "cboUnit"},    Simple{'K', "click", "OKButton"},
                                 Simple{'c', "click", "cmdCancel"},  Simple{'z', "close", ""},
                                 Simple{'1', "show", "GrdAtom"},     Simple{'2', "show", "rows"},
                                 Simple{'3', "show", "atoms"},       Simple{'4', "show", "grdParamStnd"}};

}  // namespace

play::Step ByteSteps::next() {
  const std::size_t end = rest_.find('\n');
  const std::string_view line = rest_.substr(0, end);
  rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
  letter_ = line.empty() ? ' ' : line.front();
  play::Step step = stepFor(line.substr(std::min<std::size_t>(1, line.size())));
  step.line = ++lines_;
  return step;
}

play::Step ByteSteps::stepFor(std::string_view rest) const {
  const auto* const simple = std::ranges::find(simpleSteps, letter_, &Simple::letter);
  if (simple != simpleSteps.end()) {
    Words words{word(std::string(simple->step))};
    if (!simple->control.empty()) words.push_back(word(std::string(simple->control)));
    return {0, words};
  }
  Arguments with(rest);
  const auto step = [](const char* name, auto... words) { return play::Step{0, {word(name), words...}}; };
  const auto rowsOf = [this](const char* grid) { return driver_.grid(grid).rows.size(); };
  const bool inDialog = driver_.isDialogOpen();
  switch (letter_) {
    case 'F': return step("SetConfigXML", text(configurationAt(with.number())));
    case 'S': {
      const play::Step::Word catalogue = text(catalogueAt(with.number()));
      return step("SetXMLStrings", catalogue, text(cycleAt(with.number())));
    }
    case 's': {
      const play::Step::Word catalogue = text(catalogueAt(with.number()));
      return step("SetXMLStrings", catalogue, text("[PMA]\r\n" + text::replaceAll(with.text(), "|", "\r\n")));
    }
    case 'R': return step("ResetCycle", text(cycleAt(with.number())));
    case 'H': return step("Ignore_Hidden", word(with.number() % 2 == 0 ? "false" : "true"));
    case 'a': return step("choose", word("cboAtom"), with.item(driver_.combo("cboAtom").items));
    case 'p': {
      const play::GridView grid = driver_.grid("GrdAtom");
      const play::Step::Word row = with.row(grid.rows.size());
      const auto& items = grid.rows.empty() ? grid.titles : grid.rows[std::stoul(row.text) - 1].items;
      return step("choose", word("GrdAtom"), row, with.item(items));
    }
    case 'e': {
      const play::Step::Word row = with.row(rowsOf("GrdAtom"));
      return step("edit", word("GrdAtom"), row, text(with.text()));
    }
    case 'E': {
      const play::Step::Word row = with.row(3);
      return step("edit", word("grdParamStnd"), row, text(with.text()));
    }
    case 'P':
    case 'h':
    case 'm': {
      const play::Step::Word x = with.coordinate();
      const char* const name = letter_ == 'P' ? "press" : letter_ == 'h' ? "hover" : "context";
      return step(name, word(inDialog ? "grdParamStnd" : "GrdAtom"), x, with.coordinate());
    }
    case 'k': return step("menu", with.index(driver_.menu(inDialog ? "mnuSyrConstant" : "mnuSubParam").size()));
    case 'D': return step("type", word("txtCycleDescription"), text(with.text()));
    case 'n': return step("type", word("txtParamName"), text(with.text()));
    case 'u': return step("type", word("cboUnit"), text(with.text()));
    case 'U':
      if (!inDialog) break;
      return step("choose", word("cboUnit"), with.item(driver_.combo("cboUnit").items));
    case 'b':
      if (!inDialog) break;
      return step("select", word("lstObject"), with.index(driver_.selectionList("lstObject").items.size()));
    case 'l': return step("select", word("lstAtomSequence"), with.index(driver_.list("lstAtomSequence").items.size()));
    case 'L':
      return step("dblclick", word("lstAtomSequence"), with.index(driver_.list("lstAtomSequence").items.size()));
    case 'v': return step("select", word("lstVariables"), with.index(driver_.list("lstVariables").items.size()));
    case 'V': return step("dblclick", word("lstVariables"), with.index(driver_.list("lstVariables").items.size()));
    default: break;
  }
  throw play::StepRefused("This is no step.");
}

}  // namespace mavCycEd::fuzz
