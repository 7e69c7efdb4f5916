/// The module may go when nobody holds anything of it, and not before.
#include "event_sink.h"
#include "scratch_folder.h"

#include <functional>

namespace lumtex::testing {
namespace {

class Unloading : public ::testing::Test {
  protected:
    Unloading() { CoInitialize(nullptr); }
    ~Unloading() override { CoUninitialize(); }

    /// A list with a found text.
    win32::ComRef<IUnknown> makeList() const {
        win32::ComRef<IUnknown> list = component.make("lmListView");
        const auto dispatch = list.as<IDispatch>();
        invoke(dispatch.get(), L"ColumnsAdd", DISPATCH_METHOD, {u"column"});
        invoke(dispatch.get(), L"RowsAdd", DISPATCH_METHOD, {Long{-1}, u",", u"a"});
        return list;
    }
    win32::ComRef<IUnknown> factoryOf(const char* name) const {
        win32::ComRef<IUnknown> factory;
        win32::demand(component.classObject(
            win32::guidOf(name), IID_IClassFactory, reinterpret_cast<void**>(factory.out())));
        return factory;
    }

    BoxWatch watch;
    Component component;
};

/// The object that a late-bound call gives.
win32::ComRef<IUnknown> resultOf(const win32::ComRef<IUnknown>& list,
                                 const wchar_t* name,
                                 WORD kind,
                                 const std::vector<Variant>& arguments = {}) {
    const auto dispatch = list.as<IDispatch>();
    std::vector<win32::OwnedVARIANT> held;
    std::vector<VARIANT> passed;
    for (auto argument = arguments.rbegin(); argument != arguments.rend(); ++argument) {
        held.push_back(win32::toVARIANT(*argument));
        passed.push_back(held.back().get());
    }
    DISPPARAMS parameters{passed.data(), nullptr, static_cast<UINT>(passed.size()), 0};
    win32::OwnedVARIANT result;
    win32::demand(dispatch->Invoke(idOf(dispatch.get(), name),
                                   IID_NULL,
                                   LOCALE_USER_DEFAULT,
                                   kind,
                                   &parameters,
                                   result.out(),
                                   nullptr,
                                   nullptr));
    if (V_VT(&result.get()) != VT_DISPATCH)
        return {};
    return win32::queryFor<IUnknown>(V_DISPATCH(&result.get()));
}

struct HeldThing {
    const char* name;
    std::function<win32::ComRef<IUnknown>(const win32::ComRef<IUnknown>& list)> take;
};

const HeldThing heldThings[] = {
    {"the control by another interface",
     [](const win32::ComRef<IUnknown>& list) {
         return win32::ComRef<IUnknown>(list.as<IViewObject2>().get());
     }},
    {"its events' connection point",
     [](const win32::ComRef<IUnknown>& list) { return win32::ComRef<IUnknown>(eventPointOf(list).get()); }},
    {"its connection points",
     [](const win32::ComRef<IUnknown>& list) {
         win32::ComRef<IEnumConnectionPoints> points;
         win32::demand(list.as<IConnectionPointContainer>()->EnumConnectionPoints(points.out()));
         return points.as<IUnknown>();
     }},
    {"its connections",
     [](const win32::ComRef<IUnknown>& list) {
         win32::ComRef<IEnumConnections> connections;
         win32::demand(eventPointOf(list)->EnumConnections(connections.out()));
         return connections.as<IUnknown>();
     }},
    {"its verbs",
     [](const win32::ComRef<IUnknown>& list) {
         win32::ComRef<IEnumOLEVERB> verbs;
         win32::demand(list.as<IOleObject>()->EnumVerbs(verbs.out()));
         return verbs.as<IUnknown>();
     }},
    {"a copy of its verbs",
     [](const win32::ComRef<IUnknown>& list) {
         win32::ComRef<IEnumOLEVERB> verbs;
         win32::ComRef<IEnumOLEVERB> copy;
         win32::demand(list.as<IOleObject>()->EnumVerbs(verbs.out()));
         win32::demand(verbs->Clone(copy.out()));
         return copy.as<IUnknown>();
     }},
    {"its data formats",
     [](const win32::ComRef<IUnknown>& list) {
         win32::ComRef<IEnumFORMATETC> formats;
         win32::demand(list.as<IDataObject>()->EnumFormatEtc(DATADIR_GET, formats.out()));
         return formats.as<IUnknown>();
     }},
    {"what a search found",
     [](const win32::ComRef<IUnknown>& list) {
         return resultOf(list, L"FindItem", DISPATCH_METHOD, {u"a"});
     }},
    {"one of its fonts", [](const win32::ComRef<IUnknown>& list) {
         return resultOf(list, L"DefaultItemFont", DISPATCH_PROPERTYGET);
     }}};

TEST_F(Unloading, WhatOutlivesTheControlKeepsTheModule) {
    for (const HeldThing& thing : heldThings) {
        SCOPED_TRACE(thing.name);
        EXPECT_TRUE(component.canUnload());
        win32::ComRef<IUnknown> list = makeList();
        EXPECT_FALSE(component.canUnload());
        win32::ComRef<IUnknown> held = thing.take(list);
        EXPECT_TRUE(held);
        list = {};
        EXPECT_FALSE(component.canUnload());
        held = {};
        EXPECT_TRUE(component.canUnload());
    }
}

TEST_F(Unloading, AFontThatOutlivesItsControlCanStillBeChanged) {
    win32::ComRef<IUnknown> list = makeList();
    const win32::ComRef<IUnknown> held = resultOf(list, L"DefaultItemFont", DISPATCH_PROPERTYGET);
    list = {};
    const auto font = held.as<IFont>();
    ASSERT_TRUE(font);
    EXPECT_EQ(font->put_Bold(TRUE), S_OK);
    BOOL bold = FALSE;
    EXPECT_EQ(font->get_Bold(&bold), S_OK);
    EXPECT_TRUE(bold);
}

TEST_F(Unloading, AHostsOwnFontKeepsNothing) {
    FONTDESC description{};
    wchar_t name[] = L"Tahoma";
    description.cbSizeofstruct = sizeof(description);
    description.lpstrName = name;
    description.cySize.int64 = 100000;
    description.sWeight = FW_NORMAL;
    win32::ComRef<IFont> font;
    win32::demand(OleCreateFontIndirect(&description, IID_IFont, reinterpret_cast<void**>(font.out())));
    {
        const win32::ComRef<IUnknown> list = makeList();
        VARIANT value;
        V_VT(&value) = VT_DISPATCH;
        V_DISPATCH(&value) = font.as<IDispatch>().get();
        const auto dispatch = list.as<IDispatch>();
        ASSERT_EQ(
            invoke(dispatch.get(), idOf(dispatch.get(), L"DefaultItemFont"), DISPATCH_PROPERTYPUTREF, {value})
                .result,
            S_OK);
        EXPECT_EQ(font->put_Italic(TRUE), S_OK);
    }
    EXPECT_TRUE(component.canUnload());
    EXPECT_EQ(font->put_Bold(TRUE), S_OK);
}

TEST_F(Unloading, APictureReadFromAFileOutlivesItsControl) {
    const ScratchFolder folder;
    const String file = folder.pathTo("icons.lst");
    win32::ComRef<IUnknown> held;
    {
        PICTDESC description{};
        description.cbSizeofstruct = sizeof(description);
        description.picType = PICTYPE_BITMAP;
        description.bmp.hbitmap = CreateBitmap(16, 16, 1, 32, std::vector<BYTE>(16 * 16 * 4, 0x80).data());
        win32::ComRef<IDispatch> picture;
        win32::demand(OleCreatePictureIndirect(
            &description, IID_IPictureDisp, TRUE, reinterpret_cast<void**>(picture.out())));
        const win32::ComRef<IUnknown> first = makeList();
        const auto list = first.as<IDispatch>();
        VARIANT icon;
        V_VT(&icon) = VT_DISPATCH;
        V_DISPATCH(&icon) = picture.get();
        ASSERT_EQ(invoke(list.get(),
                         idOf(list.get(), L"ItemIcon"),
                         DISPATCH_PROPERTYPUTREF,
                         {win32::toVARIANT(Long{1}).release(), win32::toVARIANT(Long{1}).release(), icon})
                      .result,
                  S_OK);
        invoke(list.get(), L"ContentSave", DISPATCH_METHOD, {file, true});
        const win32::ComRef<IUnknown> second = makeList();
        invoke(second.as<IDispatch>().get(), L"ContentInput", DISPATCH_METHOD, {file, true});
        held = resultOf(second, L"ItemIcon", DISPATCH_PROPERTYGET, {Long{1}, Long{1}});
    }
    const auto picture = held.as<IPicture>();
    ASSERT_TRUE(picture);
    OLE_XSIZE_HIMETRIC width = 0;
    EXPECT_EQ(picture->get_Width(&width), S_OK);
    EXPECT_GT(width, 0);
}

TEST_F(Unloading, ASinkKeepsNothing) {
    EventSink sink;
    {
        const win32::ComRef<IUnknown> list = makeList();
        DWORD cookie = 0;
        ASSERT_EQ(eventPointOf(list)->Advise(&sink, &cookie), S_OK);
        EXPECT_EQ(sink.references, 2U);
    }
    EXPECT_EQ(sink.references, 1U);
    EXPECT_TRUE(component.canUnload());
}

TEST_F(Unloading, FactoriesAndHelpersKeepTheModule) {
    for (const char* name : {"lmListView", "SpEv", "Error"}) {
        SCOPED_TRACE(name);
        win32::ComRef<IUnknown> held = factoryOf(name);
        EXPECT_FALSE(component.canUnload());
        held = {};
        EXPECT_TRUE(component.canUnload());
        held = component.make(name);
        EXPECT_FALSE(component.canUnload());
        held = {};
        EXPECT_TRUE(component.canUnload());
    }
}

TEST_F(Unloading, EachLockOfTheServerNeedsItsUnlock) {
    const auto lock = [&](BOOL on) { factoryOf("Error").as<IClassFactory>()->LockServer(on); };
    lock(TRUE);
    lock(TRUE);
    lock(FALSE);
    EXPECT_FALSE(component.canUnload());
    lock(FALSE);
    EXPECT_TRUE(component.canUnload());
    lock(FALSE);
    EXPECT_TRUE(component.canUnload()) << "one unlock too many";
    const win32::ComRef<IUnknown> helper = component.make("Error");
    EXPECT_FALSE(component.canUnload()) << "and it unlocks nothing else";
}

TEST(UnloadedModule, CanBeLoadedAgain) {
    CoInitialize(nullptr);
    for (int times = 0; times < 2; ++times) {
        {
            const Component component;
            EXPECT_TRUE(component.make("lmListView").as<IOleObject>());
            EXPECT_TRUE(component.canUnload());
        }
        EXPECT_EQ(GetModuleHandleW(L"LumtexListView.ocx"), nullptr);
    }
    CoUninitialize();
}

} // namespace
} // namespace lumtex::testing
