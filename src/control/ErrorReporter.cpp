#include "control/ErrorReporter.h"

#include <string>

#include "control/Version.h"

namespace mavCycEd {
namespace {

class Counted {
 public:
  explicit Counted(int& count) : count_(++count) {}
  ~Counted() { --count_; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

 private:
  int& count_;
};

}  // namespace

void ErrorReporter::report(const RunTimeError& error, std::string_view procedure) noexcept {
  constexpr int deepest = 16;
  constexpr int mostInside = 32;
  if (ended_) return;
  if (told_ == 0) inside_ = 0;
  try {
    errors_.copyError(error);
    // A copy is called: the handler may end the control.
    const CycleEditorErrorHandler onError = onError_;
    if (!onError || told_ >= deepest || inside_ >= mostInside) return;
    if (told_ > 0) ++inside_;
    CycleEditorErrorEvent event;
    event.lngError = errors_.record().number;
    event.strError = errors_.record().description;
    event.strApplication = applicationText();
    event.strModule = "ctlCycEd";
    event.strProcedure = std::string(procedure) + " ";
    event.intLineNumber = error.lineNumber();
    const Counted counted(told_);
    onError(event);
  } catch (...) {
    // The host's handler failed, or there is no memory left to tell it anything: there is nobody else to tell.
    return;
  }
}

}  // namespace mavCycEd
