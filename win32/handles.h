// Owner types for the system's handles: each closes what it holds when it goes. Nothing but ownership.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

#include <utility>

namespace win32 {

/// The only owner of one handle. `Kind` names its type, the value that means none, and how it is closed.
template <typename Kind>
class Unique_Handle {
public:
    using Value = typename Kind::Value;

    Unique_Handle() = default;
    explicit Unique_Handle(Value value) : value_(value) {}
    Unique_Handle(Unique_Handle &&other) noexcept : value_(other.Release()) {}
    Unique_Handle &operator=(Unique_Handle &&other) noexcept {
        Reset(other.Release());
        return *this;
    }
    Unique_Handle(const Unique_Handle &) = delete;
    Unique_Handle &operator=(const Unique_Handle &) = delete;
    ~Unique_Handle() { Reset(); }

    Value Get() const { return value_; }
    explicit operator bool() const { return value_ != Kind::None(); }

    /// Gives the handle away; the receiver closes it.
    Value Release() { return std::exchange(value_, Kind::None()); }

    /// Closes what is held and takes `value` over.
    void Reset(Value value = Kind::None()) {
        const Value old = std::exchange(value_, value);
        if (old != Kind::None() && old != value)
            Kind::Close(old);
    }

private:
    Value value_ = Kind::None();
};

/// What the kinds of handle have in common: a pointer that is null when there is none.
template <typename Handle>
struct Null_Kind {
    using Value = Handle;
    static Value None() { return nullptr; }
};

template <typename Handle>
struct Gdi_Kind : Null_Kind<Handle> {
    static void Close(Handle handle) { DeleteObject(handle); }
};

struct Memory_Dc_Kind : Null_Kind<HDC> {
    static void Close(HDC handle) { DeleteDC(handle); }
};

struct Menu_Kind : Null_Kind<HMENU> {
    static void Close(HMENU handle) { DestroyMenu(handle); }
};

struct Key_Kind : Null_Kind<HKEY> {
    static void Close(HKEY handle) { RegCloseKey(handle); }
};

struct Kernel_Kind : Null_Kind<HANDLE> {
    static void Close(HANDLE handle) { CloseHandle(handle); }
};

/// Files are the odd ones: their "none" is INVALID_HANDLE_VALUE.
struct File_Kind {
    using Value = HANDLE;
    static Value None() { return INVALID_HANDLE_VALUE; }
    static void Close(HANDLE handle) { CloseHandle(handle); }
};

struct Find_Kind : File_Kind {
    static void Close(HANDLE handle) { FindClose(handle); }
};

using Unique_Font = Unique_Handle<Gdi_Kind<HFONT>>;
using Unique_Brush = Unique_Handle<Gdi_Kind<HBRUSH>>;
using Unique_Bitmap = Unique_Handle<Gdi_Kind<HBITMAP>>;
using Unique_Region = Unique_Handle<Gdi_Kind<HRGN>>;
using Unique_Memory_Dc = Unique_Handle<Memory_Dc_Kind>;
using Unique_Menu = Unique_Handle<Menu_Kind>;
using Unique_Key = Unique_Handle<Key_Kind>;
using Unique_Kernel_Handle = Unique_Handle<Kernel_Kind>;
using Unique_File = Unique_Handle<File_Kind>;
using Unique_Find = Unique_Handle<Find_Kind>;

/// A device context borrowed from a window, or from the screen with a null window.
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

/// Selects an object into a device context for the length of a scope.
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
