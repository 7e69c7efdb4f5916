/// \file
/// Enumerators over a list that does not change any more.
#pragma once

#include "worlds/win32/counted_object.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace lumtex::win32 {

/// `Policy` has copy(to, from), which may add references, and clear(item). Starts with one reference, the
/// caller's.
template <class Interface, class Item, class Policy>
class SnapshotEnum final : public CountedObject<Interface> {
  public:
    /// `items` were made by Policy::copy and belong to the enumerator from now on.
    explicit SnapshotEnum(std::vector<Item> items, std::size_t next = 0)
        : items_(std::move(items)), next_(next) {}

    HRESULT STDMETHODCALLTYPE Next(ULONG count, Item* to, ULONG* fetched) override {
        if (to == nullptr || (fetched == nullptr && count != 1))
            return E_POINTER;
        ULONG given = 0;
        while (given < count && next_ < items_.size())
            Policy::copy(to[given++], items_[next_++]);
        if (fetched != nullptr)
            *fetched = given;
        return given == count ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
        const std::size_t left = items_.size() - next_;
        next_ += std::min<std::size_t>(count, left);
        return count <= left ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Reset() override {
        next_ = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(Interface** copy) override {
        if (copy == nullptr)
            return E_POINTER;
        *copy = nullptr;
        std::vector<Item> items(items_.size());
        for (std::size_t i = 0; i < items.size(); ++i)
            Policy::copy(items[i], items_[i]);
        *copy = new SnapshotEnum(std::move(items), next_);
        return S_OK;
    }

  private:
    ~SnapshotEnum() {
        for (Item& item : items_)
            Policy::clear(item);
    }

    std::vector<Item> items_;
    std::size_t next_;
};

} // namespace lumtex::win32
