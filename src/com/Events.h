#pragma once

#include <deque>
#include <map>
#include <vector>

#include "com/Lifetime.h"
#include "com/Pointers.h"
#include "control/CycleEditorErrorEvent.h"

namespace mavCycEd::com {

/// The connection point of the control's events: who listens, and telling them.
class Events : public IConnectionPoint {
 public:
  explicit Events(Lifetime& lifetime) : lifetime_(lifetime) {}
  virtual ~Events() = default;
  Events(const Events&) = delete;
  Events& operator=(const Events&) = delete;

  /// Tells every listener, or keeps the event for later while the container holds events back.
  void raise(const CycleEditorErrorEvent& event);
  /// Holds events back until this has been taken back as often.
  void freeze(bool frozen);

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return lifetime_.whole().AddRef(); }
  STDMETHODIMP_(ULONG) Release() override { return lifetime_.whole().Release(); }

  STDMETHODIMP GetConnectionInterface(IID* iid) override;
  STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) override;
  STDMETHODIMP Advise(IUnknown* listener, DWORD* cookie) override;
  STDMETHODIMP Unadvise(DWORD cookie) override;
  STDMETHODIMP EnumConnections(IEnumConnections** connections) override;

 private:
  void tell(const CycleEditorErrorEvent& event);

  Lifetime& lifetime_;
  std::map<DWORD, ComPtr<IDispatch>> listeners_;
  DWORD lastCookie_ = 0;
  int freezes_ = 0;
  std::deque<CycleEditorErrorEvent> waiting_;
};

/// Leads containers to the connection point.
class ConnectionPoints : public Part<IConnectionPointContainer> {
 public:
  ConnectionPoints(Lifetime& lifetime, Events& events) : Part(lifetime), events_(events) {}

  STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** points) override;
  STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** point) override;

 private:
  Events& events_;
};

}  // namespace mavCycEd::com
