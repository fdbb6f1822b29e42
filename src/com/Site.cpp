#include "com/Site.h"

#include <string>

#include "win32/Text.h"

namespace mavCycEd::com {
namespace {

// A value that is freed with its owner.
class Variant {
 public:
  Variant() { VariantInit(&value); }
  ~Variant() { VariantClear(&value); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;

  VARIANT value;
};

// Asks the container; false where it does not say, or says something of another kind.
bool ambient(const ComPtr<IOleClientSite>& site, DISPID which, VARTYPE kind, Variant& result) {
  const ComPtr<IDispatch> properties = site.as<IDispatch>();
  if (!properties) return false;
  DISPPARAMS none{};
  if (FAILED(properties->Invoke(which, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &result.value,
                                nullptr, nullptr))) {
    return false;
  }
  return SUCCEEDED(VariantChangeType(&result.value, &result.value, 0, kind));
}

}  // namespace

std::optional<platform::Font> Site::font() const {
  Variant result;
  if (!ambient(client_, DISPID_AMBIENT_FONT, VT_DISPATCH, result)) return std::nullopt;
  const ComPtr<IFont> font = ComPtr<IDispatch>(result.value.pdispVal).as<IFont>();
  BSTR name = nullptr;
  CY size{};
  short characterSet = 0;
  if (!font || FAILED(font->get_Name(&name))) return std::nullopt;
  const std::wstring face(name, SysStringLen(name));
  SysFreeString(name);
  if (FAILED(font->get_Size(&size)) || FAILED(font->get_Charset(&characterSet))) return std::nullopt;
  constexpr double unitsPerPoint = 10000;  // of a currency value
  return platform::Font{win32::fromWide(face), static_cast<double>(size.int64) / unitsPerPoint, characterSet};
}

std::optional<COLORREF> Site::colour(DISPID which) const {
  Variant result;
  COLORREF colour = 0;
  if (!ambient(client_, which, VT_I4, result) ||
      FAILED(OleTranslateColor(static_cast<OLE_COLOR>(result.value.lVal), nullptr, &colour))) {
    return std::nullopt;
  }
  return colour;
}

bool Site::flag(DISPID which, bool otherwise) const {
  Variant result;
  return ambient(client_, which, VT_BOOL, result) ? result.value.boolVal != VARIANT_FALSE : otherwise;
}

}  // namespace mavCycEd::com
