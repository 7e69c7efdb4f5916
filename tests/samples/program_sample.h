/// \file
/// A sample in C++ as its user meets it: a program of its own, with nothing registered.
#pragma once

#include "folders.h"
#include "scratch_folder.h"
#include "worlds/win32/windows_api.h"

#include <filesystem>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

namespace lumtex::testing {

/// Whether it came true within half a minute.
template <class Condition>
bool until(Condition condition) {
    for (int tries = 0; tries < 1500; ++tries) {
        if (condition())
            return true;
        Sleep(20);
    }
    return false;
}

/// A program that is running; ended with this object at the latest.
class RunningProgram {
  public:
    explicit RunningProgram(std::wstring path) {
        STARTUPINFOW how{};
        how.cb = sizeof(how);
        if (CreateProcessW(
                path.c_str(), path.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how, &process_) ==
            FALSE)
            throw std::runtime_error("the program does not start");
    }
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram() {
        TerminateProcess(process_.hProcess, 99);
        CloseHandle(process_.hThread);
        CloseHandle(process_.hProcess);
    }

    /// Its first window of the class, once it shows.
    HWND window(const wchar_t* windowClass) const {
        HWND found = nullptr;
        until([&] {
            found = nullptr;
            while ((found = FindWindowExW(nullptr, found, windowClass, nullptr)) != nullptr) {
                DWORD owner = 0;
                GetWindowThreadProcessId(found, &owner);
                if (owner == process_.dwProcessId && IsWindowVisible(found) != FALSE)
                    return true;
            }
            return false;
        });
        return found;
    }
    /// What it returns; 99 where it does not end.
    DWORD exitCode() const {
        DWORD code = 99;
        if (WaitForSingleObject(process_.hProcess, 30000) == WAIT_OBJECT_0)
            GetExitCodeProcess(process_.hProcess, &code);
        return code;
    }

  private:
    PROCESS_INFORMATION process_{};
};

/// A folder of the program's own, with what it needs beside it.
class ProgramSample : public ::testing::Test {
  protected:
    explicit ProgramSample(std::string name) : name_(std::move(name)) {}

    static std::filesystem::path programFolder() {
        wchar_t path[MAX_PATH];
        GetModuleFileNameW(nullptr, path, MAX_PATH);
        return std::filesystem::path(path).parent_path();
    }
    static std::wstring titleOf(HWND window) {
        wchar_t title[64] = L"";
        GetWindowTextW(window, title, 64);
        return title;
    }
    void copyProgram() const {
        const std::filesystem::path tree = sourceFolder();
        std::filesystem::copy(programFolder() / (name_ + ".exe"), program());
        std::filesystem::copy(tree / "samples/cpp-host" / (name_ + ".exe.manifest"),
                              folder.path / (name_ + ".exe.manifest"));
        std::filesystem::copy(tree / "src/activex/LumtexListView.manifest",
                              folder.path / "LumtexListView.manifest");
    }
    void copyComponent() const {
        std::filesystem::copy(programFolder() / "LumtexListView.ocx", folder.path / "LumtexListView.ocx");
    }
    std::filesystem::path program() const { return folder.path / (name_ + ".exe"); }
    /// A place of the list, in pixels of the screen.
    static POINT onScreen(HWND list, LONG x, LONG y) {
        POINT point{x, y};
        ClientToScreen(list, &point);
        return point;
    }

    ScratchFolder folder;

  private:
    std::string name_;
};

} // namespace lumtex::testing
