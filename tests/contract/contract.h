// The fixture of the contract tests: the same cases run against the fakes and, built for Windows, against
// the real platform procedures. It gives both the means to prepare a case; the cases are in the test files.
#pragma once

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

inline std::string Scratch_Key() {
    return "Software\\Vellatro contract test";
}

#ifdef _WIN32
#include "win32/handles.h"
#include "win32/wide_text.h"

#include <windows.h>

/// A scratch folder and a scratch registry key, both gone after the test. The short date form of the user is
/// changed while a test asks for it, and put back.
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
        for (const std::string &name : Names_Left()) {
            const std::wstring path = win32::To_Wide(Scratch(name));
            SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
            if (!DeleteFileW(path.c_str()))
                RemoveDirectoryW(path.c_str());
        }
        RemoveDirectoryW(folder_.c_str());
        RegDeleteKeyW(HKEY_CURRENT_USER, win32::To_Wide(Scratch_Key() + "\\Below").c_str());
        RegDeleteKeyW(HKEY_CURRENT_USER, win32::To_Wide(Scratch_Key()).c_str());
        if (*short_date_before_ != 0)
            SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, short_date_before_);
        if (*calendar_before_ != 0)
            SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_ICALENDARTYPE, calendar_before_);
    }

    std::string Scratch(const std::string &name) const { return win32::From_Wide(folder_ + L"\\") + name; }

    void Make_Folder(const std::string &path) { CreateDirectoryW(win32::To_Wide(path).c_str(), nullptr); }

    /// Another program has the file for itself, until the test's end.
    void Lock_File(const std::string &path) {
        locks_.push_back(win32::Own_File(CreateFileW(win32::To_Wide(path).c_str(), GENERIC_READ, 0, nullptr,
                                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)));
        ASSERT_TRUE(static_cast<bool>(locks_.back()));
    }

    void Protect_File(const std::string &path) {
        SetFileAttributesW(win32::To_Wide(path).c_str(), FILE_ATTRIBUTE_READONLY);
    }

    /// The file counts as written in the year 2000.
    void Age_File(const std::string &path) {
        const FILETIME time = {0, 0x01C00000};
        const win32::Unique_File file = win32::Own_File(CreateFileW(
            win32::To_Wide(path).c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr));
        ASSERT_TRUE(SetFileTime(file.get(), nullptr, nullptr, &time));
    }

    /// Names in the scratch folder, in order.
    std::vector<std::string> Names_Left() const {
        std::vector<std::string> names;
        WIN32_FIND_DATAW found;
        const HANDLE find = FindFirstFileW((folder_ + L"\\*").c_str(), &found);
        do {
            if (found.cFileName[0] != L'.')
                names.push_back(win32::From_Wide(found.cFileName));
        } while (FindNextFileW(find, &found));
        FindClose(find);
        std::sort(names.begin(), names.end());
        return names;
    }

    /// `pattern` of d, dd, m, mm, yyyy and literals.
    void Use_Short_Date(const std::string &pattern) {
        if (*short_date_before_ == 0)
            GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, short_date_before_, 81);
        std::wstring wide = win32::To_Wide(pattern);
        std::replace(wide.begin(), wide.end(), L'm', L'M');
        ASSERT_TRUE(SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, wide.c_str()));
    }

    /// By the system's number of its kind.
    void Use_Calendar(CALID calendar) {
        if (*calendar_before_ == 0)
            GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_ICALENDARTYPE, calendar_before_, 81);
        ASSERT_TRUE(
            SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_ICALENDARTYPE, std::to_wstring(calendar).c_str()));
    }

private:
    std::wstring folder_;
    wchar_t calendar_before_[81] = {};
    wchar_t short_date_before_[81] = {};
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

    static std::vector<std::string> Names_Left() {
        const std::string folder = Scratch("");
        std::vector<std::string> names;
        for (const auto &[path, bytes] : Fakes().files)
            if (path.starts_with(folder))
                names.push_back(path.substr(folder.size()));
        return names;
    }

    static void Use_Short_Date(const std::string &pattern) { Fakes().short_date_pattern = pattern; }
};
#endif
