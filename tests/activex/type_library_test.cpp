/// The type library inside the component, and calls through the table of functions that it describes.
#include "automation/class_table.h"
#include "automation/enumeration_table.h"
#include "automation/event_table.h"
#include "automation/interface_types.h"
#include "automation/record_table.h"
#include "component.h"

#include <array>

namespace lumtex::testing {
namespace {

String nameOf(ITypeInfo* info, MEMBERID member) {
    BSTR name = nullptr;
    win32::demand(info->GetDocumentation(member, &name, nullptr, nullptr, nullptr));
    String text(win32::viewBSTR(name));
    SysFreeString(name);
    return text;
}

String helpOf(ITypeInfo* info, MEMBERID member) {
    BSTR help = nullptr;
    win32::demand(info->GetDocumentation(member, nullptr, &help, nullptr, nullptr));
    String text(win32::viewBSTR(help));
    SysFreeString(help);
    return text;
}

class TypeLibrary : public ListFixture {
  protected:
    TypeLibrary() {
        std::array<wchar_t, 1024> path{};
        GetModuleFileNameW(component.module(), path.data(), static_cast<DWORD>(path.size()));
        win32::demand(LoadTypeLibEx(path.data(), REGKIND_NONE, library.out()));
    }

    win32::ComRef<ITypeInfo> type(std::string_view name) {
        win32::ComRef<ITypeInfo> info;
        win32::demand(library->GetTypeInfoOfGuid(win32::guidOf(name), info.out()));
        return info;
    }
    /// The dual interface as a table of functions.
    win32::ComRef<ITypeInfo> tableOf(std::string_view name) {
        const win32::ComRef<ITypeInfo> info = type(name);
        HREFTYPE reference = 0;
        win32::ComRef<ITypeInfo> table;
        win32::demand(info->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference));
        win32::demand(info->GetRefTypeInfo(reference, table.out()));
        return table;
    }
    /// Calls the entry `place`, from 0, of a dual interface.
    HRESULT callEntry(IUnknown* object, std::size_t place, std::vector<VARIANT> arguments) {
        std::vector<VARTYPE> types;
        std::vector<VARIANTARG*> pointers;
        for (VARIANT& argument : arguments) {
            types.push_back(V_VT(&argument));
            pointers.push_back(&argument);
        }
        win32::OwnedVARIANT result;
        const std::size_t offset = (7 + place) * sizeof(void*);
        win32::demand(DispCallFunc(object,
                                   offset,
                                   CC_STDCALL,
                                   VT_ERROR,
                                   static_cast<UINT>(arguments.size()),
                                   types.data(),
                                   pointers.data(),
                                   result.out()));
        return V_ERROR(&result.get());
    }
    static std::size_t
    placeOf(const automation::ClassDescription& of, StringView name, automation::InterfaceEntry::Kind kind) {
        const auto entries = automation::interfaceEntries(of.members);
        std::size_t place = 0;
        while (entries.at(place).member->name != name || entries.at(place).kind != kind)
            ++place;
        return place;
    }

    win32::ComRef<ITypeLib> library;
};

VARIANT pointerTo(void* place) {
    VARIANT argument;
    VariantInit(&argument);
    V_VT(&argument) = VT_BYREF | VT_I4;
    V_BYREF(&argument) = place;
    return argument;
}

INVOKEKIND kindOf(const automation::InterfaceEntry& entry) {
    using enum automation::InterfaceEntry::Kind;
    switch (entry.kind) {
    case get:
        return INVOKE_PROPERTYGET;
    case let:
        return INVOKE_PROPERTYPUT;
    case set:
        return INVOKE_PROPERTYPUTREF;
    default:
        return INVOKE_FUNC;
    }
}

TEST_F(TypeLibrary, EachDualInterfaceHasTheEntriesOfTheTableAtTheirPlaces) {
    for (const automation::ClassDescription& description : automation::classTable()) {
        const win32::ComRef<ITypeInfo> table = tableOf("_" + toUtf8(description.name));
        TYPEATTR* attributes = nullptr;
        win32::demand(table->GetTypeAttr(&attributes));
        const auto entries = automation::interfaceEntries(description.members);
        EXPECT_EQ(attributes->cFuncs, entries.size()) << toUtf8(description.name);
        table->ReleaseTypeAttr(attributes);
        for (std::size_t i = 0; i < entries.size(); ++i) {
            FUNCDESC* function = nullptr;
            win32::demand(table->GetFuncDesc(static_cast<UINT>(i), &function));
            EXPECT_EQ(nameOf(table.get(), function->memid), entries[i].member->name);
            EXPECT_EQ(function->memid, entries[i].member->number);
            EXPECT_EQ(function->invkind, kindOf(entries[i])) << toUtf8(entries[i].member->name);
            EXPECT_EQ(static_cast<std::size_t>(function->oVft), (7 + i) * sizeof(void*));
            table->ReleaseFuncDesc(function);
        }
    }
}

TEST_F(TypeLibrary, EachEnumerationHasItsMembersAndNumbers) {
    for (const automation::Enumeration& enumeration : automation::enumerationTable) {
        const win32::ComRef<ITypeInfo> info = type(toUtf8(enumeration.name));
        UINT i = 0;
        for (const automation::Enumerator& enumerator : enumeration.enumerators()) {
            VARDESC* variable = nullptr;
            ASSERT_EQ(info->GetVarDesc(i++, &variable), S_OK) << toUtf8(enumeration.name);
            EXPECT_EQ(nameOf(info.get(), variable->memid), enumerator.name);
            EXPECT_EQ(V_I4(variable->lpvarValue), enumerator.number) << toUtf8(enumerator.name);
            info->ReleaseVarDesc(variable);
        }
    }
}

TEST_F(TypeLibrary, TheEventsStandInTheirOrder) {
    const win32::ComRef<ITypeInfo> info = type("__lmListView");
    MEMBERID number = 0;
    for (const automation::EventDescription& event : automation::eventTable) {
        EXPECT_EQ(nameOf(info.get(), ++number), event.name);
        EXPECT_EQ(helpOf(info.get(), number), event.help.in(words::Language::german));
    }
}

TEST_F(TypeLibrary, TheHelpIsGermanWithItsUmlauts) {
    bool umlaut = false;
    for (const automation::ClassDescription& description : automation::classTable()) {
        const std::string name = toUtf8(description.name);
        EXPECT_EQ(helpOf(type(name).get(), MEMBERID_NIL), description.help.in(words::Language::german))
            << name;
        const win32::ComRef<ITypeInfo> table = type("_" + name);
        EXPECT_EQ(helpOf(table.get(), MEMBERID_NIL), description.help.in(words::Language::german)) << name;
        for (const automation::Member& member : description.members) {
            EXPECT_EQ(helpOf(table.get(), member.number), member.help.in(words::Language::german))
                << toUtf8(member.name);
            umlaut = umlaut || member.help.in(words::Language::german).find(u'ü') != StringView::npos;
        }
    }
    EXPECT_TRUE(umlaut) << "or nothing was tried";
    for (const automation::Enumeration& enumeration : automation::enumerationTable) {
        const std::string name = toUtf8(enumeration.name);
        EXPECT_EQ(helpOf(type(name).get(), MEMBERID_NIL), enumeration.help.in(words::Language::german))
            << name;
    }
    EXPECT_EQ(helpOf(type("FindResults").get(), MEMBERID_NIL),
              automation::findResultsHelp.in(words::Language::german));
    EXPECT_EQ(helpOf(type("__lmListView").get(), MEMBERID_NIL),
              automation::eventsHelp.in(words::Language::german));
}

TEST_F(TypeLibrary, TheRecordHasItsFields) {
    const win32::ComRef<ITypeInfo> info = type("FindResults");
    for (UINT i = 0; i < automation::findResultsFields.size(); ++i) {
        VARDESC* variable = nullptr;
        ASSERT_EQ(info->GetVarDesc(i, &variable), S_OK);
        EXPECT_EQ(nameOf(info.get(), variable->memid), automation::findResultsFields[i].name);
        info->ReleaseVarDesc(variable);
    }
}

TEST_F(TypeLibrary, TheControlTellsItsClassAndItsEvents) {
    win32::ComRef<ITypeInfo> info;
    ASSERT_EQ(control.as<IProvideClassInfo>()->GetClassInfo(info.out()), S_OK);
    EXPECT_EQ(nameOf(info.get(), MEMBERID_NIL), u"lmListView");
    GUID events{};
    ASSERT_EQ(control.as<IProvideClassInfo2>()->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
    EXPECT_TRUE(IsEqualGUID(events, win32::guidOf("__lmListView")));
}

TEST_F(TypeLibrary, EveryEntryThatGivesARefusesANullPlace) {
    std::size_t place = 0;
    int walked = 0;
    for (const automation::InterfaceEntry& entry :
         automation::interfaceEntries(automation::listViewClass().members)) {
        const std::size_t at = place++;
        if (entry.kind != automation::InterfaceEntry::Kind::get || entry.member->count != 0)
            continue;
        EXPECT_EQ(callEntry(dispatch.get(), at, {pointerTo(nullptr)}), E_POINTER)
            << toUtf8(entry.member->name);
        ++walked;
    }
    EXPECT_GT(walked, 70);
}

TEST_F(TypeLibrary, PropertiesAreReadAndAssignedThroughTheTable) {
    using enum automation::InterfaceEntry::Kind;
    const auto& of = automation::listViewClass();
    VARIANT on;
    VariantInit(&on);
    V_VT(&on) = VT_BOOL;
    V_BOOL(&on) = VARIANT_TRUE;
    EXPECT_EQ(callEntry(dispatch.get(), placeOf(of, u"GridLines", let), {on}), S_OK);
    VARIANT_BOOL read = VARIANT_FALSE;
    EXPECT_EQ(callEntry(dispatch.get(), placeOf(of, u"GridLines", get), {pointerTo(&read)}), S_OK);
    EXPECT_EQ(read, VARIANT_TRUE);
    float indent = 0;
    EXPECT_EQ(callEntry(dispatch.get(), placeOf(of, u"IndentTop", get), {pointerTo(&indent)}), S_OK);
    EXPECT_EQ(indent, 3.0F);
}

TEST_F(TypeLibrary, RowsAreAddedThroughTheTableAndThePlaceComesBack) {
    fill(1, {u"a"});
    VARIANT place;
    VariantInit(&place);
    V_VT(&place) = VT_I4;
    V_I4(&place) = 99;
    win32::OwnedVARIANT split = win32::toVARIANT(Variant(u","));
    win32::OwnedVARIANT texts = win32::toVARIANT(Variant(u"b"));
    EXPECT_EQ(
        callEntry(dispatch.get(),
                  placeOf(automation::listViewClass(), u"RowsAdd", automation::InterfaceEntry::Kind::call),
                  {pointerTo(&place), split.get(), texts.get()}),
        S_OK);
    EXPECT_EQ(V_I4(&place), 1);
    EXPECT_EQ(get(L"ItemText", {Long{2}, Long{1}}), Variant(u"b"));
}

TEST_F(TypeLibrary, EarlyBoundCallersGetTheRecordOfASearch) {
    fill(1, {u"a", u"b"});
    struct {
        VARIANT_BOOL FindSuccessful = VARIANT_FALSE;
        long FindRow = 0;
        long FindColumn = 0;
    } record;
    BSTR pattern = win32::newBSTR(u"b");
    BSTR columns = nullptr;
    BSTR rows = win32::newBSTR(u"");
    long begin = 0;
    long compare = 0;
    EXPECT_EQ(
        callEntry(dispatch.get(),
                  placeOf(automation::listViewClass(), u"FindItem", automation::InterfaceEntry::Kind::call),
                  {pointerTo(&pattern),
                   pointerTo(&begin),
                   pointerTo(&compare),
                   pointerTo(&columns),
                   pointerTo(&rows),
                   pointerTo(&record)}),
        S_OK);
    EXPECT_EQ(record.FindSuccessful, VARIANT_TRUE);
    EXPECT_EQ(record.FindRow, 2);
    EXPECT_EQ(win32::viewBSTR(columns), u"*")
        << "an empty list of columns becomes all of them at the caller's";
    EXPECT_EQ(win32::viewBSTR(rows), u"*");
    SysFreeString(pattern);
    SysFreeString(columns);
    SysFreeString(rows);
}

TEST_F(TypeLibrary, ANullPlaceForAByReferenceArgumentIsRefused) {
    win32::OwnedVARIANT split = win32::toVARIANT(Variant(u","));
    win32::OwnedVARIANT texts = win32::toVARIANT(Variant(u"b"));
    EXPECT_EQ(
        callEntry(dispatch.get(),
                  placeOf(automation::listViewClass(), u"RowsAdd", automation::InterfaceEntry::Kind::call),
                  {pointerTo(nullptr), split.get(), texts.get()}),
        E_POINTER);
}

TEST_F(TypeLibrary, AFailureOfATableCallLeavesItsText) {
    VARIANT noPicture;
    VariantInit(&noPicture);
    V_VT(&noPicture) = VT_DISPATCH;
    V_DISPATCH(&noPicture) = dispatch.get();
    EXPECT_EQ(callEntry(dispatch.get(),
                        placeOf(automation::listViewClass(), u"Skin", automation::InterfaceEntry::Kind::set),
                        {noPicture}),
              DISP_E_TYPEMISMATCH);
    win32::ComRef<IErrorInfo> info;
    ASSERT_EQ(GetErrorInfo(0, info.out()), S_OK);
    BSTR text = nullptr;
    EXPECT_EQ(info->GetDescription(&text), S_OK);
    EXPECT_EQ(win32::viewBSTR(text), u"Type mismatch");
    SysFreeString(text);
}

/// The default of a parameter of a table entry, counted from 0; Null where there is none.
Variant defaultIn(ITypeInfo* table, StringView member, int parameter) {
    for (UINT entry = 0;; ++entry) {
        FUNCDESC* description = nullptr;
        win32::demand(table->GetFuncDesc(entry, &description));
        Variant found = Null{};
        const bool isIt = nameOf(table, description->memid) == member;
        if (isIt) {
            const PARAMDESC& of = description->lprgelemdescParam[parameter].paramdesc;
            if ((of.wParamFlags & PARAMFLAG_FHASDEFAULT) != 0)
                found = win32::fromVARIANT(of.pparamdescex->varDefaultValue);
        }
        table->ReleaseFuncDesc(description);
        if (isIt)
            return found;
    }
}

TEST_F(TypeLibrary, DefaultsOfEveryTypeAreReadAsTheyAreMeant) {
    const win32::ComRef<ITypeInfo> table = tableOf("_lmListView");
    EXPECT_EQ(defaultIn(table.get(), u"ColumnsAdd", 5), Variant(Single{1000}));
    EXPECT_EQ(defaultIn(table.get(), u"ColumnsAdd", 6), Variant(false));
    EXPECT_EQ(defaultIn(table.get(), u"ColumnsAdd", 8), Variant(u""));
    EXPECT_EQ(defaultIn(table.get(), u"FindItem", 1), Variant(Long{1}));
    EXPECT_EQ(defaultIn(table.get(), u"FindItem", 3), Variant(u"*"));
    EXPECT_EQ(defaultIn(table.get(), u"FindItem", 4), Variant(u"*"));
    EXPECT_EQ(defaultIn(table.get(), u"FindItem", 0), Variant(Null{}));
}

} // namespace
} // namespace lumtex::testing
