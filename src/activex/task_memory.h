/// \file
/// Memory that a caller gets, and frees with CoTaskMemFree.
#pragma once

#include "worlds/win32/windows_api.h"

#include <algorithm>
#include <memory>
#include <new>

namespace lumtex::win32 {

struct TaskMemoryDrop {
    void operator()(void* memory) const { CoTaskMemFree(memory); }
};

/// Owns it until it is given away by `release`.
template <class Item>
using TaskItems = std::unique_ptr<Item[], TaskMemoryDrop>;

/// Without any content yet. Throws std::bad_alloc.
template <class Item>
TaskItems<Item> newTaskItems(std::size_t count) {
    void* const memory = CoTaskMemAlloc(count * sizeof(Item));
    if (memory == nullptr)
        throw std::bad_alloc();
    return TaskItems<Item>(static_cast<Item*>(memory));
}

/// With its closing zero.
inline TaskItems<wchar_t> newTaskText(StringView text) {
    TaskItems<wchar_t> copy = newTaskItems<wchar_t>(text.size() + 1);
    std::copy(text.begin(), text.end(), copy.get());
    copy[text.size()] = L'\0';
    return copy;
}

} // namespace lumtex::win32
