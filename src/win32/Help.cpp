#include "win32/Help.h"

#include <shellapi.h>

#include "win32/Module.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {
namespace {

using HtmlHelp = HWND WINAPI(HWND over, LPCWSTR file, UINT command, DWORD_PTR data);

// Loaded when it is asked for: not every Windows has it. It stays: its windows live on behind the call.
HtmlHelp* systemViewer() {
  const HMODULE module = LoadLibraryExW(L"hhctrl.ocx", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  if (module == nullptr) return nullptr;
  return reinterpret_cast<HtmlHelp*>(reinterpret_cast<void*>(GetProcAddress(module, "HtmlHelpW")));
}

bool exists(const std::wstring& file) {
  const DWORD attributes = GetFileAttributesW(file.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

std::wstring nameOf(HelpPage page) {
  switch (page) {
    case HelpPage::Values: return L"values.html";
    case HelpPage::Variables: return L"variables.html";
    default: return L"screen.html";
  }
}

void say(HWND over, const std::string& text, platform::MessageBox& messageBox) {
  messageBox.messageBox(reinterpret_cast<platform::WindowHandle>(over), text, "mavCycEd", MB_OK | MB_ICONWARNING);
}

}  // namespace

bool showInSystemHelp(HWND over, const std::wstring& file, const std::wstring& page) {
  constexpr UINT showPage = 0;
  static HtmlHelp* const viewer = systemViewer();
  if (viewer != nullptr && viewer(over, (file + L"::/" + page).c_str(), showPage, 0) != nullptr) return true;
  constexpr INT_PTR lastError = 32;
  return reinterpret_cast<INT_PTR>(ShellExecuteW(over, L"open", file.c_str(), nullptr, nullptr, SW_SHOWNORMAL)) >
         lastError;
}

std::wstring ownHelpFile() {
  std::wstring path(MAX_PATH, L'\0');
  DWORD size = GetModuleFileNameW(ownModule(), path.data(), static_cast<DWORD>(path.size()));
  while (size == path.size()) {  // cut off
    path.resize(2 * path.size());
    size = GetModuleFileNameW(ownModule(), path.data(), static_cast<DWORD>(path.size()));
  }
  path.resize(size);
  path.resize(path.find_last_of(L"\\/") + 1);
  return path + L"mavCycEd.chm";
}

void showHelp(HWND over, HelpPage page, const std::wstring& file, const HelpViewer& viewer,
              platform::MessageBox& messageBox) {
  if (!exists(file)) {
    say(over, "The help file is missing: " + fromWide(file), messageBox);
  } else if (!viewer(over, file, nameOf(page))) {
    say(over, "Nothing here can show the help file: " + fromWide(file), messageBox);
  }
}

}  // namespace mavCycEd::win32
