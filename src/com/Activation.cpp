#include "com/Activation.h"

#include "com/Keyboard.h"

namespace mavCycEd::com {
namespace {

constexpr const wchar_t* nameForTitles = L"mavCycEd";

}  // namespace

Activation::Activation(Lifetime& lifetime, Site& site, EditorSession& session)
    : lifetime_(lifetime), site_(site), session_(session) {
  session_.setMouseActivated([this] {
    lifetime_.stayUntilIdle();
    if (isInPlace() && !uiActive_) activateUi(nullptr);
  });
  session_.setModal([this](bool open) { tellModal(open); });
}

void Activation::activate() {
  if (isInPlace()) return;
  const ComPtr<IOleInPlaceSite> site = site_.client().as<IOleInPlaceSite>();
  if (!site || site->CanInPlaceActivate() != S_OK) throw Failure(E_FAIL);
  session_.window();  // before the container is told anything: its making may fail
  inPlaceSite_ = site;
  const HRESULT entered = site->OnInPlaceActivate();
  if (!isInPlace()) return;  // the container has changed its mind
  if (FAILED(entered)) {
    inPlaceSite_ = {};
    throw Failure(E_FAIL);
  }
  try {
    enter(site);
  } catch (...) {
    deactivate();
    throw;
  }
}

void Activation::enter(const ComPtr<IOleInPlaceSite>& site) {
  HWND parent = nullptr;
  check(site->GetWindow(&parent));
  RECT position{};
  RECT clip{};
  OLEINPLACEFRAMEINFO frameInfo{};
  frameInfo.cb = sizeof frameInfo;
  check(site->GetWindowContext(frame_.put(), document_.put(), &position, &clip, &frameInfo));
  if (!isInPlace()) return;
  followAmbient();
  session_.window().show(parent, position, clip);
  if (site_.client()) site_.client()->ShowObject();
}

void Activation::activateUi(const MSG* message) {
  activate();
  if (!isInPlace()) return;
  if (!uiActive_) {
    uiActive_ = true;
    if (FAILED(inPlaceSite_->OnUIActivate())) {
      uiActive_ = false;
      throw Failure(E_FAIL);
    }
    tellActiveObject(true);
    if (const ComPtr<IOleControlSite> control = site_.control()) control->OnFocus(TRUE);
  }
  if (!isInPlace()) return;
  ControlWindow& window = session_.window();
  const bool byTab = message != nullptr && message->message == WM_KEYDOWN && message->wParam == VK_TAB;
  if (!byTab || window.hasFocus()) {
    window.focus();
  } else {
    focusFirstStop(window.handle(), GetKeyState(VK_SHIFT) < 0);
  }
}

void Activation::deactivateUi() {
  if (!uiActive_) return;
  uiActive_ = false;
  tellActiveObject(false);
  if (const ComPtr<IOleControlSite> control = site_.control()) control->OnFocus(FALSE);
  if (const ComPtr<IOleInPlaceSite> site = inPlaceSite_) site->OnUIDeactivate(FALSE);
}

void Activation::deactivate() {
  if (!isInPlace()) return;
  deactivateUi();
  const ComPtr<IOleInPlaceSite> site = inPlaceSite_;
  if (!site) return;
  inPlaceSite_ = {};
  frame_ = {};
  document_ = {};
  session_.settledEditor();
  session_.window().hide();
  site->OnInPlaceDeactivate();
}

void Activation::move(const RECT& position, const RECT& clip) {
  if (isInPlace()) session_.window().move(position, clip);
}

void Activation::followAmbient() {
  if (!session_.hasWindow()) return;
  if (const auto font = site_.font()) session_.screen().setFont(*font);
  const auto background = site_.colour(DISPID_AMBIENT_BACKCOLOR);
  const auto text = site_.colour(DISPID_AMBIENT_FORECOLOR);
  if (background && text) session_.screen().setColors(*background, *text);
  // A container that has its user interface off, or is being designed, takes no input here.
  const bool takesInput = !site_.flag(DISPID_AMBIENT_UIDEAD, false) && site_.flag(DISPID_AMBIENT_USERMODE, true);
  EnableWindow(session_.window().handle(), takesInput ? TRUE : FALSE);
}

void Activation::tellActiveObject(bool active) {
  ComPtr<IOleInPlaceActiveObject> object;
  if (active) lifetime_.whole().QueryInterface(IID_IOleInPlaceActiveObject, object.putVoid());
  const wchar_t* const name = active ? nameForTitles : nullptr;
  // Each may be gone after the other has been told.
  const ComPtr<IOleInPlaceFrame> frame = frame_;
  const ComPtr<IOleInPlaceUIWindow> document = document_;
  if (frame) frame->SetActiveObject(object.get(), name);
  if (document) document->SetActiveObject(object.get(), name);
  if (active && frame) frame->SetBorderSpace(nullptr);
}

// While a dialog of ours is open the container opens none of its own.
void Activation::tellModal(bool open) {
  if (const ComPtr<IOleInPlaceFrame> frame = frame_) frame->EnableModeless(open ? FALSE : TRUE);
}

}  // namespace mavCycEd::com
