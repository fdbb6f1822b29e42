#include "Player.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string_view>
#include <system_error>

#include "Output.h"
#include "text/Strings.h"

namespace mavCycEd::play {

/// The words behind a step's first one, taken one after the other.
class Player::Words {
 public:
  explicit Words(const Step& step) : step_(step) {}

  const std::string& name() { return take(false, "a name"); }
  const std::string& text() { return take(true, "a text"); }
  int number() {
    const std::string& word = take(false, "a number");
    int value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc() || end != word.data() + word.size()) throw StepRefused("This is no number: " + word);
    return value;
  }
  bool truth() {
    const std::string& word = name();
    if (word != "true" && word != "false") throw StepRefused("This is neither true nor false: " + word);
    return word == "true";
  }
  void end() const {
    if (next_ < step_.words.size()) {
      throw StepRefused("There are too many words in the step " + step_.words[0].text + ".");
    }
  }

 private:
  const std::string& take(bool isText, std::string_view wanted) {
    if (next_ >= step_.words.size() || step_.words[next_].isText != isText) {
      throw StepRefused("The step " + step_.words[0].text + " needs " + std::string(wanted) + " as word " +
                        std::to_string(next_ + 1) + ".");
    }
    return step_.words[next_++].text;
  }

  const Step& step_;
  std::size_t next_ = 1;
};

const Player::Command Player::commands[] = {
    {"SetConfigXML", &Player::setConfigXML, Reach::Control},
    {"SetXMLStrings", &Player::setXMLStrings, Reach::Control},
    {"Ignore_Hidden", &Player::ignoreHidden, Reach::Control},
    {"ResetCycle", &Player::resetCycle, Reach::Control},
    {"CycleChanged", &Player::cycleChanged, Reach::Control},
    {"RetrieveCycle", &Player::retrieveCycle, Reach::Control},
    {"MacroString", &Player::macroString, Reach::Control},
    {"choose", &Player::choose, Reach::Dialog},
    {"leave", &Player::leave, Reach::Dialog},
    {"edit", &Player::edit, Reach::Dialog},
    {"press", &Player::press, Reach::Dialog},
    {"hover", &Player::hover, Reach::Dialog},
    {"context", &Player::context, Reach::Dialog},
    {"menu", &Player::menu, Reach::Dialog},
    {"type", &Player::type, Reach::Dialog},
    {"select", &Player::select, Reach::Dialog},
    {"dblclick", &Player::doubleClick, Reach::Dialog},
    {"click", &Player::click, Reach::Dialog},
    {"close", &Player::close, Reach::Dialog},
    {"undo", &Player::undo, Reach::Control},
    {"redo", &Player::redo, Reach::Control},
    {"tick", &Player::tick, Reach::Control},
    {"show", &Player::show, Reach::Dialog},
};

bool Player::play(StepSource& steps) {
  refused_ = false;
  driver_.setWhileDialogOpen([this, &steps] { playDialog(steps); });
  playWhile(steps, [] { return true; });
  return !refused_;
}

template <typename GoOn>
void Player::playWhile(StepSource& steps, const GoOn& goOn) {
  while (!refused_ && goOn() && steps.hasNext()) {
    const int line = steps.nextLine();
    try {
      run(steps.next());
    } catch (const StepRefused& refusal) {
      refused_ = true;
      writeLine(output_, {{"error", refusal.what()}, {"line", line}});
    }
  }
}

void Player::playDialog(StepSource& steps) {
  writeLine(output_, {{"dialog", "frmparams"}, {"caption", driver_.dialogCaption()}});
  playWhile(steps, [this] { return driver_.isDialogOpen(); });
  if (!driver_.isDialogOpen()) writeLine(output_, {{"dialog", "frmparams"}, {"closed", true}});
}

void Player::run(const Step& step) {
  const Step::Word& first = step.words.front();
  const auto* const command = std::ranges::find(commands, first.text, &Command::name);
  if (first.isText || command == std::end(commands)) throw StepRefused("There is no step " + first.text + ".");
  if (command->reach == Reach::Control && driver_.isDialogOpen()) {
    throw StepRefused("The step " + first.text + " has to wait until the dialog frmparams is closed.");
  }
  if (command->action != &Player::menu && command->action != &Player::show) driver_.dismissMenu();
  Words words(step);
  (this->*command->action)(words);
}

void Player::setConfigXML(Words& words) {
  const std::string& configuration = words.text();
  words.end();
  driver_.SetConfigXML(configuration);
}

void Player::setXMLStrings(Words& words) {
  const std::string& catalogue = words.text();
  const std::string& cycle = words.text();
  words.end();
  driver_.SetXMLStrings(catalogue, cycle);
}

void Player::ignoreHidden(Words& words) {
  const bool value = words.truth();
  words.end();
  driver_.Ignore_Hidden(value);
}

void Player::resetCycle(Words& words) {
  const std::string& cycle = words.text();
  words.end();
  driver_.ResetCycle(cycle);
}

void Player::cycleChanged(Words& words) {
  words.end();
  const bool changed = driver_.CycleChanged();
  writeLine(output_, {{"CycleChanged", changed}});
}

void Player::retrieveCycle(Words& words) {
  words.end();
  const std::string cycle = driver_.RetrieveCycle();
  writeLine(output_, {{"RetrieveCycle", cycle}});
}

void Player::macroString(Words& words) {
  words.end();
  const std::string macro = driver_.MacroString();
  writeLine(output_, {{"MacroString", macro}});
}

void Player::choose(Words& words) {
  const std::string& control = words.name();
  if (!control.starts_with("cbo")) {
    const int row = words.number();
    const std::string& text = words.text();
    words.end();
    driver_.chooseInGrid(control, row, text);
    return;
  }
  const std::string& text = words.text();
  words.end();
  driver_.chooseItem(control, text);
}

void Player::edit(Words& words) {
  const std::string& grid = words.name();
  const int row = words.number();
  // What no key types into a cell of one line is left out, on every edition alike.
  using std::literals::operator""sv;
  const std::string text = text::withoutCharacters(words.text(), U"\r\n\t\0\u2028\u2029"sv);
  words.end();
  driver_.editInGrid(grid, row, text);
}

void Player::leave(Words& words) {
  const std::string& combo = words.name();
  words.end();
  driver_.leaveCombo(combo);
}

void Player::press(Words& words) {
  const std::string& grid = words.name();
  const int x = words.number();
  const int y = words.number();
  words.end();
  driver_.pressInGrid(grid, x, y);
}

void Player::hover(Words& words) {
  const std::string& grid = words.name();
  const int x = words.number();
  const int y = words.number();
  words.end();
  driver_.hoverOverGrid(grid, x, y);
}

void Player::context(Words& words) {
  const std::string& grid = words.name();
  const int x = words.number();
  const int y = words.number();
  words.end();
  const auto captions = driver_.askForMenu(grid, x, y);
  writeLine(output_, {{"popup", captions ? Json(*captions) : Json()}});
}

void Player::menu(Words& words) {
  const int place = words.number();
  words.end();
  driver_.chooseFromMenu(place);
}

void Player::close(Words& words) {
  words.end();
  driver_.closeDialog();
}

void Player::type(Words& words) {
  const std::string& control = words.name();
  const std::string& text = words.text();
  words.end();
  if (control.starts_with("cbo")) {
    driver_.typeInCombo(control, text);
  } else {
    driver_.replaceText(control, text);
  }
}

void Player::select(Words& words) {
  const std::string& list = words.name();
  const int index = words.number();
  words.end();
  driver_.selectItem(list, index);
}

void Player::doubleClick(Words& words) {
  const std::string& list = words.name();
  const int index = words.number();
  words.end();
  driver_.doubleClickItem(list, index);
}

void Player::click(Words& words) {
  const std::string& button = words.name();
  words.end();
  driver_.clickButton(button);
}

void Player::undo(Words& words) {
  words.end();
  if (!driver_.editor().undoText()) throw StepRefused("There is no step to be undone.");
  driver_.undo();
}

void Player::redo(Words& words) {
  words.end();
  if (!driver_.editor().redoText()) throw StepRefused("There is no step to be redone.");
  driver_.redo();
}

void Player::tick(Words& words) {
  words.end();
  driver_.tick();
}

void Player::show(Words& words) {
  const std::string& name = words.name();
  words.end();
  writeLine(output_, shown(driver_, name));
}

}  // namespace mavCycEd::play
