#include "com/View.h"

#include "com/MiscStatus.h"

namespace mavCycEd::com {
namespace {

void requireContent(DWORD aspect) {
  if (aspect != DVASPECT_CONTENT) throw Failure(DV_E_DVASPECT);
}

// A plain board with the class's name; only what a metafile can hold.
void drawBoard(HDC context, RECT board, COLORREF back, COLORREF fore) {
  const int before = SaveDC(context);
  const HBRUSH brush = CreateSolidBrush(back);
  FillRect(context, &board, brush);
  DeleteObject(brush);
  FrameRect(context, &board, GetSysColorBrush(COLOR_WINDOWFRAME));
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, fore);
  SelectObject(context, GetStockObject(DEFAULT_GUI_FONT));
  DrawTextW(context, className, -1, &board, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
  RestoreDC(context, before);
}

}  // namespace

STDMETHODIMP View::Draw(DWORD aspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC context, LPCRECTL bounds, LPCRECTL,
                        BOOL(STDMETHODCALLTYPE*)(ULONG_PTR), ULONG_PTR) {
  return entry([&] {
    requireContent(aspect);
    if (context == nullptr) throw Failure(E_INVALIDARG);
    requireReadable(bounds, sizeof *bounds);
    drawBoard(context, {bounds->left, bounds->top, bounds->right, bounds->bottom},
              site_.colour(DISPID_AMBIENT_BACKCOLOR).value_or(GetSysColor(COLOR_BTNFACE)),
              site_.colour(DISPID_AMBIENT_FORECOLOR).value_or(GetSysColor(COLOR_BTNTEXT)));
  });
}

STDMETHODIMP View::GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC, LOGPALETTE** palette) {
  return entry([&] {
    out(palette);
    return S_FALSE;
  });
}

STDMETHODIMP View::Freeze(DWORD, LONG, void*, DWORD*) { return E_NOTIMPL; }
STDMETHODIMP View::Unfreeze(DWORD) { return E_NOTIMPL; }

STDMETHODIMP View::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* listener) {
  return entry([&] {
    if (listener != nullptr) requireReadable(listener, sizeof *listener);
    listener_ = ComPtr<IAdviseSink>(listener);
    listenerAspects_ = aspects;
    listenerFlags_ = flags;
    if (listener_ && (flags & ADVF_PRIMEFIRST) != 0) listener_->OnViewChange(aspects, -1);
  });
}

STDMETHODIMP View::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** listener) {
  return entry([&] {
    if (aspects != nullptr) out(aspects) = listenerAspects_;
    if (flags != nullptr) out(flags) = listenerFlags_;
    if (listener != nullptr) out(listener) = ComPtr<IAdviseSink>(listener_).detach();
  });
}

STDMETHODIMP View::GetExtent(DWORD aspect, LONG, DVTARGETDEVICE*, LPSIZEL size) {
  return entry([&] {
    SIZEL& result = out(size);
    requireContent(aspect);
    result = extent_.size();
  });
}

STDMETHODIMP View::GetRect(DWORD aspect, LPRECTL rect) {
  return entry([&] {
    RECTL& result = out(rect);
    requireContent(aspect);
    result = {0, 0, extent_.size().cx, extent_.size().cy};
  });
}

STDMETHODIMP View::GetViewStatus(DWORD* status) {
  return entry([&] { out(status) = VIEWSTATUS_OPAQUE | VIEWSTATUS_SOLIDBKGND; });
}

STDMETHODIMP View::QueryHitPoint(DWORD aspect, LPCRECT bounds, POINT point, LONG, DWORD* hit) {
  return entry([&] {
    DWORD& result = out(hit);
    requireContent(aspect);
    requireReadable(bounds, sizeof *bounds);
    result = PtInRect(bounds, point) != FALSE ? HITRESULT_HIT : HITRESULT_OUTSIDE;
  });
}

STDMETHODIMP View::QueryHitRect(DWORD aspect, LPCRECT bounds, LPCRECT rect, LONG, DWORD* hit) {
  return entry([&] {
    DWORD& result = out(hit);
    requireContent(aspect);
    requireReadable(bounds, sizeof *bounds);
    requireReadable(rect, sizeof *rect);
    RECT common{};
    result = IntersectRect(&common, bounds, rect) != FALSE ? HITRESULT_HIT : HITRESULT_OUTSIDE;
  });
}

STDMETHODIMP View::GetNaturalExtent(DWORD, LONG, DVTARGETDEVICE*, HDC, DVEXTENTINFO*, LPSIZEL) { return E_NOTIMPL; }

}  // namespace mavCycEd::com
