#include "control/EditorControl.h"

#include <utility>

#include "catalogue/ConfigAtomListProvider.h"
#include "catalogue/modCycleHelper.h"
#include "control/ErrorReporter.h"
#include "control/HandBack.h"
#include "control/ScreenStart.h"
#include "control/modErr.h"
#include "cycle/CycleLoader.h"
#include "cycle/CycleWriter.h"
#include "editing/AtomSequenceEditing.h"
#include "paramgrid/ParamGrid.h"

namespace mavCycEd {

class EditorControl::Implementation {
 public:
  Implementation(const ControlScreen& screen, const PlatformServices& services, CycleEditorErrorHandler onError,
                 std::shared_ptr<AtomListProvider> provider)
      : screen_(screen),
        services_(services),
        modErr_(services.systemMessage),
        errors_(modErr_, std::move(onError)),
        catalogue_(services.xmlDocuments),
        provider_(provider ? std::move(provider) : std::make_shared<ConfigAtomListProvider>(catalogue_)) {
    guarded(errors_, "UserControl_Initialize", [this] { start(); });
  }

  ~Implementation() { disconnectScreen(screen_); }
  Implementation(const Implementation&) = delete;
  Implementation& operator=(const Implementation&) = delete;

  void SetConfigXML(std::string strConfigXml) {
    guarded(errors_, "SetConfigXML", [&] { catalogue_.configuration().setText(std::move(strConfigXml)); });
  }

  void SetXMLStrings(std::string_view strLatestKam, std::string_view strCycle) {
    guarded(errors_, "SetXMLStrings", [&] {
      screen_.fraCyclePart.setCaption("Cycle");
      const std::shared_ptr<platform::XmlDocument> catalogue = parsed(strLatestKam);
      cycle_.working = parsed(strCycle);
      if (!cycle_.reference) cycle_.reference = services_.xmlDocuments.createDocument();
      cycle_.reference->loadXML(strCycle);
      startNewCycle();
      catalogue_.setCatalogue(catalogue);
      screen_.cboAtom.clear();
      const bool usable = catalogue->childNodes().length() > 0;
      screen_.fraSelectedMacro.setEnabled(usable);
      screen_.fraCyclePart.setEnabled(usable);
      if (!usable) {
        throw RunTimeError(mavCycEdErrorInvalidXML, "The 'latest_kam.xml' is empty or doesn't exist!");
      }
      fillAtomPicker();
      loadCycle();
      selectFirstGridRow();
    });
  }

  void Ignore_Hidden(bool booNewValue) {
    guarded(errors_, "Ignore_Hidden", [&] { provider_->setIgnoreHidden(booNewValue); });
  }

  bool CycleChanged() { return handBack_.CycleChanged(); }
  std::string RetrieveCycle() { return handBack_.RetrieveCycle(); }

  void ResetCycle(std::string_view strCycle) {
    guarded(errors_, "ResetCycle", [&] { cycle_.working = parsed(strCycle); });
  }

  const CycleState& cycle() const { return cycle_; }
  const GridState& grid() const { return grid_; }

 private:
  void start() {
    cycle_.reference = services_.xmlDocuments.createDocument();
    setUpScreen(screen_);
    connect();
  }

  // The screen's events go to the procedures that answer them.
  void connect() {
    screen_.txtCycleDescription.setEvents({.Change = [this] { txtCycleDescription_Change(); }});
    screen_.lstAtomSequence.setEvents({.Click = [this] { loader_.lstAtomSequence_Click(); },
                                       .DblClick = [this] { loader_.lstAtomSequence_DblClick(); }});
    screen_.cmdInset.setEvents({.Click = [this] { sequenceEditing_.cmdInset_Click(); }});
    screen_.cmdReplace.setEvents({.Click = [this] { sequenceEditing_.cmdReplace_Click(); }});
    screen_.cmdDelete.setEvents({.Click = [this] { sequenceEditing_.cmdDelete_Click(); }});
    screen_.cboAtom.setEvents({.Click = [this] { sequenceEditing_.cboAtom_Click(); }, .LostFocus = {}});
    screen_.cmdDefault.setEvents({.Click = [this] { sequenceEditing_.cmdDefault_Click(); }});
    screen_.tmrUpdateGrid.setEvents({.Tick = [this] { tmrUpdateGrid_Timer(); }});
  }

  std::unique_ptr<platform::XmlDocument> parsed(std::string_view text) {
    std::unique_ptr<platform::XmlDocument> document = services_.xmlDocuments.createDocument();
    document->loadXML(text);
    return document;
  }

  // Nothing of the cycle before stays: no line, variable, description or grid row.
  void startNewCycle() {
    cycle_.atoms.Clear();
    cycle_.displayIndent = 1;
    cycle_.changed = false;
    grid_.ready = false;
    paramGrid_.UpdateControls(screen_.lstVariables, screen_.lstAtomSequence, screen_.txtCycleDescription);
    grid_.ready = true;
  }

  void fillAtomPicker() {
    std::vector<std::string> names = catalogue_.atomNames();
    for (std::string& name : provider_->furtherAtomNames()) {
      if (!name.empty()) names.push_back(std::move(name));
    }
    screen_.cboAtom.assign(std::move(names));
  }

  void loadCycle() {
    if (cycle_.working->childNodes().length() == 0) return;
    loader_.FillCycle();
    cycle_.changed = false;
  }

  void selectFirstGridRow() {
    constexpr int firstParameterRow = 1;
    if (screen_.GrdAtom.RowCount() <= firstParameterRow) return;
    screen_.GrdAtom.setRow(firstParameterRow);
    grid_.currentRow = firstParameterRow;
  }

  void txtCycleDescription_Change() {
    guarded(errors_, "txtCycleDescription_Change", [this] { cycle_.changed = true; });
  }

  void tmrUpdateGrid_Timer() {
    guarded(errors_, "tmrUpdateGrid_Timer", [this] {
      screen_.tmrUpdateGrid.setEnabled(false);
      selectFirstGridRow();
    });
  }

  ControlScreen screen_;
  PlatformServices services_;
  modErr modErr_;
  ErrorReporter errors_;
  modCycleHelper catalogue_;
  std::shared_ptr<AtomListProvider> provider_;
  CycleState cycle_;
  GridState grid_;

  CycleScreen cycleScreen_{screen_.txtCycleDescription, screen_.lstVariables, screen_.lstAtomSequence};
  ParamGrid paramGrid_{screen_.GrdAtom, grid_, catalogue_, *provider_, errors_};
  CycleWriter writer_{cycle_, cycleScreen_, services_.xmlDocuments, services_.clock, errors_};
  CycleLoader loader_{cycle_, cycleScreen_, screen_.cboAtom, screen_.GrdAtom, errors_};
  HandBack handBack_{cycle_, writer_, services_.codePage, errors_};
  AtomSequenceEditing sequenceEditing_{
      cycle_,
      grid_,
      {screen_.lstAtomSequence, screen_.cboAtom, screen_.GrdAtom, screen_.tmrUpdateGrid},
      paramGrid_,
      errors_};
};

EditorControl::EditorControl(const ControlScreen& screen, const PlatformServices& services,
                             CycleEditorErrorHandler onError, std::shared_ptr<AtomListProvider> provider)
    : implementation_(std::make_unique<Implementation>(screen, services, std::move(onError), std::move(provider))) {}

EditorControl::~EditorControl() = default;

void EditorControl::SetConfigXML(std::string strConfigXml) { implementation_->SetConfigXML(std::move(strConfigXml)); }
void EditorControl::SetXMLStrings(std::string_view strLatestKam, std::string_view strCycle) {
  implementation_->SetXMLStrings(strLatestKam, strCycle);
}
void EditorControl::Ignore_Hidden(bool booNewValue) { implementation_->Ignore_Hidden(booNewValue); }
bool EditorControl::CycleChanged() { return implementation_->CycleChanged(); }
std::string EditorControl::RetrieveCycle() { return implementation_->RetrieveCycle(); }
void EditorControl::ResetCycle(std::string_view strCycle) { implementation_->ResetCycle(strCycle); }

const cAtoms& EditorControl::atoms() const { return implementation_->cycle().atoms; }
const ParamRowTable& EditorControl::parameterRows() const { return implementation_->grid().rows; }
bool EditorControl::changedFlag() const { return implementation_->cycle().changed; }
bool EditorControl::gridReady() const { return implementation_->grid().ready; }
int EditorControl::currentGridRow() const { return implementation_->grid().currentRow; }

}  // namespace mavCycEd
