#include "panels/ValueValidation.h"

#include "rules/ValueCheck.h"
#include "text/IllegalCharacters.h"
#include "text/LineEnds.h"
#include "text/MessageTitles.h"
#include "text/Utf8.h"

namespace mavCycEd {
namespace {

constexpr int keyColumn = 0;
constexpr int valueColumn = 1;

std::string illegalCharacterMessage() {
  constexpr std::size_t indent = 40;
  std::string message("Invalid Parameter:");
  message.append(text::crLf).append(text::crLf);
  message.append("The parameter value cannot contain any of the following characters:").append(text::crLf);
  return message.append(indent, ' ').append("'&<>;,\"");
}

// A parameter's name as messages have it: without its unit, but never without anything.
std::string nameIn(std::string key) {
  const std::size_t unit = key.find('(', text::firstCharacterSize(key));
  if (unit != std::string::npos) key.erase(unit);
  return key;
}

}  // namespace

void ValueValidation::GrdAtom_OnSetEditText(int /*column*/, int row, const std::string& value) {
  guarded(errors_, "GrdAtom_OnSetEditText", [&] {
    if (!state_.ready) return;
    if (SkipNextEditCheck_) {
      SkipNextEditCheck_ = false;
      return;
    }
    std::string cleaned = value;
    if (text::filterValue(cleaned)) return;
    messages_.messageBox(0, illegalCharacterMessage(), text::controlTitle, platform::Information | platform::OkOnly);
    SkipNextEditCheck_ = true;
    grdAtom_.setValue(valueColumn, row, cleaned);
    SkipNextEditCheck_ = false;  // also where the edit had ended meanwhile, and the write told nobody
  });
}

void ValueValidation::GrdAtom_OnEndOfEdit(int row, const std::string& value) { Check_Range(value, row); }

bool ValueValidation::Check_Range(std::string_view value, int row) {
  return guarded(errors_, "Check_Range", [&] {
    if (!state_.ready) return false;
    if (row > state_.rows.upperBound()) return true;
    if (!checkValue(value, state_.rows.row(row))) return true;
    const std::string name = nameIn(grdAtom_.cellText(keyColumn, row));
    messages_.messageBox(0, name + " out of range or invalid step increment.", text::controlTitle,
                         platform::Critical | platform::OkOnly);
    return false;
  });
}

bool ValueValidation::ParamValueControl(std::string& message) {
  return guarded(errors_, "ParamValueControl", [&] {
    bool notFound = true;  // a row without any candidate inherits the mark of the row before
    for (int row = 1; row < grdAtom_.RowCount(); ++row) {
      const std::string key = grdAtom_.cellText(keyColumn, row);
      const std::string value = grdAtom_.cellText(valueColumn, row);
      if (isKnownValue(value, key, state_.rows.find(row), catalogue_, notFound)) continue;
      message = "Parameter " + key + " has invalid value of " + value + ".";
      return false;
    }
    return true;
  });
}

}  // namespace mavCycEd
