/// The system's own host of scripts, in a folder where it finds the component.
#include "scripts/script_run.h"
#include "values/text.h"
#include "windows/box_watch.h"
#include "worlds/win32/ansi_text.h"

#include <algorithm>
#include <fstream>

namespace lumtex::testing {

namespace {

namespace fs = std::filesystem;

constexpr ULONGLONG longestRun = 60'000; // milliseconds

fs::path programFolder() {
    std::vector<wchar_t> path(32768); // units, the longest path
    GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return fs::path(path.data()).parent_path();
}

/// The host with a manifest beside it, the component, and the component's manifest.
class HostFolder {
  public:
    HostFolder() {
        fs::create_directories(path);
        std::vector<wchar_t> system(MAX_PATH);
        GetSystemDirectoryW(system.data(), static_cast<UINT>(system.size()));
        fs::copy_file(fs::path(system.data()) / "cscript.exe", path / "cscript.exe");
        for (const char* name : {"LumtexListView.ocx", "LumtexListView.manifest"})
            fs::copy_file(programFolder() / name, path / name);
        std::ofstream(path / "cscript.exe.manifest", std::ios::binary) << manifest();
    }
    HostFolder(const HostFolder&) = delete;
    HostFolder& operator=(const HostFolder&) = delete;
    ~HostFolder() {
        std::error_code failure;
        fs::remove_all(path, failure);
    }

    const fs::path path =
        fs::temp_directory_path() / ("lumtex_stock_host_" + std::to_string(GetCurrentProcessId()));

  private:
    /// That of this program asks for the same.
    static std::string manifest() {
        HRSRC found = FindResourceW(nullptr, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(24));
        HGLOBAL loaded = LoadResource(nullptr, found);
        return {static_cast<const char*>(LockResource(loaded)), SizeofResource(nullptr, found)};
    }
};

/// Where the host writes: a file that it inherits.
class OutputFile {
  public:
    explicit OutputFile(fs::path path) : path_(std::move(path)) {
        SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
        handle_ = CreateFileW(path_.c_str(),
                              GENERIC_WRITE,
                              FILE_SHARE_READ,
                              &inherited,
                              CREATE_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL,
                              nullptr);
    }
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    ~OutputFile() { CloseHandle(handle_); }

    HANDLE handle() const { return handle_; }
    /// The host writes in the code page of consoles, with two units at the end of a line.
    std::string content() const {
        std::ifstream file(path_, std::ios::binary);
        const std::string bytes(std::istreambuf_iterator<char>(file), {});
        std::vector<wchar_t> wideText(bytes.size() + 1);
        const int length = MultiByteToWideChar(CP_OEMCP,
                                               0,
                                               bytes.data(),
                                               static_cast<int>(bytes.size()),
                                               wideText.data(),
                                               static_cast<int>(wideText.size()));
        std::string text = toUtf8(win32::textOf(wideText.data(), static_cast<std::size_t>(length)));
        std::erase(text, '\r');
        return text;
    }

  private:
    fs::path path_;
    HANDLE handle_;
};

bool isAscii(StringView text) {
    return std::ranges::all_of(text, [](char16_t unit) { return unit < 0x80; });
}

/// Answers the boxes of another process.
struct BoxesOf {
    DWORD process;
    std::vector<String>& texts;

    void answerAll() { EnumWindows(look, reinterpret_cast<LPARAM>(this)); }

  private:
    static BOOL CALLBACK look(HWND window, LPARAM self) {
        auto& boxes = *reinterpret_cast<BoxesOf*>(self);
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == boxes.process && IsWindowVisible(window) && isMessageBox(window)) {
            boxes.texts.push_back(textOfBox(window));
            // Not posted: the box must be gone when the next look comes.
            SendMessageW(window, WM_COMMAND, IDOK, 0);
        }
        return TRUE;
    }
};

} // namespace

ScriptOutcome runInStockHost(const fs::path& script, const std::vector<String>& arguments) {
    static const HostFolder folder;
    fs::path readable = script;
    if (const String text = scriptText(script); !isAscii(text)) {
        readable = folder.path / script.filename();
        std::ofstream(readable, std::ios::binary) << win32::ansiFrom(text);
    }

    String line =
        u"\"" + windowsPath(folder.path / "cscript.exe") + u"\" //nologo \"" + windowsPath(readable) + u"\"";
    for (const String& argument : arguments)
        line += u" \"" + argument + u"\"";

    const OutputFile output(folder.path / "output.txt");
    STARTUPINFOW start{};
    start.cb = sizeof(start);
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = output.handle();
    start.hStdError = output.handle();
    PROCESS_INFORMATION process{};
    if (CreateProcessW(nullptr,
                       const_cast<wchar_t*>(win32::wide(line)),
                       nullptr,
                       nullptr,
                       TRUE,
                       0,
                       nullptr,
                       nullptr,
                       &start,
                       &process) == FALSE)
        throw std::runtime_error("the host of scripts does not start");
    ScriptOutcome outcome;
    BoxesOf boxes{process.dwProcessId, outcome.boxes};
    const ULONGLONG began = GetTickCount64();
    while (WaitForSingleObject(process.hProcess, 20) == WAIT_TIMEOUT) {
        boxes.answerAll();
        if (GetTickCount64() - began > longestRun) {
            TerminateProcess(process.hProcess, 99);
            outcome.failure = "the script did not end";
        }
    }
    DWORD status = 0;
    GetExitCodeProcess(process.hProcess, &status);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    outcome.status = static_cast<int>(status);
    outcome.output = output.content();
    return outcome;
}

} // namespace lumtex::testing
