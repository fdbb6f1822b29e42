#include <malloc.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <string>

#include "Comparison.h"
#include "Data.h"
#include "Editor.h"
#include "Works.h"

namespace mavCycEd::bench {
namespace {

double bytesInUse() { return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd); }

std::function<double()> pickingAnAtom(int atoms, int objects) {
  return [atoms, objects, editor = std::make_shared<std::unique_ptr<Editor>>()] {
    if (!*editor) {
      *editor = std::make_unique<Editor>();
      (*editor)->control().SetXMLStrings(catalogueOf(atoms, objects), {});
    }
    platform::ComboBox& picker = (*editor)->screen().cboAtom;
    return secondsOf([&] { picker.setText("PICKED"); });
  };
}

std::function<double()> loadingAMacro(int lines) {
  return [lines, macro = macroOf(lines)] {
    Editor editor;
    editor.control().SetConfigXML(instrument().configuration);
    return processorSecondsOf([&] { editor.control().SetXMLStrings(instrument().catalogue, macro); });
  };
}

double bytesAfterLoading(int lines) {
  const std::string& cycle = cycleOf(lines);
  const double before = bytesInUse();
  const std::unique_ptr<Editor> editor = loadedEditor(cycle);
  return bytesInUse() - before;
}

// How many bytes more are in use behind so many selections to and fro than before them. A selection that keeps anything
// keeps it every time; what else comes and goes in a process (buffers that reach their size, what the heap holds ready
// for the next allocation) comes once. So there are selections before the first reading, and the least of several
// growths counts.
double bytesKeptBySelections(int lines, int selections) {
  const std::unique_ptr<Editor> editor = loadedEditor(cycleOf(lines));
  platform::ListBox& list = editor->screen().lstAtomSequence;
  const auto select = [&] {
    for (int i = 0; i < selections; ++i) list.setIndex(i % 2 == 0 ? lines / 2 : lines / 3);
  };
  select();
  constexpr int readings = 3;
  double least = std::numeric_limits<double>::infinity();
  for (int i = 0; i < readings; ++i) {
    const double before = bytesInUse();
    select();
    least = std::min(least, std::max(bytesInUse() - before, 0.0));
  }
  return least;
}

// What the history of single-line steps takes, a step. Lines are put in and taken out, so that the cycle stays as long.
double bytesOfAStep(int lines, int steps) {
  const std::unique_ptr<Editor> editor = loadedEditor(cycleOf(lines));
  memory::MemoryScreen& screen = editor->screen();
  const auto insertAndDelete = [&] {
    screen.cmdInset.press();
    screen.cmdDelete.press();
  };
  screen.lstAtomSequence.setIndex(lines / 2);
  insertAndDelete();  // what is made once is there now
  const double before = bytesInUse();
  for (int i = 0; i < steps / 2; ++i) insertAndDelete();
  return (bytesInUse() - before) / steps;
}

}  // namespace

void addCatalogueWorks() {
  compare({.work = "picking an atom, 2,000 atoms and 10,000 objects against 20 and 100",
           .lines = 0,
           .target = 2.0,
           .ours = pickingAnAtom(2000, 10000),
           .yardstick = pickingAnAtom(20, 100)});
  for (const int lines : sizes) {
    compare({.work = "loading a macro text, 2n lines against n",
             .lines = lines,
             .target = 2.3,
             .ours = loadingAMacro(2 * lines),
             .yardstick = loadingAMacro(lines),
             .paired = true});
  }
  for (const int lines : sizes) {
    compare({.work = "memory after loading, against the size of the text",
             .lines = lines,
             .target = 6.0,
             .ours = [lines] { return bytesAfterLoading(lines); },
             .yardstick = [lines] { return static_cast<double>(cycleOf(lines).size()); },
             .timed = false});
  }
  constexpr double bytesAllowed = 2000;
  compare({.work = "memory of a step to undo, of 1,000 steps of a line, against 2 kB",
           .lines = 100000,
           .target = 1.0,
           .ours = [] { return bytesOfAStep(100000, 1000); },
           .yardstick = [] { return bytesAllowed; },
           .timed = false});
  constexpr int selections = 10000;
  compare({.work = "memory kept by 10,000 selections to and fro, against a byte each",
           .lines = 1000,
           .target = 1.0,
           .ours = [] { return bytesKeptBySelections(1000, selections); },
           .yardstick = [] { return static_cast<double>(selections); },
           .timed = false});
}

}  // namespace mavCycEd::bench
