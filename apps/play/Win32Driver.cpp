#include "Win32Driver.h"

#include <algorithm>
#include <utility>

#include "Win32Hands.h"
#include "libxml2/Libxml2DocumentFactory.h"
#include "text/LineEnds.h"

namespace mavCycEd::play {

using namespace win32;

namespace {

int indexOf(const std::vector<std::string>& items, const std::string& control, const std::string& text) {
  const auto item = std::ranges::find(items, text);
  if (item == items.end()) throw StepRefused(control + " has no item " + text + ".");
  return static_cast<int>(item - items.begin());
}

void checkIndex(int index, int lowest, int count, std::string_view list) {
  if (index < lowest || index >= count) {
    throw StepRefused(std::string(list) + " has no item " + std::to_string(index) + ".");
  }
}

// The place of an item of a list box, which is brought into view.
POINT placeOf(HWND list, int index) {
  RECT place{};
  SendMessageW(list, LB_SETTOPINDEX, static_cast<WPARAM>(index), 0);
  SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&place));
  return {place.left + 1, (place.top + place.bottom) / 2};
}

// Clicks below the last item of a list box; where the items fill it, the keys take the selection away.
void clickBesideItems(HWND list, int count) {
  RECT client{};
  GetClientRect(list, &client);
  int bottom = 0;
  if (count > 0) {
    RECT last{};
    SendMessageW(list, LB_SETTOPINDEX, static_cast<WPARAM>(count - 1), 0);
    SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(count - 1), reinterpret_cast<LPARAM>(&last));
    bottom = last.bottom;
  }
  if (bottom < client.bottom) click(list, {1, bottom});
}

POINT placeInSelectionList(HWND list, int index) {
  ListView_EnsureVisible(list, index, FALSE);
  RECT place{};
  ListView_GetItemRect(list, index, &place, LVIR_LABEL);
  return {place.left + 1, (place.top + place.bottom) / 2};
}

HWND editOf(HWND combo) {
  COMBOBOXINFO parts{};
  parts.cbSize = sizeof parts;
  GetComboBoxInfo(combo, &parts);
  return parts.hwndItem;
}

}  // namespace

/// Calls whoever works in the variable dialog as soon as its message loop runs.
class Win32Driver::DialogWatch : public MessageWindow {
 public:
  explicit DialogWatch(Win32Driver& driver) : driver_(driver) {
    driver_.editor_.screen().setModality([this](bool begins) {
      if (begins) PostMessageW(handle(), WM_APP, 0, 0);
    });
  }

  void setUser(std::function<void()> user) { user_ = std::move(user); }

 protected:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message != WM_APP) return MessageWindow::onMessage(message, wParam, lParam);
    if (const auto user = user_) user();
    if (driver_.isDialogOpen()) driver_.closeDialog();
    return 0;
  }

 private:
  Win32Driver& driver_;
  std::function<void()> user_;
};

/// Does something as soon as a message loop runs: that of an open list.
class Win32Driver::MenuUser : public MessageWindow {
 public:
  explicit MenuUser(std::function<void()> use) : use_(std::move(use)) { PostMessageW(handle(), WM_APP, 0, 0); }

 protected:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message != WM_APP) return MessageWindow::onMessage(message, wParam, lParam);
    use_();
    return 0;
  }

 private:
  std::function<void()> use_;
};

Win32Driver::Win32Driver(EditorServices services, CycleEditorErrorHandler onError, std::function<void()> tick)
    : gridTimer_(services.gridTimer),
      tick_(std::move(tick)),
      host_(nullptr, WS_POPUP | WS_CAPTION | WS_SYSMENU, 0),
      editor_(host_.handle(), std::make_unique<libxml2::Libxml2DocumentFactory>(), std::move(onError),
              std::move(services)),
      controls_(editor_.screen()),
      dialogWatch_(std::make_unique<DialogWatch>(*this)) {
  host_.setLayOut([this] {
    RECT client{};
    GetClientRect(host_.handle(), &client);
    editor_.screen().setPlace(client);
  });
  constexpr int width = 900;
  constexpr int height = 600;
  SetWindowPos(host_.handle(), nullptr, 0, 0, width, height, SWP_NOZORDER);
  ShowWindow(host_.handle(), SW_SHOW);
  settle();
}

Win32Driver::~Win32Driver() = default;

void Win32Driver::settle() {
  const HWND openers[] = {controls_.see<Win32PopupMenu>("mnuSubParam").opener(),
                          isDialogOpen() ? controls_.see<Win32PopupMenu>("mnuSyrConstant").opener() : nullptr};
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    if (message.message == WM_APP && (message.hwnd == openers[0] || message.hwnd == openers[1])) {
      menuMessage_ = message;
      continue;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void Win32Driver::SetConfigXML(const std::string& strConfigXml) { editor_.control().SetConfigXML(strConfigXml); }

void Win32Driver::SetXMLStrings(const std::string& strLatestKam, const std::string& strCycle) {
  editor_.settle();
  editor_.control().SetXMLStrings(strLatestKam, strCycle);
  settle();
}

void Win32Driver::Ignore_Hidden(bool booNewValue) { editor_.control().Ignore_Hidden(booNewValue); }
bool Win32Driver::CycleChanged() { return editor_.control().CycleChanged(); }
std::string Win32Driver::RetrieveCycle() {
  editor_.settle();
  return editor_.control().RetrieveCycle();
}

void Win32Driver::ResetCycle(const std::string& strCycle) { editor_.control().ResetCycle(strCycle); }
const EditorControl& Win32Driver::editor() const { return editor_.control(); }
std::string Win32Driver::MacroString() { return editor_.control().MacroString(); }

void Win32Driver::undo() {
  editor_.control().Undo();
  settle();
}

void Win32Driver::redo() {
  editor_.control().Redo();
  settle();
}

void Win32Driver::chooseItem(std::string_view combo, const std::string& text) {
  auto& control = controls_.use<Win32ComboBox>(combo);
  const int index = indexOf(control.items(), std::string(combo), text);
  SetFocus(control.handle());
  settle();
  pickInList(control.handle(), index);
  settle();
}

void Win32Driver::typeInCombo(std::string_view combo, const std::string& text) {
  auto& control = controls_.use<Win32ComboBox>(combo);
  if (combo == "cboAtom") throw StepRefused("Nothing can be typed into cboAtom.");
  pasteOverAll(editOf(control.handle()), text);
  settle();
}

void Win32Driver::leaveCombo(std::string_view combo) {
  auto& control = controls_.use<Win32ComboBox>(combo);
  SetFocus(control.handle());
  settle();
  SetFocus(GetParent(control.handle()));
  settle();
}

void Win32Driver::chooseInGrid(std::string_view grid, int row, const std::string& text) {
  auto& control = controls_.use<Win32ValueList>(grid);
  const Win32GridHands hands(control);
  hands.checkRow(grid, row);
  const auto& items = control.rows().entry(row)->pickList;
  const int index = indexOf(items, "The pick list of row " + std::to_string(row), text);
  hands.goTo(row);
  settle();
  key(control.view().handle(), VK_F2);
  const HWND editor = control.view().cellEditor().window();
  if (editor == nullptr) throw StepRefused("Row " + std::to_string(row) + " cannot be edited.");
  pickInList(GetParent(editor), index);
  settle();
}

void Win32Driver::editInGrid(std::string_view grid, int row, const std::string& text) {
  auto& control = controls_.use<Win32ValueList>(grid);
  const Win32GridHands hands(control);
  hands.checkRow(grid, row);
  hands.goTo(row);
  settle();
  const HWND view = control.view().handle();
  if (text.empty()) key(view, VK_DELETE);
  bool first = true;  // the first character opens the editor
  const std::wstring characters = toWide(text);
  for (std::size_t i = 0; i < characters.size(); ++i) {
    const HWND target = first ? view : control.view().cellEditor().window();
    if (target == nullptr) break;
    SendMessageW(target, WM_CHAR, characters[i], 1);
    first = false;
    // A character of two halves is one.
    if (!IS_HIGH_SURROGATE(characters[i])) settle();
  }
  settle();
  SetFocus(view);  // away from the editor
  settle();
}

void Win32Driver::pressInGrid(std::string_view grid, int x, int y) {
  auto& control = controls_.use<Win32ValueList>(grid);
  click(control.view().handle(), Win32GridHands(control).pixelsOf(x, y));
  settle();
}

void Win32Driver::hoverOverGrid(std::string_view grid, int x, int y) {
  auto& control = controls_.use<Win32ValueList>(grid);
  SendMessageW(control.view().handle(), WM_MOUSEMOVE, 0, at(Win32GridHands(control).pixelsOf(x, y)));
  settle();
}

std::optional<std::vector<std::string>> Win32Driver::askForMenu(std::string_view grid, int x, int y) {
  auto& control = controls_.use<Win32ValueList>(grid);
  const POINT place = Win32GridHands(control).pixelsOf(x, y);
  SendMessageW(control.view().handle(), WM_RBUTTONDOWN, MK_RBUTTON, at(place));
  settle();  // no hand is so quick that what the press posts, such as a box that was left, comes behind the release
  SendMessageW(control.view().handle(), WM_RBUTTONUP, 0, at(place));
  settle();
  const Win32PopupMenu* const shown = openMenu();
  if (shown == nullptr) return std::nullopt;
  return shown->visibleCaptions();
}

// The menu that has been asked for. The system opens it in a message loop of its own, which is left to the step that
// closes it.
Win32PopupMenu* Win32Driver::openMenu() const {
  auto& menu = controls_.see<Win32PopupMenu>(isDialogOpen() ? "mnuSyrConstant" : "mnuSubParam");
  return menu.isWaiting() ? &menu : nullptr;
}

void Win32Driver::openMenuWith(const std::vector<WPARAM>& keys) {
  if (!menuMessage_) return;
  const MSG message = *std::exchange(menuMessage_, std::nullopt);
  for (const WPARAM code : keys) PostMessageW(host_.handle(), WM_KEYDOWN, code, 1);
  DispatchMessageW(&message);
  settle();
}

void Win32Driver::openListAnd(const std::function<void()>& useList) {
  if (!menuMessage_) return;
  const MSG message = *std::exchange(menuMessage_, std::nullopt);
  const MenuUser user(useList);
  DispatchMessageW(&message);
  settle();
}

void Win32Driver::chooseFromMenu(int place) {
  const Win32PopupMenu* const shown = openMenu();
  if (shown == nullptr) throw StepRefused("No pop-up menu is open.");
  if (place < 0 || static_cast<std::size_t>(place) >= shown->visibleCaptions().size()) {
    throw StepRefused("The pop-up menu has no entry " + std::to_string(place) + ".");
  }
  if (shown->hasMany()) {
    openListAnd([shown, place] { click(shown->list(), placeOf(shown->list(), place)); });
    return;
  }
  std::vector<WPARAM> keys(static_cast<std::size_t>(place) + 1, VK_DOWN);
  keys.push_back(VK_RETURN);
  openMenuWith(keys);
}

void Win32Driver::dismissMenu() {
  const Win32PopupMenu* const shown = openMenu();
  if (shown == nullptr) return;
  if (shown->hasMany()) {
    openListAnd([shown] { key(shown->list(), VK_ESCAPE); });
  } else {
    openMenuWith({VK_ESCAPE});
  }
}

void Win32Driver::replaceText(std::string_view textBox, const std::string& text) {
  pasteOverAll(controls_.use<Win32TextBox>(textBox).handle(), text);
  settle();
}

void Win32Driver::selectItem(std::string_view list, int index) {
  if (list == "lstObject") {
    auto& control = controls_.use<Win32SelectionList>(list);
    checkIndex(index, 0, control.itemCount(), list);
    click(control.handle(), placeInSelectionList(control.handle(), index));
    settle();
    return;
  }
  auto& control = controls_.use<Win32ListBox>(list);
  checkIndex(index, -1, control.itemCount(), list);
  if (index >= 0) {
    click(control.handle(), placeOf(control.handle(), index));
  } else {
    clickBesideItems(control.handle(), control.itemCount());
  }
  settle();
}

void Win32Driver::doubleClickItem(std::string_view list, int index) {
  auto& control = controls_.use<Win32ListBox>(list);
  checkIndex(index, 0, control.itemCount(), list);
  doubleClick(control.handle(), placeOf(control.handle(), index));
  settle();
}

void Win32Driver::clickButton(std::string_view button) {
  const HWND window = button.starts_with("opt") ? controls_.use<Win32OptionButton>(button).handle()
                                                : controls_.use<Win32Button>(button).handle();
  click(window, middleOf(window));
  settle();
}

void Win32Driver::tick() {
  tick_();
  settle();
}

void Win32Driver::setWhileDialogOpen(std::function<void()> whileDialogOpen) {
  dialogWatch_->setUser(std::move(whileDialogOpen));
}

std::string Win32Driver::dialogCaption() const {
  return isDialogOpen() ? fromWide(textOf(controls_.dialog()->frmparams.window().handle())) : "";
}

void Win32Driver::closeDialog() {
  if (!isDialogOpen()) throw StepRefused("No dialog is open.");
  SendMessageW(controls_.dialog()->frmparams.window().handle(), WM_CLOSE, 0, 0);
}

ListView Win32Driver::list(std::string_view name) const {
  auto& control = controls_.see<Win32ListBox>(name);
  return {control.items(), static_cast<int>(SendMessageW(control.handle(), LB_GETCURSEL, 0, 0))};
}

SelectionListView Win32Driver::selectionList(std::string_view name) const {
  auto& control = controls_.see<Win32SelectionList>(name);
  SelectionListView view;
  for (int i = 0; i < control.itemCount(); ++i) {
    view.items.push_back(control.itemText(i));
    if (ListView_GetCheckState(control.handle(), static_cast<UINT>(i)) != 0) view.selected.push_back(i);
  }
  return view;
}

ComboView Win32Driver::combo(std::string_view name) const {
  auto& control = controls_.see<Win32ComboBox>(name);
  return {control.items(), control.text(), control.index()};
}

TextBoxView Win32Driver::textBox(std::string_view name) const {
  auto& control = controls_.see<Win32TextBox>(name);
  const bool enabled = IsWindowEnabled(control.handle()) != FALSE && IsWindowVisible(control.handle()) != FALSE;
  const std::string shown = fromWide(textOf(control.handle()));
  const bool severalLines = (GetWindowLongW(control.handle(), GWL_STYLE) & ES_MULTILINE) != 0;
  return {severalLines ? text::typedToCrLf(shown) : shown, enabled};
}

FrameView Win32Driver::frame(std::string_view name) const {
  auto& control = controls_.see<Win32Frame>(name);
  return {control.caption(), IsWindowEnabled(control.handle()) != FALSE, control.isVisible()};
}

bool Win32Driver::option(std::string_view name) const {
  return SendMessageW(controls_.see<Win32OptionButton>(name).handle(), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

GridView Win32Driver::grid(std::string_view name) const {
  auto& control = controls_.see<Win32ValueList>(name);
  GridView view;
  view.titles = {control.cellText(0, 0), control.cellText(1, 0)};
  for (int row = 1; row < control.RowCount(); ++row) {
    const kit::ValueListRows::Entry& entry = *control.rows().entry(row);
    view.rows.push_back({entry.key, entry.value, entry.pickList});
  }
  view.row = control.Row();
  return view;
}

std::vector<std::string> Win32Driver::menu(std::string_view name) const {
  return controls_.see<Win32PopupMenu>(name).visibleCaptions();
}

std::string Win32Driver::toolTip() const { return controls_.see<Win32ValueList>("GrdAtom").toolTipText(); }

TimerView Win32Driver::timer(std::string_view name) const {
  if (name != "tmrUpdateGrid") throw StepRefused("There is no such control here: " + std::string(name));
  return {gridTimer_->isEnabled(), gridTimer_->interval()};
}

}  // namespace mavCycEd::play
