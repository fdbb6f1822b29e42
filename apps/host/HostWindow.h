#pragma once

#include <QMainWindow>
#include <QString>
#include <memory>
#include <optional>

#include "CycleFile.h"
#include "EditorSession.h"
#include "Problem.h"
#include "RecentFiles.h"

class QAction;
class QLabel;
class QMenu;
class QSettings;

namespace mavCycEd {
class ctlCycEd;
}

namespace mavCycEd::host {

class ErrorDock;
class WelcomeBar;

/// The program's window: the editor with files around it.
class HostWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// The settings outlive the window.
  explicit HostWindow(QSettings& settings);
  ~HostWindow() override;
  HostWindow(const HostWindow&) = delete;
  HostWindow& operator=(const HostWindow&) = delete;

  // What the command line asks for as well. Nothing changes when a problem is returned, with one exception: a cycle
  // that could be shown in part only is open then, without a file of its own.
  std::optional<Problem> openCatalogue(const QString& path);
  std::optional<Problem> openConfiguration(const QString& path);
  /// Opens a cycle in place of the one that is open.
  std::optional<Problem> openCycle(const QString& path);
  void setIgnoreHidden(bool ignore);
  /// The cycle as the editor hands it back; empty when it has no atom lines.
  QString takeCycle() { return session_->takeCycle(); }
  QString unwritableBecause() const { return session_->unwritableBecause(); }

  /// Tells the operator in a message box.
  void tell(const Problem& problem);

 signals:
  /// The editor reported an error; the text is for people.
  void editorFailed(const QString& text);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  // Building.
  void buildCentre();
  void buildFileMenu();
  void buildOtherMenus();
  void buildStatusBar();
  void connectEditor();
  template <typename Command>
  QAction* addCommand(QMenu& menu, const QString& text, const QKeySequence& keys, const QString& hint, Command command);

  // Commands.
  void newCycle();
  void chooseCycle();
  void chooseCatalogue();
  void chooseConfiguration();
  void openLastInstrument();
  void openRecentCycle(const QString& path);
  void toggleHidden(bool ignore);
  bool save();
  bool saveAs();
  void exportMacroText();
  void showHelp();
  void showAbout();

  // Steps of the commands.
  std::optional<Problem> reloadWith(const QString& path, DocumentKind kind);
  /// The cycle was loaded in part: it loses its file, so that saving does not replace the whole by the part.
  Problem detach(const QStringList& reported);
  bool mayClose(const QString& purpose);
  bool mayReload();
  bool saveTo(const QString& path);
  bool mayLose(const QStringList& losses);
  std::optional<Problem> exportTo(const QString& path, const QString& macroText);
  QString chooseFile(DocumentKind kind);
  /// The file to write to; empty when the operator thinks better of it.
  QString chooseTarget(const QString& title, const QString& kind, const QString& suffix, const QString& name);
  QString folderOf(DocumentKind kind) const;
  void rememberFolder(DocumentKind kind, const QString& path);
  void tellIfAny(const std::optional<Problem>& problem);
  void takePath(const QString& path, const QString& suggestion);
  void showState();
  void fillRecentMenu();
  bool hasName() const { return !path_.isEmpty() || !suggestion_.isEmpty(); }
  QString cycleName() const;

  QSettings& settings_;
  RecentFiles recentCycles_;
  ctlCycEd* editor_;
  std::unique_ptr<EditorSession> session_;
  QString path_;        ///< the file of the cycle; empty: it has none yet
  QString suggestion_;  ///< the name that saving suggests when there is no file
  QString cataloguePath_;
  QString configurationPath_;

  WelcomeBar* welcome_ = nullptr;
  ErrorDock* errors_ = nullptr;
  QMenu* fileMenu_ = nullptr;
  QMenu* recentMenu_ = nullptr;
  QAction* lastInstrumentAction_ = nullptr;
  QAction* hiddenAction_ = nullptr;
  QLabel* instrumentLabel_ = nullptr;
  QList<QAction*> cycleActions_;  ///< what needs an instrument
};

}  // namespace mavCycEd::host
