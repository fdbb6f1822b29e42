#include <array>
#include <cwchar>
#include <map>

#include "Library.h"

namespace mavCycEd::test {
namespace {

// Names of the registry are the same in any case.
struct AnyCase {
  bool operator()(const std::wstring& a, const std::wstring& b) const { return _wcsicmp(a.c_str(), b.c_str()) < 0; }
};
using Keys = std::map<std::wstring, std::wstring, AnyCase>;  // a key's path, a backslash and a value's name: its text

// Everything below a key.
void collect(HKEY parent, const std::wstring& path, Keys& keys) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(parent, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return;
  keys[path + L"\\"] = L"";
  std::array<wchar_t, 300> name{};
  for (DWORD i = 0;; ++i) {
    std::array<wchar_t, 600> text{};
    auto nameSize = static_cast<DWORD>(name.size());
    auto textSize = static_cast<DWORD>(sizeof text);
    if (RegEnumValueW(key, i, name.data(), &nameSize, nullptr, nullptr, reinterpret_cast<BYTE*>(text.data()),
                      &textSize) != ERROR_SUCCESS) {
      break;
    }
    keys[path + L"\\" + name.data()] = text.data();
  }
  for (DWORD i = 0;; ++i) {
    auto nameSize = static_cast<DWORD>(name.size());
    if (RegEnumKeyExW(key, i, name.data(), &nameSize, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
    collect(parent, path + L"\\" + name.data(), keys);
  }
  RegCloseKey(key);
}

Keys classes(HKEY root) {
  Keys keys;
  collect(root, L"Software\\Classes", keys);
  return keys;
}

class RegistrationTest : public ComTest {
 protected:
  HRESULT machine(bool on) {
    return library_.function<HRESULT STDMETHODCALLTYPE()>(on ? "DllRegisterServer" : "DllUnregisterServer")();
  }
  HRESULT install(bool on, const wchar_t* commandLine) {
    return library_.function<HRESULT STDMETHODCALLTYPE(BOOL, LPCWSTR)>("DllInstall")(on ? TRUE : FALSE, commandLine);
  }

  // Windows has this key for every user; Wine makes it with the first entry.
  void SetUp() override {
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyW(HKEY_CURRENT_USER, L"Software\\Classes", &key), ERROR_SUCCESS);
    RegCloseKey(key);
  }
  void TearDown() override {
    EXPECT_EQ(machine(false), S_OK);
    EXPECT_EQ(install(false, L"user"), S_OK);
  }
};

const std::wstring classKey = L"Software\\Classes\\CLSID\\{393DA132-03C0-4C52-9926-1ED6AFDD0E8B}";

// What containers and the system look up.
void expectRegistered(Keys keys) {
  std::array<wchar_t, MAX_PATH> file{};
  GetModuleFileNameW(GetModuleHandleW(L"mavCycEd.dll"), file.data(), MAX_PATH);
  EXPECT_EQ(keys[classKey + L"\\InprocServer32\\"], file.data());
  EXPECT_EQ(keys[classKey + L"\\InprocServer32\\ThreadingModel"], L"Apartment");
  EXPECT_EQ(keys[classKey + L"\\ProgID\\"], L"mavCycEd.ctlCycEd.1");
  EXPECT_EQ(keys[classKey + L"\\VersionIndependentProgID\\"], L"mavCycEd.ctlCycEd");
  EXPECT_EQ(keys[classKey + L"\\TypeLib\\"], L"{53DBFF2F-19DC-42D0-8E44-34EC7F4071A7}");
  EXPECT_EQ(keys[classKey + L"\\Version\\"], L"1.3");
  EXPECT_EQ(keys[classKey + L"\\ToolboxBitmap32\\"], std::wstring(file.data()) + L", 1");
  EXPECT_TRUE(keys.contains(classKey + L"\\Control\\"));
  EXPECT_FALSE(keys.contains(classKey + L"\\Insertable\\"));
  EXPECT_EQ(keys[classKey + L"\\MiscStatus\\1\\"], L"131473");
  EXPECT_EQ(keys[L"Software\\Classes\\mavCycEd.ctlCycEd\\CLSID\\"], L"{393DA132-03C0-4C52-9926-1ED6AFDD0E8B}");
  EXPECT_EQ(keys[L"Software\\Classes\\mavCycEd.ctlCycEd\\CurVer\\"], L"mavCycEd.ctlCycEd.1");
  EXPECT_EQ(keys[L"Software\\Classes\\mavCycEd.ctlCycEd.1\\CLSID\\"], L"{393DA132-03C0-4C52-9926-1ED6AFDD0E8B}");
  EXPECT_EQ(keys[L"Software\\Classes\\TypeLib\\{53DBFF2F-19DC-42D0-8E44-34EC7F4071A7}\\1.3\\0\\win64\\"], file.data());
}

TEST_F(RegistrationTest, ForTheMachineLeavesNothingWhenTakenBack) {
  machine(false);
  install(false, L"user");
  const Keys before = classes(HKEY_LOCAL_MACHINE);
  const Keys userBefore = classes(HKEY_CURRENT_USER);
  ASSERT_EQ(machine(true), S_OK);
  expectRegistered(classes(HKEY_LOCAL_MACHINE));
  EXPECT_EQ(classes(HKEY_CURRENT_USER), userBefore);
  EXPECT_EQ(machine(true), S_OK) << "once more";
  ASSERT_EQ(machine(false), S_OK);
  EXPECT_EQ(classes(HKEY_LOCAL_MACHINE), before);
  EXPECT_EQ(machine(false), S_OK) << "nothing is there";
}

TEST_F(RegistrationTest, ForTheUserAloneLeavesTheMachineAsItIs) {
  machine(false);
  install(false, L"user");
  const Keys before = classes(HKEY_LOCAL_MACHINE);
  const Keys userBefore = classes(HKEY_CURRENT_USER);
  ASSERT_EQ(install(true, L"user"), S_OK);
  expectRegistered(classes(HKEY_CURRENT_USER));
  EXPECT_EQ(classes(HKEY_LOCAL_MACHINE), before);
  ASSERT_EQ(install(false, L"USER"), S_OK);
  EXPECT_EQ(classes(HKEY_CURRENT_USER), userBefore);
}

TEST_F(RegistrationTest, RefusesACommandLineThatItDoesNotKnow) { EXPECT_EQ(install(true, L"everybody"), E_INVALIDARG); }

TEST_F(RegistrationTest, TheClassIsCreatedByItsName) {
  ASSERT_EQ(machine(true), S_OK);
  CLSID classId{};
  ASSERT_EQ(CLSIDFromProgID(L"mavCycEd.ctlCycEd", &classId), S_OK);
  EXPECT_EQ(classId, CLSID_ctlCycEd);
  ComPtr<_ctlCycEd> editor;
  ASSERT_EQ(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID__ctlCycEd, editor.putVoid()), S_OK);
  EXPECT_EQ(editor->SetXMLStrings(Text(catalogue), Text(macroText)), S_OK);
}

}  // namespace
}  // namespace mavCycEd::test
