#include "RandomCycles.h"

#include <algorithm>
#include <array>
#include <ostream>
#include <string_view>
#include <utility>

#include "cycle/CycleText.h"
#include "text/Strings.h"

namespace mavCycEd::test {
namespace {

using rc::gen::elementOf;
using rc::gen::inRange;
using rc::gen::map;
using rc::gen::resize;
using rc::gen::suchThat;
using rc::gen::weightedElement;

constexpr std::array<std::string_view, 19> kindNames = {
    "Choose",      "Type",         "Pick",         "Default", "Insert",     "Replace",  "Delete",
    "Select",      "DoubleClick",  "Describe",     "Tick",    "AskChanged", "Retrieve", "SelectVariable",
    "NewVariable", "EditVariable", "DropVariable", "Undo",    "Redo"};

/// A text of up to `length` of these pieces.
rc::Gen<std::string> textOfPieces(std::vector<std::string> pieces, int length) {
  return map(resize(length, rc::gen::container<std::vector<std::string>>(elementOf(std::move(pieces)))),
             [](const std::vector<std::string>& chosen) { return text::join(chosen, ""); });
}

rc::Gen<std::string> variableText() {
  return textOfPieces(
      {"Vol", ";", "ml", "1.5", " ", "  ", "ä", "µ", "Â", ",", "(", ")", "\"", "'", ">", "/", "//", "\t"}, 8);
}

/// The text as an XML document keeps it: without the characters that no document can hold.
std::string kept(const std::string& text) { return text::withoutCharacters(text, U"\u0001\u001F\uFFFE\uFFFF"); }

bool comesBack(const std::string& description) {
  const std::string text = kept(description);
  constexpr std::array lost{"//", "&lt;", "&gt;", "&quot;", "&apos;", "&amp;"};
  return std::ranges::none_of(lost, [&text](const char* each) { return text.find(each) != std::string::npos; });
}

bool isNameless(const std::pair<std::string, std::string>& parameter) {
  return StripParamName(parameter.first).empty();
}

rc::Gen<CycleLine> lines() {
  const auto names = rc::gen::oneOf(
      elementOf(std::vector<std::string>{"REPEAT", "END", "MIX", "WAIT", "ODD", "PLACE", "", "repeat"}), carriedText());
  const auto parameters = resize(5, rc::gen::container<std::vector<std::pair<std::string, std::string>>>(
                                        rc::gen::pair(carriedText(), carriedText())));
  return map(rc::gen::pair(names, parameters), [](const auto& parts) {
    CycleLine line{parts.first, parts.second};
    // A nameless parameter in front is not written. One that would be the first that is written, because it is the
    // second or has a name that writing strips of everything, would not be read back.
    if (!line.parameters.empty() && isNameless(line.parameters[0])) {
      line.parameters[0].first.clear();
      if (line.parameters.size() > 1 && isNameless(line.parameters[1])) line.parameters[1].first = "N";
    }
    return line;
  });
}

rc::Gen<Step> stepOf(const rc::Gen<Step::Kind>& kinds) {
  using Kind = Step::Kind;
  return rc::gen::mapcat(kinds, [](Kind kind) {
    const auto texts = kind == Kind::Describe ? carriedDescription()
                       : kind == Kind::Type ? textOfPieces({"a", "1", " ", "ä", "µ", ";", "<", "&", "(", "/", ","}, 6)
                                            : rc::gen::just(std::string());
    return map(rc::gen::pair(inRange(0, 1000), texts), [kind](std::pair<int, std::string> rest) {
      return Step{kind, rest.first, std::move(rest.second)};
    });
  });
}

rc::Gen<Step> step() {
  using Kind = Step::Kind;
  return stepOf(weightedElement<Kind>({{6, Kind::Choose},
                                       {4, Kind::Type},
                                       {2, Kind::Pick},
                                       {1, Kind::Default},
                                       {8, Kind::Insert},
                                       {3, Kind::Replace},
                                       {3, Kind::Delete},
                                       {5, Kind::Select},
                                       {1, Kind::DoubleClick},
                                       {2, Kind::Describe},
                                       {1, Kind::Tick},
                                       {1, Kind::AskChanged},
                                       {1, Kind::Retrieve}}));
}

rc::Gen<Step> stepOnAll() {
  using Kind = Step::Kind;
  return stepOf(weightedElement<Kind>({{5, Kind::Choose},
                                       {2, Kind::Type},
                                       {6, Kind::Insert},
                                       {4, Kind::Replace},
                                       {4, Kind::Delete},
                                       {4, Kind::Select},
                                       {1, Kind::DoubleClick},
                                       {4, Kind::Describe},
                                       {1, Kind::Tick},
                                       {1, Kind::AskChanged},
                                       {3, Kind::SelectVariable},
                                       {4, Kind::NewVariable},
                                       {3, Kind::EditVariable},
                                       {3, Kind::DropVariable},
                                       {5, Kind::Undo},
                                       {3, Kind::Redo}}));
}

// A user of the variable dialog who makes a variable of a number, and now and then thinks better of it.
void workInDialog(const Step& step, memory::MemoryVariableDialogControls& dialog) {
  const std::string number = std::to_string(step.number % 7);
  if (dialog.txtParamName.isUsable()) dialog.txtParamName.replace("V" + number);
  for (int row = 1; row <= 3 && dialog.optNrValue.value(); ++row) dialog.grdParamStnd.type(row, number);
  if (step.number % 5 > 0) dialog.OKButton.press();
  if (dialog.frmparams.isLoaded()) dialog.cmdCancel.press();
}

}  // namespace

void showValue(const Step& step, std::ostream& output) {
  output << kindNames.at(static_cast<std::size_t>(step.kind)) << ' ' << step.number << " '" << step.text << "'";
}

void showValue(const CycleOf& cycle, std::ostream& output) { output << xmlOf(cycle); }

std::string roomyCatalogue() {
  Catalogue catalogue;
  catalogue.atoms = {{"REPEAT", {}},
                     {"END", {}},
                     {"!WA!IT", {}},
                     {"MIX", {"Volume;;;;;ml", "#Mode;0;0;1;7", "Grö,ße Ä;;;;1;None"}},
                     {"ODD", {"#;0;0;1;7", "Note;;;;;None", "?;;;;1"}},
                     {"PLACE", {"Tray;TRAY;None", "Speed;none;9;9;1;µl/s"}}};
  catalogue.objects = "<O><C>TRAY</C><N>Träger 1</N></O><O><C>TRAY</C><N>Träger 2</N></O>";
  catalogue.lists = {{"7", "slow;µ;fast"}};
  return xmlOf(catalogue);
}

rc::Gen<std::string> carriedText() {
  return textOfPieces({"a",
                       "B",
                       "0",
                       "1.5",
                       " ",
                       "  ",
                       "ä",
                       "ß",
                       "µ",
                       "Â",
                       "Ã",
                       "Ä",
                       ",",
                       "(",
                       ")",
                       "\"",
                       "'",
                       ">",
                       "/",
                       "//",
                       "°C",
                       "€",
                       "\xF0\x9F\xA7\xAA",
                       "\u00A0",
                       "\u2028",
                       "-",
                       "\t"},
                      8);
}

rc::Gen<std::string> carriedDescription() {
  return suchThat(textOfPieces({"a",      "B",
                                " ",      "  ",
                                "\r\n",   "\n",
                                "\r",     "\t",
                                "ä",      "µ",
                                "<",      ">",
                                "&",      ";",
                                "lt",     "\"",
                                "'",      "/",
                                "\u2028", "\u2029",
                                "\u0085", "\u0001",
                                "]]>",    "<!--",
                                "€",      "\xF0\x9F\xA7\xAA"},
                               30),
                  comesBack);
}

rc::Gen<CycleOf> cycles() {
  const auto versions = elementOf(std::vector<std::string>{"", "02", "03", "3", "04"});
  const auto attributes = elementOf(std::vector<std::string>{
      "", " Created=\"2001-01-01T01:01:01\"", " Created=\"2001-01-01T01:01:01\" Modified=\"2002-02-02T02:02:02\"",
      " Created=\"ä&lt;&quot;\" Other=\"x\""});
  const auto bodies = rc::gen::pair(resize(30, rc::gen::container<std::vector<CycleLine>>(lines())),
                                    resize(5, rc::gen::container<std::vector<std::string>>(variableText())));
  const auto heads = rc::gen::tuple(versions, attributes, carriedDescription());
  return map(rc::gen::pair(bodies, heads), [](const auto& parts) {
    CycleOf cycle;
    cycle.lines = parts.first.first;
    cycle.variables = parts.first.second;
    cycle.version = std::get<0>(parts.second);
    cycle.attributes = std::get<1>(parts.second);
    cycle.description = "//" + kept(std::get<2>(parts.second));
    return cycle;
  });
}

rc::Gen<std::vector<Step>> steps() { return resize(40, rc::gen::container<std::vector<Step>>(step())); }
rc::Gen<std::vector<Step>> stepsOnAll() { return resize(40, rc::gen::container<std::vector<Step>>(stepOnAll())); }

void markPositions(TestEditor& editor) {
  CycleEdit marks;
  for (std::size_t i = 0; i < editor.control().cycle().lines.size(); ++i) {
    const std::string number = std::to_string(i + 1);
    marks.then(edits::setPlace(i, {"d" + number, "g" + number}));
  }
  editor.control().Perform(std::move(marks), markStep);
}

bool undoUnlessMark(TestEditor& editor) { return editor.control().undoText() != markStep && editor.control().Undo(); }

void perform(const Step& step, TestEditor& editor) {
  memory::MemoryScreen& screen = editor.screen();
  const int lineCount = screen.lstAtomSequence.itemCount();
  const int rowCount = screen.GrdAtom.RowCount() - 1;
  const int variableCount = screen.lstVariables.itemCount();
  screen.variableDialogs.setUser([&step](auto& dialog) { workInDialog(step, dialog); });
  switch (step.kind) {
    case Step::Kind::Choose: screen.cboAtom.setIndex(step.number % screen.cboAtom.itemCount()); break;
    case Step::Kind::Type:
      if (rowCount > 0) screen.GrdAtom.type(1 + step.number % rowCount, step.text);
      break;
    case Step::Kind::Pick:
      if (rowCount > 0) {
        const int row = 1 + step.number % rowCount;
        const std::vector<std::string> items = editor.pickList(row);
        if (!items.empty()) screen.GrdAtom.pick(row, items[static_cast<std::size_t>(step.number) % items.size()]);
      }
      break;
    case Step::Kind::Default: screen.cmdDefault.press(); break;
    case Step::Kind::Insert: editor.insert(); break;
    case Step::Kind::Replace: editor.replace(); break;
    case Step::Kind::Delete: editor.remove(); break;
    case Step::Kind::Select: editor.select(step.number % (lineCount + 1) - 1); break;
    case Step::Kind::DoubleClick:
      if (lineCount > 0) screen.lstAtomSequence.doubleClick(step.number % lineCount);
      break;
    case Step::Kind::Describe: screen.txtCycleDescription.replace(step.text); break;
    case Step::Kind::Tick: screen.tmrUpdateGrid.fire(); break;
    case Step::Kind::AskChanged: editor.control().CycleChanged(); break;
    case Step::Kind::Retrieve: editor.control().RetrieveCycle(); break;
    case Step::Kind::SelectVariable: screen.lstVariables.setIndex(step.number % (variableCount + 1) - 1); break;
    case Step::Kind::NewVariable: screen.cmdIns.press(); break;
    case Step::Kind::EditVariable:
      if (variableCount > 0) screen.lstVariables.doubleClick(step.number % variableCount);
      break;
    case Step::Kind::DropVariable: screen.cmdDel.press(); break;
    case Step::Kind::Undo: undoUnlessMark(editor); break;
    case Step::Kind::Redo: editor.control().Redo(); break;
  }
  screen.variableDialogs.setUser({});
}

}  // namespace mavCycEd::test
