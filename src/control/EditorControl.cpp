#include "control/EditorControl.h"

#include <functional>
#include <optional>
#include <utility>

#include "catalogue/ConfigAtomListProvider.h"
#include "catalogue/modCycleHelper.h"
#include "control/ErrorReporter.h"
#include "control/HandBack.h"
#include "control/ScreenStart.h"
#include "control/modErr.h"
#include "control/modMsgBox.h"
#include "cycle/CycleWriter.h"
#include "panels/AtomSequenceEditing.h"
#include "panels/CycleLoader.h"
#include "panels/CycleVariables.h"
#include "panels/CycleView.h"
#include "panels/DescriptionEditing.h"
#include "panels/EditHistory.h"
#include "panels/ExtraValues.h"
#include "panels/MacroText.h"
#include "panels/OfferedValues.h"
#include "panels/ParamGrid.h"
#include "panels/ValueValidation.h"
#include "text/Utf8.h"

namespace mavCycEd {

/// It is shared by the control and by every procedure that runs, so that it lives until the last of them has ended.
class EditorControl::Implementation : public std::enable_shared_from_this<Implementation> {
 public:
  Implementation(const ControlScreen& screen, const PlatformServices& services, CycleEditorErrorHandler onError,
                 std::shared_ptr<AtomListProvider> provider, std::shared_ptr<void> owner)
      : owner_(std::move(owner)),
        screen_(screen),
        services_(services),
        modErr_(services.systemMessage),
        errors_(modErr_, std::move(onError)),
        catalogue_(services.xmlDocuments),
        provider_(provider ? std::move(provider) : std::make_shared<ConfigAtomListProvider>(catalogue_)) {}

  Implementation(const Implementation&) = delete;
  Implementation& operator=(const Implementation&) = delete;
  // A procedure that outlived the control may have shown its lines once more.
  ~Implementation() {
    guarded(errors_, "UserControl_Terminate", [this] { screen_.lstAtomSequence.clear(); });
  }

  void start() {
    guarded(errors_, "UserControl_Initialize", [this] {
      setUpScreen(screen_);
      connect();
    });
  }

  // The control is being destroyed: nothing more is told to anybody.
  void end() {
    ended_ = true;
    errors_.end();
    messages_.end();
    guarded(errors_, "UserControl_Terminate", [this] {
      disconnectScreen(screen_);
      variables_.end();
    });
  }

  /// Runs one of the control's entries: a member, or the answer to an event of the screen.
  template <typename Entry>
  auto run(const Entry& entry) {
    const auto self = this->shared_from_this();
    const Running running(*this);
    return entry();
  }

  bool isRunning() const { return running_ > 0; }

  void SetConfigXML(std::string strConfigXml) {
    guarded(errors_, "SetConfigXML", [&] { catalogue_.configuration().setText(std::move(strConfigXml)); });
  }

  void SetXMLStrings(std::string_view strLatestKam, std::string_view strCycle) {
    guarded(errors_, "SetXMLStrings", [&] {
      if (running_ > 1) {
        putOff_ = Texts{std::string(strLatestKam), std::string(strCycle)};
        return;
      }
      screen_.fraCyclePart.setCaption("Cycle");
      const std::shared_ptr<platform::XmlDocument> catalogue = parsed(strLatestKam);
      cycle_.working = readCycle(strCycle, services_.xmlDocuments);
      const bool isDocument = !cycle_.working.isEmpty;
      cycle_.reference.setLoaded(isDocument ? strCycle : std::string_view(), cycle_.working.facts);
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
      loadCycle(strCycle);
      if (selectFirstGridRow()) offeredValues_.Update_Popup_Menu();
    });
  }

  void Ignore_Hidden(bool booNewValue) {
    guarded(errors_, "Ignore_Hidden", [&] { provider_->setIgnoreHidden(booNewValue); });
  }

  bool CycleChanged() {
    const bool changed = handBack_.CycleChanged();
    // A procedure that is at work has not done with the cycle yet: the answer is good for this moment only.
    if (running_ > 1) cycle_.compared.reset();
    return changed;
  }
  std::string RetrieveCycle() { return handBack_.RetrieveCycle(); }

  void ResetCycle(std::string_view strCycle) {
    guarded(errors_, "ResetCycle", [&] { cycle_.working = readCycle(strCycle, services_.xmlDocuments); });
  }

  std::string MacroString() { return macroText_.MacroString(); }
  bool ParamValueControl(std::string& message) { return validation_.ParamValueControl(message); }

  bool Undo() { return running_ == 1 && history_.Undo(); }
  bool Redo() { return running_ == 1 && history_.Redo(); }
  bool Perform(CycleEdit edit, std::string_view stepName) {
    return running_ == 1 && history_.Perform(std::move(edit), stepName);
  }
  void setHistoryChanged(std::function<void()> historyChanged) { historyChanged_ = std::move(historyChanged); }

  const CycleState& cycle() const { return cycle_; }
  const GridState& grid() const { return grid_; }

 private:
  /// The texts of a SetXMLStrings that waits.
  struct Texts {
    std::string latestKam;
    std::string cycle;
  };

  /// Counts the entries that run, each inside the one before. When the outermost ends, what was put off is done.
  class Running {
   public:
    explicit Running(Implementation& control) : control_(control) { ++control_.running_; }
    ~Running() {
      if (control_.running_ == 1) control_.doWhatWasPutOff();
      if (--control_.running_ == 0) control_.tellHistory();
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

   private:
    Implementation& control_;
  };

  // A handler that asks for another cycle each time that one is loaded is given up.
  void doWhatWasPutOff() {
    constexpr int mostRounds = 16;
    for (int round = 0; round < mostRounds && !ended_; ++round) {
      const std::optional<Texts> texts = std::exchange(putOff_, std::nullopt);
      if (!texts) return;
      SetXMLStrings(texts->latestKam, texts->cycle);
    }
    putOff_.reset();
  }

  // Behind the procedure: who is told may ask for the next one.
  void tellHistory() noexcept {
    if (!view_.takeHistoryChanged() || ended_) return;
    guarded(errors_, "historyChanged", [this] {
      if (const auto historyChanged = historyChanged_) historyChanged();
    });
  }

  // The answer to an event by which the operator gives a command, or goes on elsewhere: it ends a stretch of typing.
  template <typename... Arguments, typename Procedure>
  std::function<void(Arguments...)> answer(Procedure procedure) {
    return answerWhileTyping<Arguments...>([this, procedure](Arguments... arguments) {
      cycle_.document.sealStretch();
      procedure(arguments...);
    });
  }

  // The answer to an event. Who tells of the event may hold a copy of the answer for longer than the control lives.
  template <typename... Arguments, typename Procedure>
  std::function<void(Arguments...)> answerWhileTyping(Procedure procedure) {
    return [control = weak_from_this(), procedure](Arguments... arguments) {
      const auto self = control.lock();
      if (self && !self->ended_) self->run([&] { procedure(arguments...); });
    };
  }

  // The screen's events go to the procedures that answer them.
  void connect() {
    screen_.txtCycleDescription.setEvents(
        {.Change = answerWhileTyping([this] { description_.txtCycleDescription_Change(); }),
         .LostFocus = answer([this] { description_.txtCycleDescription_LostFocus(); })});
    screen_.lstAtomSequence.setEvents({.Click = answer([this] { loader_.lstAtomSequence_Click(); }),
                                       .DblClick = answer([this] { loader_.lstAtomSequence_DblClick(); })});
    screen_.cmdInset.setEvents({.Click = answer([this] { sequenceEditing_.cmdInset_Click(); })});
    screen_.cmdReplace.setEvents({.Click = answer([this] { sequenceEditing_.cmdReplace_Click(); })});
    screen_.cmdDelete.setEvents({.Click = answer([this] { sequenceEditing_.cmdDelete_Click(); })});
    screen_.lstVariables.setEvents({.Click = {}, .DblClick = answer([this] { variables_.lstVariables_DblClick(); })});
    screen_.cmdIns.setEvents({.Click = answer([this] { variables_.cmdIns_Click(); })});
    screen_.cmdDel.setEvents({.Click = answer([this] { variables_.cmdDel_Click(); })});
    screen_.cboAtom.setEvents({.Click = answer([this] { sequenceEditing_.cboAtom_Click(); }), .LostFocus = {}});
    screen_.cmdDefault.setEvents({.Click = answer([this] { sequenceEditing_.cmdDefault_Click(); })});
    screen_.mnuSubParam.setEvents(
        {.Click = answer<int>([this](int index) { offeredValues_.mnuSubParam_Click(index); })});
    screen_.tmrUpdateGrid.setEvents({.Tick = answerWhileTyping([this] { tmrUpdateGrid_Timer(); })});
    screen_.tmrTypingPause.setEvents({.Tick = answer([this] { description_.tmrTypingPause_Timer(); })});
    connectGrid();
  }

  void connectGrid() {
    platform::ValueListEvents events;
    events.SelectionChange = answer([this] { offeredValues_.GrdAtom_OnSelectionChange(); });
    events.ContextPopup = answer<int, int>([this](int x, int y) { offeredValues_.GrdAtom_OnContextPopup(x, y); });
    events.MouseDown = answer<platform::MouseButton, int, int>(
        [this](platform::MouseButton button, int x, int y) { offeredValues_.GrdAtom_OnMouseDown(button, x, y); });
    events.MouseMove = answerWhileTyping<int, int>([this](int x, int y) { offeredValues_.GrdAtom_OnMouseMove(x, y); });
    events.SetEditText = answer<int, int, const std::string&>([this](int column, int row, const std::string& value) {
      validation_.GrdAtom_OnSetEditText(column, row, value);
    });
    events.EndOfEdit = answer<int, int, const std::string&, const std::string&>(
        [this](int, int row, const std::string&, const std::string& value) {
          validation_.GrdAtom_OnEndOfEdit(row, value);
        });
    screen_.GrdAtom.setEvents(std::move(events));
  }

  std::unique_ptr<platform::XmlDocument> parsed(std::string_view text) {
    std::unique_ptr<platform::XmlDocument> document = services_.xmlDocuments.createDocument();
    document->loadXML(text);
    return document;
  }

  // Nothing of the cycle before stays: no line, variable, description or grid row.
  void startNewCycle() {
    grid_.ready = false;
    paramGrid_.UpdateControls(cycle_.document);
    grid_.ready = true;
    cycle_.replaced();
  }

  void fillAtomPicker() {
    screen_.cboAtom.assign(catalogue_.atomNames());
    for (const std::string& name : provider_->furtherAtomNames()) {
      if (!name.empty()) screen_.cboAtom.addItem(name);
    }
  }

  void loadCycle(std::string_view strCycle) {
    constexpr std::size_t tooShortForMacro = 3;
    if (!cycle_.working.isEmpty) {
      loader_.FillCycle();
      cycle_.replaced();
    } else if (text::hasMoreCharactersThan(strCycle, tooShortForMacro) && macroText_.IsAnMacro(strCycle)) {
      const ExtraValues::Hold hold(extraValues_);  // each line fills the grid anew
      macroText_.FillMacro(strCycle);
    }
  }

  // False when the grid has no parameter row.
  bool selectFirstGridRow() {
    if (screen_.GrdAtom.RowCount() <= firstParameterRow) return false;
    screen_.GrdAtom.setRow(firstParameterRow);
    grid_.currentRow = firstParameterRow;
    return true;
  }

  void tmrUpdateGrid_Timer() {
    guarded(errors_, "tmrUpdateGrid_Timer", [this] {
      screen_.tmrUpdateGrid.setEnabled(false);
      if (selectFirstGridRow() && !screen_.GrdAtom.cellText(1, firstParameterRow).empty()) {
        offeredValues_.Update_Popup_Menu();
      }
    });
  }

  static constexpr int firstParameterRow = 1;

  std::shared_ptr<void> owner_;  // goes last
  ControlScreen screen_;
  PlatformServices services_;
  int running_ = 0;
  bool ended_ = false;
  std::optional<Texts> putOff_;
  std::function<void()> historyChanged_;
  modErr modErr_;
  ErrorReporter errors_;
  modCycleHelper catalogue_;
  std::shared_ptr<AtomListProvider> provider_;
  CycleState cycle_;
  GridState grid_;

  modMsgBox messages_{services_.messageBox, services_.systemMessage, modErr_};
  CycleScreen cycleScreen_{screen_.txtCycleDescription, screen_.lstVariables, screen_.lstAtomSequence};
  ParamGrid paramGrid_{screen_.GrdAtom, grid_, catalogue_, *provider_, errors_};
  ValueValidation validation_{screen_.GrdAtom, grid_, catalogue_, messages_, errors_};
  OfferedValues offeredValues_{screen_.GrdAtom, screen_.mnuSubParam, grid_, catalogue_, errors_};
  ExtraValues extraValues_{screen_.GrdAtom, grid_, cycle_.cycle(), errors_};
  CycleView view_{cycle_, cycleScreen_, extraValues_, errors_};
  CycleWriter writer_{cycle_.cycle(), cycle_.reference, services_.xmlDocuments, services_.clock, errors_};
  HandBack handBack_{cycle_, writer_, services_.xmlDocuments, services_.codePage, errors_};
  CycleLoader loader_{cycle_, cycleScreen_, screen_.cboAtom, screen_.GrdAtom, errors_};
  DescriptionEditing description_{cycle_, cycleScreen_, view_, screen_.tmrTypingPause, errors_};
  AtomSequenceEditing sequenceEditing_{cycle_,
                                       {cycleScreen_, screen_.cboAtom, screen_.GrdAtom, screen_.tmrUpdateGrid},
                                       view_,
                                       {grid_, paramGrid_, extraValues_, validation_},
                                       errors_};
  MacroText macroText_{cycle_, view_, screen_.cboAtom, screen_.GrdAtom, [this] { sequenceEditing_.cmdInset_Click(); },
                       errors_};
  CycleVariables variables_{cycle_,
                            {cycleScreen_, screen_.cboAtom, screen_.variableDialogs, catalogue_, *provider_, messages_},
                            view_,
                            extraValues_,
                            [this] { sequenceEditing_.cboAtom_Click(); },
                            errors_};
  EditHistory history_{cycle_, cycleScreen_, grid_, view_, errors_};
};

EditorControl::EditorControl(const ControlScreen& screen, const PlatformServices& services,
                             CycleEditorErrorHandler onError, std::shared_ptr<AtomListProvider> provider,
                             std::shared_ptr<void> owner)
    : implementation_(std::make_shared<Implementation>(screen, services, std::move(onError), std::move(provider),
                                                       std::move(owner))) {
  implementation_->start();
}

EditorControl::~EditorControl() { implementation_->end(); }

void EditorControl::SetConfigXML(std::string strConfigXml) {
  implementation_->run([&, self = implementation_.get()] { self->SetConfigXML(std::move(strConfigXml)); });
}
void EditorControl::SetXMLStrings(std::string_view strLatestKam, std::string_view strCycle) {
  implementation_->run([&, self = implementation_.get()] { self->SetXMLStrings(strLatestKam, strCycle); });
}
void EditorControl::Ignore_Hidden(bool booNewValue) {
  implementation_->run([&, self = implementation_.get()] { self->Ignore_Hidden(booNewValue); });
}
bool EditorControl::CycleChanged() {
  return implementation_->run([self = implementation_.get()] { return self->CycleChanged(); });
}
std::string EditorControl::RetrieveCycle() {
  return implementation_->run([self = implementation_.get()] { return self->RetrieveCycle(); });
}
void EditorControl::ResetCycle(std::string_view strCycle) {
  implementation_->run([&, self = implementation_.get()] { self->ResetCycle(strCycle); });
}
std::string EditorControl::MacroString() {
  return implementation_->run([self = implementation_.get()] { return self->MacroString(); });
}
bool EditorControl::ParamValueControl(std::string& message) {
  return implementation_->run([&, self = implementation_.get()] { return self->ParamValueControl(message); });
}

bool EditorControl::Undo() {
  return implementation_->run([self = implementation_.get()] { return self->Undo(); });
}
bool EditorControl::Redo() {
  return implementation_->run([self = implementation_.get()] { return self->Redo(); });
}
std::optional<std::string> EditorControl::undoText() const { return implementation_->cycle().document.undoName(); }
std::optional<std::string> EditorControl::redoText() const { return implementation_->cycle().document.redoName(); }
void EditorControl::setHistoryChanged(std::function<void()> historyChanged) {
  implementation_->setHistoryChanged(std::move(historyChanged));
}

const Cycle& EditorControl::cycle() const { return implementation_->cycle().cycle(); }
bool EditorControl::Perform(CycleEdit edit, std::string_view stepName) {
  return implementation_->run([&, self = implementation_.get()] { return self->Perform(std::move(edit), stepName); });
}
cAtoms EditorControl::atoms() const {
  cAtoms atoms;
  const Cycle& cycle = this->cycle();
  for (std::size_t i = 0; i < cycle.lines.size(); ++i) {
    const AtomLine& line = cycle.lines[i];
    const LinePlace place = i < cycle.places.size() ? cycle.places[i] : LinePlace();
    atoms.Add(line.name, place.duration, place.groupIndex, line.parameters.text());
  }
  return atoms;
}
const ParamRowTable& EditorControl::parameterRows() const { return implementation_->grid().rows; }
bool EditorControl::changedFlag() const { return implementation_->cycle().changed; }
bool EditorControl::gridReady() const { return implementation_->grid().ready; }
int EditorControl::currentGridRow() const { return implementation_->grid().currentRow; }
bool EditorControl::isRunning() const { return implementation_->isRunning(); }

}  // namespace mavCycEd
