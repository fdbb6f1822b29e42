#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/MessageBox.h"
#include "win32/Windows.h"

namespace mavCycEd::win32 {

/// The pages of the help that places of the editor lead to.
enum class HelpPage { Screen, Values, Variables };

/// Shows a page of a compiled help file, its window before the window `over`. False when nothing here can.
using HelpViewer = std::function<bool(HWND over, const std::wstring& file, const std::wstring& page)>;

/// The system's viewer of help files, or the program that such files are opened with.
bool showInSystemHelp(HWND over, const std::wstring& file, const std::wstring& page);

/// Where the help is unless the host says otherwise: beside the program or DLL that this code is linked into.
std::wstring ownHelpFile();

/// Shows the help, or says why it cannot.
void showHelp(HWND over, HelpPage page, const std::wstring& file, const HelpViewer& viewer,
              platform::MessageBox& messageBox);

}  // namespace mavCycEd::win32
