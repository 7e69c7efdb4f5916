/// Blocks do not touch one another, and what is given back is used again.
#include "records/block_pool.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

struct Block {
    unsigned char* bytes;
    std::size_t size;
    unsigned char mark;
};

class Blocks : public ::testing::Test {
  protected:
    ~Blocks() override {
        while (!blocks.empty())
            giveBack(blocks.size() - 1);
    }
    Blocks() = default;
    Blocks(const Blocks&) = delete;
    Blocks& operator=(const Blocks&) = delete;

    void take(std::size_t size) {
        auto* const bytes = static_cast<unsigned char*>(pool.take(size));
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(bytes) % (size % 8 == 0 ? 8 : 4), 0U);
        const auto mark = static_cast<unsigned char>(++marks_);
        std::memset(bytes, mark, size);
        blocks.push_back({bytes, size, mark});
    }
    void giveBack(std::size_t position) {
        const Block block = blocks[position];
        EXPECT_TRUE(std::all_of(
            block.bytes, block.bytes + block.size, [&](unsigned char byte) { return byte == block.mark; }));
        pool.giveBack(block.bytes, block.size);
        blocks[position] = blocks.back();
        blocks.pop_back();
    }
    void giveBackInOddOrder(std::size_t count) {
        while (count-- > 0)
            giveBack(below(blocks.size()));
    }
    std::size_t below(std::size_t limit) { return random_() % limit; }

    BlockPool pool;
    std::vector<Block> blocks;

  private:
    std::mt19937 random_{20261123};
    unsigned marks_ = 0;
};

TEST_F(Blocks, KeepWhatIsWrittenIntoThem) {
    for (int round = 0; round < 60'000; ++round) {
        const bool grows = below(100) < (round < 30'000 ? 65U : 35U);
        if (grows || blocks.empty())
            take(4 + below(BlockPool::largestBlock + 40));
        else
            giveBack(below(blocks.size()));
    }
}

TEST_F(Blocks, TakeLittleMoreThanTheirSize) {
    constexpr std::size_t size = 128;
    for (std::size_t count = 1; count <= 100'000; ++count) {
        take(size);
        ASSERT_LE(pool.bytesHeld(), count * size * 107 / 100 + 2 * std::size_t{4096}) << count;
    }
    EXPECT_LE(pool.bytesHeld(), blocks.size() * size * 101 / 100);
}

TEST_F(Blocks, GoBackToTheHeapWithTheLastOfThem) {
    for (int i = 0; i < 100'000; ++i)
        take(i % 2 == 0 ? 128 : 20);
    giveBackInOddOrder(blocks.size());
    EXPECT_EQ(pool.bytesHeld(), 0U);
}

TEST_F(Blocks, ThatAreHeldOnKeepNoOthers) {
    for (int i = 0; i < 100'000; ++i)
        take(128);
    std::swap(blocks.front(), blocks[50'000]);
    while (blocks.size() > 1)
        giveBack(blocks.size() - 1);
    EXPECT_LE(pool.bytesHeld(), std::size_t{256} * 1024);
}

TEST_F(Blocks, AreUsedAgainHoweverTheyCameBack) {
    for (int i = 0; i < 50'000; ++i)
        take(128);
    const std::size_t before = pool.bytesHeld();
    for (int round = 0; round < 10; ++round) {
        giveBackInOddOrder(20'000);
        for (int i = 0; i < 20'000; ++i)
            take(128);
        ASSERT_EQ(pool.bytesHeld(), before);
    }
}

TEST_F(Blocks, ThatComeAndGoMoveNoSlab) {
    take(128);
    const std::size_t first = pool.bytesHeld();
    while (pool.bytesHeld() == first)
        take(128);
    const std::size_t two = pool.bytesHeld();
    for (int i = 0; i < 5; ++i) {
        giveBack(blocks.size() - 1);
        ASSERT_EQ(pool.bytesHeld(), two);
        take(128);
    }
}

} // namespace
} // namespace lumtex::testing
