#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include "com/Standalone.h"

namespace mavCycEd::com {

/// One of COM's enumerators over a list of items as it was when the enumerator was made. An item of `Policy::Kept` owns
/// its references; Policy::give makes of it what a caller gets and releases.
template <typename Policy>
class Enumerator : public Standalone<typename Policy::Interface> {
 public:
  using Kept = typename Policy::Kept;
  using Given = typename Policy::Given;

  explicit Enumerator(std::vector<Kept> items, std::size_t next = 0) : items_(std::move(items)), next_(next) {}

  STDMETHODIMP Next(ULONG wanted, Given* items, ULONG* fetched) override {
    return barrier([&] {
      if (fetched != nullptr) out(fetched);
      // Without a count the caller can only take one.
      if (fetched == nullptr && wanted != 1) throw Failure(E_POINTER);
      if (wanted == 0) return S_OK;
      const std::size_t count = std::min<std::size_t>(wanted, items_.size() - next_);
      requireWritable(items, wanted * sizeof(Given));
      for (std::size_t i = 0; i < count; ++i) items[i] = Policy::give(items_[next_ + i]);
      next_ += count;
      if (fetched != nullptr) *fetched = static_cast<ULONG>(count);
      return count == wanted ? S_OK : S_FALSE;
    });
  }

  STDMETHODIMP Skip(ULONG count) override {
    const std::size_t left = items_.size() - next_;
    next_ += std::min<std::size_t>(count, left);
    return count <= left ? S_OK : S_FALSE;
  }

  STDMETHODIMP Reset() override {
    next_ = 0;
    return S_OK;
  }

  STDMETHODIMP Clone(typename Policy::Interface** copy) override {
    return barrier([&] { out(copy) = ComPtr<typename Policy::Interface>(new Enumerator(items_, next_)).detach(); });
  }

 private:
  std::vector<Kept> items_;
  std::size_t next_;
};

}  // namespace mavCycEd::com
