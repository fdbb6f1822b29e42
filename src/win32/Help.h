#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/MessageBox.h"
#include "win32/Windows.h"

namespace mavCycEd::win32 {

/// Shows a compiled help file, its window before the window `over`. False when nothing here can.
using HelpViewer = std::function<bool(HWND over, const std::wstring& file)>;

/// The system's viewer of help files, or the program that such files are opened with.
bool showInSystemHelp(HWND over, const std::wstring& file);

/// Where the help is unless the host says otherwise: beside the program or DLL that this code is linked into.
std::wstring ownHelpFile();

/// Shows the help, or says why it cannot.
void showHelp(HWND over, const std::wstring& file, const HelpViewer& viewer, platform::MessageBox& messageBox);

}  // namespace mavCycEd::win32
