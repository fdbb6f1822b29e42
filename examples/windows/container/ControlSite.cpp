#include "ControlSite.h"

#include <utility>

namespace {

template <typename Interface>
Interface* askFor(IUnknown* object) {
  Interface* result = nullptr;
  if (object != nullptr) object->QueryInterface(__uuidof(Interface), reinterpret_cast<void**>(&result));
  return result;
}

template <typename Interface>
void letGo(Interface*& object) {
  Interface* const before = std::exchange(object, nullptr);
  if (before != nullptr) before->Release();
}

std::wstring textOf(const VARIANTARG& argument) {
  return argument.vt == VT_BSTR ? std::wstring(argument.bstrVal, SysStringLen(argument.bstrVal)) : std::wstring();
}

}  // namespace

/// Listens to one editor's event.
class ControlSite::Listener : public IDispatch {
 public:
  explicit Listener(ControlSite& site) : site_(site) {}
  virtual ~Listener() = default;

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    const bool known = iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(__ctlCycEd);
    *object = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return DISP_E_UNKNOWNNAME; }
  STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*, UINT*) override {
    if (member != 1 || arguments->cArgs != 6) return DISP_E_MEMBERNOTFOUND;
    const VARIANTARG* const a = arguments->rgvarg;  // the last one first
    const EditorError error{a[5].lVal, textOf(a[4]), textOf(a[3]), textOf(a[2]), textOf(a[1]), a[0].iVal};
    if (const auto handler = site_.error_) handler(error);
    return S_OK;
  }

 private:
  ULONG references_ = 1;
  ControlSite& site_;
};

ControlSite* ControlSite::create(HWND parent, const RECT& inPlace) {
  IUnknown* control = nullptr;
  CLSID classId{};
  if (FAILED(CLSIDFromProgID(L"mavCycEd.ctlCycEd", &classId)) ||
      FAILED(
          CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, reinterpret_cast<void**>(&control)))) {
    return nullptr;
  }
  ControlSite* const site = create(parent, inPlace, control);
  control->Release();
  return site;
}

ControlSite* ControlSite::create(HWND parent, const RECT& inPlace, IUnknown* control) {
  auto* const site = new ControlSite(parent, inPlace);
  if (SUCCEEDED(site->open(control))) return site;
  site->close();
  return nullptr;
}

HRESULT ControlSite::open(IUnknown* control) {
  editor_ = askFor<_ctlCycEd>(control);
  object_ = askFor<IOleObject>(control);
  IPersistStreamInit* const persistence = askFor<IPersistStreamInit>(control);
  if (editor_ == nullptr || object_ == nullptr || persistence == nullptr) return E_NOINTERFACE;
  object_->SetClientSite(this);
  persistence->InitNew();
  persistence->Release();
  const HRESULT listens = listen();
  if (FAILED(listens)) return listens;
  return object_->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, this, 0, parent_, &position_);
}

HRESULT ControlSite::listen() {
  IConnectionPointContainer* points = askFor<IConnectionPointContainer>(editor_);
  if (points == nullptr) return E_NOINTERFACE;
  HRESULT result = points->FindConnectionPoint(__uuidof(__ctlCycEd), &events_);
  letGo(points);
  if (FAILED(result)) return result;
  auto* listener = new Listener(*this);
  result = events_->Advise(listener, &cookie_);
  listener->Release();
  return result;
}

void ControlSite::close() {
  if (events_ != nullptr) events_->Unadvise(cookie_);
  letGo(events_);
  if (object_ != nullptr) {
    object_->Close(OLECLOSE_NOSAVE);
    object_->SetClientSite(nullptr);
  }
  letGo(activeObject_);
  letGo(object_);
  letGo(editor_);
  Release();
}

ControlSite::~ControlSite() { letGo(font_); }

HWND ControlSite::controlWindow() const {
  HWND window = nullptr;
  IOleWindow* control = askFor<IOleWindow>(editor_);
  if (control != nullptr) control->GetWindow(&window);
  letGo(control);
  return window;
}

void ControlSite::place(const RECT& rect) {
  position_ = rect;
  IOleInPlaceObject* control = askFor<IOleInPlaceObject>(editor_);
  if (control != nullptr) control->SetObjectRects(&position_, &position_);
  letGo(control);
}

void ControlSite::activate(MSG* message) {
  object_->DoVerb(OLEIVERB_UIACTIVATE, message, this, 0, parent_, &position_);
}

void ControlSite::deactivate() {
  IOleInPlaceObject* control = askFor<IOleInPlaceObject>(editor_);
  if (control != nullptr) control->UIDeactivate();
  letGo(control);
}

bool ControlSite::translate(MSG& message) {
  return activeObject_ != nullptr && activeObject_->TranslateAccelerator(&message) == S_OK;
}

bool ControlSite::pressAccessKey(MSG& message) {
  bool pressed = false;
  IOleControl* control = askFor<IOleControl>(editor_);
  CONTROLINFO info{};
  info.cb = sizeof info;
  if (control != nullptr && SUCCEEDED(control->GetControlInfo(&info)) &&
      IsAccelerator(info.hAccel, info.cAccel, &message, nullptr) != FALSE) {
    pressed = SUCCEEDED(control->OnMnemonic(&message));
  }
  letGo(control);
  return pressed;
}

void ControlSite::setAmbient(OLE_COLOR background, OLE_COLOR text, IFontDisp* font) {
  hasAmbient_ = true;
  background_ = background;
  text_ = text;
  if (font != nullptr) font->AddRef();
  letGo(font_);
  font_ = font;
  tellAmbientChange();
}

void ControlSite::setDesigned(bool designed) {
  designed_ = designed;
  tellAmbientChange();
}

void ControlSite::tellAmbientChange() {
  IOleControl* control = askFor<IOleControl>(editor_);
  if (control != nullptr) control->OnAmbientPropertyChange(DISPID_UNKNOWN);
  letGo(control);
}

STDMETHODIMP ControlSite::QueryInterface(REFIID iid, void** object) {
  if (iid == IID_IUnknown || iid == IID_IOleClientSite) {
    *object = static_cast<IOleClientSite*>(this);
  } else if (iid == IID_IOleInPlaceSite || iid == IID_IOleWindow) {
    *object = static_cast<IOleInPlaceSite*>(this);
  } else if (iid == IID_IOleInPlaceUIWindow || iid == IID_IOleInPlaceFrame) {
    *object = static_cast<IOleInPlaceFrame*>(this);
  } else if (iid == IID_IOleControlSite) {
    *object = static_cast<IOleControlSite*>(this);
  } else if (iid == IID_IDispatch) {
    *object = static_cast<IDispatch*>(this);
  } else {
    *object = nullptr;
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) ControlSite::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

STDMETHODIMP ControlSite::GetContainer(IOleContainer** container) {
  *container = nullptr;
  return E_NOINTERFACE;
}

STDMETHODIMP ControlSite::GetWindow(HWND* window) {
  *window = parent_;
  return S_OK;
}

STDMETHODIMP ControlSite::OnUIActivate() {
  if (activated_) activated_();
  return S_OK;
}

STDMETHODIMP ControlSite::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT position,
                                           LPRECT clip, LPOLEINPLACEFRAMEINFO info) {
  *frame = this;
  AddRef();
  *document = nullptr;
  *position = position_;
  *clip = position_;
  info->fMDIApp = FALSE;
  info->hwndFrame = GetAncestor(parent_, GA_ROOT);
  info->haccel = nullptr;
  info->cAccelEntries = 0;
  return S_OK;
}

STDMETHODIMP ControlSite::OnPosRectChange(LPCRECT position) {
  place(*position);
  return S_OK;
}

STDMETHODIMP ControlSite::SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) {
  if (object != nullptr) object->AddRef();
  letGo(activeObject_);
  activeObject_ = object;
  return S_OK;
}

STDMETHODIMP ControlSite::EnableModeless(BOOL enable) {
  if (modeless_) modeless_(enable != FALSE);
  return S_OK;
}

STDMETHODIMP ControlSite::GetExtendedControl(IDispatch** object) {
  *object = nullptr;
  return E_NOTIMPL;
}

// What the editor does not take: the Tab key at its first and last window goes on to what stands beside it.
STDMETHODIMP ControlSite::TranslateAccelerator(MSG* message, DWORD modifiers) {
  constexpr DWORD shift = 1;
  if (message->message != WM_KEYDOWN || message->wParam != VK_TAB || !tabOut_) return S_FALSE;
  tabOut_((modifiers & shift) != 0);
  return S_OK;
}

STDMETHODIMP ControlSite::GetTypeInfoCount(UINT* count) {
  *count = 0;
  return S_OK;
}

STDMETHODIMP ControlSite::Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) {
  if (result == nullptr) return E_POINTER;
  switch (member) {
    case DISPID_AMBIENT_USERMODE:
      result->vt = VT_BOOL;
      result->boolVal = designed_ ? VARIANT_FALSE : VARIANT_TRUE;
      return S_OK;
    case DISPID_AMBIENT_BACKCOLOR:
    case DISPID_AMBIENT_FORECOLOR:
      if (!hasAmbient_) return DISP_E_MEMBERNOTFOUND;
      result->vt = VT_I4;
      result->lVal = static_cast<LONG>(member == DISPID_AMBIENT_BACKCOLOR ? background_ : text_);
      return S_OK;
    case DISPID_AMBIENT_FONT:
      if (font_ == nullptr) return DISP_E_MEMBERNOTFOUND;
      font_->AddRef();
      result->vt = VT_DISPATCH;
      result->pdispVal = font_;
      return S_OK;
    default: return DISP_E_MEMBERNOTFOUND;
  }
}
