#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "com/Com.h"
#include "com/Pointers.h"

/// The component as a client gets it: the library that the build has made beside this program, and what it exports.
namespace mavCycEd::test {

using com::ComPtr;

/// A pointer that leads nowhere, as the compiler cannot know.
template <typename Type>
Type* nowhere() {
  static const volatile std::uintptr_t address = 0x10;
  return reinterpret_cast<Type*>(address);
}

/// COM is there while one of these is.
class Apartment {
 public:
  Apartment() { OleInitialize(nullptr); }
  ~Apartment() { OleUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

class Library {
 public:
  explicit Library(const wchar_t* file = L"mavCycEd.dll") : module_(LoadLibraryW(file)) {}
  ~Library() { FreeLibrary(module_); }
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;

  bool isLoaded() const { return module_ != nullptr; }
  template <typename Function>
  Function* function(const char* name) const {
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
  }

  ComPtr<IClassFactory> factory() const {
    ComPtr<IClassFactory> factory;
    const auto get = function<HRESULT STDMETHODCALLTYPE(REFCLSID, REFIID, void**)>("DllGetClassObject");
    EXPECT_EQ(get(CLSID_ctlCycEd, IID_IClassFactory, factory.putVoid()), S_OK);
    return factory;
  }
  ComPtr<IUnknown> control() const {
    ComPtr<IUnknown> control;
    EXPECT_EQ(factory()->CreateInstance(nullptr, IID_IUnknown, control.putVoid()), S_OK);
    return control;
  }
  template <typename Interface>
  ComPtr<Interface> control() const {
    return control().as<Interface>();
  }
  HRESULT canUnload() const { return function<HRESULT STDMETHODCALLTYPE()>("DllCanUnloadNow")(); }

 private:
  HMODULE module_;
};

/// A test with the library in memory, all of whose objects are gone at its end.
class ComTest : public testing::Test {
 protected:
  ComTest() { EXPECT_TRUE(library_.isLoaded()); }
  // What a test holds as its members is gone by now.
  ~ComTest() override {
    pump();
    EXPECT_EQ(library_.canUnload(), S_OK) << "objects or locks are left";
  }

  /// Deals with the messages that wait.
  static void pump() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }

  Apartment apartment_;
  Library library_;
};

/// A value that is freed with its owner.
class Value {
 public:
  Value() { VariantInit(&value_); }
  explicit Value(const wchar_t* text) : Value() {
    value_.vt = VT_BSTR;
    value_.bstrVal = SysAllocString(text);
  }
  explicit Value(bool truth) : Value() {
    value_.vt = VT_BOOL;
    value_.boolVal = truth ? VARIANT_TRUE : VARIANT_FALSE;
  }
  explicit Value(int number) : Value() {
    value_.vt = VT_I4;
    value_.lVal = number;
  }
  explicit Value(IUnknown* object) : Value() {
    value_.vt = VT_UNKNOWN;
    value_.punkVal = object;
    if (object != nullptr) object->AddRef();
  }
  Value(const Value& other) : Value() { VariantCopy(&value_, const_cast<VARIANT*>(&other.value_)); }
  Value& operator=(const Value&) = delete;
  ~Value() { VariantClear(&value_); }

  VARIANT* get() { return &value_; }
  VARTYPE type() const { return value_.vt; }
  std::wstring text() const {
    return value_.vt == VT_BSTR ? std::wstring(value_.bstrVal, SysStringLen(value_.bstrVal)) : L"(no text)";
  }
  bool truth() const { return value_.vt == VT_BOOL && value_.boolVal != VARIANT_FALSE; }
  VARIANT raw() const { return value_; }

 private:
  VARIANT value_{};
};

/// A text of ours, as an argument.
class Text {
 public:
  explicit Text(const std::wstring& text) : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
  ~Text() { SysFreeString(text_); }
  Text(const Text&) = delete;
  Text& operator=(const Text&) = delete;
  operator BSTR() const { return text_; }

 private:
  BSTR text_;
};

inline const wchar_t* const catalogue =
    L"<LATESTKAM><ATOMS><ATOM><AtomName>WAIT</AtomName><Param>Time;0;100;5;1;s</Param></ATOM>"
    L"<ATOM><AtomName>HOME</AtomName></ATOM></ATOMS><CLASSES/><OBJECTS/><LISTS/></LATESTKAM>";
inline const wchar_t* const macroText = L"[PMA]\r\n//\u00b5 \u4e2d \U0001F40D\r\nWAIT(7)\r\nHOME()\r\n";

}  // namespace mavCycEd::test
