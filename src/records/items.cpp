#include "records/items.h"

#include <memory>
#include <new>
#include <stdexcept>
#include <vector>

namespace lumtex {

Items::Block* Items::allocate(std::size_t capacity) {
    if (capacity > Block::mostCells)
        throw std::length_error("a row holds too many cells");
    void* memory = ::operator new(sizeof(Block) + capacity * sizeof(ListViewItem));
    auto* block = new (memory) Block;
    block->capacity = capacity;
    return block;
}

void Items::release(Block* block) {
    while (block != nullptr && --block->references == 0) {
        Block* next = nullptr;
        if (block->moved != 0) {
            next = block->successor;
        } else {
            delete block->extras;
            std::destroy_n(block->cells(), block->count);
        }
        block->~Block();
        ::operator delete(block);
        block = next;
    }
}

Items Items::create(std::size_t capacity) {
    Items items;
    items.block_ = allocate(capacity);
    return items;
}

Items::Items(const Items& other) : block_(shared(other.block())) {}

/// Counts one holder more.
Items::Block* Items::shared(Block* block) {
    if (block == nullptr)
        return nullptr;
    if (block->references == Block::mostReferences)
        throw std::length_error("a row has too many copies");
    ++block->references;
    return block;
}

Items::~Items() {
    release(block_);
}

Items::Block* Items::followed() const {
    while (block_->moved != 0) {
        Block* const signpost = block_;
        block_ = shared(signpost->successor);
        release(signpost);
    }
    return block_;
}

Items::Block* Items::grow(std::size_t capacity) {
    Block* old = block();
    Block* larger = allocate(capacity);
    std::uninitialized_move_n(old->cells(), old->count, larger->cells());
    std::destroy_n(old->cells(), old->count);
    larger->count = old->count;
    larger->extras = old->extras;
    old->count = 0;
    old->moved = 1;
    old->successor = larger;
    return block();
}

void Items::append(StringView text, const StyleLease& style) {
    Block* current = block();
    if (current == nullptr)
        current = block_ = allocate(1);
    if (current->count == current->capacity)
        current = grow(static_cast<std::size_t>(current->count) + 1);
    new (current->cells() + current->count) ListViewItem(text, style);
    ++current->count;
}

const CellExtras* Items::extras(std::size_t index) const {
    const Block* current = block();
    if (current == nullptr || current->extras == nullptr || index >= current->extras->size())
        return nullptr;
    return (*current->extras)[index].get();
}

CellExtras& Items::needExtras(std::size_t index) {
    Block* current = block();
    if (current->extras == nullptr)
        current->extras = new Block::Extras;
    if (current->extras->size() <= index)
        current->extras->resize(index + 1);
    std::unique_ptr<CellExtras>& slot = (*current->extras)[index];
    if (!slot)
        slot = std::make_unique<CellExtras>();
    return *slot;
}

void Items::exchangeCell(std::size_t index, Items& other) {
    if (sharesWith(other))
        return;
    // Room first: what can run out of memory must not leave half an exchange.
    if (extras(index) != nullptr || other.extras(index) != nullptr) {
        needExtras(index);
        other.needExtras(index);
        std::swap((*block()->extras)[index], (*other.block()->extras)[index]);
    }
    ListViewItem* const mine = &(*this)[index];
    ListViewItem* const theirs = &other[index];
    ListViewItem kept(std::move(*mine));
    std::destroy_at(mine);
    std::construct_at(mine, std::move(*theirs));
    std::destroy_at(theirs);
    std::construct_at(theirs, std::move(kept));
}

Variant Items::tag(std::size_t index) const {
    if ((*this)[index].tagIsEmptyText())
        return u"";
    const CellExtras* rare = extras(index);
    return rare != nullptr ? rare->Tag.get() : Variant();
}

void Items::letTag(std::size_t index, const Variant& tag) {
    const bool isEmptyText = tag.text() != nullptr && tag.text()->empty();
    if (!isEmptyText && !tag.isEmpty())
        needExtras(index).Tag = tag;
    else if (extras(index) != nullptr)
        needExtras(index).Tag = Variant();
    (*this)[index].letTagIsEmptyText(isEmptyText);
}

} // namespace lumtex
