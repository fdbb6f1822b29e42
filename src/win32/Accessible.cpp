#include "win32/Accessible.h"

#include "win32/NativeWindow.h"
// need windows.h
#include <oleacc.h>
#include <oleauto.h>

#include <atomic>

namespace mavCycEd::win32 {
namespace {

// The compiler's constant: what the import library of oleacc has under the usual name is no identifier.
const IID& idOfAccessible = __uuidof(IAccessible);

// What the system says of a window, and what we know better. The window may go while somebody still holds this.
class WindowDescription : public IAccessible {
 public:
  WindowDescription(NativeWindow& window, kit::Lifeline::Watch alive, IAccessible* system)
      : window_(window), alive_(std::move(alive)), system_(system) {}
  WindowDescription(const WindowDescription&) = delete;
  WindowDescription& operator=(const WindowDescription&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (!IsEqualIID(id, IID_IUnknown) && !IsEqualIID(id, IID_IDispatch) && !IsEqualIID(id, idOfAccessible)) {
      return E_NOINTERFACE;
    }
    *object = static_cast<IAccessible*>(this);
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override { return system_->GetTypeInfoCount(count); }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
    return system_->GetTypeInfo(index, locale, info);
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override {
    return system_->GetIDsOfNames(id, names, count, locale, ids);
  }
  // Callers by name get the system's own description: it knows how.
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID id, LCID locale, WORD flags, DISPPARAMS* arguments,
                                   VARIANT* result, EXCEPINFO* exception, UINT* wrong) override {
    return system_->Invoke(member, id, locale, flags, arguments, result, exception, wrong);
  }

  HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override { return system_->get_accParent(parent); }
  HRESULT STDMETHODCALLTYPE get_accChildCount(long* count) override {
    const AccessibleItems* const items = this->items();
    if (items == nullptr) return system_->get_accChildCount(count);
    if (count == nullptr) return E_POINTER;
    *count = items->count();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override {
    if (itemOf(child) == 0) return system_->get_accChild(child, object);
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    return S_FALSE;  // an item without an object of its own
  }
  HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override {
    if (name == nullptr) return E_POINTER;
    if (const int item = itemOf(child)) return give(items()->name(item), name);
    if (alive_ && isSelf(child)) return give(window_.accessibleName(), name);
    return system_->get_accName(child, name);
  }
  HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override {
    if (value == nullptr) return E_POINTER;
    if (const int item = itemOf(child)) return give(items()->value(item), value);
    return system_->get_accValue(child, value);
  }
  HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* text) override {
    return itemOf(child) != 0 ? nothing(text) : system_->get_accDescription(child, text);
  }
  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override {
    const bool isList = items() != nullptr && isSelf(child);
    if (itemOf(child) == 0 && !isList) return system_->get_accRole(child, role);
    return give(isList ? ROLE_SYSTEM_LIST : ROLE_SYSTEM_LISTITEM, role);
  }
  HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override {
    const int item = itemOf(child);
    if (item == 0) return system_->get_accState(child, state);
    const RECT place = items()->place(item);
    long bits = STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE;
    if (item == items()->current()) bits |= STATE_SYSTEM_SELECTED;
    if (item == items()->current() && GetFocus() == window_.handle()) bits |= STATE_SYSTEM_FOCUSED;
    if (IsRectEmpty(&place) != FALSE) bits |= STATE_SYSTEM_OFFSCREEN;
    return give(bits, state);
  }
  HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* text) override {
    return itemOf(child) != 0 ? nothing(text) : system_->get_accHelp(child, text);
  }
  HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override {
    return system_->get_accHelpTopic(file, child, topic);
  }
  HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* text) override {
    return itemOf(child) != 0 ? nothing(text) : system_->get_accKeyboardShortcut(child, text);
  }
  HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override {
    const AccessibleItems* const items = this->items();
    const bool has = items != nullptr && items->current() != 0 && GetFocus() == window_.handle();
    return has ? give(items->current(), child) : system_->get_accFocus(child);
  }
  HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* child) override {
    const AccessibleItems* const items = this->items();
    const bool has = items != nullptr && items->current() != 0;
    return has ? give(items->current(), child) : system_->get_accSelection(child);
  }
  HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* text) override {
    return itemOf(child) != 0 ? nothing(text) : system_->get_accDefaultAction(child, text);
  }
  HRESULT STDMETHODCALLTYPE accSelect(long flags, VARIANT child) override {
    const int item = itemOf(child);
    if (item == 0) return system_->accSelect(flags, child);
    if ((flags & SELFLAG_TAKEFOCUS) != 0) SetFocus(window_.handle());
    if ((flags & (SELFLAG_TAKESELECTION | SELFLAG_TAKEFOCUS)) != 0) items()->choose(item);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE accLocation(long* x, long* y, long* width, long* height, VARIANT child) override {
    const int item = itemOf(child);
    if (item == 0) return system_->accLocation(x, y, width, height, child);
    if (x == nullptr || y == nullptr || width == nullptr || height == nullptr) return E_POINTER;
    RECT place = items()->place(item);
    MapWindowPoints(window_.handle(), nullptr, reinterpret_cast<POINT*>(&place), 2);
    *x = place.left;
    *y = place.top;
    *width = place.right - place.left;
    *height = place.bottom - place.top;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE accNavigate(long direction, VARIANT start, VARIANT* end) override {
    const AccessibleItems* const items = this->items();
    if (items == nullptr) return system_->accNavigate(direction, start, end);
    const int item = itemOf(start);
    int target = 0;
    switch (direction) {
      case NAVDIR_FIRSTCHILD: target = 1; break;
      case NAVDIR_LASTCHILD: target = items->count(); break;
      case NAVDIR_DOWN:
      case NAVDIR_NEXT: target = item + 1; break;
      case NAVDIR_UP:
      case NAVDIR_PREVIOUS: target = item - 1; break;
      default: break;
    }
    const bool fromSelf = item == 0 && direction != NAVDIR_FIRSTCHILD && direction != NAVDIR_LASTCHILD;
    if (fromSelf) return system_->accNavigate(direction, start, end);
    if (end == nullptr) return E_POINTER;
    VariantInit(end);
    return target >= 1 && target <= items->count() ? give(target, end) : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE accHitTest(long x, long y, VARIANT* child) override {
    const AccessibleItems* const items = this->items();
    POINT place{x, y};
    if (items != nullptr && ScreenToClient(window_.handle(), &place) != FALSE) {
      for (int item = 1; item <= items->count(); ++item) {
        const RECT rect = items->place(item);
        if (PtInRect(&rect, place) != FALSE) return give(item, child);
      }
    }
    return system_->accHitTest(x, y, child);
  }
  HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override { return system_->accDoDefaultAction(child); }
  HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) override {
    return system_->put_accValue(child, value);
  }

 private:
  virtual ~WindowDescription() { system_->Release(); }

  static bool isSelf(const VARIANT& child) { return child.vt == VT_I4 && child.lVal == CHILDID_SELF; }
  AccessibleItems* items() const { return alive_ ? window_.accessibleItems() : nullptr; }
  // The item that a caller means, 0 when it means none of ours.
  int itemOf(const VARIANT& child) const {
    const AccessibleItems* const items = this->items();
    const bool isItem = items != nullptr && child.vt == VT_I4 && child.lVal >= 1 && child.lVal <= items->count();
    return isItem ? static_cast<int>(child.lVal) : 0;
  }

  static HRESULT nothing(BSTR* text) {
    if (text == nullptr) return E_POINTER;
    *text = nullptr;
    return S_FALSE;
  }
  static HRESULT give(const std::wstring& text, BSTR* result) {
    *result = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return *result != nullptr ? S_OK : E_OUTOFMEMORY;
  }
  static HRESULT give(long number, VARIANT* result) {
    if (result == nullptr) return E_POINTER;
    VariantInit(result);
    result->vt = VT_I4;
    result->lVal = number;
    return S_OK;
  }

  NativeWindow& window_;
  kit::Lifeline::Watch alive_;
  IAccessible* system_;
  std::atomic<ULONG> references_ = 1;
};

}  // namespace

LRESULT accessibleDescription(NativeWindow& window, WPARAM wParam) {
  void* system = nullptr;
  if (FAILED(CreateStdAccessibleObject(window.handle(), OBJID_CLIENT, idOfAccessible, &system))) return 0;
  auto* const description = new WindowDescription(window, window.watch(), static_cast<IAccessible*>(system));
  const LRESULT result = LresultFromObject(idOfAccessible, wParam, description);
  description->Release();
  return result;
}

}  // namespace mavCycEd::win32
