#pragma once

#include <optional>
#include <string>
#include <utility>

#include "kit/Lifeline.h"
#include "win32/Fonts.h"
#include "win32/Windows.h"

namespace mavCycEd::win32 {

class AccessibleItems;
class Win32Frame;

/// What a window hands back to a child what the child's system class has told its parent: WM_COMMAND, WM_NOTIFY and
/// WM_DRAWITEM arrive at the child as these messages. True when `message` was one of them and had a child to go to.
bool reflect(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);

/// The top-level window that a window stands in, if it is to be seen; nullptr otherwise.
HWND shownRootOf(HWND window);

/// Whether the keyboard focus is in another control of the window around this one. A list of its own, a menu, or
/// another window in front does not count.
bool hasLostFocusToControl(HWND control);

/// A child window of one of the system's classes or of ours, and the object behind it. The object outlives the window
/// if need be: from then on what it is told about the screen goes nowhere.
///
/// A user's doing is told to the owner after the system's own handling of the message has ended (post()), because the
/// owner may destroy the window in answer.
class NativeWindow {
 public:
  struct Kind {
    const wchar_t* windowClass;
    DWORD style = 0;
    DWORD extendedStyle = 0;
  };

  /// `frame`: what the window stands in; nullptr for none.
  NativeWindow(HWND parent, Win32Frame* frame, const Kind& kind);
  /// A window that belongs to another one, which destroys it: part of a system's control.
  explicit NativeWindow(HWND existing);
  virtual ~NativeWindow();
  NativeWindow(const NativeWindow&) = delete;
  NativeWindow& operator=(const NativeWindow&) = delete;

  /// nullptr as soon as the window is gone.
  HWND handle() const { return handle_; }

  bool isSelfEnabled() const { return enabled_; }
  void setSelfEnabled(bool enabled);
  bool isSelfVisible() const { return visible_; }
  void setSelfVisible(bool visible);
  /// Whether it and every frame around it are enabled, visible.
  bool isEnabledHere() const;
  bool isVisibleHere() const;

  /// Shows on the screen what the settings of the window and of the frames around it come to.
  virtual void applyState();

  void place(const RECT& rect);
  /// The font of the screen around the window; a font of its own may follow from it.
  virtual void setScreenFont(const FontHandle& font, int dpi);
  HFONT fontHandle() const { return font_.get(); }

  /// The name for assistive technology, where the window has no text of its own that says what it is.
  void setAccessibleName(std::wstring name) { accessibleName_ = std::move(name); }
  const std::wstring& accessibleName() const { return accessibleName_; }
  /// The items of the window for assistive technology; nullptr where the system knows them.
  virtual AccessibleItems* accessibleItems() { return nullptr; }

  kit::Lifeline::Watch watch() const { return lifeline_.watch(); }

 protected:
  /// Answers a message of the window; nothing: the system's class does.
  virtual std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam);
  /// A notification of the system's class to its parent.
  virtual void onCommand(int /*notification*/) {}
  virtual LRESULT onNotify(const NMHDR& /*notification*/) { return 0; }
  virtual void onDraw(const DRAWITEMSTRUCT& /*item*/) {}
  /// What post() was called with, when the message at hand has been dealt with.
  virtual void onPosted(int /*what*/) {}
  void post(int what) const;

  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  LRESULT callSystem(UINT message, WPARAM wParam, LPARAM lParam) const;
  void setText(const std::wstring& text) const;

  /// Puts a new, empty window in the place of the one there is, for what the system decides when a window is made.
  void remake(const Kind& kind);

  kit::Lifeline lifeline_;

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                    DWORD_PTR self);
  LRESULT dispatch(UINT message, WPARAM wParam, LPARAM lParam);

  HWND handle_ = nullptr;
  bool isOurs_ = true;
  Win32Frame* frame_ = nullptr;
  bool enabled_ = true;
  bool visible_ = true;
  FontHandle font_;
  std::wstring accessibleName_;
};

}  // namespace mavCycEd::win32
