#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "RandomCycles.h"

namespace mavCycEd::test {
namespace {

struct Line {
  std::string name;
  std::string parameters;
  std::string place;  ///< what stays at the position: duration and group index
};

/// The sequence as it has to be: the lines, what the list shows of them, and which one is selected.
class Model {
 public:
  void load(const std::vector<Line>& lines) {
    lines_ = lines;
    rebuild();
    selected_ = lines_.empty() ? -1 : 0;
  }
  void insert(const std::string& name, const std::string& parameters) {
    if (name.empty()) return;
    if (selected_ < 0) {
      lines_.push_back({name, parameters, ""});
      show(lines_.size(), name);
      selected_ = 0;
      return;
    }
    const auto behind = static_cast<std::size_t>(selected_) + 1;
    lines_.push_back({});
    for (std::size_t position = lines_.size() - 1; position > behind; --position) {
      lines_[position].name = lines_[position - 1].name;
      lines_[position].parameters = lines_[position - 1].parameters;
    }
    lines_[behind].name = name;
    lines_[behind].parameters = parameters;
    rebuild();
    selected_ = static_cast<int>(behind);
  }
  void replace(const std::string& name, const std::string& parameters) {
    if (selected_ < 0) return;
    Line& line = lines_[static_cast<std::size_t>(selected_)];
    line.name = name;
    line.parameters = parameters;
    shown_[static_cast<std::size_t>(selected_)] = number(static_cast<std::size_t>(selected_) + 1) + " " + name;
  }
  void remove() {
    if (selected_ < 0) return;
    lines_.erase(lines_.begin() + selected_);
    rebuild();
    selected_ = std::min(selected_, static_cast<int>(lines_.size()) - 1);
  }
  void select(int line) { selected_ = line; }

  const std::vector<Line>& lines() const { return lines_; }
  const std::vector<std::string>& shown() const { return shown_; }
  int selected() const { return selected_; }

 private:
  static std::string number(std::size_t position) {
    return position < 10 ? "0" + std::to_string(position) : std::to_string(position);
  }
  void show(std::size_t position, const std::string& name) {
    if (name == "END") indent_ = std::max(1, indent_ - 3);
    shown_.push_back(number(position) + std::string(static_cast<std::size_t>(indent_), ' ') + name);
    if (name == "REPEAT") indent_ += 3;
  }
  void rebuild() {
    indent_ = 1;
    shown_.clear();
    for (const Line& line : lines_) show(shown_.size() + 1, line.name);
  }

  std::vector<Line> lines_;
  std::vector<std::string> shown_;
  int selected_ = -1;
  int indent_ = 1;
};

/// The parameter text that the grid's rows make.
std::string parametersOfGrid(TestEditor& editor) {
  const std::vector<std::string> keys = editor.gridKeys();
  const std::vector<std::string> values = editor.gridValues();
  std::string text;
  for (std::size_t row = 0; row < keys.size(); ++row) {
    if (row > 0) text += '\r';
    text += keys[row].empty() ? values[row] : keys[row] + ";" + values[row];
  }
  return text;
}

std::vector<Line> linesOf(TestEditor& editor) {
  std::vector<Line> lines;
  for (const cAtom& atom : editor.control().atoms()) {
    lines.push_back({atom.AtomName(), textOf(atom.AtomParameters()), atom.Duration() + atom.GroupIndex()});
  }
  return lines;
}

bool sameLines(const std::vector<Line>& a, const std::vector<Line>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const Line& left, const Line& right) {
    return left.name == right.name && left.parameters == right.parameters && left.place == right.place;
  });
}

/// What the step does to the sequence; it is told before the editor is.
void tell(Model& model, const Step& step, TestEditor& editor) {
  const int count = static_cast<int>(model.lines().size());
  switch (step.kind) {
    case Step::Kind::Insert: model.insert(editor.screen().cboAtom.text(), parametersOfGrid(editor)); break;
    case Step::Kind::Replace: model.replace(editor.screen().cboAtom.text(), parametersOfGrid(editor)); break;
    case Step::Kind::Delete: model.remove(); break;
    case Step::Kind::Select: model.select(step.number % (count + 1) - 1); break;
    case Step::Kind::DoubleClick:
      if (count > 0) model.select(-1);
      break;
    default: break;
  }
}

RC_GTEST_PROP(Editing, FollowsTheRulesOfTheSequence, ()) {
  TestEditor editor;
  editor.load(roomyCatalogue(), xmlOf(*cycles().as("cycle")));
  markPositions(editor);
  Model model;
  model.load(linesOf(editor));
  for (const Step& step : *steps().as("steps")) {
    tell(model, step, editor);
    perform(step, editor);
    RC_ASSERT(sameLines(linesOf(editor), model.lines()));
    RC_ASSERT(editor.lines() == model.shown());
    RC_ASSERT(editor.selected() == model.selected());
  }
  RC_ASSERT(editor.errors.empty());
}

RC_GTEST_PROP(Editing, ShowsALineForEveryAtomLineInItsBlock, ()) {
  TestEditor editor;
  editor.load(roomyCatalogue(), xmlOf(*cycles().as("cycle")));
  for (const Step& step : *steps().as("steps")) {
    perform(step, editor);
    RC_ASSERT(static_cast<int>(editor.lines().size()) == editor.control().atoms().Count());
  }
  RC_PRE(editor.control().atoms().Count() > 0);
  editor.select(0);
  editor.remove();
  const std::vector<std::string> names = editor.atomNames();
  RC_ASSERT(editor.lines().size() == names.size());
  int open = 0;
  for (std::size_t line = 0; line < names.size(); ++line) {
    if (names[line] == "END" && open > 0) --open;
    const std::string shown = editor.lines()[line];
    const std::size_t digits = line < 9 ? 2 : std::to_string(line + 1).size();
    RC_ASSERT(shown.substr(digits) == std::string(static_cast<std::size_t>(1 + 3 * open), ' ') + names[line]);
    RC_ASSERT(std::stoul(shown.substr(0, digits)) == line + 1);
    if (names[line] == "REPEAT") ++open;
  }
}

RC_GTEST_PROP(Editing, DeletingAnInsertedLineRestoresTheSequence, ()) {
  TestEditor editor;
  editor.load(roomyCatalogue(), xmlOf(*cycles().as("cycle")));
  RC_PRE(editor.control().atoms().Count() > 0);
  const std::vector<std::string> names = editor.atomNames();
  const std::vector<std::string> parameters = editor.atomParameters();
  const std::vector<std::string> lines = editor.lines();
  editor.select(*rc::gen::inRange(0, editor.control().atoms().Count()));
  perform({Step::Kind::Choose, *rc::gen::inRange(0, 100), ""}, editor);
  editor.insert();
  RC_ASSERT(editor.atomNames().size() == names.size() + 1);
  editor.remove();
  RC_ASSERT(editor.atomNames() == names);
  RC_ASSERT(editor.atomParameters() == parameters);
  RC_ASSERT(editor.lines() == lines);
}

RC_GTEST_PROP(Editing, ASelectedLineReplacedByItselfKeepsItsParameters, ()) {
  TestEditor editor;
  editor.load(roomyCatalogue());
  perform({Step::Kind::Choose, *rc::gen::inRange(0, 100), ""}, editor);
  for (Step step : *steps().as("steps")) {
    if (step.kind != Step::Kind::Type) step.kind = Step::Kind::Pick;
    perform(step, editor);
  }
  editor.insert();
  const std::vector<std::string> parameters = editor.atomParameters();
  editor.select(0);
  editor.replace();
  RC_ASSERT(editor.atomParameters() == parameters);
}

}  // namespace
}  // namespace mavCycEd::test
