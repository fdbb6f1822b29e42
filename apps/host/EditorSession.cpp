#include "EditorSession.h"

#include <mavCycEd/ctlCycEd.h>

namespace mavCycEd::host {

EditorSession::EditorSession(ctlCycEd& editor)
    : editor_(editor), changes_(editor, [this] { return baselineUnsaved_ || editor_.CycleChanged(); }) {
  connect(&editor_, &ctlCycEd::CycleEditorError, this,
          [this](int number, const QString& text, const QString&, const QString&, const QString& procedure) {
            reported_ << text;
            const bool loads = procedure.startsWith(QLatin1String("SetXMLStrings"));
            if (number == ctlCycEd::mavCycEdErrorInvalidXML && !loads) unwritable_ = text;
          });
}

QStringList EditorSession::hand(const QString& cycle) {
  reported_.clear();
  editor_.SetConfigXML(configuration_);
  editor_.setIgnore_Hidden(ignoreHidden_);
  editor_.SetXMLStrings(catalogue_, cycle);
  loaded_ = cycle;
  return std::exchange(reported_, {});
}

QStringList EditorSession::load(const QString& cycle) {
  const QStringList reported = hand(cycle);
  // A cycle that the editor would write differently than its file has it (by another program, an older format, a macro
  // text, loaded in part) is no change of the operator's: from now on it is compared with what the editor makes of it.
  // The watch asks, so that it knows from the beginning how long an answer takes for this cycle.
  baselineUnsaved_ = false;
  if (changes_.ask()) editor_.RetrieveCycle();
  changes_.settle(false);
  return reported;
}

QStringList EditorSession::reload() {
  const bool unsaved = changes_.ask();
  QString cycle = editor_.RetrieveCycle();
  if (cycle.isEmpty()) cycle = loaded_;
  const QStringList reported = hand(cycle);
  baselineUnsaved_ = unsaved;
  changes_.settle(unsaved);
  return reported;
}

bool EditorSession::reloadLosesInput() { return changes_.entered() && editor_.RetrieveCycle().isEmpty(); }

bool EditorSession::hasUnsavedWork() {
  if (changes_.ask()) return true;
  // A cycle without atom lines never reads as changed, whatever its description and variables are.
  return changes_.entered() && editor_.RetrieveCycle().isEmpty();
}

QString EditorSession::lookAtCycle() {
  const bool unsaved = changes_.ask();
  const QString cycle = editor_.RetrieveCycle();
  baselineUnsaved_ = unsaved;
  if (!cycle.isEmpty()) loaded_ = cycle;
  return cycle;
}

std::pair<QString, QStringList> EditorSession::macroText() {
  reported_.clear();
  QString text = editor_.MacroString();
  return {std::move(text), std::exchange(reported_, {})};
}

QString EditorSession::takeCycle() {
  const QString cycle = editor_.RetrieveCycle();
  if (cycle.isEmpty()) {
    baselineUnsaved_ = baselineUnsaved_ || changes_.entered();
  } else {
    baselineUnsaved_ = true;
    loaded_ = cycle;
  }
  return cycle;
}

// The editor tells it once for each state of the cycle, so what it told last is about this one.
QString EditorSession::unwritableBecause() const {
  return editor_.HasAtomLines() && editor_.RetrieveCycle().isEmpty() ? unwritable_ : QString();
}

void EditorSession::saved() {
  baselineUnsaved_ = false;
  changes_.settle(false);
}

}  // namespace mavCycEd::host
