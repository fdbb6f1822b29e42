#pragma once

#include <QString>
#include <QWidget>
#include <memory>

#include "HostServices.h"

class QAction;

namespace mavCycEd {

class EditorControl;

/// An editor for the cycles of an autosampler: a widget that a host places on one of its windows.
///
/// The host hands over a configuration, a catalogue of atoms and a cycle; the user edits the cycle; the host asks
/// whether it changed and takes it back:
///
///     auto* editor = new mavCycEd::ctlCycEd(window);
///     QObject::connect(editor, &mavCycEd::ctlCycEd::CycleEditorError, window, &Window::logError);
///     editor->SetConfigXML(configuration);
///     editor->SetXMLStrings(catalogue, cycle);
///     ...
///     if (editor->CycleChanged()) save(editor->RetrieveCycle());
///
/// All texts come and go as QString; a file's encoding is the host's affair, and an encoding named in an XML
/// declaration is ignored. No exception leaves the control and no member returns an error code: failures are told by
/// CycleEditorError, after which the control keeps the state that it had reached.
///
/// All members belong to the thread of the user interface. A window may hold several controls; they share nothing.
///
/// A slot of CycleEditorError, and whatever runs while a message box or the dialog is open, may call every member and
/// may destroy the control. SetXMLStrings is then put off until the procedure that is running has ended; of several
/// calls the last one counts.
class ctlCycEd : public QWidget {
  Q_OBJECT
  /// Write-only. True: further atoms of the configuration and objects of the catalogue that are marked as hidden are
  /// offered all the same. It takes effect at the next SetXMLStrings. False at first.
  Q_PROPERTY(bool Ignore_Hidden WRITE setIgnore_Hidden)
  /// Read-only. Whether the cycle, as RetrieveCycle would hand it back, differs from the one that was loaded or handed
  /// back last. It is found out anew at every reading, by writing the cycle and comparing: a change that was taken back
  /// reads false. Reading it does not disturb a user who is typing.
  Q_PROPERTY(bool CycleChanged READ CycleChanged)
  /// Write-only. A cycle document that becomes the control's working document. The screen and what CycleChanged
  /// compares with stay as they are.
  Q_PROPERTY(QString ResetCycle WRITE setResetCycle)

 public:
  /// The error numbers that the control itself reports.
  enum mavCycEdError {
    /// A text that should be XML is unusable (hexadecimal 80040201).
    mavCycEdErrorInvalidXML = -2147220991,
  };
  Q_ENUM(mavCycEdError)

  explicit ctlCycEd(QWidget* parent = nullptr);
  explicit ctlCycEd(HostServices services, QWidget* parent = nullptr);
  ~ctlCycEd() override;
  ctlCycEd(const ctlCycEd&) = delete;
  ctlCycEd& operator=(const ctlCycEd&) = delete;

  /// Stores the configuration: XML with root Config, whose children Arguments/OBJECT say which arguments an object type
  /// offers. It is read when a question needs it, so this comes before SetXMLStrings. A text that is no XML counts as
  /// an empty configuration.
  Q_INVOKABLE void SetConfigXML(const QString& strConfigXml);

  /// Loads a catalogue and a cycle and fills the screen; whatever was loaded before is gone.
  ///
  /// strLatestKam: XML with root LATESTKAM, holding ATOMS, CLASSES, OBJECTS and LISTS. An empty or unusable one
  /// disables the screen and is told by CycleEditorError with the number mavCycEdErrorInvalidXML.
  /// strCycle: XML with root CYCLE, or a macro text whose first line is [PMA], or nothing for a new cycle. A text that
  /// is neither loads as a new cycle.
  Q_INVOKABLE void SetXMLStrings(const QString& strLatestKam, const QString& strCycle);

  /// The edited cycle as XML with root CYCLE, empty when its sequence of atoms is empty. From now on CycleChanged
  /// compares with it.
  ///
  /// It is empty as well when a name, a value or a variable makes no XML (a bare "&" or "<"; in the description they do
  /// no harm). CycleEditorError then says which one, with the number mavCycEdErrorInvalidXML, once for each state of
  /// the cycle: at the first RetrieveCycle or CycleChanged that finds it. So never replace a kept cycle by an empty
  /// text: tell the user, and keep both.
  Q_INVOKABLE QString RetrieveCycle();

  void setIgnore_Hidden(bool booNewValue);
  bool CycleChanged();
  void setResetCycle(const QString& strCycle);

  // Services for C++ hosts; they are no members of the interface that can be reached by name.

  /// The edited cycle as a macro text: the description, the variables and the atom lines. With "[PMA]" and a line end
  /// (CR LF) in front it is a text that SetXMLStrings loads. It is empty when a line cannot be written, which
  /// CycleEditorError tells. CycleChanged goes on comparing with what it did.
  ///
  /// A macro text carries less than a cycle document: the first line of the description, and the values of atom lines
  /// with two parameters or more.
  QString MacroString();

  /// Whether the cycle has any atom line. Where it has, an empty RetrieveCycle is a cycle that cannot be written.
  bool HasAtomLines() const;

  /// Whether every row of the parameter grid holds a valid value: a number, "On", "Off", or a value that is known for
  /// the parameter; rows with a pick list count as valid. If not, message names the first row that does not; otherwise
  /// it stays as it is. Ranges and steps are not looked at here: the control checks them itself while the user works.
  bool ParamValueControl(QString& message);

  /// Take the operator's last step back and bring it again, for the host's own Edit menu:
  ///
  ///     editMenu->addAction(editor->undoAction());
  ///     editMenu->addAction(editor->redoAction());
  ///
  /// Their texts name the step ("Undo Insert") and their enabled states follow, without any further doing. Actions and
  /// no QUndoStack: the history is the cycle's own, and a second one would have to be kept in step with it. Ctrl+Z,
  /// Ctrl+Y and Ctrl+Shift+Z work while the focus is in the control, whether the actions are in a menu or not;
  /// elsewhere these keys stay the host's. The actions belong to the control.
  QAction* undoAction() const;
  QAction* redoAction() const;

  /// Shows the contents of the operator's help, in a window that goes with the control. F1 shows the page that fits
  /// while the focus is in the control or its dialog; everywhere else F1 is the host's.
  void ShowHelp();

 signals:
  /// A procedure of the control has failed.
  /// lngError: the error's number; mavCycEdErrorInvalidXML, or a usual run-time error number.
  /// strError: what happened, in words.
  /// strApplication: "mavCycEd", and the library's version.
  /// strModule: "ctlCycEd".
  /// strProcedure: the failing procedure's name and one blank.
  /// intLineNumber: the failing line, 0 where none is known.
  void CycleEditorError(int lngError, const QString& strError, const QString& strApplication, const QString& strModule,
                        const QString& strProcedure, qint16 intLineNumber);

 private:
  friend EditorControl& editorOf(ctlCycEd& control);

  class Implementation;
  std::unique_ptr<Implementation> implementation_;
};

}  // namespace mavCycEd
