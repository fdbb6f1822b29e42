#include "com/Barrier.h"

#include <new>

namespace mavCycEd::com {

HRESULT currentFailure() noexcept {
  try {
    throw;
  } catch (const Failure& failure) {
    return failure.code();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace mavCycEd::com
