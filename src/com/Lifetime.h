#pragma once

#include <memory>
#include <utility>

#include "com/Barrier.h"
#include "com/Com.h"

namespace mavCycEd::com {

/// A COM object as its parts know it: whose IUnknown they forward theirs to, and how they keep the object alive while
/// they work. A host may let go of the control in answer to anything that the control tells it.
class Lifetime {
 public:
  explicit Lifetime(IUnknown& whole);
  ~Lifetime();
  Lifetime(const Lifetime&) = delete;
  Lifetime& operator=(const Lifetime&) = delete;

  /// The object as the outside knows it.
  IUnknown& whole() { return whole_; }

  /// Keeps the object alive while it lives itself. Every entry point of the host's has one.
  class Stay {
   public:
    explicit Stay(Lifetime& lifetime) : lifetime_(lifetime) {
      ++lifetime_.stays_;
      lifetime_.whole_.AddRef();
    }
    ~Stay() {
      --lifetime_.stays_;
      lifetime_.whole_.Release();
    }
    Stay(const Stay&) = delete;
    Stay& operator=(const Stay&) = delete;

   private:
    Lifetime& lifetime_;
  };

  /// Keeps the object alive until the messages at hand have been dealt with: for what happens at the screen and not in
  /// a call of the host's.
  void stayUntilIdle();

  /// While something modal is open, and until whoever opened it is through, the object stays, whatever the host does
  /// meanwhile.
  class StayWhileModal {
   public:
    explicit StayWhileModal(Lifetime& lifetime) : lifetime_(lifetime) { lifetime_.whole_.AddRef(); }
    ~StayWhileModal() {
      lifetime_.stayUntilIdle();
      lifetime_.whole_.Release();
    }
    StayWhileModal(const StayWhileModal&) = delete;
    StayWhileModal& operator=(const StayWhileModal&) = delete;

   private:
    Lifetime& lifetime_;
  };

 private:
  class IdleWindow;

  IUnknown& whole_;
  int stays_ = 0;
  std::unique_ptr<IdleWindow> idleWindow_;
};

/// What the parts of an object have in common: their IUnknown is the whole object's.
template <typename... Interfaces>
class Part : public Interfaces... {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    return lifetime_.whole().QueryInterface(iid, object);
  }
  STDMETHODIMP_(ULONG) AddRef() override { return lifetime_.whole().AddRef(); }
  STDMETHODIMP_(ULONG) Release() override { return lifetime_.whole().Release(); }

 protected:
  explicit Part(Lifetime& lifetime) : lifetime_(lifetime) {}
  ~Part() = default;

  /// What every entry point of a part runs its work in.
  template <typename Body>
  HRESULT entry(Body&& body) noexcept {
    const Lifetime::Stay stay(lifetime_);
    return barrier(std::forward<Body>(body));
  }

  Lifetime& lifetime_;
};

}  // namespace mavCycEd::com
