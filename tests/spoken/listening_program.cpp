#include "listening_program.h"

namespace lumtex::testing {

namespace {

constexpr DWORD enough = 60000; // milliseconds

} // namespace

ListeningProgram::ListeningProgram(HWND window, const std::string& arguments) {
    wchar_t folder[MAX_PATH]{};
    wchar_t path[MAX_PATH]{};
    GetTempPathW(MAX_PATH, folder);
    GetTempFileNameW(folder, L"lum", 0, path);
    path_ = path;
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    const HANDLE out = CreateFileW(
        path, GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS, FILE_ATTRIBUTE_TEMPORARY, nullptr);
    STARTUPINFOW start{};
    start.cb = sizeof(start);
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = out;
    const std::string number = std::to_string(win32::fromHWND(window));
    const std::string command = "screen_reader.exe " + number + " " + arguments;
    std::wstring line(command.begin(), command.end());
    wchar_t program[MAX_PATH]{};
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::wstring beside(program);
    beside = beside.substr(0, beside.rfind(L'\\') + 1) + L"screen_reader.exe";
    PROCESS_INFORMATION process{};
    if (CreateProcessW(
            beside.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process) ==
        FALSE)
        ADD_FAILURE() << "no program to listen: " << GetLastError();
    CloseHandle(process.hThread);
    CloseHandle(out);
    process_ = process.hProcess;
}

ListeningProgram::~ListeningProgram() {
    TerminateProcess(process_, 1);
    CloseHandle(process_);
    DeleteFileW(path_.c_str());
}

bool ListeningProgram::waitFor(HANDLE handle) {
    const ULONGLONG end = GetTickCount64() + enough;
    for (;;) {
        const ULONGLONG now = GetTickCount64();
        const DWORD left = now < end ? static_cast<DWORD>(end - now) : 0;
        const DWORD what = MsgWaitForMultipleObjects(1, &handle, FALSE, left, QS_ALLINPUT);
        if (what != WAIT_OBJECT_0 && what != WAIT_OBJECT_0 + 1)
            return false;
        // Those that wait are dealt with at the end, too.
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        if (what == WAIT_OBJECT_0)
            return true;
    }
}

std::vector<std::string> ListeningProgram::lines() {
    EXPECT_TRUE(waitFor(process_)) << "the program that listens does not end";
    DWORD code = 0;
    GetExitCodeProcess(process_, &code);
    EXPECT_EQ(code, 0U);
    std::vector<std::string> all;
    FILE* const file = _wfopen(path_.c_str(), L"r");
    if (file == nullptr)
        return all;
    char line[512];
    while (std::fgets(line, sizeof line, file) != nullptr) {
        std::string text(line);
        while (!text.empty() && (text.back() == '\n' || text.back() == '\r'))
            text.pop_back();
        all.push_back(text);
    }
    std::fclose(file);
    return all;
}

} // namespace lumtex::testing
