#include "error_number.h"
#include "ordering/like_pattern.h"
#include "values/case_mapping.h"
#include "values/runtime_error.h"
#include "values/text.h"

#include <algorithm>
#include <random>

namespace lumtex::ordering {
namespace {

bool like(StringView text, StringView pattern, LikePattern::Letters letters = LikePattern::byUnit) {
    const LikePattern ready(pattern, letters);
    const bool answer = ready.matches(text);
    // The same text in bytes must get the same answer.
    if (std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit < 256; })) {
        const std::vector<unsigned char> bytes(text.begin(), text.end());
        EXPECT_EQ(ready.matches(std::span<const unsigned char>(bytes)), answer) << toUtf8(pattern);
    }
    return answer;
}

struct Row {
    StringView pattern;
    std::vector<StringView> matching;
    std::vector<StringView> others;
};

const Row byUnitTable[] = {
    {u"", {u""}, {u"a", u" "}},
    {u"abc", {u"abc"}, {u"", u"ab", u"abcd", u"ABC", u"xabc"}},
    {u"*", {u"", u"a", u"anything [at] all", u"\u0416"}, {}},
    {u"**", {u"", u"a", u"ab"}, {}},
    {u"a*", {u"a", u"ab", u"a*"}, {u"", u"ba", u"A"}},
    {u"*a", {u"a", u"ba", u"aa"}, {u"", u"ab"}},
    {u"*a*", {u"a", u"bab"}, {u"", u"b"}},
    {u"a*a", {u"aa", u"aba"}, {u"a", u"ab", u"ba"}},
    {u"a*b*c", {u"abc", u"aXbXc", u"abbcc"}, {u"ac", u"acb", u"abcd"}},
    {u"*ab*ab*", {u"abab", u"xabxabx"}, {u"ab", u"aab"}},
    {u"*aab*", {u"aaab", u"aaaaab"}, {u"aaa"}},
    {u"?", {u"a", u"?", u"\u0416"}, {u"", u"ab"}},
    {u"?*", {u"a", u"ab"}, {u""}},
    {u"*?b?*", {u"abc", u"xxabcxx"}, {u"ab", u"bc", u"b"}},
    {u"#", {u"0", u"5", u"9"}, {u"", u"a", u"12", u"#", u"\u0660"}},
    {u"#*#", {u"12", u"1x2"}, {u"1", u"1x"}},
    {u"[abc]", {u"a", u"b", u"c"}, {u"", u"d", u"ab", u"A"}},
    {u"[!abc]", {u"d", u"A", u"!", u"\u0416"}, {u"", u"a", u"b", u"dd"}},
    {u"[a-c]", {u"a", u"b", u"c"}, {u"d", u"-", u"B"}},
    {u"[!a-c]", {u"d", u"-"}, {u"a", u"b", u""}},
    {u"[a-cx-z0-9]", {u"b", u"y", u"5"}, {u"d", u"w", u"-"}},
    {u"[a-a]", {u"a"}, {u"b"}},
    {u"[-a]", {u"-", u"a"}, {u"b"}},
    {u"[a-]", {u"-", u"a"}, {u"b"}},
    {u"[!-a]", {u"b", u"!"}, {u"-", u"a"}},
    {u"[!a-]", {u"b"}, {u"-", u"a"}},
    {u"[-]", {u"-"}, {u"a"}},
    {u"[--/]", {u"-", u".", u"/"}, {u",", u"0"}},
    {u"[a-c-e]", {u"b", u"-", u"e"}, {u"d"}},
    {u"[*]", {u"*"}, {u"", u"a"}},
    {u"[?]", {u"?"}, {u"a"}},
    {u"[#]", {u"#"}, {u"1"}},
    {u"[[]", {u"["}, {u"]", u"[["}},
    {u"[[]x]", {u"[x]"}, {u"[", u"x"}},
    {u"]", {u"]"}, {u"", u"["}},
    {u"a]b", {u"a]b"}, {u"ab"}},
    {u"[]", {u""}, {u"[", u"]", u"[]"}},
    {u"a[]b", {u"ab"}, {u"a[]b"}},
    {u"[!]", {u"!"}, {u"", u"a"}},
    {u"[!!]", {u"a"}, {u"!"}},
    {u"[a!]", {u"a", u"!"}, {u"b"}},
    {u"!a", {u"!a"}, {u"b"}},
    {u"a-c", {u"a-c"}, {u"b"}},
    {u"[\u00FE-\u0101]", {u"\u00FE", u"\u00FF", u"\u0100", u"\u0101"}, {u"\u00FD", u"\u0102"}},
    {u"[!\u0400-\u04FF]", {u"a", u"\u0500"}, {u"\u0416"}},
    {u"\xD83D?", {u"\xD83D\xDE00"}, {u"\xD83D"}},
    {u"*\u0416*", {u"a\u0416"}, {u"\u0016", u"abc"}},
};

TEST(LikePattern, MatchesTheTable) {
    for (const Row& row : byUnitTable) {
        for (const StringView text : row.matching)
            EXPECT_TRUE(like(text, row.pattern)) << toUtf8(text) << " / " << toUtf8(row.pattern);
        for (const StringView text : row.others)
            EXPECT_FALSE(like(text, row.pattern)) << toUtf8(text) << " / " << toUtf8(row.pattern);
    }
}

const Row foldedTable[] = {
    {u"abc", {u"abc", u"ABC", u"aBc"}, {u"ab"}},
    {u"ABC", {u"abc", u"ABC"}, {u"abd"}},
    {u"*B*", {u"abc", u"ABC"}, {u"ac"}},
    {u"[a-c]", {u"B", u"b"}, {u"D"}},
    {u"[A-C]", {u"B", u"b"}, {u"D"}},
    {u"[a-Z]", {u"m", u"M"}, {u"1"}},
    {u"[!a-c]", {u"D"}, {u"B", u"b"}},
    {u"\u00C4", {u"\u00E4", u"\u00C4"}, {u"a", u"A"}},
    {u"\u0416", {u"\u0436"}, {u"\u0417"}},
    {u"\u03A3", {u"\u03C3", u"\u03C2"}, {u"s"}},
    {u"\u212A", {u"k", u"K"}, {u"q"}},
    {u"\u00DF", {u"\u1E9E"}, {u"ss", u"SS"}},
    {u"\u0130", {u"\u0130"}, {u"i", u"I"}},
    {u"\u00B5", {u"\u03BC", u"\u039C"}, {u"u"}},
};

TEST(LikePattern, WithoutCaseMatchesTheTable) {
    for (const Row& row : foldedTable) {
        for (const StringView text : row.matching)
            EXPECT_TRUE(like(text, row.pattern, LikePattern::folded)) << toUtf8(row.pattern);
        for (const StringView text : row.others)
            EXPECT_FALSE(like(text, row.pattern, LikePattern::folded)) << toUtf8(row.pattern);
    }
}

TEST(LikePattern, AnOpenBracketIsAPatternErrorWhateverTheText) {
    for (const StringView pattern :
         {u"[", u"a[", u"[a", u"[!", u"[]a[", u"x*[a-", u"[z-a]", u"q[b-a]", u"[a-Z]"})
        EXPECT_EQ(errorNumberOf([&] { LikePattern(pattern, LikePattern::byUnit); }), 93) << toUtf8(pattern);
    EXPECT_EQ(errorNumberOf([] { LikePattern(u"[Z-a]", LikePattern::folded); }), 93);
}

/// The language as it reads, by trying everything.
class Matcher {
  public:
    explicit Matcher(bool folds) : folds_(folds) {}

    bool matches(StringView text, StringView pattern) const {
        if (pattern.empty())
            return text.empty();
        const char16_t unit = pattern.front();
        if (unit == u'*')
            return matches(text, pattern.substr(1)) || (!text.empty() && matches(text.substr(1), pattern));
        std::size_t length = 1;
        bool fits = !text.empty();
        if (unit == u'[') {
            const std::size_t end = pattern.find(u']');
            if (end == StringView::npos)
                throw RuntimeError(ErrorNumber::invalidPatternString);
            length = end + 1;
            const StringView list = pattern.substr(1, end - 1);
            if (list.empty())
                return matches(text, pattern.substr(length));
            fits = fits && inList(letter(text.front()), list);
        } else if (unit == u'#') {
            fits = fits && text.front() >= u'0' && text.front() <= u'9';
        } else if (unit != u'?') {
            fits = fits && letter(text.front()) == letter(unit);
        }
        return fits && matches(text.substr(1), pattern.substr(length));
    }

  private:
    char16_t letter(char16_t unit) const { return folds_ ? foldCase(unit) : unit; }
    bool inList(char16_t unit, StringView list) const {
        const bool negated = list.size() > 1 && list.front() == u'!';
        if (negated)
            list.remove_prefix(1);
        bool found = false;
        for (std::size_t i = 0; i < list.size(); ++i) {
            if (i + 2 < list.size() && list[i + 1] == u'-') {
                found = found || (unit >= letter(list[i]) && unit <= letter(list[i + 2]));
                i += 2;
            } else {
                found = found || unit == letter(list[i]);
            }
        }
        return found != negated;
    }

    bool folds_;
};

TEST(LikePattern, RandomPatternsMatchAsTheRecursiveMatcherSays) {
    std::mt19937 random(20261121);
    const auto pick = [&](StringView units) { return units[random() % units.size()]; };
    int matched = 0;
    int faulty = 0;
    for (int round = 0; round < 200'000; ++round) {
        String pattern;
        for (std::size_t i = random() % 9; i > 0; --i) {
            if (random() % 6 == 0)
                pattern += String(u"[") + pick(u"!ab-") + pick(u"-abB") + pick(u"bc-]") + u"]";
            else
                pattern += pick(u"**??#aabbB1\u0416-!]");
        }
        String text;
        for (std::size_t i = random() % 9; i > 0; --i)
            text += pick(u"aaabbbABc1!-]\u0416\u0436");
        const bool folds = random() % 2 != 0;
        bool answer = false;
        try {
            answer = like(text, pattern, folds ? LikePattern::folded : LikePattern::byUnit);
        } catch (const RuntimeError& error) {
            ASSERT_EQ(error.number(), 93);
            ++faulty;
            continue;
        }
        ASSERT_EQ(answer, Matcher(folds).matches(text, pattern)) << toUtf8(text) << " / " << toUtf8(pattern);
        matched += answer ? 1 : 0;
    }
    EXPECT_GT(matched, 5'000);
    EXPECT_GT(faulty, 1'000);
}

TEST(LikePattern, ManyAsterisksDoNotTakeExponentialTime) {
    String pattern;
    for (int i = 0; i < 200; ++i)
        pattern += u"*a";
    EXPECT_FALSE(like(String(5'000, u'a'), pattern + u"*b"));
    EXPECT_TRUE(like(String(5'000, u'a'), pattern));
}

} // namespace
} // namespace lumtex::ordering
