/// \file
/// What this process holds of the system.
#pragma once

#include "values/types.h"
#include "worlds/win32/gdi_handles.h"

#include <algorithm>
#include <array>
#include <vector>

namespace lumtex::testing {

/// Blocks in use of all heaps, and their bytes.
struct HeapUse {
    std::size_t blocks = 0;
    std::size_t bytes = 0;
};

inline HeapUse heapUse() {
    std::array<HANDLE, 64> heaps{};
    const DWORD count = std::min<DWORD>(GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data()),
                                        static_cast<DWORD>(heaps.size()));
    HeapUse use;
    for (DWORD i = 0; i < count; ++i) {
        HeapLock(heaps[i]);
        PROCESS_HEAP_ENTRY entry{};
        while (HeapWalk(heaps[i], &entry) != FALSE)
            if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) {
                ++use.blocks;
                use.bytes += entry.cbData;
            }
        HeapUnlock(heaps[i]);
    }
    return use;
}

/// Bytes of memory in use that no file stands behind. The system's own figure is not kept up everywhere.
inline std::size_t privateBytes() {
    std::size_t bytes = 0;
    MEMORY_BASIC_INFORMATION region{};
    for (const char* at = nullptr; VirtualQuery(at, &region, sizeof(region)) != 0;
         at = static_cast<const char*>(region.BaseAddress) + region.RegionSize)
        if (region.State == MEM_COMMIT && region.Type == MEM_PRIVATE)
            bytes += region.RegionSize;
    return bytes;
}

/// Windows of this process, those that are never shown included.
inline int windowCount() {
    struct Counter {
        static BOOL CALLBACK add(HWND window, LPARAM self) {
            DWORD process = 0;
            GetWindowThreadProcessId(window, &process);
            if (process == GetCurrentProcessId())
                ++*reinterpret_cast<int*>(self);
            return TRUE;
        }
    };
    int count = 0;
    EnumChildWindows(GetDesktopWindow(), Counter::add, reinterpret_cast<LPARAM>(&count));
    for (HWND top = nullptr; (top = FindWindowExW(HWND_MESSAGE, top, nullptr, nullptr)) != nullptr;) {
        Counter::add(top, reinterpret_cast<LPARAM>(&count));
        EnumChildWindows(top, Counter::add, reinterpret_cast<LPARAM>(&count));
    }
    return count;
}

/// How far the table of windows, pointers and icons is filled: the highest of some places of it that are
/// free. The system has no count of them that is kept up everywhere.
inline int userTableReach() {
    std::vector<HCURSOR> probes(256);
    int highest = 0;
    const Byte pixel = 0;
    for (HCURSOR& probe : probes) {
        probe = CreateCursor(nullptr, 0, 0, 1, 1, &pixel, &pixel);
        highest = std::max<int>(highest, LOWORD(reinterpret_cast<ULONG_PTR>(probe)));
    }
    for (HCURSOR probe : probes)
        DestroyCursor(probe);
    return highest;
}

} // namespace lumtex::testing
