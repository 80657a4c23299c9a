// Owner types for the system's handles. The destructor of each closes the handle.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#include <memory>
#include <type_traits>

namespace win32 {

template <auto Close>
struct Closer {
    template <typename Object>
    void operator()(Object *handle) const {
        Close(handle);
    }
};

template <typename Handle, auto Close>
using Unique_Handle = std::unique_ptr<std::remove_pointer_t<Handle>, Closer<Close>>;

using Unique_Font = Unique_Handle<HFONT, &DeleteObject>;
using Unique_Brush = Unique_Handle<HBRUSH, &DeleteObject>;
using Unique_Bitmap = Unique_Handle<HBITMAP, &DeleteObject>;
using Unique_Region = Unique_Handle<HRGN, &DeleteObject>;
using Unique_Memory_Dc = Unique_Handle<HDC, &DeleteDC>;
using Unique_Menu = Unique_Handle<HMENU, &DestroyMenu>;
using Unique_Key = Unique_Handle<HKEY, &RegCloseKey>;
using Unique_Kernel_Handle = Unique_Handle<HANDLE, &CloseHandle>;
using Unique_File = Unique_Kernel_Handle;
using Unique_Find = Unique_Handle<HANDLE, &FindClose>;

/// Returns the owner of an opened file. INVALID_HANDLE_VALUE becomes null.
inline Unique_File Own_File(HANDLE handle) {
    return Unique_File(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

/// The device context of a window, or of the screen if the window is null.
class Window_Dc {
public:
    explicit Window_Dc(HWND window) : window_(window), dc_(GetDC(window)) {}
    ~Window_Dc() {
        if (dc_ != nullptr)
            ReleaseDC(window_, dc_);
    }
    Window_Dc(const Window_Dc &) = delete;
    Window_Dc &operator=(const Window_Dc &) = delete;
    HDC Get() const { return dc_; }

private:
    HWND window_;
    HDC dc_;
};

/// Selects an object into a device context for a scope.
class Selected_Object {
public:
    Selected_Object(HDC dc, HGDIOBJ object) : dc_(dc), before_(SelectObject(dc, object)) {}
    ~Selected_Object() { SelectObject(dc_, before_); }
    Selected_Object(const Selected_Object &) = delete;
    Selected_Object &operator=(const Selected_Object &) = delete;

private:
    HDC dc_;
    HGDIOBJ before_;
};

} // namespace win32
