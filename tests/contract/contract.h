// The fixture of the contract tests. The same tests run against the fakes and, built for Windows, against the
// real platform procedures; the fixture prepares their cases for either.
#pragma once

#include "platform/files.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <string>
#include <vector>

inline std::string Scratch_Key() {
    return "Software\\Vellatro contract test";
}

/// Returns the names of the files in the file's folder.
inline std::vector<std::string> Names_Beside(const std::string &path) {
    return platform::Names_In_Folder(path.substr(0, path.rfind('\\')), platform::Entry_Kind::Files);
}

#ifdef _WIN32
#include "win32/handles.h"
#include "win32/wide_text.h"

#include <windows.h>

/// Returns the first window of the class that this thread has created, or null.
inline HWND Own_Window(const wchar_t *class_name) {
    for (HWND window = nullptr; (window = FindWindowExW(nullptr, window, class_name, nullptr)) != nullptr;)
        if (GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId())
            return window;
    return nullptr;
}

/// Creates a scratch folder for each test, and removes it and the scratch registry key. Restores the user's
/// short date format and calendar.
class Contract_Test : public ::testing::Test {
protected:
    Contract_Test() {
        wchar_t temp[MAX_PATH + 1] = {};
        GetTempPathW(MAX_PATH, temp);
        folder_ = temp + (L"vellatro-contract-" + std::to_wstring(GetCurrentProcessId()));
        CreateDirectoryW(folder_.c_str(), nullptr);
    }
    ~Contract_Test() override {
        locks_.clear();
        for (const auto &entry : std::filesystem::directory_iterator(folder_))
            SetFileAttributesW(entry.path().c_str(), FILE_ATTRIBUTE_NORMAL);
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
        RegDeleteKeyW(HKEY_CURRENT_USER, win32::To_Wide(Scratch_Key() + "\\Below").c_str());
        RegDeleteKeyW(HKEY_CURRENT_USER, win32::To_Wide(Scratch_Key()).c_str());
        for (const auto &[type, value] : locale_before_)
            SetLocaleInfoW(LOCALE_USER_DEFAULT, type, value.c_str());
    }

    std::string Scratch(const std::string &name) const { return win32::From_Wide(folder_ + L"\\") + name; }

    void Make_Folder(const std::string &path) { CreateDirectoryW(win32::To_Wide(path).c_str(), nullptr); }

    /// Opens the file without sharing until the test ends.
    void Lock_File(const std::string &path) {
        locks_.push_back(win32::Own_File(CreateFileW(win32::To_Wide(path).c_str(), GENERIC_READ, 0, nullptr,
                                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)));
        ASSERT_TRUE(static_cast<bool>(locks_.back()));
    }

    void Protect_File(const std::string &path) {
        SetFileAttributesW(win32::To_Wide(path).c_str(), FILE_ATTRIBUTE_READONLY);
    }

    /// Sets the last write of the file to the year 2000.
    void Age_File(const std::string &path) {
        const FILETIME time = {0, 0x01C00000};
        const win32::Unique_File file = win32::Own_File(CreateFileW(
            win32::To_Wide(path).c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr));
        ASSERT_TRUE(SetFileTime(file.get(), nullptr, nullptr, &time));
    }

    /// Sets the user's short date format, a pattern of d, dd, m, mm, yyyy and literals.
    void Use_Short_Date(const std::string &pattern) {
        std::wstring wide = win32::To_Wide(pattern);
        std::replace(wide.begin(), wide.end(), L'm', L'M');
        Set_Locale(LOCALE_SSHORTDATE, wide);
    }

    /// Sets the user's calendar.
    void Use_Calendar(CALID calendar) { Set_Locale(LOCALE_ICALENDARTYPE, std::to_wstring(calendar)); }

private:
    void Set_Locale(LCTYPE type, const std::wstring &value) {
        wchar_t before[81] = {};
        GetLocaleInfoW(LOCALE_USER_DEFAULT, type, before, 81);
        locale_before_.try_emplace(type, before);
        ASSERT_TRUE(SetLocaleInfoW(LOCALE_USER_DEFAULT, type, value.c_str()));
    }

    std::wstring folder_;
    std::map<LCTYPE, std::wstring> locale_before_;
    std::vector<win32::Unique_File> locks_;
};

#else
#include "tests/fakes/fake_test.h"

class Contract_Test : public Fake_Test {
protected:
    static std::string Scratch(const std::string &name) { return "C:\\Scratch\\" + name; }

    static void Make_Folder(const std::string &path) { Fakes().folders.insert(path); }

    static void Lock_File(const std::string &path) {
        Fakes().unreadable.insert(path);
        Fakes().unwritable.insert(path);
    }

    static void Protect_File(const std::string &path) { Fakes().unwritable.insert(path); }

    static void Age_File(const std::string &path) { Fakes().written[path] = {2000, 8, 7, 0, 0, 0, 0}; }

    static void Use_Short_Date(const std::string &pattern) { Fakes().short_date_pattern = pattern; }
};
#endif
