#include "com/Registration.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "com/Barrier.h"
#include "com/MiscStatus.h"
#include "com/RegistryKey.h"
#include "com/TypeLibrary.h"

namespace mavCycEd::com {
namespace {

// The system's marshaller for interfaces that a type library describes.
constexpr const wchar_t* typeLibraryMarshaller = L"{00020424-0000-0000-C000-000000000046}";
constexpr const wchar_t* dispatchMarshaller = L"{00020420-0000-0000-C000-000000000046}";
// The category of controls.
constexpr const wchar_t* controlCategory = L"{40FC6ED4-2438-11CF-A3DB-080036F12502}";
constexpr const wchar_t* progId = L"mavCycEd.ctlCycEd";
constexpr const wchar_t* versionedProgId = L"mavCycEd.ctlCycEd.1";
constexpr int toolboxBitmap = 1;

struct Entry {
  std::wstring key;
  std::wstring name;  // empty: the key's own value
  std::wstring value;
};

std::wstring inBraces(REFGUID guid) {
  std::array<wchar_t, 40> text{};
  StringFromGUID2(guid, text.data(), static_cast<int>(text.size()));
  return text.data();
}

std::wstring classKey() { return L"CLSID\\" + inBraces(__uuidof(::ctlCycEd)); }
std::wstring libraryKey() { return L"TypeLib\\" + inBraces(LIBID_mavCycEd); }
std::wstring interfaceKey(REFGUID iid) { return L"Interface\\" + inBraces(iid); }

// As registrations have it: hexadecimal, without zeros in front.
std::wstring libraryVersion() { return std::to_wstring(typeLibraryMajor) + L"." + std::to_wstring(typeLibraryMinor); }

std::wstring folderOf(const std::wstring& file) { return file.substr(0, file.find_last_of(L"\\/")); }

void addNames(std::vector<Entry>& entries) {
  const std::wstring classId = inBraces(__uuidof(::ctlCycEd));
  entries.push_back({progId, L"", className});
  entries.push_back({std::wstring(progId) + L"\\CLSID", L"", classId});
  entries.push_back({std::wstring(progId) + L"\\CurVer", L"", versionedProgId});
  entries.push_back({versionedProgId, L"", className});
  entries.push_back({std::wstring(versionedProgId) + L"\\CLSID", L"", classId});
}

void addClass(std::vector<Entry>& entries, const std::wstring& file) {
  const std::wstring key = classKey();
  entries.push_back({key, L"", className});
  entries.push_back({key + L"\\InprocServer32", L"", file});
  entries.push_back({key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"});
  entries.push_back({key + L"\\ProgID", L"", versionedProgId});
  entries.push_back({key + L"\\VersionIndependentProgID", L"", progId});
  entries.push_back({key + L"\\TypeLib", L"", inBraces(LIBID_mavCycEd)});
  entries.push_back({key + L"\\Version", L"", libraryVersion()});
  // A control, and nothing to be inserted into documents.
  entries.push_back({key + L"\\Control", L"", L""});
  entries.push_back({key + L"\\MiscStatus", L"", L"0"});
  entries.push_back({key + L"\\MiscStatus\\1", L"", std::to_wstring(miscStatus)});
  entries.push_back({key + L"\\ToolboxBitmap32", L"", file + L", " + std::to_wstring(toolboxBitmap)});
  entries.push_back({key + L"\\Implemented Categories\\" + controlCategory, L"", L""});
  entries.push_back({key + L"\\Implemented Categories\\" + inBraces(CATID_SafeForInitializing), L"", L""});
  entries.push_back({key + L"\\Implemented Categories\\" + inBraces(CATID_SafeForScripting), L"", L""});
}

// Written here and not by the system's function, which has no way to register for one user on every version.
void addLibrary(std::vector<Entry>& entries, const std::wstring& file) {
  const std::wstring key = libraryKey() + L"\\" + libraryVersion();
  entries.push_back({key, L"", L"mavCycEd cycle editor"});
  entries.push_back({key + L"\\0\\win64", L"", file});
  entries.push_back({key + L"\\FLAGS", L"", L"2"});  // it describes controls
  entries.push_back({key + L"\\HELPDIR", L"", folderOf(file)});
}

void addInterface(std::vector<Entry>& entries, REFGUID iid, const wchar_t* name, const wchar_t* marshaller) {
  const std::wstring key = interfaceKey(iid);
  entries.push_back({key, L"", name});
  entries.push_back({key + L"\\ProxyStubClsid32", L"", marshaller});
  entries.push_back({key + L"\\TypeLib", L"", inBraces(LIBID_mavCycEd)});
  entries.push_back({key + L"\\TypeLib", L"Version", libraryVersion()});
}

std::vector<Entry> allEntries() {
  const std::wstring file = ownFile();
  std::vector<Entry> entries;
  addNames(entries);
  addClass(entries, file);
  addLibrary(entries, file);
  addInterface(entries, __uuidof(_ctlCycEd), L"_ctlCycEd", typeLibraryMarshaller);
  addInterface(entries, __uuidof(__ctlCycEd), L"__ctlCycEd", dispatchMarshaller);
  return entries;
}

HKEY rootOf(Scope scope) { return scope == Scope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER; }

std::wstring classesOf(const std::wstring& key) { return L"Software\\Classes\\" + key; }

}  // namespace

void registerServer(Scope scope) {
  try {
    unregisterServer(scope);
    for (const Entry& entry : allEntries()) {
      RegistryKey(rootOf(scope), classesOf(entry.key)).set(entry.name, entry.value);
    }
  } catch (...) {
    barrier([scope] { unregisterServer(scope); });
    throw;
  }
}

void unregisterServer(Scope scope) {
  const HKEY root = rootOf(scope);
  for (const std::wstring& key :
       {std::wstring(progId), std::wstring(versionedProgId), classKey(), interfaceKey(__uuidof(_ctlCycEd)),
        interfaceKey(__uuidof(__ctlCycEd)), libraryKey() + L"\\" + libraryVersion()}) {
    RegistryKey::removeTree(root, classesOf(key));
  }
  // Others use these too, perhaps: other versions of the library, and what else the user has registered.
  for (const std::wstring& key :
       {libraryKey(), std::wstring(L"CLSID"), std::wstring(L"Interface"), std::wstring(L"TypeLib")}) {
    RegistryKey::removeIfEmpty(root, classesOf(key));
  }
}

}  // namespace mavCycEd::com
