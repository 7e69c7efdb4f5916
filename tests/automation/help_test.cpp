/// Every entry of the public interface is explained in two languages.
#include "automation/class_table.h"
#include "automation/enumeration_table.h"
#include "automation/event_table.h"
#include "automation/record_table.h"
#include "values/text.h"
#include "values/windows_1252.h"

#include <sstream>

namespace lumtex::testing {
namespace {

struct Explained {
    std::string name;
    words::Phrase help;
};

std::vector<Explained> everything() {
    std::vector<Explained> all{{"the library", automation::libraryHelp},
                               {"the events", automation::eventsHelp},
                               {"FindResults", automation::findResultsHelp}};
    for (const automation::ClassDescription& description : automation::classTable()) {
        all.push_back({toUtf8(description.name), description.help});
        for (const automation::Member& member : description.members)
            all.push_back({toUtf8(member.name), member.help});
    }
    for (const automation::EventDescription& event : automation::eventTable)
        all.push_back({"the event " + toUtf8(event.name), event.help});
    for (const automation::Enumeration& enumeration : automation::enumerationTable)
        all.push_back({toUtf8(enumeration.name), enumeration.help});
    return all;
}

/// Letters alone, in lower case; names of members are left out, for they are the same in every language.
std::vector<std::string> wordsOf(StringView text) {
    std::string letters = toUtf8(text);
    for (char& c : letters)
        if (static_cast<unsigned char>(c) < 0x80 && std::isalnum(static_cast<unsigned char>(c)) == 0)
            c = ' ';
    std::istringstream stream(letters);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        const bool name =
            std::any_of(word.begin() + 1, word.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
        if (name)
            continue;
        word[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(word[0])));
        words.push_back(word);
    }
    return words;
}

/// The first word that belongs to the other language; "" for none. Words that both have are not among these.
std::string foreignWord(StringView text, const std::vector<std::string>& others) {
    for (const std::string& word : wordsOf(text))
        if (std::find(others.begin(), others.end(), word) != others.end())
            return word;
    return "";
}

const std::vector<std::string> englishWords = {
    "a",      "all",    "and",      "are",    "as",      "at",     "background", "border",  "by",
    "cell",   "cells",  "colour",   "column", "columns", "first",  "font",       "for",     "from",
    "header", "height", "icon",     "icons",  "is",      "its",    "list",       "never",   "none",
    "not",    "number", "of",       "on",     "or",      "pixels", "place",      "pointer", "raised",
    "row",    "rows",   "selected", "shown",  "that",    "the",    "this",       "to",      "under",
    "what",   "where",  "whether",  "which",  "while",   "width",  "with"};
const std::vector<std::string> germanWords = {
    "als",    "auf",  "aus",   "das",    "dem",    "den",     "der", "des", "die",
    "ein",    "eine", "einer", "farbe",  "für",    "gibt",    "ist", "mit", "nicht",
    "nur",    "oder", "ohne",  "sich",   "spalte", "spalten", "und", "von", "wenn",
    "werden", "wird", "zeile", "zeilen", "zelle",  "zellen",  "zum", "zur"};

TEST(Help, StandsInBothLanguagesInOneLine) {
    for (const auto& [name, help] : everything())
        for (const words::Language language : words::languages) {
            const StringView text = help.in(language);
            EXPECT_GT(text.size(), 10U) << name;
            EXPECT_TRUE(text.ends_with(u'.')) << name;
            EXPECT_EQ(text.find(u'\n'), StringView::npos) << name;
        }
}

TEST(Help, IsInTheLanguageThatItIsSaidToBeIn) {
    for (const auto& [name, help] : everything()) {
        EXPECT_EQ(foreignWord(help.in(words::Language::german), englishWords), "")
            << name << ": " << toUtf8(help.in(words::Language::german));
        EXPECT_EQ(foreignWord(help.in(words::Language::english), germanWords), "")
            << name << ": " << toUtf8(help.in(words::Language::english));
    }
}

TEST(Help, InTheWrongLanguageIsCaught) {
    EXPECT_EQ(foreignWord(u"Anzahl der rows.", englishWords), "rows");
    EXPECT_EQ(foreignWord(u"Whether the row ist enabled.", germanWords), "ist");
    EXPECT_EQ(foreignWord(u"Löst RowsAdd aus.", englishWords), "");
}

/// The type library has a byte for each letter.
TEST(Help, InGermanFitsTheCodePageOfTheTypeLibrary) {
    for (const auto& [name, help] : everything())
        for (const char16_t unit : help.in(words::Language::german))
            EXPECT_TRUE(unit == u'?' || toWindows1252(unit) != '?')
                << name << ": " << toUtf8(help.in(words::Language::german));
}

TEST(Help, InEnglishNeedsNoOtherLetters) {
    for (const auto& [name, help] : everything())
        for (const char16_t unit : help.in(words::Language::english))
            EXPECT_LT(unit, 0x80) << name;
}

} // namespace
} // namespace lumtex::testing
