#include "qt/include/mavCycEd/ctlCycEd.h"

#include <QPointer>
#include <string>
#include <utility>

#include "control/EditorControl.h"
#include "libxml2/Libxml2DocumentFactory.h"
#include "qt/EditorAccess.h"
#include "qt/EditorScreen.h"
#include "qt/HistoryActions.h"
#include "qt/QtClock.h"
#include "qt/QtMessageBox.h"
#include "qt/QtSystemMessage.h"
#include "qt/Text.h"
#include "qt/Utf8CodePage.h"

namespace mavCycEd {

static_assert(static_cast<int>(ctlCycEd::mavCycEdErrorInvalidXML) == static_cast<int>(mavCycEdErrorInvalidXML));

namespace {

HostServices completed(ctlCycEd& control, HostServices services) {
  if (!services.messageBox) services.messageBox = std::make_shared<qt::QtMessageBox>(&control);
  if (!services.clock) services.clock = std::make_shared<qt::QtClock>();
  return services;
}

/// What the editor works on. It lives until the control is gone and its last procedure has ended.
struct Surroundings {
  Surroundings(ctlCycEd& control, HostServices given)
      : services(completed(control, std::move(given))), screen(control, services.gridTimer, services.typingTimer) {}

  PlatformServices platformServices() {
    return {xmlDocuments, *services.messageBox, systemMessage, codePage, *services.clock};
  }

  HostServices services;
  libxml2::Libxml2DocumentFactory xmlDocuments;
  qt::QtSystemMessage systemMessage;
  qt::Utf8CodePage codePage;
  qt::EditorScreen screen;
};

}  // namespace

class ctlCycEd::Implementation {
 public:
  Implementation(ctlCycEd& control, HostServices services)
      : surroundings_(std::make_shared<Surroundings>(control, std::move(services))),
        editor_(std::make_unique<EditorControl>(
            surroundings_->screen.controls(), surroundings_->platformServices(),
            [&control](const CycleEditorErrorEvent& event) { tellError(control, event); },
            surroundings_->services.provider, surroundings_)),
        history_(
            control, [this] { editor_->Undo(); }, [this] { editor_->Redo(); }) {
    editor_->setHistoryChanged([this] { history_.show(editor_->undoText(), editor_->redoText()); });
  }
  // The editor goes first: what happens to the widgets then is told to nobody.
  ~Implementation() {
    const bool running = editor_->isRunning();
    editor_.reset();
    if (running) surroundings_->screen.outliveControl();
  }
  Implementation(const Implementation&) = delete;
  Implementation& operator=(const Implementation&) = delete;

  EditorControl& editor() { return *editor_; }
  qt::HelpDesk& help() { return surroundings_->screen.help(); }
  qt::HistoryActions& history() { return history_; }

  /// Finishes a value that is being typed, before a call of the host's that changes what is shown or takes the cycle.
  /// What the end of the edit leads to may destroy the control: false then.
  static bool settle(ctlCycEd& control) {
    const QPointer<ctlCycEd> alive(&control);
    const auto surroundings = control.implementation_->surroundings_;
    surroundings->screen.gate().pass();
    return !alive.isNull();
  }

 private:
  static void tellError(ctlCycEd& control, const CycleEditorErrorEvent& event) {
    emit control.CycleEditorError(event.lngError, qt::toQt(event.strError), qt::toQt(event.strApplication),
                                  qt::toQt(event.strModule), qt::toQt(event.strProcedure), event.intLineNumber);
  }

  std::shared_ptr<Surroundings> surroundings_;
  std::unique_ptr<EditorControl> editor_;
  qt::HistoryActions history_;
};

ctlCycEd::ctlCycEd(QWidget* parent) : ctlCycEd(HostServices(), parent) {}

ctlCycEd::ctlCycEd(HostServices services, QWidget* parent)
    : QWidget(parent), implementation_(std::make_unique<Implementation>(*this, std::move(services))) {}

ctlCycEd::~ctlCycEd() = default;

void ctlCycEd::SetConfigXML(const QString& strConfigXml) {
  implementation_->editor().SetConfigXML(qt::fromQt(strConfigXml));
}

void ctlCycEd::SetXMLStrings(const QString& strLatestKam, const QString& strCycle) {
  if (!Implementation::settle(*this)) return;
  implementation_->editor().SetXMLStrings(qt::fromQt(strLatestKam), qt::fromQt(strCycle));
}

QString ctlCycEd::RetrieveCycle() {
  return Implementation::settle(*this) ? qt::toQt(implementation_->editor().RetrieveCycle()) : QString();
}

void ctlCycEd::setIgnore_Hidden(bool booNewValue) { implementation_->editor().Ignore_Hidden(booNewValue); }

bool ctlCycEd::CycleChanged() { return implementation_->editor().CycleChanged(); }

void ctlCycEd::setResetCycle(const QString& strCycle) { implementation_->editor().ResetCycle(qt::fromQt(strCycle)); }

QString ctlCycEd::MacroString() {
  return Implementation::settle(*this) ? qt::toQt(implementation_->editor().MacroString()) : QString();
}

bool ctlCycEd::HasAtomLines() const { return !implementation_->editor().cycle().lines.empty(); }

bool ctlCycEd::ParamValueControl(QString& message) {
  std::string text = qt::fromQt(message);
  if (!Implementation::settle(*this)) return false;
  const bool valid = implementation_->editor().ParamValueControl(text);
  message = qt::toQt(text);
  return valid;
}

QAction* ctlCycEd::undoAction() const { return implementation_->history().undoAction(); }

QAction* ctlCycEd::redoAction() const { return implementation_->history().redoAction(); }

void ctlCycEd::ShowHelp() { implementation_->help().show(qt::HelpPage::Contents); }

EditorControl& editorOf(ctlCycEd& control) { return control.implementation_->editor(); }

}  // namespace mavCycEd
