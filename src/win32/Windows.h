#pragma once

/// The Windows headers as this edition uses them: UTF-16 functions, no macros over the names of our own.
#ifndef UNICODE
#define UNICODE
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif

// windows.h comes before the headers that need it.
#include <windows.h>
// and these in any order
#include <commctrl.h>
#include <windowsx.h>

// The port of the message boxes has the name of a function.
#undef MessageBox
