// Variable definitions through the dialog. The input's first line is an entry of the list of variables, which is
// edited (none: a new variable). Every further line is something that the user does in the dialog: a letter and what
// belongs to it.
#include <algorithm>
#include <charconv>
#include <string>
#include <vector>

#include "FuzzEditor.h"
#include "Require.h"
#include "catalogue/CatalogueText.h"
#include "mavCycEd/VariableDefinition.h"
#include "text/IllegalCharacters.h"
#include "text/Strings.h"
#include "text/XmlText.h"

namespace mavCycEd::fuzz {
namespace {

using Dialog = memory::MemoryVariableDialogControls;

std::string_view takeLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  const std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return line;
}

int numberIn(std::string_view text) {
  int number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return std::max(number, 0);
}

/// Somebody who does in the dialog what the lines of a text say.
class User {
 public:
  User(Dialog& dialog, std::string_view lines) : dialog_(dialog), lines_(lines) {}

  void work() {
    while (!lines_.empty() && dialog_.frmparams.isLoaded()) {
      const std::string_view line = takeLine(lines_);
      if (!line.empty()) act(line.front(), line.substr(1));
    }
  }

 private:
  void act(char what, std::string_view with) {
    const bool numeric = dialog_.fraValues.isVisible();
    switch (what) {
      case 'n': dialog_.txtParamName.replace(with); break;
      case 'N': dialog_.optNrValue.select(); break;
      case 'O': dialog_.optObjValue.select(); break;
      case 'k': dialog_.OKButton.press(); break;
      case 'x': dialog_.cmdCancel.press(); break;
      case 'q': dialog_.frmparams.closeWindow(); break;
      default: numeric ? actOnSettings(what, with) : toggle(with);
    }
  }

  void actOnSettings(char what, std::string_view with) {
    switch (what) {
      case 'd': dialog_.grdParamStnd.type(1, with); break;
      case 'l': dialog_.grdParamStnd.type(2, with); break;
      case 'h': dialog_.grdParamStnd.type(3, with); break;
      case 'u': dialog_.cboUnit.type(with); break;
      case 'c': choose(with); break;
      case 'v': dialog_.cboUnit.leave(); break;
      case 'p': dialog_.grdParamStnd.pressMouse(platform::MouseButton::Primary, 200, numberIn(with)); break;
      case 'm':
        dialog_.grdParamStnd.requestContextMenu(200, 30);
        dialog_.mnuSyrConstant.choose(numberIn(with));
        dialog_.mnuSyrConstant.dismiss();
        break;
      default: break;
    }
  }

  void choose(std::string_view with) {
    const int count = dialog_.cboUnit.itemCount();
    if (count > 0) dialog_.cboUnit.setIndex(numberIn(with) % count);
  }

  void toggle(std::string_view with) {
    const int count = dialog_.lstObject.itemCount();
    if (count > 0) dialog_.lstObject.toggle(numberIn(with) % count);
  }

  Dialog& dialog_;
  std::string_view lines_;
};

std::string cycleWith(const std::string& entry) {
  std::string cycle = "<CYCLE><VARIABLES><VALUE>";
  text::appendEscapedXml(cycle, text::toXmlText(entry));
  return cycle + "</VALUE></VARIABLES><ATOMSEQUENCE><ATOMS/></ATOMSEQUENCE><VERSION>03</VERSION></CYCLE>";
}

class DialogRun {
 public:
  explicit DialogRun(const std::string& entry)
      : editor_(fileOf("tests/scenarios/data/laboratory.xml"),
                fileOf("tests/scenarios/data/laboratory-configuration.xml"), entry.empty() ? "" : cycleWith(entry)) {
    requireSame(editor_.failures(), "", "a cycle with one variable loads");
    editor_.screen().cboAtom.setIndex(0);
    if (editor_.screen().lstVariables.itemCount() > 0) loaded_ = entryNow();
  }

  /// What comes out of the dialog when the user works in it; empty when nothing does.
  std::string definitionBy(std::string_view lines) {
    editor_.screen().variableDialogs.setUser([&](Dialog& dialog) {
      if (!loaded_.empty()) nameLoaded_ = dialog.txtParamName.text();
      unitLoaded_ = VariableDefinition(loaded_).asNumber().unit;
      User(dialog, lines).work();
      name_ = dialog.txtParamName.text();
      unit_ = dialog.cboUnit.text();
      numeric_ = dialog.optNrValue.value();
    });
    const std::string result = afterDialog();
    requireSame(editor_.failures(), "", "the dialog ends without an error");
    return result;
  }

  /// The name stands as the dialog has let it in; neither settings nor the unit end the definition before its time.
  void requireLegal(const std::string& definition) const {
    std::string name = name_;
    const bool typed = text::trimSpaces(name) != text::trimSpaces(nameLoaded_);
    require(!typed || text::filterName(name), "a name that was typed has no illegal characters");
    require(definition.starts_with(numeric_ ? std::string(text::trimSpaces(name_)) : name_), "it begins with the name");
    if (!numeric_) return;
    std::string unit = unit_;
    require(unit == unitLoaded_ || text::filterValue(unit), "a unit that was typed has no illegal characters");
    const auto fields = text::split(definition, ';');
    require(fields.size() == 4, "a number has four fields");
    for (std::size_t i = 1; i < fields.size(); ++i) {
      std::string value(fields[i]);
      require(text::filterValue(value), "a setting has no illegal characters");
      require(!text::trimSpaces(value).empty(), "a setting is there");
    }
  }

  /// The definition that came out comes out again when it is loaded and nothing is done.
  void requireComesBack(const std::string& definition) {
    if (name_.find('(') != std::string::npos) return;  // a parenthesis in a name is taken for the unit's
    if (numeric_ && isObjectName(text::split(definition, ';')[1])) return;  // its default is taken for a type
    if (!numeric_ && definition.ends_with(';')) return;  // an object of no type is nothing that the dialog knows
    editor_.screen().variableDialogs.setUser([&](Dialog& dialog) {
      requireShows(dialog, definition);
      dialog.OKButton.press();
      require(!dialog.frmparams.isLoaded(), "OK takes what was taken before");
    });
    editor_.screen().lstVariables.doubleClick(0);
    requireSame(editor_.failures(), "", "the dialog ends without an error");
    if (numeric_) requireSame(entryNow(), definition, "a number comes back as it was");
  }

 private:
  std::string entryNow() { return editor_.screen().lstVariables.itemText(0); }

  std::string afterDialog() {
    memory::MemoryListBox& list = editor_.screen().lstVariables;
    if (!loaded_.empty()) {
      list.doubleClick(0);
    } else {
      list.clear();
      editor_.screen().cmdIns.press();
    }
    if (list.itemCount() == 0) return {};
    return entryNow() == loaded_ ? std::string() : entryNow();
  }

  void requireShows(Dialog& dialog, const std::string& definition) const {
    if (numeric_) {
      require(dialog.optNrValue.value(), "a number is shown as a number");
      requireSame(dialog.txtParamName.text(), text::trimSpaces(name_), "the name is shown");
      requireSame(dialog.cboUnit.text(), unit_.empty() ? "None" : unit_, "the unit is shown");
      return;
    }
    const auto fields = text::split(definition, ';');
    require(dialog.optObjValue.value(), "an object is shown as an object");
    requireSame(dialog.txtParamName.text(), name_, "the name is shown");
    for (int i = 0; i < dialog.lstObject.itemCount(); ++i) {
      const bool chosen =
          std::ranges::find(fields.begin() + 1, fields.end(), dialog.lstObject.itemText(i)) != fields.end();
      require(!chosen || dialog.lstObject.isSelected(i), "a type that was chosen is ticked");
    }
  }

  FuzzEditor editor_;
  std::string loaded_;      // the entry that is edited; empty: a new one
  std::string nameLoaded_;  // how the dialog shows its name
  std::string unitLoaded_;  // its unit
  std::string name_;
  std::string unit_;
  bool numeric_ = true;
};

void run(std::string_view input) {
  const std::string entry(takeLine(input));
  DialogRun run(entry);
  const std::string definition = run.definitionBy(input);
  if (definition.empty()) return;
  run.requireLegal(definition);
  run.requireComesBack(definition);
}

}  // namespace
}  // namespace mavCycEd::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  mavCycEd::fuzz::run(mavCycEd::fuzz::asText(data, size));
  return 0;
}
