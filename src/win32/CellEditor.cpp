#include "win32/CellEditor.h"

#include <algorithm>

#include "kit/Notify.h"
#include "win32/ComboLine.h"
#include "win32/Dpi.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {
namespace {

enum Posted { Typed, Picked, Left };

}  // namespace

/// The line to type into: a window of its own, or the one in a combo box.
class CellEditor::Line : public NativeWindow {
 public:
  Line(CellEditor& editor, HWND grid) : NativeWindow(grid, nullptr, {L"EDIT", ES_AUTOHSCROLL}), editor_(editor) {}
  Line(CellEditor& editor, HWND /*combo*/, HWND line) : NativeWindow(line), editor_(editor) {}

  void setLineText(const std::wstring& text) const { setText(text); }
  void noteTyping() const { post(Typed); }

 protected:
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    switch (message) {
      case WM_GETDLGCODE: return callSystem(message, wParam, lParam) | DLGC_WANTALLKEYS;
      case WM_SYSKEYDOWN:
      case WM_KEYDOWN: {
        const auto key = editor_.events_.key;
        if (key && key(wParam)) return 0;
        return std::nullopt;
      }
      case WM_CHAR:
        // These keys have done their work when they went down.
        if (wParam == VK_TAB || wParam == VK_RETURN || wParam == VK_ESCAPE) return 0;
        return std::nullopt;
      case WM_CONTEXTMENU: return SendMessageW(GetParent(handle()), message, wParam, lParam);
      case WM_KILLFOCUS: post(Left); return std::nullopt;
      default: return std::nullopt;
    }
  }

  void onCommand(int notification) override {
    if (notification == EN_CHANGE) editor_.noteTyping();
  }

  void onPosted(int what) override {
    if (what == Left) {
      kit::tell(editor_.events_.left);
    } else if (editor_.hasUntoldTyping()) {
      kit::tell(editor_.events_.typed);
    }
  }

 private:
  CellEditor& editor_;
};

/// The combo box around the line.
class CellEditor::Combo : public NativeWindow {
 public:
  Combo(CellEditor& editor, HWND grid)
      : NativeWindow(grid, nullptr, {L"COMBOBOX", CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL}), editor_(editor) {
    constexpr int mostVisibleItems = 20;
    send(CB_SETMINVISIBLE, mostVisibleItems);
    send(CB_LIMITTEXT, 0);
    for (const std::string& item : editor.list_) {
      send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(toWideLine(item).c_str()));
    }
  }

 protected:
  void onCommand(int notification) override {
    if (notification == CBN_EDITCHANGE) editor_.noteTyping();
    if (notification != CBN_SELENDOK) return;
    picked_ = static_cast<int>(send(CB_GETCURSEL));
    post(Picked);
  }

  void onPosted(int) override { kit::tell(editor_.events_.picked, picked_); }

 private:
  CellEditor& editor_;
  int picked_ = -1;
};

CellEditor::CellEditor(HWND grid, const std::vector<std::string>& list, const FontHandle& font, int dpi, Events events)
    : events_(std::move(events)), list_(list) {
  if (list_.empty()) {
    line_ = std::make_unique<Line>(*this, grid);
    line_->setScreenFont(font, dpi);
    SendMessageW(line(), EM_SETLIMITTEXT, 0, 0);  // as much as there is memory for
    return;
  }
  combo_ = std::make_unique<Combo>(*this, grid);
  combo_->setScreenFont(font, dpi);
  line_ = std::make_unique<Line>(*this, combo_->handle(), lineOfCombo(combo_->handle()));
}

CellEditor::~CellEditor() = default;

HWND CellEditor::line() const { return line_->handle(); }
std::string CellEditor::text() const { return fromWide(textOf(line())); }

kit::TypedLine CellEditor::typedLine() const {
  const std::wstring text = textOf(line());
  DWORD begin = 0;
  DWORD end = 0;
  SendMessageW(line(), EM_GETSEL, reinterpret_cast<WPARAM>(&begin), reinterpret_cast<LPARAM>(&end));
  return {fromWide(text), fromWide(std::wstring_view(text).substr(0, end)).size()};
}

bool CellEditor::isHalfTyped() const {
  const std::wstring text = textOf(line());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IS_HIGH_SURROGATE(text[i]) && (i + 1 == text.size() || !IS_LOW_SURROGATE(text[i + 1]))) return true;
  }
  return false;
}

void CellEditor::noteTyping() {
  if (settingText_) return;
  untoldTyping_ = true;
  line_->noteTyping();
}

void CellEditor::show(const kit::TypedLine& line) {
  const std::wstring text = toWide(line.text);
  const std::size_t cursor = toWide(std::string_view(line.text).substr(0, line.cursor)).size();
  settingText_ = true;
  line_->setLineText(text);
  SendMessageW(this->line(), EM_SETSEL, cursor, static_cast<LPARAM>(cursor));
  SendMessageW(this->line(), EM_SCROLLCARET, 0, 0);
  settingText_ = false;
}

void CellEditor::place(const RECT& cell) {
  if (combo_ == nullptr) {
    RECT inside = cell;
    const int line = TextMeasure(this->line(), line_->fontHandle()).lineHeight();
    inside.left += scaled(this->line(), 2);
    inside.top += std::max<LONG>((cell.bottom - cell.top - line) / 2, 0);
    inside.bottom = std::min<LONG>(inside.top + line, cell.bottom - 1);
    line_->place(inside);
    return;
  }
  const HWND combo = combo_->handle();
  // What a combo box adds to this height depends on the system: the second time it is known.
  LONG height = cell.bottom - cell.top;
  for (int i = 0; i < 2; ++i) {
    SendMessageW(combo, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), height);
    combo_->place(cell);
    RECT now{};
    GetWindowRect(combo, &now);
    height -= (now.bottom - now.top) - (cell.bottom - cell.top);
  }
  centerLineOfCombo(combo, TextMeasure(line(), combo_->fontHandle()).lineHeight());
}

void CellEditor::setFocus() {
  SetFocus(line());
  SendMessageW(line(), EM_SETSEL, 0, -1);
}

bool CellEditor::hasFocus() const {
  const HWND focus = GetFocus();
  return focus != nullptr && (focus == line() || (combo_ != nullptr && focus == combo_->handle()));
}

void CellEditor::showList() {
  if (combo_ == nullptr) return;
  const std::string shown = text();
  const auto found = std::ranges::find(list_, shown);
  settingText_ = true;
  SendMessageW(combo_->handle(), CB_SHOWDROPDOWN, TRUE, 0);
  SendMessageW(combo_->handle(), CB_SETCURSEL,
               found == list_.end() ? static_cast<WPARAM>(-1) : static_cast<WPARAM>(found - list_.begin()), 0);
  line_->setLineText(toWide(shown));
  settingText_ = false;
}

bool CellEditor::isListOpen() const {
  return combo_ != nullptr && SendMessageW(combo_->handle(), CB_GETDROPPEDSTATE, 0, 0) != FALSE;
}

}  // namespace mavCycEd::win32
