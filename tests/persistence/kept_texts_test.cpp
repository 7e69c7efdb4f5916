#include "persistence/kept_texts.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

/// Of two columns and more; whatever is kept is a letter per record, as often as the record has bytes.
class KeptTextsTest : public ::testing::Test {
  protected:
    static KeptTexts of(const KeptTexts::Limits& limits, Long columns = 3) {
        KeptTexts kept(limits);
        kept.begin(10, columns);
        return kept;
    }
    static bool keep(KeptTexts& kept, Long row, Long column, std::size_t size, char letter = 'x') {
        return kept.keep(row, column, size, [&](Byte* place) {
            std::fill_n(place, size, static_cast<Byte>(letter));
            return size;
        });
    }
    /// "aab 3" for three bytes of three records.
    static std::string words(const KeptTexts::Stretch& stretch) {
        return std::string(stretch.bytes.begin(), stretch.bytes.end()) + " " +
               std::to_string(stretch.records);
    }
    static KeptTexts::Stretch first(const KeptTexts::Stretch& stretch, std::size_t bytes, Long records) {
        return {stretch.bytes.first(bytes), records};
    }

    const KeptTexts::Limits ample{.memory = 1000, .block = 100, .leastRows = 1};
};

TEST_F(KeptTextsTest, RecordsComeBackColumnByColumnInTheOrderOfRows) {
    KeptTexts kept = of(ample);
    EXPECT_TRUE(keep(kept, 1, 2, 2, 'a'));
    EXPECT_TRUE(keep(kept, 1, 3, 1, 'A'));
    EXPECT_TRUE(keep(kept, 2, 2, 1, 'b'));
    EXPECT_TRUE(keep(kept, 2, 3, 2, 'B'));
    EXPECT_EQ(words(kept.next(1)), " 0");
    EXPECT_EQ(words(kept.next(2)), "aab 2");
    EXPECT_EQ(words(kept.next(3)), "ABB 2");
}

TEST_F(KeptTextsTest, WhatWentDoesNotComeAgain) {
    KeptTexts kept = of(ample);
    keep(kept, 1, 2, 2, 'a');
    keep(kept, 2, 2, 1, 'b');
    kept.gone(2, first(kept.next(2), 2, 1));
    EXPECT_EQ(words(kept.next(2)), "b 1");
    kept.gone(2, kept.next(2));
    EXPECT_EQ(words(kept.next(2)), " 0");
}

TEST_F(KeptTextsTest, ARecordOutOfTurnIsNotKept) {
    KeptTexts kept = of(ample);
    EXPECT_FALSE(keep(kept, 2, 2, 1));
    EXPECT_TRUE(keep(kept, 1, 2, 1));
    EXPECT_FALSE(keep(kept, 1, 2, 1));
    EXPECT_FALSE(keep(kept, 3, 2, 1));
    EXPECT_TRUE(keep(kept, 2, 2, 1));
    EXPECT_FALSE(keep(kept, 1, 4, 1)) << "there are three columns";
}

TEST_F(KeptTextsTest, ARecordLiesInOneBlock) {
    KeptTexts kept = of({.memory = 1000, .block = 3, .leastRows = 1});
    keep(kept, 1, 2, 2, 'a');
    keep(kept, 2, 2, 2, 'b');
    keep(kept, 3, 2, 1, 'c');
    keep(kept, 4, 2, 3, 'd');
    for (const char* const stretch : {"aa 1", "bbc 2", "ddd 1"}) {
        EXPECT_EQ(words(kept.next(2)), stretch);
        kept.gone(2, kept.next(2));
    }
    EXPECT_EQ(words(kept.next(2)), " 0");
}

TEST_F(KeptTextsTest, AColumnEndsAtARecordThatIsLongerThanABlock) {
    KeptTexts kept = of({.memory = 1000, .block = 3, .leastRows = 1});
    EXPECT_TRUE(keep(kept, 1, 2, 1));
    EXPECT_FALSE(keep(kept, 2, 2, 4));
    EXPECT_FALSE(keep(kept, 3, 2, 1));
    EXPECT_EQ(words(kept.next(2)), "x 1");
}

TEST_F(KeptTextsTest, AColumnEndsWithABlockOfRecordsThatAreTooLongOnAverage) {
    KeptTexts kept = of({.memory = 1000, .block = 10, .meanRecord = 5, .leastRows = 1});
    EXPECT_TRUE(keep(kept, 1, 2, 9));
    EXPECT_TRUE(keep(kept, 2, 2, 1));
    EXPECT_TRUE(keep(kept, 3, 2, 1)) << "two of ten bytes";
    EXPECT_TRUE(keep(kept, 1, 3, 10));
    EXPECT_FALSE(keep(kept, 2, 3, 1)) << "one of ten bytes";
}

TEST_F(KeptTextsTest, MemoryEndsAtItsLimitAndIsFreeAgainOnceABlockWent) {
    KeptTexts kept = of({.memory = 8, .block = 4, .leastRows = 1});
    EXPECT_TRUE(keep(kept, 1, 2, 4));
    EXPECT_TRUE(keep(kept, 1, 3, 3));
    EXPECT_FALSE(keep(kept, 2, 2, 1));
    EXPECT_TRUE(keep(kept, 2, 3, 1)) << "its block has room";
    EXPECT_FALSE(keep(kept, 3, 3, 1));
    kept.gone(2, kept.next(2));
    EXPECT_TRUE(keep(kept, 3, 3, 4));
    EXPECT_FALSE(keep(kept, 4, 3, 1));
}

TEST_F(KeptTextsTest, GivenUpNothingIsKept) {
    KeptTexts kept = of(ample);
    keep(kept, 1, 2, 1);
    kept.giveUp();
    EXPECT_EQ(words(kept.next(2)), " 0");
    EXPECT_FALSE(keep(kept, 1, 2, 1));
    EXPECT_FALSE(keep(kept, 2, 2, 1));
}

TEST_F(KeptTextsTest, OfFewRowsOrOneColumnNothingIsKept) {
    KeptTexts fewRows = of({.memory = 1000, .block = 100, .leastRows = 11});
    EXPECT_FALSE(keep(fewRows, 1, 2, 1));
    KeptTexts enoughRows = of({.memory = 1000, .block = 100, .leastRows = 10});
    EXPECT_TRUE(keep(enoughRows, 1, 2, 1));
    KeptTexts oneColumn = of(ample, 1);
    EXPECT_FALSE(keep(oneColumn, 1, 1, 1));
}

} // namespace
} // namespace lumtex::testing
