/// The type library's source, and what else the component is generated from.
#include "automation/class_table.h"
#include "automation/enumeration_table.h"
#include "automation/event_table.h"
#include "automation/generated_files.h"
#include "automation/identifiers.h"
#include "automation/interface_types.h"
#include "automation/record_table.h"
#include "folders.h"
#include "values/text.h"

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::string inLowerCase(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return text;
}

bool holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(TypeLibrary, TheGeneratedFilesInTheTreeAreThoseThatTheTablesGive) {
    for (const automation::GeneratedFile& file : automation::generatedFiles())
        EXPECT_TRUE(contentOf(std::filesystem::path(sourceFolder()) / file.path) == file.text)
            << file.path << ": run scripts/reference";
}

TEST(TypeLibrary, EveryIdentifierIsWellFormedAndUsedOnce) {
    const std::regex form("[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}");
    std::set<std::string_view> names;
    std::set<std::string_view> uuids;
    for (const automation::Identifier& identifier : automation::identifiers) {
        EXPECT_TRUE(std::regex_match(std::string(identifier.uuid), form)) << identifier.name;
        EXPECT_TRUE(names.insert(identifier.name).second) << identifier.name;
        EXPECT_TRUE(uuids.insert(identifier.uuid).second) << identifier.name;
    }
    EXPECT_TRUE(std::regex_match(std::string(automation::generalPageUuid), form));
    EXPECT_TRUE(uuids.insert(automation::generalPageUuid).second);
}

TEST(TypeLibrary, EveryIdentifierStandsInTheSource) {
    const std::string source = automation::typeLibrarySource();
    for (const automation::Identifier& identifier : automation::identifiers)
        EXPECT_TRUE(holds(source, "uuid(" + std::string(identifier.uuid) + ")")) << identifier.name;
}

/// A type library keeps one spelling of a name, ignoring case: a second one would rename the first.
TEST(TypeLibrary, EveryNameHasOneSpelling) {
    std::map<std::string, std::string> spellings;
    const auto check = [&](StringView name) {
        const std::string text = toUtf8(name);
        const auto [found, isNew] = spellings.emplace(inLowerCase(text), text);
        EXPECT_TRUE(isNew || found->second == text) << found->second << " and " << text;
    };
    check(u"value");
    check(u"result");
    for (const automation::ClassDescription& description : automation::classTable()) {
        check(description.name);
        for (const automation::Member& member : description.members) {
            check(member.name);
            for (const automation::Parameter& parameter : member.parameters())
                check(parameter.name);
        }
    }
    for (const automation::EventDescription& event : automation::eventTable) {
        check(event.name);
        for (const automation::EventArgument& argument : event.arguments())
            check(argument.name);
    }
    for (const automation::Enumeration& enumeration : automation::enumerationTable) {
        check(enumeration.name);
        for (const automation::Enumerator& enumerator : enumeration.enumerators())
            check(enumerator.name);
    }
    for (const automation::RecordField& field : automation::findResultsFields)
        check(field.name);
}

TEST(TypeLibrary, EveryEntryOfEveryMemberIsDeclared) {
    const std::string source = automation::typeLibrarySource();
    for (const automation::ClassDescription& description : automation::classTable())
        for (const automation::InterfaceEntry& entry : automation::interfaceEntries(description.members)) {
            const automation::Member& member = *entry.member;
            using enum automation::InterfaceEntry::Kind;
            const char* kind = entry.kind == get   ? "propget, "
                               : entry.kind == let ? "propput, "
                               : entry.kind == set ? "propputref, "
                                                   : "";
            EXPECT_TRUE(
                holds(source, std::string(kind) + "id(" + std::to_string(member.number) + "), helpstring(") &&
                holds(source, "HRESULT " + toUtf8(member.name) + "("))
                << toUtf8(member.name);
        }
}

TEST(TypeLibrary, OnePropertyAndOneEventComeFirstInDesigners) {
    const std::string source = automation::typeLibrarySource();
    std::vector<std::string> first;
    const std::regex mark(", uidefault\\]\\s*(?:HRESULT|void) (\\w+)\\(");
    for (std::sregex_iterator found(source.begin(), source.end(), mark), end; found != end; ++found)
        first.push_back((*found)[1]);
    EXPECT_EQ(first, (std::vector<std::string>{"ColorStyle", "ColorStyle", "ItemClick"}))
        << "reading and assigning the property, and the event";
}

TEST(TypeLibrary, APropertysGetComesBeforeItsLet) {
    std::vector<std::string> entries;
    for (const automation::InterfaceEntry& entry :
         automation::interfaceEntries(automation::errorClass().members))
        entries.push_back(toUtf8(entry.member->name) +
                          (entry.kind == automation::InterfaceEntry::Kind::get ? " get" : " let"));
    EXPECT_EQ(entries, (std::vector<std::string>{"SilentError get", "SilentError let"}));
}

/// What the type library cannot hold must be what a caller passes who does not know a default.
TEST(TypeLibrary, ADefaultThatIsNotDeclaredMeansZeroOrNothing) {
    for (const automation::ClassDescription& description : automation::classTable())
        for (const automation::Member& member : description.members)
            for (const automation::Parameter& parameter : member.parameters()) {
                const std::string name = toUtf8(member.name) + " " + toUtf8(parameter.name);
                const bool color = parameter.type.code == automation::TypeCode::color;
                const bool textByReference =
                    parameter.type.code == automation::TypeCode::string && parameter.byReference;
                if (color && parameter.optional()) {
                    EXPECT_EQ(parameter.defaultValue.number, 0) << name;
                }
                if (textByReference && parameter.optional()) {
                    EXPECT_EQ(parameter.defaultValue.text, u"*")
                        << name << ": an empty text must mean the same";
                }
            }
}

TEST(TypeLibrary, MembersAreWrittenWithTypesDirectionsAndDefaults) {
    const std::string source = automation::typeLibrarySource();
    EXPECT_TRUE(
        holds(source,
              "HRESULT RowsAdd([in, out, optional] VARIANT* aIndex, [in, optional, defaultvalue(\",\")] "
              "BSTR aSplit, [in, optional] BSTR aItemTexts);"));
    EXPECT_TRUE(
        holds(source,
              "HRESULT FindItem([in, out] BSTR* sFind, [in, out, optional, defaultvalue(1)] cFindBegin* "
              "cBegin, [in, out, optional, defaultvalue(0)] cFindCompare* cCompare, [in, out, optional, "
              "defaultvalue(1195524417)] "
              "BSTR* sColumns, [in, out, optional, defaultvalue(1195524417)] BSTR* sRows, [out, retval] "
              "FindResults* result);"));
    EXPECT_TRUE(holds(source, "[vararg, id(28)"));
    EXPECT_TRUE(holds(source, "HRESULT AutoColumnSize([in] SAFEARRAY(VARIANT) lColumns);"));
    EXPECT_TRUE(holds(source, "[propputref, id(159)"));
    EXPECT_TRUE(holds(source, "HRESULT Skin([in] IPictureDisp* value);"));
    EXPECT_TRUE(holds(source, "[id(-552), helpstring("));
    EXPECT_TRUE(
        holds(source, "gezeichnet.\"), nonbrowsable]\n        HRESULT Recordset([in] IDispatch* value);"));
}

TEST(TypeLibrary, EventsAreNumberedInTheirOrder) {
    const std::string source = automation::typeLibrarySource();
    EXPECT_TRUE(holds(source, "[id(20), helpstring(\"Eine Sortierung ist beendet.\")] void SortDone();"));
    EXPECT_TRUE(holds(
        source,
        "[id(3), helpstring(\"Ein Mausdruck \xE4ndert gleich ein H\xE4kchen. Cancel verhindert es.\")] void "
        "ItemCheck([in] "
        "long Row, [in] long Column, [in] VARIANT_BOOL NewValue, [in, out] VARIANT_BOOL* Cancel);"));
    EXPECT_TRUE(holds(source,
                      "[id(27), helpstring(\"Wird nie ausgel\xF6st.\")] void ItemOver([in] long Row, [in] "
                      "long Column, [in] "
                      "VARIANT_BOOL bOverItem);"));
}

TEST(TypeLibrary, TheControlAloneHasEvents) {
    const std::string source = automation::typeLibrarySource();
    EXPECT_TRUE(holds(source,
                      "[default] interface _lmListView;\n        [default, source] dispinterface "
                      "__lmListView;\n"));
    EXPECT_TRUE(holds(source, "coclass SpEv {\n        [default] interface _SpEv;\n    };"));
    EXPECT_TRUE(holds(source, "coclass Error {\n        [default] interface _Error;\n    };"));
}

} // namespace
} // namespace lumtex::testing
