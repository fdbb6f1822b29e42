#include "com/Events.h"

#include <array>
#include <utility>

#include "com/BasicStrings.h"
#include "com/Enumerator.h"

namespace mavCycEd::com {
namespace {

constexpr DISPID cycleEditorError = 1;

struct ConnectionPolicy {
  using Interface = IEnumConnections;
  using Kept = std::pair<DWORD, ComPtr<IDispatch>>;
  using Given = CONNECTDATA;
  static CONNECTDATA give(const Kept& kept) { return {ComPtr<IUnknown>(kept.second.get()).detach(), kept.first}; }
};

struct ConnectionPointPolicy {
  using Interface = IEnumConnectionPoints;
  using Kept = ComPtr<IConnectionPoint>;
  using Given = IConnectionPoint*;
  static IConnectionPoint* give(const Kept& kept) { return Kept(kept).detach(); }
};

VARIANTARG textArgument(const BasicString& text) {
  VARIANTARG argument{};
  argument.vt = VT_BSTR;
  argument.bstrVal = text.get();
  return argument;
}

}  // namespace

void Events::raise(const CycleEditorErrorEvent& event) {
  if (freezes_ > 0) {
    waiting_.push_back(event);
    return;
  }
  lifetime_.stayUntilIdle();
  tell(event);
}

void Events::freeze(bool frozen) {
  if (frozen) {
    ++freezes_;
    return;
  }
  if (freezes_ > 0) --freezes_;
  while (freezes_ == 0 && !waiting_.empty()) {
    const CycleEditorErrorEvent event = std::move(waiting_.front());
    waiting_.pop_front();
    tell(event);
  }
}

// Listeners may come and go while they are told: those of the beginning are told.
void Events::tell(const CycleEditorErrorEvent& event) {
  const BasicString description(event.strError);
  const BasicString application(event.strApplication);
  const BasicString module(event.strModule);
  const BasicString procedure(event.strProcedure);
  // Automation has the last argument first.
  std::array<VARIANTARG, 6> arguments{};
  arguments[0].vt = VT_I2;
  arguments[0].iVal = event.intLineNumber;
  arguments[1] = textArgument(procedure);
  arguments[2] = textArgument(module);
  arguments[3] = textArgument(application);
  arguments[4] = textArgument(description);
  arguments[5].vt = VT_I4;
  arguments[5].lVal = event.lngError;

  const auto listeners = listeners_;
  for (const auto& [cookie, listener] : listeners) {
    DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    // A listener that fails is none of the editor's business.
    listener->Invoke(cycleEditorError, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr,
                     nullptr);
  }
}

// A connection point is an object of its own, though it lives as long as the control.
STDMETHODIMP Events::QueryInterface(REFIID iid, void** object) {
  return barrier([&] {
    void*& result = out(object);
    if (iid != IID_IUnknown && iid != IID_IConnectionPoint) return E_NOINTERFACE;
    result = static_cast<IConnectionPoint*>(this);
    AddRef();
    return S_OK;
  });
}

STDMETHODIMP Events::GetConnectionInterface(IID* iid) {
  return barrier([&] { out(iid) = __uuidof(__ctlCycEd); });
}

STDMETHODIMP Events::GetConnectionPointContainer(IConnectionPointContainer** container) {
  return barrier([&] {
    out(container);
    return lifetime_.whole().QueryInterface(IID_IConnectionPointContainer, reinterpret_cast<void**>(container));
  });
}

STDMETHODIMP Events::Advise(IUnknown* listener, DWORD* cookie) {
  const Lifetime::Stay stay(lifetime_);
  return barrier([&] {
    DWORD& result = out(cookie);
    requireReadable(listener, sizeof *listener);
    // Listeners answer to the event interface, or are plain dispatch objects.
    ComPtr<IDispatch> receiver;
    if (FAILED(listener->QueryInterface(__uuidof(__ctlCycEd), receiver.putVoid()))) {
      receiver = ComPtr<IUnknown>(listener).as<IDispatch>();
    }
    if (!receiver) return CONNECT_E_CANNOTCONNECT;
    listeners_.emplace(lastCookie_ + 1, receiver);
    result = ++lastCookie_;
    return S_OK;
  });
}

STDMETHODIMP Events::Unadvise(DWORD cookie) {
  const Lifetime::Stay stay(lifetime_);
  return barrier([&] {
    const auto found = listeners_.find(cookie);
    if (found == listeners_.end()) return CONNECT_E_NOCONNECTION;
    const ComPtr<IDispatch> listener = found->second;  // whose end may lead back here
    listeners_.erase(found);
    return S_OK;
  });
}

STDMETHODIMP Events::EnumConnections(IEnumConnections** connections) {
  return barrier([&] {
    IEnumConnections*& result = out(connections);
    std::vector<ConnectionPolicy::Kept> kept(listeners_.begin(), listeners_.end());
    result = ComPtr<IEnumConnections>(new Enumerator<ConnectionPolicy>(std::move(kept))).detach();
  });
}

STDMETHODIMP ConnectionPoints::EnumConnectionPoints(IEnumConnectionPoints** points) {
  return entry([&] {
    IEnumConnectionPoints*& result = out(points);
    std::vector<ConnectionPointPolicy::Kept> kept{ComPtr<IConnectionPoint>(&events_)};
    result = ComPtr<IEnumConnectionPoints>(new Enumerator<ConnectionPointPolicy>(std::move(kept))).detach();
  });
}

STDMETHODIMP ConnectionPoints::FindConnectionPoint(REFIID iid, IConnectionPoint** point) {
  return entry([&] {
    IConnectionPoint*& result = out(point);
    if (iid != __uuidof(__ctlCycEd)) return CONNECT_E_NOCONNECTION;
    result = ComPtr<IConnectionPoint>(&events_).detach();
    return S_OK;
  });
}

}  // namespace mavCycEd::com
