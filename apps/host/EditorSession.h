#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <utility>

#include "ChangeWatch.h"

namespace mavCycEd {
class ctlCycEd;
}

namespace mavCycEd::host {

/// What is open in an editor: an instrument (catalogue and configuration) and a cycle; and whether the cycle as it is
/// stands in a file.
///
/// The editor compares the cycle with what was loaded or handed back last. A cycle that was handed back is not saved
/// yet, though: this class keeps that apart.
class EditorSession : public QObject {
  Q_OBJECT

 public:
  /// The editor outlives the session.
  explicit EditorSession(ctlCycEd& editor);

  // The instrument. It takes effect when a cycle is loaded, or with reload().
  void setCatalogue(const QString& text) { catalogue_ = text; }
  void setConfiguration(const QString& text) { configuration_ = text; }
  void setIgnoreHidden(bool ignore) { ignoreHidden_ = ignore; }
  /// Without a catalogue the editor shows no cycle.
  bool hasInstrument() const { return !catalogue_.isEmpty(); }

  /// Shows a cycle (an empty text: a new one). What the editor reports meanwhile is returned.
  QStringList load(const QString& cycle);
  /// Shows the cycle as it is with the instrument as it is set now. A cycle without atom lines is not handed back by
  /// the editor: what was loaded comes back then, without what was entered since; see reloadLosesInput().
  QStringList reload();
  bool reloadLosesInput();

  /// Whether something would be lost if the cycle were closed. Not cheap: the editor writes the cycle for it.
  bool hasUnsavedWork();
  /// The cycle to be saved; empty when the editor hands none back, because it has no atom lines or cannot be written.
  /// It counts as unsaved until saved() is called.
  QString takeCycle();
  /// Why the cycle as it is cannot be written; empty when it can, or has no atom lines.
  QString unwritableBecause() const;
  void saved();
  /// The cycle as it is, to look at: it counts as saved or unsaved as before. Empty as with takeCycle().
  QString lookAtCycle();
  /// The cycle as the editor writes it as a macro text, and what it reports meanwhile.
  std::pair<QString, QStringList> macroText();

  ChangeWatch& changes() { return changes_; }

 private:
  QStringList hand(const QString& cycle);

  ctlCycEd& editor_;
  QString catalogue_;
  QString configuration_;
  bool ignoreHidden_ = false;
  QString loaded_;                ///< the cycle as it was loaded or handed back last
  bool baselineUnsaved_ = false;  ///< what the editor compares with is in no file
  QStringList reported_;
  QString unwritable_;  ///< what the editor told last of a cycle that cannot be written
  ChangeWatch changes_;
};

}  // namespace mavCycEd::host
