#include "com/Persistence.h"

#include <cstdint>

#include "com/Pointers.h"

namespace mavCycEd::com {
namespace {

// What stands in the stream. Later versions may write more behind it.
struct Stored {
  std::uint32_t version = 1;
  std::int32_t width = 0;
  std::int32_t height = 0;
};
static_assert(sizeof(Stored) == 12);

}  // namespace

STDMETHODIMP Persistence::GetClassID(CLSID* classId) {
  return entry([&] { out(classId) = __uuidof(::ctlCycEd); });
}

STDMETHODIMP Persistence::IsDirty() { return extent_.isDirty() ? S_OK : S_FALSE; }

STDMETHODIMP Persistence::Load(IStream* stream) {
  return entry([&] {
    requireReadable(stream, sizeof *stream);
    Stored stored;
    ULONG size = 0;
    check(stream->Read(&stored, sizeof stored, &size));
    if (size != sizeof stored || stored.version == 0 || stored.width < 0 || stored.height < 0) throw Failure(E_FAIL);
    extent_.set({stored.width, stored.height});
    extent_.setDirty(false);
  });
}

STDMETHODIMP Persistence::Save(IStream* stream, BOOL clearDirty) {
  return entry([&] {
    requireReadable(stream, sizeof *stream);
    const Stored stored{.width = extent_.size().cx, .height = extent_.size().cy};
    ULONG size = 0;
    check(stream->Write(&stored, sizeof stored, &size));
    if (size != sizeof stored) throw Failure(STG_E_MEDIUMFULL);
    if (clearDirty != FALSE) extent_.setDirty(false);
  });
}

STDMETHODIMP Persistence::GetSizeMax(ULARGE_INTEGER* size) {
  return entry([&] { out(size).QuadPart = sizeof(Stored); });
}

STDMETHODIMP Persistence::InitNew() {
  extent_.reset();
  return S_OK;
}

STDMETHODIMP PropertyBagPersistence::GetClassID(CLSID* classId) {
  return entry([&] { out(classId) = __uuidof(::ctlCycEd); });
}

STDMETHODIMP PropertyBagPersistence::Load(IPropertyBag* bag, IErrorLog*) {
  return entry([&] { requireReadable(bag, sizeof *bag); });
}

STDMETHODIMP PropertyBagPersistence::Save(IPropertyBag* bag, BOOL, BOOL) {
  return entry([&] { requireReadable(bag, sizeof *bag); });
}

}  // namespace mavCycEd::com
