#pragma once

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "ScreenParts.h"
#include "TestDocuments.h"
#include "TestPlatform.h"
#include "catalogue/AtomListProvider.h"
#include "control/EditorControl.h"
#include "memory/HeadlessEditor.h"

/// A host that makes mistakes, with services that it can make fail at will.
namespace mavCycEd::test {

/// Does what it was told to do, time and again; nothing at first.
using Mischief = std::function<void()>;

inline void doIfAny(const Mischief& mischief) {
  if (const Mischief copy = mischief) copy();
}

/// A provider whose every answer can be spoilt.
class SpoiltProvider : public AtomListProvider {
 public:
  void setIgnoreHidden(bool) override { doIfAny(atIgnoreHidden); }
  std::vector<std::string> furtherAtomNames() override {
    doIfAny(atAtomNames);
    return {"FURTHER"};
  }
  UnitOfMeasure lookUpUnit(std::string_view unitName) override {
    const std::string name(unitName);
    doIfAny(atUnit);
    return {name, 1};
  }
  bool isObjectHidden(const platform::XmlNode&) override {
    doIfAny(atObject);
    return false;
  }
  std::string furtherParameters(std::string_view) override {
    doIfAny(atParameters);
    return "Extra;1;9;9;1;s";
  }

  Mischief atIgnoreHidden, atAtomNames, atUnit, atObject, atParameters;
};

class SpoiltMessages : public platform::MessageBox {
 public:
  int messageBox(platform::WindowHandle, std::string_view message, std::string_view, int) override {
    messages.emplace_back(message);
    doIfAny(atMessage);
    return platform::OkButton;
  }
  std::vector<std::string> messages;
  Mischief atMessage;
};

class SpoiltClock : public platform::Clock {
 public:
  std::string localTimestamp() const override {
    doIfAny(atTime);
    return "2024-03-09T14:05:00";
  }
  Mischief atTime;
};

class SpoiltCodePage : public platform::CodePage {
 public:
  std::string fromUtf8(std::string_view text) const override {
    doIfAny(atText);
    return std::string(text);
  }
  Mischief atText;
};

class SpoiltSystem : public platform::SystemMessage {
 public:
  std::string formatMessage(std::int32_t) const override {
    doIfAny(atQuestion);
    return {};
  }
  std::int32_t lastErrorCode() const override {
    doIfAny(atQuestion);
    return 0;
  }
  Mischief atQuestion;
};

class SpoiltDocuments : public platform::XmlDocumentFactory {
 public:
  std::unique_ptr<platform::XmlDocument> createDocument() override {
    doIfAny(atDocument);
    return documents_.createDocument();
  }
  bool readDocument(std::string_view text, platform::XmlContent& content) override {
    doIfAny(atDocument);
    return documents_.readDocument(text, content);
  }
  std::optional<platform::XmlFault> faultIn(std::string_view text) override { return documents_.faultIn(text); }
  Mischief atDocument;

 private:
  libxml2::Libxml2DocumentFactory documents_;
};

/// A screen whose grid and timer can be spoilt.
class SpoiltGrid : public memory::MemoryValueList {
 public:
  using MemoryValueList::MemoryValueList;
  int Row() const override {
    doIfAny(atRow);
    return MemoryValueList::Row();
  }
  void setValue(int column, int row, std::string_view text) override {
    doIfAny(atValue);
    MemoryValueList::setValue(column, row, text);
  }
  Mischief atRow, atValue;
};

class SpoiltTimer : public memory::MemoryTimer {
 public:
  void setEnabled(bool enabled) override {
    doIfAny(atSetting);
    MemoryTimer::setEnabled(enabled);
  }
  Mischief atSetting;
};

struct SpoiltScreen : memory::MemoryScreen {
  SpoiltGrid spoiltGrid{&fraSelectedMacro};
  SpoiltTimer spoiltTimer;

  ControlScreen spoiltControls() {
    const ControlScreen made = controls();
    return test::withParts(made, {made.lstVariables, spoiltGrid, spoiltTimer});
  }
};

/// The host. Its control and the screen can be destroyed at any time; its services stay.
class MistakenHost {
 public:
  MistakenHost() : screen_(std::make_shared<SpoiltScreen>()) {
    control_ = std::make_unique<EditorControl>(
        screen_->spoiltControls(), PlatformServices{documents, messages, system, codePage, clock},
        [this](const CycleEditorErrorEvent& event) {
          errors.push_back(event);
          doIfAny(atError);
        },
        provider, screen_);
  }

  /// A catalogue of one atom "MIX" with a number and an object, and a cycle with two lines of it and one variable.
  static std::string catalogue() {
    Catalogue catalogue;
    catalogue.atoms = {{"MIX", {"Volume;1;9;9;1;ml", "Place;TRAY;None"}}, {"WAIT", {}}};
    catalogue.classes = "<CLASS><CLASSName>TRAY</CLASSName></CLASS>";
    catalogue.objects = "<O><C>TRAY</C><N>Tray1</N></O>";
    return xmlOf(catalogue);
  }
  static std::string cycle() {
    CycleOf cycle;
    cycle.variables = {"Vol (ml);1;0;9"};
    cycle.lines = {{"MIX", {{"Volume", "5"}, {"Place", "Vol"}}}, {"MIX", {{"Volume", "6"}, {"Place", "Tray1"}}}};
    return xmlOf(cycle);
  }
  void load() { control().SetXMLStrings(catalogue(), cycle()); }

  EditorControl& control() { return *control_; }
  SpoiltScreen& screen() { return *screen_; }
  bool hasControl() const { return control_ != nullptr; }
  /// As a host deletes the control: the screen goes with it.
  void destroy() {
    control_.reset();
    screen_.reset();
  }
  /// Whether a screen is still there. Somebody else may keep it for a while.
  std::weak_ptr<SpoiltScreen> watchedScreen() const { return screen_; }

  /// Everything that a host may call, once each, except SetXMLStrings.
  void callEveryOtherMember() {
    control().SetConfigXML("<Config/>");
    control().Ignore_Hidden(true);
    control().CycleChanged();
    control().RetrieveCycle();
    control().ResetCycle("<CYCLE/>");
    control().MacroString();
    std::string message;
    control().ParamValueControl(message);
    control().atoms();
    control().parameterRows();
    control().changedFlag();
    control().gridReady();
    control().currentGridRow();
  }

  /// The procedures that reported an error, in order.
  std::vector<std::string> failedProcedures() const {
    std::vector<std::string> names;
    for (const CycleEditorErrorEvent& event : errors) names.push_back(event.strProcedure);
    return names;
  }

  SpoiltDocuments documents;
  SpoiltMessages messages;
  SpoiltSystem system;
  SpoiltCodePage codePage;
  SpoiltClock clock;
  std::shared_ptr<SpoiltProvider> provider = std::make_shared<SpoiltProvider>();
  std::vector<CycleEditorErrorEvent> errors;
  Mischief atError;

 private:
  std::shared_ptr<SpoiltScreen> screen_;
  std::unique_ptr<EditorControl> control_;
};

inline void fail() { throw std::runtime_error("spoilt"); }

}  // namespace mavCycEd::test
