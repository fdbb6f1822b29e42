// The making of the window: its widgets and menus.

#include <mavCycEd/ctlCycEd.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QVBoxLayout>

#include "ErrorDock.h"
#include "HostWindow.h"
#include "WelcomeBar.h"

namespace mavCycEd::host {

template <typename Command>
QAction* HostWindow::addCommand(QMenu& menu, const QString& text, const QKeySequence& keys, const QString& hint,
                                Command command) {
  auto* const action = menu.addAction(text);
  action->setShortcut(keys);
  action->setStatusTip(hint);
  connect(action, &QAction::triggered, this, command);
  return action;
}

void HostWindow::buildCentre() {
  auto* const centre = new QWidget(this);
  welcome_ = new WelcomeBar(centre);
  auto* const layout = new QVBoxLayout(centre);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(welcome_);
  layout->addWidget(editor_, 1);
  setCentralWidget(centre);
  connect(welcome_, &WelcomeBar::openCatalogueWanted, this, &HostWindow::chooseCatalogue);
  connect(welcome_, &WelcomeBar::lastInstrumentWanted, this, &HostWindow::openLastInstrument);

  errors_ = new ErrorDock(this);
  addDockWidget(Qt::BottomDockWidgetArea, errors_);
}

void HostWindow::buildFileMenu() {
  fileMenu_ = menuBar()->addMenu(QStringLiteral("&File"));
  cycleActions_ << addCommand(*fileMenu_, QStringLiteral("&New cycle"), QKeySequence::New,
                              QStringLiteral("Start an empty cycle"), &HostWindow::newCycle);
  cycleActions_ << addCommand(*fileMenu_, QStringLiteral("&Open cycle..."), QKeySequence::Open,
                              QStringLiteral("Open a cycle from a file"), &HostWindow::chooseCycle);
  recentMenu_ = fileMenu_->addMenu(QStringLiteral("&Recent cycles"));
  connect(recentMenu_, &QMenu::aboutToShow, this, &HostWindow::fillRecentMenu);
  cycleActions_ << recentMenu_->menuAction();
  cycleActions_ << addCommand(*fileMenu_, QStringLiteral("&Save"), QKeySequence::Save,
                              QStringLiteral("Write the cycle to its file"), &HostWindow::save);
  cycleActions_ << addCommand(*fileMenu_, QStringLiteral("Save &as..."), QKeySequence(QStringLiteral("Ctrl+Shift+S")),
                              QStringLiteral("Write the cycle to another file"), &HostWindow::saveAs);
  cycleActions_ << addCommand(
      *fileMenu_, QStringLiteral("&Export macro text..."), QKeySequence(QStringLiteral("Ctrl+Shift+E")),
      QStringLiteral("Write the cycle to another file as lines of text"), &HostWindow::exportMacroText);
  fileMenu_->addSeparator();
  addCommand(*fileMenu_, QStringLiteral("Open &catalogue..."), QKeySequence(QStringLiteral("Ctrl+Shift+O")),
             QStringLiteral("Choose the instrument: its atoms, objects and lists"), &HostWindow::chooseCatalogue);
  addCommand(*fileMenu_, QStringLiteral("Open con&figuration..."), QKeySequence(QStringLiteral("Ctrl+Shift+F")),
             QStringLiteral("Choose what is added to the instrument: units, arguments, further atoms"),
             &HostWindow::chooseConfiguration);
  lastInstrumentAction_ = addCommand(*fileMenu_, {}, QKeySequence(QStringLiteral("Ctrl+L")),
                                     QStringLiteral("Open the catalogue and the configuration that were open last"),
                                     &HostWindow::openLastInstrument);
  fileMenu_->addSeparator();
  QAction* const quit = fileMenu_->addAction(QStringLiteral("&Quit"));
  quit->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));
  quit->setStatusTip(QStringLiteral("End the program"));
  quit->setMenuRole(QAction::QuitRole);
  connect(quit, &QAction::triggered, this, &QWidget::close);
  connect(fileMenu_, &QMenu::aboutToShow, this, [this] { session_->changes().glance(); });
}

void HostWindow::buildOtherMenus() {
  QMenu* const edit = menuBar()->addMenu(QStringLiteral("&Edit"));
  edit->addAction(editor_->undoAction());
  edit->addAction(editor_->redoAction());

  QMenu* const view = menuBar()->addMenu(QStringLiteral("&View"));
  hiddenAction_ = view->addAction(QStringLiteral("Show &hidden atoms and objects"));
  hiddenAction_->setCheckable(true);
  hiddenAction_->setStatusTip(QStringLiteral("Offer also what the instrument's files mark as hidden"));
  connect(hiddenAction_, &QAction::triggered, this, &HostWindow::toggleHidden);
  QAction* const errors = errors_->toggleViewAction();
  errors->setText(QStringLiteral("&Errors"));
  errors->setStatusTip(QStringLiteral("Show what the editor could not do"));
  view->addAction(errors);

  QMenu* const help = menuBar()->addMenu(QStringLiteral("&Help"));
  addCommand(*help, QStringLiteral("Cycle &editor help"), QKeySequence::HelpContents,
             QStringLiteral("Explain the screen, the values, the messages and the keys of the editor"),
             &HostWindow::showHelp);
  addCommand(*help, QStringLiteral("&About"), {}, QStringLiteral("Name and version of this program"),
             &HostWindow::showAbout)
      ->setMenuRole(QAction::AboutRole);
}

void HostWindow::buildStatusBar() {
  instrumentLabel_ = new QLabel(this);
  instrumentLabel_->setObjectName(QStringLiteral("instrument"));
  statusBar()->addPermanentWidget(instrumentLabel_);
}

void HostWindow::connectEditor() {
  connect(editor_, &ctlCycEd::CycleEditorError, this,
          [this](int number, const QString& text, const QString& application, const QString& module,
                 const QString& procedure, qint16 line) {
            errors_->add(number, text, application, module, procedure, line);
            emit editorFailed(QStringLiteral("%1 (error %2 in %3)").arg(text).arg(number).arg(procedure.trimmed()));
          });
  connect(&session_->changes(), &ChangeWatch::changedChanged, this, &QWidget::setWindowModified);
}

}  // namespace mavCycEd::host
