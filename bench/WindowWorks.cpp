#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QListView>
#include <QStringListModel>
#include <memory>
#include <string>

#include "Comparison.h"
#include "Data.h"
#include "Editor.h"
#include "Works.h"
#include "qt/EditorAccess.h"
#include "qt/Text.h"
#include "qt/include/mavCycEd/ctlCycEd.h"

namespace mavCycEd::bench {
namespace {

constexpr QSize windowSize(900, 600);

// Lets everything that waits to be laid out and painted be painted.
void paint(QWidget& window) {
  QCoreApplication::processEvents();
  QCoreApplication::processEvents();  // a view that was laid out by the first asks for its painting
  QEvent update(QEvent::UpdateRequest);
  QCoreApplication::sendEvent(&window, &update);
}

void show(QWidget& window) {
  window.resize(windowSize);
  window.show();
  QCoreApplication::processEvents();
  paint(window);
}

/// The control on a window of its own, with a cycle.
class Window {
 public:
  explicit Window(int lines) {
    show(control_);
    control_.SetConfigXML(qt::toQt(instrument().configuration));
    load(qt::toQt(cycleOf(lines)));
    list_ = control_.findChild<QListView*>(QStringLiteral("lstAtomSequence"));
  }

  void load(const QString& cycle) {
    control_.SetXMLStrings(catalogue_, cycle);
    paint(control_);
  }
  void select(int line) {
    list_->setCurrentIndex(list_->model()->index(line, 0));
    QMetaObject::invokeMethod(list_, "chosen");
    paint(control_);
  }
  void press(const char* button) {
    QMetaObject::invokeMethod(control_.findChild<QObject*>(QLatin1String(button)), "click");
    paint(control_);
  }
  /// The view lays its lines out when a timer of the window system says so, which may be behind the painting: here all
  /// that is due has been done.
  void settle() {
    for (int i = 0; i < 3; ++i) paint(control_);
  }
  void undo() {
    control_.undoAction()->trigger();
    paint(control_);
  }
  int lines() const { return list_->model()->rowCount(); }

 private:
  ctlCycEd control_;
  QString catalogue_ = qt::toQt(instrument().catalogue);
  QListView* list_ = nullptr;
};

std::function<Window&()> windowWith(int lines) {
  return [window = std::make_shared<std::unique_ptr<Window>>(), lines]() -> Window& {
    if (!*window) *window = std::make_unique<Window>(lines);
    return **window;
  };
}

// How long a bare list view takes to show other texts.
std::function<double()> bareReset(int lines) {
  struct Bare {
    QListView view;
    QStringListModel model;
    QStringList texts;
  };
  return [lines, bare = std::make_shared<std::unique_ptr<Bare>>()] {
    if (!*bare) {
      *bare = std::make_unique<Bare>();
      for (int i = 0; i < lines; ++i)
        (*bare)->texts.append(QStringLiteral("%1 ASPIRATE").arg(i + 1, 2, 10, QLatin1Char('0')));
      (*bare)->view.setModel(&(*bare)->model);
      show((*bare)->view);
    }
    return secondsOf([&] {
      (*bare)->model.setStringList((*bare)->texts);
      paint((*bare)->view);
    });
  };
}

void addLoading(int lines) {
  const auto window = windowWith(lines);
  // The window itself is painted too, which counts where the cycle is short.
  constexpr int shortCycle = 1000;
  compare({.work = "SetXMLStrings, Qt edition, until painted",
           .lines = lines,
           .target = lines > shortCycle ? std::optional(2.0) : std::nullopt,
           .ours =
               [window, lines] {
                 Window& loaded = window();
                 const QString cycle = qt::toQt(cycleOf(lines));
                 return secondsOf([&] { loaded.load(cycle); });
               },
           .yardstick = [lines] { return secondsToParse(cycleOf(lines)); }});
}

void addEditing(int lines) {
  const auto window = windowWith(lines);
  const auto bare = bareReset(lines);
  compare({.work = "Insert in the middle, Qt edition, until painted",
           .lines = lines,
           .target = 1.5,
           .ours =
               [window] {
                 Window& edited = window();
                 edited.select(edited.lines() / 2);
                 const double seconds = secondsOf([&] { edited.press("cmdInset"); });
                 edited.press("cmdDelete");
                 return seconds;
               },
           .yardstick = bare});
  compare({.work = "Delete in the middle, Qt edition, until painted",
           .lines = lines,
           .target = 1.5,
           .ours =
               [window] {
                 Window& edited = window();
                 edited.select(edited.lines() / 2);
                 edited.press("cmdInset");
                 return secondsOf([&] { edited.press("cmdDelete"); });
               },
           .yardstick = bare});
}

// Both put a line in and take it out again, and one of the two counts, with all the laying out that comes of it.
void addUndo(int lines) {
  const auto window = windowWith(lines);
  const auto insertAndUndo = [window](bool undoCounts) {
    Window& edited = window();
    edited.select(edited.lines() / 2);
    edited.settle();
    const double inserting = processorSecondsOf([&] {
      edited.press("cmdInset");
      edited.settle();
    });
    const double undoing = processorSecondsOf([&] {
      edited.undo();
      edited.settle();
    });
    return undoCounts ? undoing : inserting;
  };
  compare({.work = "undo of an insertion in the middle, Qt edition, until painted, against the insertion",
           .lines = lines,
           .target = 1.2,
           .ours = [insertAndUndo] { return insertAndUndo(true); },
           .yardstick = [insertAndUndo] { return insertAndUndo(false); },
           .paired = true});
}

std::function<double()> loadingAMacro(const std::function<Window&()>& windowFor, int lines) {
  return [windowFor, lines] {
    Window& window = windowFor();
    const QString macro = qt::toQt(macroOf(lines));
    return processorSecondsOf([&] { window.load(macro); });
  };
}

std::function<double()> selecting(const std::function<Window&()>& window) {
  return [window, toAndFro = false]() mutable {
    Window& shown = window();
    toAndFro = !toAndFro;
    return secondsOf([&] { shown.select(shown.lines() / (toAndFro ? 2 : 3)); });
  };
}

}  // namespace

void addWindowWorks() {
  for (const int lines : sizes) addLoading(lines);
  for (const int lines : sizes) addEditing(lines);
  for (const int lines : {10000, 100000}) addUndo(lines);
  const auto shortest = windowWith(sizes[0]);
  for (const int lines : {1000, 10000}) {
    compare({.work = "loading a macro text, Qt edition, 2n lines against n",
             .lines = lines,
             .target = 2.3,
             .ours = loadingAMacro(shortest, 2 * lines),
             .yardstick = loadingAMacro(shortest, lines),
             .paired = true});
  }
  for (const int lines : sizes) {
    if (lines == sizes[0]) continue;
    compare({.work = "selecting another line, Qt edition, until painted, against 1,000 lines",
             .lines = lines,
             .target = 2.0,
             .ours = selecting(windowWith(lines)),
             .yardstick = selecting(shortest)});
  }
}

}  // namespace mavCycEd::bench
