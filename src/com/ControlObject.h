#pragma once

#include <atomic>

#include "com/Activation.h"
#include "com/Automation.h"
#include "com/ClassFacts.h"
#include "com/EditorSession.h"
#include "com/Events.h"
#include "com/Extent.h"
#include "com/InPlace.h"
#include "com/Lifetime.h"
#include "com/OleControl.h"
#include "com/OleObject.h"
#include "com/Persistence.h"
#include "com/ServerLock.h"
#include "com/Site.h"
#include "com/View.h"

namespace mavCycEd::com {

/// The control as a COM object: its references, and the parts that answer for its interfaces. Its own IUnknown is the
/// object's identity; inside another object, which gives it out as its own, the parts answer with that one's.
class ControlObject : public IUnknown {
 public:
  /// Makes a control, inside `outer` if there is one, and hands out an interface of it.
  static HRESULT create(IUnknown* outer, REFIID iid, void** object);

  STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override;
  STDMETHODIMP_(ULONG) Release() override;

 private:
  explicit ControlObject(IUnknown* outer) : lifetime_(outer != nullptr ? *outer : *this) {}
  virtual ~ControlObject() = default;

  IUnknown* find(REFIID iid);

  ServerLock lock_;
  std::atomic<ULONG> references_{0};
  Lifetime lifetime_;
  Site site_;
  Extent extent_;
  Events events_{lifetime_};
  EditorSession session_{lifetime_, events_};
  Activation activation_{lifetime_, site_, session_};

  Automation automation_{lifetime_, session_};
  ClassFacts classFacts_{lifetime_};
  ConnectionPoints connectionPoints_{lifetime_, events_};
  OleObject oleObject_{lifetime_, site_, extent_, activation_};
  OleControl oleControl_{lifetime_, session_, activation_, events_};
  InPlaceObject inPlaceObject_{lifetime_, session_, extent_, activation_};
  InPlaceActiveObject inPlaceActiveObject_{lifetime_, site_, session_, activation_};
  View view_{lifetime_, site_, extent_};
  Persistence persistence_{lifetime_, extent_};
  PropertyBagPersistence propertyBagPersistence_{lifetime_};
};

}  // namespace mavCycEd::com
