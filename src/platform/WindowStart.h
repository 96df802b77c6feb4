#pragma once
#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#endif

namespace kestrel {

// What the window's program does on the system before Qt starts. Elsewhere nothing.
//
// Windows starts the window's program without a console. When it is started from one
// with --help or --version and its output is not redirected, it writes to the console
// it was started from, so that the answer is seen there.
inline void useParentConsole()
{
#ifdef _WIN32
    const HANDLE out = GetStdHandle(STD_OUTPUT_HANDLE);
    if (out != nullptr && out != INVALID_HANDLE_VALUE)
        return; // redirected to a file or a pipe: that is where the answer goes
    if (!AttachConsole(ATTACH_PARENT_PROCESS))
        return; // started from the desktop: there is no console to write to
    std::FILE* ignored = nullptr;
    freopen_s(&ignored, "CONOUT$", "w", stdout);
    freopen_s(&ignored, "CONOUT$", "w", stderr);
#endif
}

// Under Wine, Qt's GDI font engine draws no text in edit boxes, spin boxes and editable
// lists; its FreeType engine draws them all. Windows itself keeps Qt's default, and a
// platform the user chose (QT_QPA_PLATFORM) is left alone.
inline void chooseFontEngine()
{
#ifdef _WIN32
    if (std::getenv("QT_QPA_PLATFORM") != nullptr)
        return;
    const HMODULE ntdll = GetModuleHandleW(L"ntdll.dll");
    if (ntdll != nullptr && GetProcAddress(ntdll, "wine_get_version") != nullptr)
        _putenv_s("QT_QPA_PLATFORM", "windows:fontengine=freetype");
#endif
}

} // namespace kestrel
