#include "HostWindow.h"

#include <mavCycEd/ctlCycEd.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>
#include <tuple>

#include "ErrorDock.h"
#include "MacroExport.h"
#include "WelcomeBar.h"

namespace mavCycEd::host {
namespace {

const QString recentKey = QStringLiteral("recentCycles");
const QString catalogueKey = QStringLiteral("instrument/catalogue");
const QString configurationKey = QStringLiteral("instrument/configuration");
const QString folderKey = QStringLiteral("folder/");
const QString lastFolderKey = QStringLiteral("folder/last");
const QString geometryKey = QStringLiteral("window/geometry");
const QString stateKey = QStringLiteral("window/state");

// Not the application's display name: Qt would put that behind the title of every box that the editor shows.
const QString programName = QStringLiteral("Cycle editor");

const QString newCycleHint = QStringLiteral("Choose an atom, fill in its parameters, and insert it into the sequence.");
constexpr int hintTime = 5000;  // milliseconds

QString fileName(const QString& path) { return QFileInfo(path).fileName(); }

/// Shows that the program is at work as long as it lives.
class WaitCursor {
 public:
  WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~WaitCursor() { QApplication::restoreOverrideCursor(); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
};

Problem nothingToSave(const QString& name, const QString& unwritable) {
  if (!unwritable.isEmpty()) {
    return {QStringLiteral("\"%1\" cannot be saved.").arg(name), unwritable, QStringLiteral("Nothing was written.")};
  }
  return {QStringLiteral("\"%1\" cannot be saved yet.").arg(name),
          QStringLiteral("It has no atom lines, and the editor hands back nothing without them, not even the "
                         "description and the variables."),
          QStringLiteral("Insert an atom line and save again. Nothing was written.")};
}

Problem nothingToExport(const QString& name, const QString& unwritable) {
  if (!unwritable.isEmpty()) {
    return {QStringLiteral("\"%1\" cannot be exported.").arg(name), unwritable, QStringLiteral("Nothing was written.")};
  }
  return {QStringLiteral("\"%1\" cannot be exported yet.").arg(name), QStringLiteral("It has no atom lines."),
          QStringLiteral("Insert an atom line and export again. Nothing was written.")};
}

Problem notExported(const QString& name, const QStringList& reported) {
  QString why = QStringLiteral("One of its atom lines cannot be written in this form.");
  if (!reported.isEmpty()) why += QStringLiteral(" The editor reported: %1.").arg(reported.front());
  return {
      QStringLiteral("\"%1\" cannot be exported as a macro text.").arg(name), why,
      QStringLiteral("Look for an atom line with several parameters of which one has no name, and replace or delete "
                     "it. Nothing was written, and the cycle stays as it is.")};
}

Problem ownFile(const QString& name) {
  return {QStringLiteral("The macro text was not written to \"%1\".").arg(name),
          QStringLiteral("This is the file of the cycle itself, and the next saving would replace the macro text."),
          QStringLiteral("Export it under another name.")};
}

}  // namespace

HostWindow::HostWindow(QSettings& settings)
    : settings_(settings),
      recentCycles_(settings, recentKey),
      editor_(new ctlCycEd(this)),
      session_(std::make_unique<EditorSession>(*editor_)) {
  buildCentre();
  buildFileMenu();
  buildOtherMenus();
  buildStatusBar();
  connectEditor();
  takePath({}, {});
  showState();
  resize(1000, 720);
  restoreGeometry(settings_.value(geometryKey).toByteArray());
  restoreState(settings_.value(stateKey).toByteArray());
  errors_->hide();
}

HostWindow::~HostWindow() = default;

std::optional<Problem> HostWindow::openCatalogue(const QString& path) {
  return reloadWith(path, DocumentKind::Catalogue);
}

std::optional<Problem> HostWindow::openConfiguration(const QString& path) {
  return reloadWith(path, DocumentKind::Configuration);
}

std::optional<Problem> HostWindow::reloadWith(const QString& path, DocumentKind kind) {
  const WaitCursor waiting;
  const bool isCatalogue = kind == DocumentKind::Catalogue;
  const ReadDocument document = readDocument(path, kind);
  if (document.problem) return document.problem;
  const bool hadInstrument = session_->hasInstrument();
  if (isCatalogue) {
    session_->setCatalogue(document.text);
  } else {
    session_->setConfiguration(document.text);
  }
  (isCatalogue ? cataloguePath_ : configurationPath_) = QFileInfo(path).absoluteFilePath();
  QStringList reported;
  if (hadInstrument) {
    reported = session_->reload();
  } else if (session_->hasInstrument()) {
    session_->load({});
  }
  if (session_->hasInstrument()) {
    settings_.setValue(catalogueKey, cataloguePath_);
    settings_.setValue(configurationKey, configurationPath_);
  }
  showState();
  if (!reported.isEmpty()) return detach(reported);
  if (isCatalogue && !hadInstrument) {
    statusBar()->showMessage(newCycleHint);
  } else {
    statusBar()->showMessage(QStringLiteral("Opened %1.").arg(fileName(path)), hintTime);
  }
  return std::nullopt;
}

std::optional<Problem> HostWindow::openCycle(const QString& path) {
  const WaitCursor waiting;
  const ReadDocument document = readDocument(path, DocumentKind::Cycle);
  if (document.problem) return document.problem;
  const QStringList reported = session_->load(document.text);
  recentCycles_.add(path);
  statusBar()->clearMessage();
  if (!reported.isEmpty()) {
    takePath({}, path);
    return detach(reported);
  }
  if (document.isMacro) {
    const QFileInfo macro(path);
    takePath({}, macro.dir().filePath(macro.completeBaseName() + QStringLiteral(".xml")));
    statusBar()->showMessage(
        QStringLiteral("%1 is a macro text; saving makes a new cycle file of it.").arg(macro.fileName()));
  } else {
    takePath(QFileInfo(path).absoluteFilePath(), {});
    statusBar()->showMessage(QStringLiteral("Opened %1.").arg(fileName(path)), hintTime);
  }
  return std::nullopt;
}

Problem HostWindow::detach(const QStringList& reported) {
  const Problem problem{QStringLiteral("\"%1\" could be opened in part only.").arg(cycleName()),
                        QStringLiteral("The editor reported: %1.").arg(reported.front()),
                        QStringLiteral("Look through what is there. It is treated as a new cycle, so that saving does "
                                       "not replace the file.")};
  const QString whole = path_.isEmpty() ? suggestion_ : path_;
  const QFileInfo file(whole);
  takePath({}, whole.isEmpty() ? whole : file.dir().filePath(file.completeBaseName() + QStringLiteral(" (part).xml")));
  return problem;
}

void HostWindow::setIgnoreHidden(bool ignore) {
  hiddenAction_->setChecked(ignore);
  session_->setIgnoreHidden(ignore);
  if (session_->hasInstrument()) session_->reload();
}

void HostWindow::toggleHidden(bool ignore) {
  if (mayReload()) {
    setIgnoreHidden(ignore);
  } else {
    hiddenAction_->setChecked(!ignore);
  }
}

void HostWindow::newCycle() {
  if (!mayClose(QStringLiteral("starting a new cycle"))) return;
  session_->load({});
  takePath({}, {});
  statusBar()->showMessage(newCycleHint);
}

void HostWindow::chooseCycle() {
  if (!mayClose(QStringLiteral("opening another cycle"))) return;
  const QString path = chooseFile(DocumentKind::Cycle);
  if (!path.isEmpty()) tellIfAny(openCycle(path));
}

void HostWindow::openRecentCycle(const QString& path) {
  if (!mayClose(QStringLiteral("opening another cycle"))) return;
  if (!QFileInfo::exists(path)) recentCycles_.remove(path);
  tellIfAny(openCycle(path));
}

void HostWindow::chooseCatalogue() {
  const QString path = chooseFile(DocumentKind::Catalogue);
  if (!path.isEmpty() && mayReload()) tellIfAny(openCatalogue(path));
}

void HostWindow::chooseConfiguration() {
  const QString path = chooseFile(DocumentKind::Configuration);
  if (!path.isEmpty() && mayReload()) tellIfAny(openConfiguration(path));
}

void HostWindow::openLastInstrument() {
  if (!mayReload()) return;
  const QString catalogue = settings_.value(catalogueKey).toString();
  const QString configuration = settings_.value(configurationKey).toString();
  // The configuration comes first, so that the catalogue's units are right from the beginning.
  if (!configuration.isEmpty()) tellIfAny(openConfiguration(configuration));
  tellIfAny(openCatalogue(catalogue));
}

bool HostWindow::save() { return path_.isEmpty() ? saveAs() : saveTo(path_); }

bool HostWindow::saveAs() {
  const QString name = hasName() ? cycleName() : QStringLiteral("cycle.xml");
  const QString path =
      chooseTarget(QStringLiteral("Save the cycle"), QStringLiteral("Cycles (*.xml)"), QStringLiteral("xml"), name);
  return !path.isEmpty() && saveTo(path);
}

QString HostWindow::chooseTarget(const QString& title, const QString& kind, const QString& suffix,
                                 const QString& name) {
  QFileDialog dialog(this, title);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(suffix);
  dialog.setNameFilters({kind, QStringLiteral("All files (*)")});
  const QString known = path_.isEmpty() ? suggestion_ : path_;
  dialog.setDirectory(known.isEmpty() ? folderOf(DocumentKind::Cycle) : QFileInfo(known).path());
  dialog.selectFile(name);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().constFirst() : QString();
}

bool HostWindow::saveTo(const QString& path) {
  std::optional<Problem> problem;
  {
    const WaitCursor waiting;
    const QString cycle = session_->takeCycle();
    problem = cycle.isEmpty() ? nothingToSave(fileName(path), session_->unwritableBecause()) : saveCycle(path, cycle);
  }
  if (problem) {
    problem->advice += QStringLiteral(" Everything that you entered is still here.");
    tell(*problem);
    return false;
  }
  session_->saved();
  recentCycles_.add(path);
  rememberFolder(DocumentKind::Cycle, path);
  takePath(QFileInfo(path).absoluteFilePath(), {});
  statusBar()->showMessage(QStringLiteral("Saved %1.").arg(fileName(path)), hintTime);
  return true;
}

void HostWindow::exportMacroText() {
  QString text;
  QStringList reported;
  QString cycle;
  {
    const WaitCursor waiting;
    std::tie(text, reported) = session_->macroText();
    if (!text.isEmpty()) cycle = session_->lookAtCycle();
  }
  if (text.isEmpty()) return tell(notExported(cycleName(), reported));
  if (cycle.isEmpty()) return tell(nothingToExport(cycleName(), session_->unwritableBecause()));
  if (!mayLose(lostInMacroText(cycle))) return;
  const QString name = hasName() ? QFileInfo(cycleName()).completeBaseName() : QStringLiteral("cycle");
  const QString path =
      chooseTarget(QStringLiteral("Export the cycle as a macro text"), QStringLiteral("Macro texts (*.txt *.pma)"),
                   QStringLiteral("txt"), name + QStringLiteral(".txt"));
  if (!path.isEmpty()) tellIfAny(exportTo(path, text));
}

std::optional<Problem> HostWindow::exportTo(const QString& path, const QString& macroText) {
  if (!path_.isEmpty() && QFileInfo(path) == QFileInfo(path_)) return ownFile(fileName(path));
  if (std::optional<Problem> problem = saveCycle(path, macroFileOf(macroText))) return problem;
  rememberFolder(DocumentKind::Cycle, path);
  statusBar()->showMessage(QStringLiteral("Exported %1.").arg(fileName(path)), hintTime);
  return std::nullopt;
}

bool HostWindow::mayLose(const QStringList& losses) {
  if (losses.isEmpty()) return true;
  QMessageBox question(QMessageBox::Warning, QStringLiteral("Export as a macro text"),
                       QStringLiteral("A macro text cannot carry all of \"%1\".").arg(cycleName()),
                       QMessageBox::Save | QMessageBox::Cancel, this);
  question.setTextFormat(Qt::PlainText);
  question.setInformativeText(losses.join(QStringLiteral("\n\n")) +
                              QStringLiteral("\n\nThe cycle itself stays as it is."));
  question.button(QMessageBox::Save)->setText(QStringLiteral("&Export anyway"));
  question.setDefaultButton(QMessageBox::Cancel);
  return question.exec() == QMessageBox::Save;
}

bool HostWindow::mayClose(const QString& purpose) {
  if (!session_->hasUnsavedWork()) return true;
  QMessageBox question(QMessageBox::Warning, QStringLiteral("Unsaved changes"),
                       QStringLiteral("\"%1\" has changes that are not saved.").arg(cycleName()),
                       QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
  question.setInformativeText(QStringLiteral("Save them before %1?").arg(purpose));
  question.setDefaultButton(QMessageBox::Save);
  question.setEscapeButton(QMessageBox::Cancel);
  const int answer = question.exec();
  return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

bool HostWindow::mayReload() {
  if (!session_->hasInstrument() || !session_->reloadLosesInput()) return true;
  QMessageBox question(QMessageBox::Warning, QStringLiteral("Cycle without atom lines"),
                       QStringLiteral("What you entered since this cycle was opened would be lost."),
                       QMessageBox::Discard | QMessageBox::Cancel, this);
  question.setInformativeText(
      QStringLiteral("The instrument has to be loaded anew, and a cycle survives this with atom lines only. Insert an "
                     "atom line first to keep the description and the variables."));
  question.setDefaultButton(QMessageBox::Cancel);
  return question.exec() == QMessageBox::Discard;
}

void HostWindow::tell(const Problem& problem) {
  QMessageBox box(QMessageBox::Warning, programName, problem.what, QMessageBox::Ok, this);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(problem.why + QStringLiteral("\n\n") + problem.advice);
  box.exec();
}

void HostWindow::tellIfAny(const std::optional<Problem>& problem) {
  if (problem) tell(*problem);
}

QString HostWindow::chooseFile(DocumentKind kind) {
  const QString filter = kind == DocumentKind::Cycle
                             ? QStringLiteral("Cycles and macro texts (*.xml *.txt *.pma);;All files (*)")
                             : QStringLiteral("XML files (*.xml);;All files (*)");
  const QString path =
      QFileDialog::getOpenFileName(this, QStringLiteral("Open a %1").arg(nameOf(kind)), folderOf(kind), filter);
  if (!path.isEmpty()) rememberFolder(kind, path);
  return path;
}

QString HostWindow::folderOf(DocumentKind kind) const {
  const QVariant last = settings_.value(lastFolderKey, QDir::homePath());
  return settings_.value(folderKey + nameOf(kind), last).toString();
}

void HostWindow::rememberFolder(DocumentKind kind, const QString& path) {
  const QString folder = QFileInfo(path).absolutePath();
  settings_.setValue(folderKey + nameOf(kind), folder);
  settings_.setValue(lastFolderKey, folder);
}

void HostWindow::takePath(const QString& path, const QString& suggestion) {
  path_ = path;
  suggestion_ = suggestion;
  setWindowTitle(QStringLiteral("%1[*] - %2").arg(cycleName(), programName));
}

QString HostWindow::cycleName() const {
  if (!path_.isEmpty()) return fileName(path_);
  return suggestion_.isEmpty() ? QStringLiteral("New cycle") : fileName(suggestion_);
}

void HostWindow::showState() {
  const bool hasInstrument = session_->hasInstrument();
  editor_->setEnabled(hasInstrument);
  welcome_->setVisible(!hasInstrument);
  for (QAction* const action : std::as_const(cycleActions_)) action->setEnabled(hasInstrument);

  const QString last = settings_.value(catalogueKey).toString();
  const bool offersLast = !last.isEmpty() && last != cataloguePath_;
  welcome_->offerLast(offersLast ? fileName(last) : QString());
  lastInstrumentAction_->setVisible(offersLast);
  lastInstrumentAction_->setText(QStringLiteral("Open &last catalogue: ") + menuText(last, {}));

  QStringList names;
  for (const QString& path : {cataloguePath_, configurationPath_}) {
    if (!path.isEmpty()) names << fileName(path);
  }
  instrumentLabel_->setText(names.isEmpty() ? QStringLiteral("No instrument") : names.join(QStringLiteral(" + ")));
  instrumentLabel_->setToolTip(QStringList{cataloguePath_, configurationPath_}.join(u'\n').trimmed());
}

void HostWindow::fillRecentMenu() {
  recentMenu_->clear();
  const QStringList files = recentCycles_.files();
  for (const QString& file : files) {
    QAction* const action = recentMenu_->addAction(menuText(file, files));
    action->setStatusTip(QDir::toNativeSeparators(file));
    connect(action, &QAction::triggered, this, [this, file] { openRecentCycle(file); });
  }
  if (files.isEmpty()) {
    recentMenu_->addAction(QStringLiteral("None yet"))->setEnabled(false);
    return;
  }
  recentMenu_->addSeparator();
  connect(recentMenu_->addAction(QStringLiteral("&Forget them")), &QAction::triggered, this,
          [this] { recentCycles_.clear(); });
}

void HostWindow::showHelp() { editor_->ShowHelp(); }

void HostWindow::showAbout() {
  QMessageBox::about(this, QStringLiteral("About"),
                     QStringLiteral("%1 %2\nA program around the cycle editor component.")
                         .arg(programName, QCoreApplication::applicationVersion()));
}

void HostWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ActivationChange) session_->changes().glance();
  QMainWindow::changeEvent(event);
}

void HostWindow::closeEvent(QCloseEvent* event) {
  if (!mayClose(QStringLiteral("closing the window"))) {
    event->ignore();
    return;
  }
  settings_.setValue(geometryKey, saveGeometry());
  settings_.setValue(stateKey, saveState());
  event->accept();
}

}  // namespace mavCycEd::host
