#include "panels/frmparams.h"

#include <algorithm>
#include <array>
#include <unordered_set>
#include <vector>

#include "mavCycEd/VariableDefinition.h"
#include "panels/DialogSetup.h"
#include "text/IllegalCharacters.h"
#include "text/LineEnds.h"
#include "text/MessageTitles.h"
#include "text/Number.h"
#include "text/Strings.h"

namespace mavCycEd {

using text::crLf;

namespace {

constexpr int valueColumn = 1;

/// The rows of the settings grid.
enum SettingRow : int { DefaultRow = 1, LowerRow = 2, UpperRow = 3 };
struct Setting {
  SettingRow row;
  std::string_view key;
  std::string_view missing;
};
constexpr std::array settings{Setting{DefaultRow, "Default Value", "The default value is missing."},
                              Setting{LowerRow, "Lower limit", "The lower limit is missing."},
                              Setting{UpperRow, "Upper limit", "The upper limit is missing."}};

std::string twoParagraphs(std::string_view first, std::string_view second) {
  return std::string(first).append(crLf).append(crLf).append(second);
}

}  // namespace

frmparams::frmparams(const VariableDialogScreen& screen, DialogExchange& exchange, modCycleHelper& catalogue,
                     AtomListProvider& provider, platform::MessageBox& messages, ErrorSink& errors)
    : screen_(screen),
      exchange_(exchange),
      catalogue_(catalogue),
      provider_(provider),
      messages_(messages),
      errors_(errors),
      constants_(screen, catalogue, errors) {
  setCaptions();
  connect();
}

void frmparams::setCaptions() {
  screen_.fraValue.setCaption("Parameter Name");
  screen_.fraParamType.setCaption("Parameter Type");
  screen_.optNrValue.setCaption("&Numeric Value");
  screen_.optObjValue.setCaption("&Object");
  screen_.fraValues.setCaption("Settings");
  screen_.lblUnit.setCaption("Unit");
  screen_.fraObjects.setCaption("Please indicate the object types this parameter represents:");
  screen_.OKButton.setCaption("OK");
  screen_.cmdCancel.setCaption("&Cancel");
}

void frmparams::connect() {
  screen_.txtParamName.setEvents({.Change = [this] { txtParamName_Change(); }, .LostFocus = {}});
  screen_.optNrValue.setEvents({.Click = [this] { optNrValue_Click(); }});
  screen_.optObjValue.setEvents({.Click = [this] { optObjValue_Click(); }});
  screen_.OKButton.setEvents({.Click = [this] { OKButton_Click(); }});
  screen_.cmdCancel.setEvents({.Click = [this] { cmdCancel_Click(); }});
  screen_.cboUnit.setEvents({.Click = {}, .LostFocus = [this] { constants_.cboUnit_LostFocus(); }});
  platform::ValueListEvents gridEvents;
  gridEvents.SelectionChange = [this] { constants_.grdParamStnd_OnSelectionChange(); };
  gridEvents.MouseDown = [this](platform::MouseButton button, int, int) {
    constants_.grdParamStnd_OnMouseDown(button);
  };
  gridEvents.ContextPopup = [this](int x, int y) { constants_.grdParamStnd_OnContextPopup(x, y); };
  screen_.grdParamStnd.setEvents(gridEvents);
  screen_.mnuSyrConstant.setEvents({.Click = [this](int index) { constants_.mnuSyrConstant_Click(index); }});
}

frmparams::~frmparams() { disconnect(); }

void frmparams::disconnect() {
  screen_.txtParamName.setEvents({});
  screen_.optNrValue.setEvents({});
  screen_.optObjValue.setEvents({});
  screen_.OKButton.setEvents({});
  screen_.cmdCancel.setEvents({});
  screen_.cboUnit.setEvents({});
  screen_.grdParamStnd.setEvents({});
  screen_.mnuSyrConstant.setEvents({});
}

void frmparams::Form_Load() {
  guarded(errors_, "Form_Load", [this] {
    screen_.grdParamStnd.setColumnTitle(0, "Parameter Description");
    screen_.grdParamStnd.setColumnTitle(1, "Value");
    exchange_.resultText.clear();
    screen_.frmparams.setCaption(exchange_.editMode ? "Modify Parameter" : "Add New Parameter");
    fillSettings("", "", "");
    FillStandardUnits();
    screen_.cboUnit.setText("None");
    if (exchange_.editMode) selectVariableType(exchange_.editedText, screen_.optObjValue, screen_.optNrValue);
    // A new variable is a number at first, and so is an entry whose definition names no type.
    if (!screen_.optNrValue.value() && !screen_.optObjValue.value()) screen_.optNrValue.select();
  });
}

void frmparams::lockName() {
  if (screen_.optNrValue.value()) screen_.txtParamName.setText(VariableDefinition(exchange_.editedText).name());
  screen_.txtParamName.setEnabled(false);
  screen_.fraParamType.setEnabled(false);
}

void frmparams::FillStandardUnits() {
  guarded(errors_, "FillStandardUnits", [this] {
    const std::string units = catalogue_.standardUnits();
    std::unordered_set<std::string> offered;
    for (int i = 0; i < screen_.cboUnit.itemCount(); ++i) offered.insert(screen_.cboUnit.itemText(i));
    for (const std::string_view unit : text::split(units, ';')) {
      if (unit.empty()) continue;
      const std::string text = provider_.lookUpUnit(cleanedEntry(unit)).text;
      if (!text.empty() && offered.insert(text).second) screen_.cboUnit.addItem(text);
    }
  });
}

bool frmparams::itemInComboExists(const platform::ComboBox& combo, std::string_view text) {
  for (int i = 0; i < combo.itemCount(); ++i) {
    if (combo.itemText(i) == text) return true;
  }
  return false;
}

void frmparams::fillSettings(std::string_view defaultValue, std::string_view lower, std::string_view upper) {
  platform::ValueListActiveX& grid = screen_.grdParamStnd;
  resetGrid(grid);
  const std::array values{defaultValue, lower, upper};
  for (std::size_t i = 0; i < settings.size(); ++i) grid.InsertRow(settings[i].key, values[i], true);
}

void frmparams::showHalf(bool numeric) {
  screen_.fraValues.setEnabled(numeric);
  screen_.fraValues.setVisible(numeric);
  screen_.fraObjects.setEnabled(!numeric);
  screen_.fraObjects.setVisible(!numeric);
}

void frmparams::optNrValue_Click() {
  guarded(errors_, "optNrValue_Click", [this] {
    showHalf(true);
    if (exchange_.editedText.empty()) return;
    const NumberVariable number = VariableDefinition(exchange_.editedText).asNumber();
    screen_.txtParamName.setText(number.name);
    screen_.cboUnit.setText(number.unit);
    constants_.cboUnit_LostFocus();
    fillSettings(number.defaultValue, number.lower, number.upper);
  });
}

void frmparams::optObjValue_Click() {
  guarded(errors_, "optObjValue_Click", [this] {
    showHalf(false);
    const std::string& edited = exchange_.editedText;
    const std::string classNames = catalogue_.classNames();
    screen_.lstObject.clear();
    for (const std::string_view name : text::split(classNames, ';')) {
      screen_.lstObject.addItem(name, !edited.empty() && edited.find(name) != std::string::npos);
    }
    if (!edited.empty()) screen_.txtParamName.setText(VariableDefinition(edited).objectName());
  });
}

void frmparams::txtParamName_Change() {
  guarded(errors_, "txtParamName_Change", [this] { nameStands(); });
}

// Whether the name holds no illegal character; if it did, the user has been told, and the rest of it is in the box.
bool frmparams::nameStands() {
  std::string name = screen_.txtParamName.text();
  if (text::filterName(name)) return true;
  showWarningIllegalCharater2();
  screen_.txtParamName.setText(name);
  screen_.txtParamName.focusAndSelectAll();
  return false;
}

void frmparams::OKButton_Click() {
  guarded(errors_, "OKButton_Click", [this] {
    const std::string name = screen_.txtParamName.text();
    if (text::trimSpaces(name).empty()) {
      tell("Empty parameter name");
      screen_.txtParamName.focusAndSelectAll();
      return;
    }
    // A name may have come with the cycle as it is; that of a variable in use stays so.
    if (screen_.txtParamName.isEnabled() && !nameStands()) return;
    if (!ValidatedParamsValues() || !isDefaultWithinLimits()) return;
    exchange_.resultText.clear();
    if (screen_.optNrValue.value() && !(areSettingsComplete() && unitStands())) return;
    exchange_.resultText = definition();
    exchange_.editMode = false;
    screen_.frmparams.close();
  });
}

std::string frmparams::definition() const {
  const std::string name = screen_.txtParamName.text();
  if (screen_.optNrValue.value()) {
    const std::string trimmed(text::trimSpaces(name));
    return VariableDefinition::number(
               {trimmed, screen_.cboUnit.text(), setting(DefaultRow), setting(LowerRow), setting(UpperRow)})
        .text();
  }
  std::vector<std::string> types;
  const platform::SelectionList& list = screen_.lstObject;
  for (int i = 0; i < list.itemCount(); ++i) {
    if (list.isSelected(i)) types.push_back(list.itemText(i));
  }
  return VariableDefinition::object(name, types).text();
}

void frmparams::cmdCancel_Click() {
  guarded(errors_, "cmdCancel_Click", [this] {
    exchange_.resultText.clear();
    screen_.frmparams.close();
  });
}

bool frmparams::ValidatedParamsValues() {
  return guarded(errors_, "ValidatedParamsValues", [this] {
    bool valid = true;
    for (const Setting& each : settings) {
      std::string value = setting(each.row);
      if (text::filterValue(value)) continue;
      showWarningIllegalCharater1();
      screen_.grdParamStnd.setValue(valueColumn, each.row, value);
      valid = false;
    }
    return valid;
  });
}

// The same for the unit, which a user may type. What the catalogue offers is the instrument maker's.
bool frmparams::unitStands() {
  const std::string typed = screen_.cboUnit.text();
  if (itemInComboExists(screen_.cboUnit, typed)) return true;
  std::string unit = text::withoutCharacters(typed, U")");  // the definition's unit ends with it
  text::filterValue(unit);
  if (unit == typed) return true;
  tell(std::string("The unit cannot contain any of the following characters:").append(crLf).append("\"'&<>;,)\""));
  screen_.cboUnit.setText(unit);
  return false;
}

bool frmparams::isDefaultWithinLimits() {
  const std::string defaultValue = setting(DefaultRow);
  if (!text::isNumeric(defaultValue)) return true;
  const std::string lower = setting(LowerRow);
  if (text::isNumeric(lower) && text::numericValue(defaultValue) < text::numericValue(lower)) {
    tell(twoParagraphs("Parameter out of range", "The default value is lower than the lower limit."));
    return false;
  }
  const std::string upper = setting(UpperRow);
  if (text::isNumeric(upper) && text::numericValue(defaultValue) > text::numericValue(upper)) {
    tell(twoParagraphs("Parameter out of range", "The default value is higher than the upper limit."));
    return false;
  }
  return true;
}

bool frmparams::areSettingsComplete() {
  const auto isMissing = [this](const Setting& each) { return text::trimSpaces(setting(each.row)).empty(); };
  const auto* const missing = std::ranges::find_if(settings, isMissing);
  if (missing == settings.end()) return true;
  tell(twoParagraphs("Incomplete parameter", missing->missing));
  screen_.grdParamStnd.focusValue(missing->row);
  return false;
}

void frmparams::showWarningIllegalCharater1() {
  tell(twoParagraphs("Invalid Parameter:", "The parameter value cannot contain any of the following characters:")
           .append(crLf)
           .append("\"'&<>;,\""));
}

void frmparams::showWarningIllegalCharater2() {
  tell(std::string("The parameter name cannot contain any of the following characters:")
           .append(crLf)
           .append("\"-'&<>;,+\""));
}

void frmparams::tell(std::string_view message) {
  messages_.messageBox(screen_.frmparams.hWnd(), message, text::dialogTitle, platform::Information | platform::OkOnly);
}

}  // namespace mavCycEd
