#pragma once

#ifndef UNICODE
#define UNICODE
#endif
#include <windows.h>
// windows.h comes first
#include <mavCycEdTypes.h>
#include <ocidl.h>
#include <ole2.h>
#include <olectl.h>

#include <functional>
#include <string>

/// What the editor's event brings.
struct EditorError {
  long number = 0;
  std::wstring description;
  std::wstring application;
  std::wstring module;
  std::wstring procedure;
  short line = 0;
};

/// One editor on a window of ours: the site that COM containers give to a control, and the window's side of it. Made
/// with `new` through create(); the control holds references to it while it is there.
class ControlSite : public IOleClientSite,
                    public IOleInPlaceSite,
                    public IOleInPlaceFrame,
                    public IOleControlSite,
                    public IDispatch {
 public:
  /// Makes an editor of the registered class; nullptr when it cannot be made. `inPlace` is where it stands in `parent`.
  static ControlSite* create(HWND parent, const RECT& inPlace);
  /// The same with an object made by somebody else.
  static ControlSite* create(HWND parent, const RECT& inPlace, IUnknown* control);

  /// Takes the editor off the window and lets go of it, and of this site.
  void close();

  _ctlCycEd& editor() { return *editor_; }
  HWND controlWindow() const;
  void place(const RECT& rect);
  /// Gives the editor the user's attention; `message` is the key that led to it.
  void activate(MSG* message);
  void deactivate();
  bool isActive() const { return activeObject_ != nullptr; }
  /// Offers a key of the message loop to the editor. True when it is done with.
  bool translate(MSG& message);
  /// Whether Alt and this character press one of the editor's buttons.
  bool pressAccessKey(MSG& message);

  /// The editor takes the user's attention.
  void onActivated(std::function<void()> handler) { activated_ = std::move(handler); }
  /// The Tab key has left the editor.
  void onTabOut(std::function<void(bool backwards)> handler) { tabOut_ = std::move(handler); }
  void onError(std::function<void(const EditorError&)> handler) { error_ = std::move(handler); }
  /// A dialog of the editor's opens (false), has closed (true).
  void onEnableModeless(std::function<void(bool enable)> handler) { modeless_ = std::move(handler); }
  /// The colours and the font that the editor finds around it.
  void setAmbient(OLE_COLOR background, OLE_COLOR text, IFontDisp* font);
  /// Whether the window is being designed and not used.
  void setDesigned(bool designed);

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override;

  // IOleClientSite
  STDMETHODIMP SaveObject() override { return E_NOTIMPL; }
  STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  STDMETHODIMP GetContainer(IOleContainer** container) override;
  STDMETHODIMP ShowObject() override { return S_OK; }
  STDMETHODIMP OnShowWindow(BOOL) override { return S_OK; }
  STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }

  // IOleInPlaceSite, IOleInPlaceFrame
  STDMETHODIMP GetWindow(HWND* window) override;
  STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
  STDMETHODIMP CanInPlaceActivate() override { return S_OK; }
  STDMETHODIMP OnInPlaceActivate() override { return S_OK; }
  STDMETHODIMP OnUIActivate() override;
  STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT position, LPRECT clip,
                                LPOLEINPLACEFRAMEINFO info) override;
  STDMETHODIMP Scroll(SIZE) override { return S_FALSE; }
  STDMETHODIMP OnUIDeactivate(BOOL) override { return S_OK; }
  STDMETHODIMP OnInPlaceDeactivate() override { return S_OK; }
  STDMETHODIMP DiscardUndoState() override { return S_OK; }
  STDMETHODIMP DeactivateAndUndo() override { return S_OK; }
  STDMETHODIMP OnPosRectChange(LPCRECT position) override;
  STDMETHODIMP GetBorder(LPRECT) override { return INPLACE_E_NOTOOLSPACE; }
  STDMETHODIMP RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
  STDMETHODIMP SetBorderSpace(LPCBORDERWIDTHS) override { return S_OK; }
  STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR name) override;
  STDMETHODIMP InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override { return S_OK; }
  STDMETHODIMP SetMenu(HMENU, HOLEMENU, HWND) override { return S_OK; }
  STDMETHODIMP RemoveMenus(HMENU) override { return S_OK; }
  STDMETHODIMP SetStatusText(LPCOLESTR) override { return S_OK; }
  STDMETHODIMP EnableModeless(BOOL enable) override;
  STDMETHODIMP TranslateAccelerator(LPMSG, WORD) override { return S_FALSE; }

  // IOleControlSite
  STDMETHODIMP OnControlInfoChanged() override { return S_OK; }
  STDMETHODIMP LockInPlaceActive(BOOL) override { return E_NOTIMPL; }
  STDMETHODIMP GetExtendedControl(IDispatch** object) override;
  STDMETHODIMP TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
  STDMETHODIMP TranslateAccelerator(MSG* message, DWORD modifiers) override;
  STDMETHODIMP OnFocus(BOOL) override { return S_OK; }
  STDMETHODIMP ShowPropertyFrame() override { return E_NOTIMPL; }

  // IDispatch: what the editor asks of its surroundings
  STDMETHODIMP GetTypeInfoCount(UINT* count) override;
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return DISP_E_UNKNOWNNAME; }
  STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) override;

 private:
  class Listener;

  ControlSite(HWND parent, const RECT& inPlace) : parent_(parent), position_(inPlace) {}
  virtual ~ControlSite();
  HRESULT open(IUnknown* control);
  HRESULT listen();
  void tellAmbientChange();

  ULONG references_ = 1;
  HWND parent_;
  RECT position_;
  _ctlCycEd* editor_ = nullptr;
  IOleObject* object_ = nullptr;
  IOleInPlaceActiveObject* activeObject_ = nullptr;
  IConnectionPoint* events_ = nullptr;
  DWORD cookie_ = 0;
  bool designed_ = false;
  bool hasAmbient_ = false;
  OLE_COLOR background_ = 0;
  OLE_COLOR text_ = 0;
  IFontDisp* font_ = nullptr;
  std::function<void()> activated_;
  std::function<void(bool)> tabOut_;
  std::function<void(const EditorError&)> error_;
  std::function<void(bool)> modeless_;
};
