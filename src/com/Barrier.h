#pragma once

#include <exception>
#include <type_traits>
#include <utility>

#include "com/Com.h"

namespace mavCycEd::com {

/// A failure on its way to the entry point that answers with it.
class Failure : public std::exception {
 public:
  explicit Failure(HRESULT code) : code_(code) {}
  HRESULT code() const { return code_; }

 private:
  HRESULT code_;
};

/// Throws what failed.
inline void check(HRESULT result) {
  if (FAILED(result)) throw Failure(result);
}

/// The code for the exception that is being handled at this moment: call it inside a catch block.
HRESULT currentFailure() noexcept;

/// What every entry point runs its work in: no exception gets out, each becomes a code. `body` returns a code, or
/// nothing, which stands for S_OK.
template <typename Body>
HRESULT barrier(Body&& body) noexcept {
  try {
    if constexpr (std::is_void_v<std::invoke_result_t<Body>>) {
      std::forward<Body>(body)();
      return S_OK;
    } else {
      return std::forward<Body>(body)();
    }
  } catch (...) {
    return currentFailure();
  }
}

}  // namespace mavCycEd::com
