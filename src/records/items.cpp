#include "records/items.h"

#include "records/block_pool.h"

#include <algorithm>
#include <memory>
#include <new>
#include <stdexcept>
#include <vector>

namespace lumtex {

/// Bytes of a block, in which there is room for a successor at any time.
std::size_t Items::sizeOf(std::size_t capacity, bool hasExtras) {
    const std::size_t behind = capacity * sizeof(ListViewItem) + (hasExtras ? Block::pointerSize : 0);
    const std::size_t size = sizeof(Block) + std::max(behind, Block::pointerSize);
    return (size + alignof(Block) - 1) / alignof(Block) * alignof(Block);
}

Items::Block* Items::allocate(std::size_t capacity, bool hasExtras) {
    if (capacity > Block::mostCells)
        throw std::length_error("a row holds too many cells");
    auto* block = new (BlockPool::takeOfThread(sizeOf(capacity, hasExtras))) Block;
    block->capacity = capacity;
    block->hasExtras = hasExtras ? 1 : 0;
    return block;
}

void Items::release(Block* block) {
    while (block != nullptr && --block->references == 0) {
        Block* next = nullptr;
        if (block->moved != 0) {
            next = block->successor();
        } else {
            delete block->extras();
            std::destroy_n(block->cells(), block->count);
        }
        const std::size_t size = sizeOf(block->capacity, block->hasExtras != 0);
        block->~Block();
        BlockPool::giveBackOfThread(block, size);
        block = next;
    }
}

Items Items::create(std::size_t capacity) {
    Items items;
    items.block_ = allocate(capacity, false);
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
        block_ = shared(signpost->successor());
        release(signpost);
    }
    return block_;
}

/// All holders find their cells in a larger block.
Items::Block* Items::moveTo(std::size_t capacity, bool hasExtras) {
    Block* old = block();
    Block* larger = allocate(capacity, hasExtras);
    std::uninitialized_move_n(old->cells(), old->count, larger->cells());
    std::destroy_n(old->cells(), old->count);
    larger->count = old->count;
    if (hasExtras)
        larger->letExtras(old->extras());
    old->count = 0;
    old->moved = 1;
    old->letSuccessor(larger);
    return block();
}

void Items::append(StringView text, const StyleLease& style) {
    Block* current = block();
    if (current == nullptr)
        current = block_ = allocate(1, false);
    if (current->count == current->capacity)
        current = moveTo(static_cast<std::size_t>(current->count) + 1, current->hasExtras != 0);
    new (current->cells() + current->count) ListViewItem(text, style);
    ++current->count;
}

const CellExtras* Items::extras(std::size_t index) const {
    const Block* current = block();
    const Extras* const extras = current != nullptr ? current->extras() : nullptr;
    return extras != nullptr && index < extras->size() ? (*extras)[index].get() : nullptr;
}

CellExtras& Items::needExtras(std::size_t index) {
    Block* current = block();
    if (current->hasExtras == 0)
        current = moveTo(current->capacity, true);
    if (current->extras() == nullptr)
        current->letExtras(new Extras);
    Extras& extras = *current->extras();
    if (extras.size() <= index)
        extras.resize(index + 1);
    std::unique_ptr<CellExtras>& slot = extras[index];
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
        std::swap((*block()->extras())[index], (*other.block()->extras())[index]);
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
