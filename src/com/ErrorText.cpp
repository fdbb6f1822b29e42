#include "com/ErrorText.h"

#include "com/Pointers.h"

namespace mavCycEd::com {
namespace {

const wchar_t* wordsFor(HRESULT code) {
  switch (code) {
    case E_OUTOFMEMORY: return L"There is not enough memory.";
    case E_POINTER: return L"An argument leads nowhere.";
    default: return L"The cycle editor could not carry out the call.";
  }
}

}  // namespace

HRESULT explained(HRESULT code) noexcept {
  if (SUCCEEDED(code)) return code;
  ComPtr<ICreateErrorInfo> details;
  if (FAILED(CreateErrorInfo(details.put()))) return code;
  // Each of these has its own copy made, or goes without.
  details->SetGUID(__uuidof(_ctlCycEd));
  details->SetSource(const_cast<LPOLESTR>(L"mavCycEd.ctlCycEd"));
  details->SetDescription(const_cast<LPOLESTR>(wordsFor(code)));
  details->SetHelpFile(const_cast<LPOLESTR>(L"mavCycEd.chm"));
  if (const ComPtr<IErrorInfo> error = details.as<IErrorInfo>()) SetErrorInfo(0, error.get());
  return code;
}

}  // namespace mavCycEd::com
