#include "win32/EditorScreen.h"

#include <array>
#include <utility>

#include "kit/FirstRowTimer.h"
#include "win32/Dpi.h"
#include "win32/Layout.h"

namespace mavCycEd::win32 {
namespace {

std::shared_ptr<platform::Timer> timerOr(std::shared_ptr<platform::Timer> timer, Win32ValueList& grid) {
  if (timer) return timer;
  return std::make_shared<kit::FirstRowTimer>(std::make_unique<Win32Timer>(), grid.list());
}

}  // namespace

EditorControls::EditorControls(HWND panel, const kit::CommandGate& gate, std::shared_ptr<platform::Timer> gridTimer,
                               std::shared_ptr<platform::Timer> typingTimer)
    : fraSelectedMacro(panel, nullptr),
      fraCyclePart(panel, nullptr),
      fraDescription(panel, &fraCyclePart),
      fraAtom(panel, &fraCyclePart),
      fraVariables(panel, &fraCyclePart),
      cboAtom(gate, Win32ComboBox::Mode::PickOnly, panel, &fraSelectedMacro),
      GrdAtom(panel, &fraSelectedMacro),
      cmdInset(gate, panel, &fraAtom),
      cmdReplace(gate, panel, &fraAtom),
      lstAtomSequence(gate, panel, &fraAtom),
      cmdDelete(gate, panel, &fraAtom),
      cmdDefault(gate, panel, &fraSelectedMacro),
      txtCycleDescription(Win32TextBox::Lines::Several, panel, &fraDescription),
      lstVariables(gate, panel, &fraVariables),
      cmdIns(gate, panel, &fraVariables),
      cmdDel(gate, panel, &fraVariables),
      mnuSubParam(gate, [this] { return GrdAtom.view().handle(); }),
      tmrUpdateGrid(timerOr(std::move(gridTimer), GrdAtom)),
      tmrTypingPause(typingTimer ? std::move(typingTimer) : std::make_shared<Win32Timer>()) {}

EditorScreen::EditorScreen(HWND parent, std::shared_ptr<platform::Timer> gridTimer,
                           std::shared_ptr<platform::Timer> typingTimer)
    : parking_(nullptr, WS_POPUP, 0),
      panel_(parent != nullptr ? parent : parking_.handle(), WS_CHILD | WS_CLIPSIBLINGS, 0),
      controls_(panel_.handle(), gate_, std::move(gridTimer), std::move(typingTimer)),
      variableDialogs_([this] { return window(); }) {
  gate_.setEndEdit([this] { controls_.GrdAtom.endEdit(); });
  controls_.mnuSubParam.setPlace([this] { return controls_.GrdAtom.view().menuPlace(); });
  panel_.setLayOut([this] { layOut(); });
  panel_.setScalingChanged([this] { fit(); });
  connectKeys();
  nameForPeople();
  fit();
  themed_.reset();
}

EditorScreen::~EditorScreen() {
  panel_.setLayOut({});
  panel_.setScalingChanged({});
}

void EditorScreen::setParent(HWND parent) {
  if (window() == nullptr) return;
  SetParent(window(), parent != nullptr ? parent : parking_.handle());
  fit();
}

void EditorScreen::destroyWindow() {
  if (window() != nullptr) DestroyWindow(window());
}

void EditorScreen::setFont(const platform::Font& font) {
  hostFont_ = font;
  fit();
}

ControlScreen EditorScreen::controls() {
  EditorControls& c = controls_;
  return {.fraCyclePart = c.fraCyclePart,
          .fraDescription = c.fraDescription,
          .txtCycleDescription = c.txtCycleDescription,
          .fraAtom = c.fraAtom,
          .lstAtomSequence = c.lstAtomSequence,
          .cmdInset = c.cmdInset,
          .cmdReplace = c.cmdReplace,
          .cmdDelete = c.cmdDelete,
          .fraVariables = c.fraVariables,
          .lstVariables = c.lstVariables,
          .cmdIns = c.cmdIns,
          .cmdDel = c.cmdDel,
          .fraSelectedMacro = c.fraSelectedMacro,
          .cboAtom = c.cboAtom,
          .GrdAtom = c.GrdAtom,
          .cmdDefault = c.cmdDefault,
          .mnuSubParam = c.mnuSubParam,
          .tmrUpdateGrid = *c.tmrUpdateGrid,
          .tmrTypingPause = *c.tmrTypingPause,
          .variableDialogs = variableDialogs_};
}

// The font at the window's scaling, then everything in its place.
void EditorScreen::fit() {
  if (window() == nullptr) return;
  const int dpi = dpiOf(window());
  font_ = makeFont(hostFont_ ? asDescription(*hostFont_, dpi) : systemFont(dpi));
  EditorControls& c = controls_;
  const std::array<NativeWindow*, 17> windows{
      &c.fraSelectedMacro, &c.fraCyclePart,        &c.fraDescription, &c.fraAtom,    &c.fraVariables,    &c.cboAtom,
      &c.GrdAtom.label(),  &c.GrdAtom.view(),      &c.cmdInset,       &c.cmdReplace, &c.lstAtomSequence, &c.cmdDelete,
      &c.cmdDefault,       &c.txtCycleDescription, &c.lstVariables,   &c.cmdIns,     &c.cmdDel};
  for (NativeWindow* const window : windows) window->setScreenFont(font_, dpi);
  layOut();
}

void EditorScreen::layOut() {
  RECT place{};
  GetClientRect(window(), &place);
  const Spaces spaces(window(), font_.get());
  InflateRect(&place, -spaces.gap, -spaces.gap / 2);
  const LONG width = (place.right - place.left - spaces.gap) * 4 / 9;
  layOutSelectedMacro(cutLeft(place, width, spaces.gap));
  layOutCycle(place);
  InvalidateRect(window(), nullptr, TRUE);
}

void EditorScreen::layOutSelectedMacro(const RECT& place) {
  const Spaces spaces(window(), font_.get());
  EditorControls& c = controls_;
  c.fraSelectedMacro.place(place);
  RECT inside = spaces.inside(place);
  RECT atom = cutTop(inside, c.cboAtom.neededHeight(), spaces.gap);
  constexpr int droppedLines = 20;
  atom.bottom += droppedLines * spaces.lineHeight;  // a combo box is as high as its open list
  c.cboAtom.place(atom);
  RECT buttons = cutBottom(inside, spaces.buttonHeight, spaces.gap);
  c.cmdDefault.place(cutRight(buttons, c.cmdDefault.neededWidth(), spaces.gap));
  c.GrdAtom.label().place(cutTop(inside, spaces.lineHeight - spaces.gap, 0));
  c.GrdAtom.view().place(inside);
}

void EditorScreen::layOutCycle(const RECT& place) {
  const Spaces spaces(window(), font_.get());
  EditorControls& c = controls_;
  c.fraCyclePart.place(place);
  RECT rest = spaces.inside(place);
  const LONG height = rest.bottom - rest.top - 2 * spaces.gap;
  const int button = widestOf({&c.cmdInset, &c.cmdReplace, &c.cmdDelete, &c.cmdIns, &c.cmdDel});
  const RECT description = cutTop(rest, height * 2 / 9, spaces.gap);
  c.fraDescription.place(description);
  c.txtCycleDescription.place(spaces.inside(description));
  const RECT variables = cutBottom(rest, height * 3 / 10, spaces.gap);
  c.fraVariables.place(variables);
  placeListWithButtons(c.lstVariables, {&c.cmdIns, &c.cmdDel}, button, spaces.inside(variables), spaces);
  c.fraAtom.place(rest);
  placeListWithButtons(c.lstAtomSequence, {&c.cmdInset, &c.cmdReplace, &c.cmdDelete}, button, spaces.inside(rest),
                       spaces);
}

// What the mouse does by clicks and double clicks has its keys, each good only in its own list.
void EditorScreen::connectKeys() {
  const auto press = [](Win32Button& button) { return [&button] { SendMessageW(button.handle(), BM_CLICK, 0, 0); }; };
  controls_.lstAtomSequence.setKeys(press(controls_.cmdDelete), [this] { controls_.GrdAtom.view().editCurrentRow(); });
  controls_.lstVariables.setKeys(press(controls_.cmdDel), [this] { controls_.lstVariables.doubleClick(); });
}

void EditorScreen::nameForPeople() {
  controls_.cboAtom.setAccessibleName(L"Atom");
  controls_.GrdAtom.view().setAccessibleName(L"Atom parameters");
  controls_.cmdDefault.setAccessibleName(L"Default parameters");
  controls_.txtCycleDescription.setAccessibleName(L"Cycle description");
  controls_.lstAtomSequence.setAccessibleName(L"Atom sequence");
  controls_.cmdInset.setAccessibleName(L"Insert atom");
  controls_.cmdReplace.setAccessibleName(L"Replace atom");
  controls_.cmdDelete.setAccessibleName(L"Delete atom");
  controls_.lstVariables.setAccessibleName(L"Cycle variables");
  controls_.cmdIns.setAccessibleName(L"Insert variable");
  controls_.cmdDel.setAccessibleName(L"Delete variable");
}

void EditorScreen::setHelp(const std::function<void(HWND, HelpPage)>& help) {
  panel_.setHelp([this, help](HWND over) { help(over, helpPage()); });
  variableDialogs_.setHelp([help](HWND over) { help(over, HelpPage::Variables); });
}

// The page of the part that has the keyboard.
HelpPage EditorScreen::helpPage() {
  const HWND focus = GetFocus();
  const auto isIn = [focus](HWND window) { return focus == window || IsChild(window, focus) != FALSE; };
  if (isIn(controls_.GrdAtom.view().handle())) return HelpPage::Values;
  const bool isVariables =
      isIn(controls_.lstVariables.handle()) || isIn(controls_.cmdIns.handle()) || isIn(controls_.cmdDel.handle());
  return isVariables ? HelpPage::Variables : HelpPage::Screen;
}

bool EditorScreen::translate(MSG& message) const {
  return window() != nullptr && IsDialogMessageW(window(), &message) != FALSE;
}

void EditorScreen::focusFirst() {
  if (window() != nullptr) SetFocus(GetNextDlgTabItem(window(), nullptr, FALSE));
}

void EditorScreen::focusLast() {
  if (window() != nullptr) SetFocus(GetNextDlgTabItem(window(), nullptr, TRUE));
}

}  // namespace mavCycEd::win32
