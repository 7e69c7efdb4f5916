/// The picture of a control, drawn and as data.
#include "placed_control.h"
#include "sheet.h"
#include "test_object.h"

namespace lumtex::testing {
namespace {

constexpr LONG width = 309; // pixels, the size of the design
constexpr LONG height = 260;

class View : public PlacedControl {
  protected:
    void begin(bool userMode) {
        container.ambients[DISPID_AMBIENT_USERMODE] = Variant(userMode);
        container.ambients[DISPID_AMBIENT_DISPLAYNAME] = Variant(u"MyList");
        ASSERT_EQ(object->SetClientSite(&container), S_OK);
        ASSERT_EQ(control.as<IPersistStreamInit>()->InitNew(), S_OK);
    }
    void fillWithColors() {
        let(L"BackColor", {Long{0x0080FF}});
        let(L"GridLines", {true});
        fill(2, {u"a,b", u"c,d", u"e,f"});
    }
    std::vector<std::uint32_t> drawn() {
        Sheet sheet(width, height);
        const RECTL bounds{0, 0, width, height};
        EXPECT_EQ(
            control.as<IViewObject>()->Draw(
                DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, sheet.dc, &bounds, nullptr, nullptr, 0),
            S_OK);
        return sheet.colors();
    }
    STGMEDIUM data(CLIPFORMAT number, DWORD medium) {
        FORMATETC format{number, nullptr, DVASPECT_CONTENT, -1, medium};
        STGMEDIUM given{};
        EXPECT_EQ(control.as<IDataObject>()->GetData(&format, &given), S_OK);
        EXPECT_EQ(given.tymed, medium);
        return given;
    }
    /// The enhanced metafile, played in the size of the control.
    std::vector<std::uint32_t> played() {
        STGMEDIUM medium = data(CF_ENHMETAFILE, TYMED_ENHMF);
        Sheet sheet(width, height);
        const RECT bounds{0, 0, width, height};
        EXPECT_TRUE(PlayEnhMetaFile(sheet.dc, medium.hEnhMetaFile, &bounds));
        ReleaseStgMedium(&medium);
        return sheet.colors();
    }
    static std::size_t differing(const std::vector<std::uint32_t>& a, const std::vector<std::uint32_t>& b) {
        std::size_t count = 0;
        for (std::size_t i = 0; i < a.size(); ++i)
            count += a[i] == b[i] ? 0 : 1;
        return count;
    }
};

TEST_F(View, AMetafileShowsTheSamePixels) {
    begin(true);
    fillWithColors();
    EXPECT_EQ(differing(played(), drawn()), 0U);
}

TEST_F(View, AMetafileOfTheDesignViewShowsTheSamePixels) {
    begin(false);
    const auto direct = drawn();
    EXPECT_EQ(differing(played(), direct), 0U);
    EXPECT_GT(std::ranges::count(direct, 0x000000U), 20) << "the name";
}

TEST_F(View, AnOldMetafileShowsTheSamePixels) {
    begin(true);
    fillWithColors();
    STGMEDIUM medium = data(CF_METAFILEPICT, TYMED_MFPICT);
    const auto* picture = static_cast<const METAFILEPICT*>(GlobalLock(medium.hMetaFilePict));
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->mm, MM_ANISOTROPIC);
    SIZEL extent{};
    object->GetExtent(DVASPECT_CONTENT, &extent);
    EXPECT_EQ(picture->xExt, extent.cx);
    EXPECT_EQ(picture->yExt, extent.cy);
    Sheet sheet(width, height);
    SetMapMode(sheet.dc, MM_ANISOTROPIC);
    SetViewportExtEx(sheet.dc, width, height, nullptr);
    EXPECT_TRUE(PlayMetaFile(sheet.dc, picture->hMF));
    GlobalUnlock(medium.hMetaFilePict);
    ReleaseStgMedium(&medium);
    EXPECT_EQ(differing(sheet.colors(), drawn()), 0U);
}

TEST_F(View, ItsWindowShowsWhatIsDrawn) {
    begin(true);
    fillWithColors();
    container.place = {0, 0, width, height};
    ASSERT_EQ(verb(OLEIVERB_INPLACEACTIVATE), S_OK);
    Sheet sheet(width, height);
    SendMessageW(window(), WM_PRINT, reinterpret_cast<WPARAM>(sheet.dc), PRF_CLIENT | PRF_CHILDREN);
    EXPECT_EQ(differing(sheet.colors(), drawn()), 0U);
}

TEST_F(View, ABoundedDrawScalesAndMoves) {
    begin(true);
    let(L"BackColor", {Long{0x0000FF}});
    Sheet sheet(100, 80);
    const RECTL bounds{50, 40, 100, 80};
    ASSERT_EQ(control.as<IViewObject>()->Draw(
                  DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, sheet.dc, &bounds, nullptr, nullptr, 0),
              S_OK);
    EXPECT_EQ(sheet.howMany(0x00FF00), 100 * 80 - 50 * 40);
}

TEST_F(View, OtherAspectsAreRefused) {
    begin(true);
    Sheet sheet(10, 10);
    const RECTL bounds{0, 0, 10, 10};
    for (const DWORD aspect : {DVASPECT_ICON, DVASPECT_THUMBNAIL, DVASPECT_DOCPRINT})
        EXPECT_EQ(control.as<IViewObject>()->Draw(
                      aspect, -1, nullptr, nullptr, nullptr, sheet.dc, &bounds, nullptr, nullptr, 0),
                  DV_E_DVASPECT);
    EXPECT_EQ(sheet.howMany(0x00FF00), 100);
}

TEST_F(View, TheFormatsOfTheDataCanBeListed) {
    win32::ComRef<IEnumFORMATETC> formats;
    const auto object2 = control.as<IDataObject>();
    ASSERT_EQ(object2->EnumFormatEtc(DATADIR_GET, formats.out()), S_OK);
    std::vector<CLIPFORMAT> numbers;
    FORMATETC format{};
    while (formats->Next(1, &format, nullptr) == S_OK) {
        numbers.push_back(format.cfFormat);
        EXPECT_EQ(object2->QueryGetData(&format), S_OK);
    }
    EXPECT_EQ(numbers, (std::vector<CLIPFORMAT>{CF_ENHMETAFILE, CF_METAFILEPICT}));
    EXPECT_EQ(object2->EnumFormatEtc(DATADIR_SET, formats.out()), E_NOTIMPL);
}

TEST_F(View, DataInOtherFormsIsRefused) {
    FORMATETC format{CF_ENHMETAFILE, nullptr, DVASPECT_ICON, -1, TYMED_ENHMF};
    STGMEDIUM medium{};
    const auto source = control.as<IDataObject>();
    EXPECT_EQ(source->GetData(&format, &medium), DV_E_DVASPECT);
    format.dwAspect = DVASPECT_CONTENT;
    format.tymed = TYMED_HGLOBAL;
    EXPECT_EQ(source->GetData(&format, &medium), DV_E_TYMED);
    format.cfFormat = CF_TEXT;
    EXPECT_EQ(source->GetData(&format, &medium), DV_E_FORMATETC);
    EXPECT_EQ(source->GetDataHere(&format, &medium), DV_E_FORMATETC);
    EXPECT_EQ(medium.tymed, DWORD{TYMED_NULL});
    FORMATETC same{};
    EXPECT_EQ(source->GetCanonicalFormatEtc(&format, &same), DATA_S_SAMEFORMATETC);
    EXPECT_EQ(same.cfFormat, CF_TEXT);
}

// The container's answers

TEST_F(View, ADesignViewShowsANewName) {
    begin(false);
    const auto before = drawn();
    container.ambients[DISPID_AMBIENT_DISPLAYNAME] = Variant(u"Another");
    ASSERT_EQ(control.as<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_FONT), S_OK);
    EXPECT_EQ(differing(drawn(), before), 0U) << "it was not told of the name";
    ASSERT_EQ(control.as<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_DISPLAYNAME), S_OK);
    EXPECT_GT(differing(drawn(), before), 10U);
}

TEST_F(View, TheExtendersNameGoesBeforeTheDisplayName) {
    begin(false);
    const auto byDisplayName = drawn();
    const auto extender = std::make_shared<TestObject>();
    extender->properties[u"Name"] = u"Another";
    container.extender = win32::toIDispatch(extender);
    ASSERT_EQ(control.as<IOleControl>()->OnAmbientPropertyChange(DISPID_UNKNOWN), S_OK);
    const auto byExtender = drawn();
    EXPECT_GT(differing(byExtender, byDisplayName), 10U);
    extender->properties[u"Name"] = u"MyList";
    ASSERT_EQ(control.as<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_DISPLAYNAME), S_OK);
    EXPECT_EQ(differing(drawn(), byDisplayName), 0U);
    container.extender = {};
}

TEST_F(View, AListThatStartsToRunShowsItsRows) {
    begin(false);
    fillWithColors();
    const auto design = drawn();
    container.ambients[DISPID_AMBIENT_USERMODE] = Variant(true);
    ASSERT_EQ(control.as<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE), S_OK);
    EXPECT_GT(differing(drawn(), design), 10U);
}

TEST_F(View, AnAmbientChangeBeforeTheSettingsLeavesThemToBeLoaded) {
    container.ambients[DISPID_AMBIENT_USERMODE] = Variant(false);
    ASSERT_EQ(object->SetClientSite(&container), S_OK);
    ASSERT_EQ(control.as<IOleControl>()->OnAmbientPropertyChange(DISPID_UNKNOWN), S_OK);
    MapBag bag;
    bag.values[u"GridLines"] = true;
    ASSERT_EQ(control.as<IPersistPropertyBag>()->Load(&bag, nullptr), S_OK);
    EXPECT_EQ(get(L"GridLines"), Variant(true));
}

TEST_F(View, ANewListTakesTheFontOfItsContainer) {
    const auto font = std::make_shared<Font>(FontSpec{.Name = u"Verdana", .Size = 18, .Bold = true});
    container.ambients[DISPID_AMBIENT_FONT] = Variant(FontRef(font));
    begin(true);
    EXPECT_TRUE(get(L"DefaultItemFont").toFont()->spec.Bold);
    EXPECT_NEAR(get(L"DefaultItemFont").toFont()->spec.Size, 18, 0.5);
}

TEST_F(View, TheFontOfItsParentGoesBeforeTheAmbientOne) {
    container.ambients[DISPID_AMBIENT_FONT] =
        Variant(FontRef(std::make_shared<Font>(FontSpec{.Name = u"Verdana", .Size = 18})));
    const auto form = std::make_shared<TestObject>();
    const auto extender = std::make_shared<TestObject>();
    form->properties[u"Font"] =
        Variant(FontRef(std::make_shared<Font>(FontSpec{.Name = u"Verdana", .Size = 24, .Italic = true})));
    extender->properties[u"Parent"] = Variant(ObjectRef(form));
    container.extender = win32::toIDispatch(extender);
    begin(true);
    EXPECT_TRUE(get(L"DefaultItemFont").toFont()->spec.Italic);
    EXPECT_GT(get(L"DefaultItemFont").toFont()->spec.Size, 20) << "the nearest that the system has";
    container.extender = {};
}

TEST_F(View, AParentWithoutAFontLeavesTheAmbientOne) {
    container.ambients[DISPID_AMBIENT_FONT] =
        Variant(FontRef(std::make_shared<Font>(FontSpec{.Name = u"Verdana", .Size = 18})));
    const auto extender = std::make_shared<TestObject>();
    extender->properties[u"Parent"] = Variant(ObjectRef(std::make_shared<TestObject>()));
    container.extender = win32::toIDispatch(extender);
    begin(true);
    EXPECT_NEAR(get(L"DefaultItemFont").toFont()->spec.Size, 18, 0.5);
    container.extender = {};
}

} // namespace
} // namespace lumtex::testing
