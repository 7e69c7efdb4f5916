/// The program, its processes, boxes and objects.
#include "worlds/win32/win32_runtime.h"

#include "values/runtime_error.h"
#include "values/text.h"
#include "values/version.h"
#include "worlds/common/nesting_level.h"
#include "worlds/win32/object_bridge.h"
#include "worlds/win32/thread_slot.h"
#include "worlds/win32/win32_locale.h"

#include <limits>

#include <tlhelp32.h>

namespace lumtex::win32 {

namespace {

/// Before a runtime is made, and so before anybody asks for the state of a thread.
[[maybe_unused]] const bool slotIsUsed = (useThreadSlot(), true);

/// Of this thread. Not with the rest of what a thread shares (`ThreadState`): only this world has boxes of
/// the system's.
thread_local int openBoxes = 0;

/// The file of a module; empty where the system does not tell.
String moduleFile(HINSTANCE module) {
    String path(MAX_PATH, u'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(module, wide(path.data()), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

ComponentInfo componentOf(HINSTANCE module) {
    const String path = moduleFile(module);
    const std::size_t slash = path.rfind(u'\\');
    const String file = slash == String::npos ? path : path.substr(slash + 1);
    return {.exeName = file.substr(0, file.rfind(u'.')),
            .folder = slash == String::npos ? String() : path.substr(0, slash),
            .major = versionMajor,
            .minor = versionMinor,
            .revision = versionRevision};
}

/// A handle of the kernel.
class KernelHandle {
  public:
    explicit KernelHandle(HANDLE handle) : handle_(handle) {}
    KernelHandle(const KernelHandle&) = delete;
    KernelHandle& operator=(const KernelHandle&) = delete;
    ~KernelHandle() {
        if (handle_ != INVALID_HANDLE_VALUE)
            CloseHandle(handle_);
    }
    HANDLE get() const { return handle_; }
    bool isValid() const { return handle_ != INVALID_HANDLE_VALUE; }

  private:
    HANDLE handle_;
};

} // namespace

Win32Runtime::Win32Runtime(HINSTANCE instance) : component_(componentOf(instance)) {
    letUsersLocale(win32UsersLocale());
}

Win32Runtime::ModalSpan::ModalSpan(Win32Runtime& runtime) : runtime_(runtime) {
    if (runtime_.onModal)
        runtime_.onModal(true);
}

Win32Runtime::ModalSpan::~ModalSpan() {
    if (runtime_.onModal)
        runtime_.onModal(false);
}

void Win32Runtime::messageBox(StringView text, BoxStyle style, StringView title) {
    const String message(text);
    const String caption(title);
    const UINT icon = style == BoxStyle::critical ? MB_ICONERROR : 0U;
    HWND owner = GetActiveWindow();
    const UINT modal = owner == nullptr ? MB_TASKMODAL : 0U;
    HWND focus = GetFocus();
    const ModalSpan span(*this);
    {
        const worlds::NestingLevel level(openBoxes);
        MessageBoxW(owner, wide(message), wide(caption), MB_OK | icon | modal);
    }
    if (owner != nullptr && GetActiveWindow() == owner && IsChild(owner, focus))
        SetFocus(focus);
}

bool Win32Runtime::isBoxOpen() {
    return openBoxes > 0;
}

Long Win32Runtime::currentProcessId() const {
    return static_cast<Long>(GetCurrentProcessId());
}

std::optional<std::vector<ProcessEntry>> Win32Runtime::processes() const {
    const KernelHandle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
    if (!snapshot.isValid())
        return std::nullopt;
    std::vector<ProcessEntry> processes;
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof(entry);
    for (BOOL found = Process32FirstW(snapshot.get(), &entry); found;
         found = Process32NextW(snapshot.get(), &entry))
        processes.push_back({static_cast<Long>(entry.th32ProcessID), String(textOf(entry.szExeFile))});
    return processes;
}

ObjectRef Win32Runtime::createObject(StringView programId) {
    const String name(programId);
    CLSID classId{};
    ComRef<IDispatch> object;
    void* made = nullptr;
    if (FAILED(CLSIDFromProgID(wide(name), &classId)) ||
        FAILED(CoCreateInstance(
            classId, nullptr, CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER, IID_IDispatch, &made)))
        throw RuntimeError(ErrorNumber::cannotCreateObject);
    object = ComRef<IDispatch>::adopting(static_cast<IDispatch*>(made));
    return objectFrom(object.get());
}

words::Language Win32Runtime::language() const {
    return languageOf(GetUserDefaultUILanguage());
}

} // namespace lumtex::win32
