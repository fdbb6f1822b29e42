#include "platform/ErrorSink.h"

namespace mavCycEd {

void reportCurrentError(ErrorSink& sink, std::string_view procedure) noexcept {
  try {
    sink.report(currentError(), procedure);
  } catch (...) {
    // There is no memory left even for the report.
    return;
  }
}

}  // namespace mavCycEd
