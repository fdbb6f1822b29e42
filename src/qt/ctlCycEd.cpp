#include "qt/include/mavCycEd/ctlCycEd.h"

#include <string>
#include <utility>

#include "control/EditorControl.h"
#include "libxml2/Libxml2DocumentFactory.h"
#include "qt/EditorAccess.h"
#include "qt/EditorScreen.h"
#include "qt/QtClock.h"
#include "qt/QtMessageBox.h"
#include "qt/QtSystemMessage.h"
#include "qt/Text.h"
#include "qt/Utf8CodePage.h"

namespace mavCycEd {

static_assert(static_cast<int>(ctlCycEd::mavCycEdErrorInvalidXML) == static_cast<int>(mavCycEdErrorInvalidXML));

class ctlCycEd::Implementation {
 public:
  Implementation(ctlCycEd& control, HostServices services)
      : services_(completed(control, std::move(services))),
        screen_(control, services_.gridTimer),
        editor_(
            screen_.controls(), {xmlDocuments_, *services_.messageBox, systemMessage_, codePage_, *services_.clock},
            [&control](const CycleEditorErrorEvent& event) { tellError(control, event); }, services_.provider) {}

  EditorControl& editor() { return editor_; }

  /// The editor for a call of the host's that replaces or takes the cycle: a value that is being typed is finished
  /// first, which may show a message. Settings leave the user alone.
  EditorControl& settledEditor() {
    screen_.gate().pass();
    return editor_;
  }

 private:
  static HostServices completed(ctlCycEd& control, HostServices services) {
    if (!services.messageBox) services.messageBox = std::make_shared<qt::QtMessageBox>(&control);
    if (!services.clock) services.clock = std::make_shared<qt::QtClock>();
    return services;
  }

  static void tellError(ctlCycEd& control, const CycleEditorErrorEvent& event) {
    emit control.CycleEditorError(event.lngError, qt::toQt(event.strError), qt::toQt(event.strApplication),
                                  qt::toQt(event.strModule), qt::toQt(event.strProcedure), event.intLineNumber);
  }

  HostServices services_;
  libxml2::Libxml2DocumentFactory xmlDocuments_;
  qt::QtSystemMessage systemMessage_;
  qt::Utf8CodePage codePage_;
  qt::EditorScreen screen_;
  EditorControl editor_;
};

ctlCycEd::ctlCycEd(QWidget* parent) : ctlCycEd(HostServices(), parent) {}

ctlCycEd::ctlCycEd(HostServices services, QWidget* parent)
    : QWidget(parent), implementation_(std::make_unique<Implementation>(*this, std::move(services))) {}

ctlCycEd::~ctlCycEd() = default;

void ctlCycEd::SetConfigXML(const QString& strConfigXml) {
  implementation_->editor().SetConfigXML(qt::fromQt(strConfigXml));
}

void ctlCycEd::SetXMLStrings(const QString& strLatestKam, const QString& strCycle) {
  implementation_->settledEditor().SetXMLStrings(qt::fromQt(strLatestKam), qt::fromQt(strCycle));
}

QString ctlCycEd::RetrieveCycle() { return qt::toQt(implementation_->settledEditor().RetrieveCycle()); }

void ctlCycEd::setIgnore_Hidden(bool booNewValue) { implementation_->editor().Ignore_Hidden(booNewValue); }

bool ctlCycEd::CycleChanged() { return implementation_->editor().CycleChanged(); }

void ctlCycEd::setResetCycle(const QString& strCycle) { implementation_->editor().ResetCycle(qt::fromQt(strCycle)); }

QString ctlCycEd::MacroString() { return qt::toQt(implementation_->settledEditor().MacroString()); }

bool ctlCycEd::ParamValueControl(QString& message) {
  std::string text = qt::fromQt(message);
  const bool valid = implementation_->settledEditor().ParamValueControl(text);
  message = qt::toQt(text);
  return valid;
}

EditorControl& editorOf(ctlCycEd& control) { return control.implementation_->editor(); }

}  // namespace mavCycEd
