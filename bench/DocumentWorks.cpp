#include <memory>
#include <string>

#include "Comparison.h"
#include "Data.h"
#include "Editor.h"
#include "Works.h"

namespace mavCycEd::bench {
namespace {

/// Gives an editor that is loaded when it is first needed, so that a row that is left out costs nothing.
std::function<Editor&()> editorWith(int lines) {
  return [editor = std::make_shared<std::unique_ptr<Editor>>(), lines]() -> Editor& {
    if (!*editor) *editor = loadedEditor(cycleOf(lines));
    return **editor;
  };
}

// Changes a line in the middle, to and fro.
void changeOneLine(Editor& editor) {
  const auto& lines = editor.control().cycle().lines;
  std::size_t middle = lines.size() / 2;
  while (lines[middle].parameters.empty()) ++middle;
  AtomLine line = lines[middle];
  std::string parameters = line.parameters.text();
  parameters.back() = parameters.back() == '1' ? '2' : '1';
  line.parameters = ParameterText(std::move(parameters));
  editor.control().Perform(edits::replaceLine(middle, std::move(line)), "Change");
}

void addLoading(int lines) {
  compare({.work = "SetXMLStrings, memory edition",
           .lines = lines,
           .target = 1.5,
           .ours =
               [lines] {
                 const std::string& cycle = cycleOf(lines);
                 Editor editor;
                 editor.control().SetConfigXML(instrument().configuration);
                 return secondsOf([&] { editor.control().SetXMLStrings(instrument().catalogue, cycle); });
               },
           .yardstick = [lines] { return secondsToParse(cycleOf(lines)); }});
}

void addHandingBack(int lines) {
  const auto editor = editorWith(lines);
  const auto serialise = [lines] { return secondsToSerialise(cycleOf(lines)); };
  compare({.work = "RetrieveCycle, nothing changed",
           .lines = lines,
           .target = 3.0,
           .ours =
               [editor] {
                 EditorControl& control = editor().control();
                 return secondsOf([&] { control.RetrieveCycle(); });
               },
           .yardstick = serialise});
  compare({.work = "RetrieveCycle, one line changed",
           .lines = lines,
           .target = 3.0,
           .ours =
               [editor] {
                 changeOneLine(editor());
                 return secondsOf([&] { editor().control().RetrieveCycle(); });
               },
           .yardstick = serialise});
  compare({.work = "CycleChanged, nothing changed since the last read",
           .lines = lines,
           .target = 0.05,
           .ours =
               [editor] {
                 EditorControl& control = editor().control();
                 control.CycleChanged();
                 return secondsOf([&] { control.CycleChanged(); });
               },
           .yardstick = serialise});
  compare({.work = "CycleChanged, one line changed",
           .lines = lines,
           .target = 3.0,
           .ours =
               [editor] {
                 changeOneLine(editor());
                 return secondsOf([&] { editor().control().CycleChanged(); });
               },
           .yardstick = serialise});
}

}  // namespace

void addDocumentWorks() {
  for (const int lines : sizes) addLoading(lines);
  for (const int lines : sizes) addHandingBack(lines);
}

}  // namespace mavCycEd::bench
