#include "values/runtime_error.h"
#include "worlds/win32/ole_font.h"
#include "worlds/win32/variant_bridge.h"

#include <limits>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

class OleFontTest : public ::testing::Test {
  protected:
    OleFontTest() { CoInitialize(nullptr); }
    ~OleFontTest() override { CoUninitialize(); }

    /// A font object as a host makes one.
    static win32::ComRef<IFontDisp> hostFont() {
        wchar_t name[] = L"DejaVu Sans";
        FONTDESC description{};
        description.cbSizeofstruct = sizeof description;
        description.lpstrName = name;
        description.cySize.int64 = 90000;
        description.sWeight = FW_BOLD;
        description.sCharset = DEFAULT_CHARSET;
        description.fUnderline = TRUE;
        void* made = nullptr;
        EXPECT_EQ(OleCreateFontIndirect(&description, IID_IFontDisp, &made), S_OK);
        return win32::ComRef<IFontDisp>::adopting(static_cast<IFontDisp*>(made));
    }
    /// As scripts read it.
    static String nameOf(IFontDisp* object) {
        DISPPARAMS none{};
        win32::OwnedVARIANT name;
        EXPECT_EQ(object->Invoke(DISPID_FONT_NAME,
                                 IID_NULL,
                                 LOCALE_USER_DEFAULT,
                                 DISPATCH_PROPERTYGET,
                                 &none,
                                 name.out(),
                                 nullptr,
                                 nullptr),
                  S_OK);
        return win32::fromVARIANT(name.get()).toText();
    }
    static ULONG referencesOf(IUnknown* object) {
        object->AddRef();
        return object->Release();
    }
};

TEST_F(OleFontTest, NothingStaysNothing) {
    EXPECT_EQ(win32::fontFrom(nullptr), nullptr);
    EXPECT_FALSE(win32::toIFont(nullptr));
}

TEST_F(OleFontTest, AHostsFontBringsItsAttributes) {
    const win32::ComRef<IFontDisp> host = hostFont();
    const FontRef font = win32::fontFrom(host.get());
    ASSERT_NE(font, nullptr);
    EXPECT_EQ(font->spec.Name, u"DejaVu Sans");
    EXPECT_NEAR(font->spec.Size, 9, 0.5);
    EXPECT_TRUE(font->spec.Bold);
    EXPECT_FALSE(font->spec.Italic);
    EXPECT_TRUE(font->spec.Underline);
    EXPECT_FALSE(font->spec.Strikethrough);
}

TEST_F(OleFontTest, AChangeByTheHostShowsInOurs) {
    const win32::ComRef<IFontDisp> host = hostFont();
    const FontRef font = win32::fontFrom(host.get());
    const win32::ComRef<IFont> attributes = host.as<IFont>();
    attributes->put_Bold(FALSE);
    attributes->put_Italic(TRUE);
    attributes->put_Strikethrough(TRUE);
    CY size{};
    size.int64 = 240000;
    attributes->put_Size(size);
    const BSTR name = SysAllocString(L"DejaVu Sans Mono");
    attributes->put_Name(name);
    SysFreeString(name);
    EXPECT_FALSE(font->spec.Bold);
    EXPECT_TRUE(font->spec.Italic);
    EXPECT_TRUE(font->spec.Strikethrough);
    EXPECT_NEAR(font->spec.Size, 24, 1);
    EXPECT_EQ(font->spec.Name, u"DejaVu Sans Mono");
}

TEST_F(OleFontTest, TheSameObjectIsTheSameFontAndComesBack) {
    const win32::ComRef<IFontDisp> host = hostFont();
    const FontRef font = win32::fontFrom(host.get());
    EXPECT_EQ(win32::fontFrom(host.get()), font);
    EXPECT_EQ(win32::toIFont(font).as<IUnknown>().get(), host.as<IUnknown>().get());
}

TEST_F(OleFontTest, OursIsLetGoTogetherWithTheObject) {
    const win32::ComRef<IFontDisp> host = hostFont();
    const ULONG before = referencesOf(host.get());
    FontRef font = win32::fontFrom(host.get());
    EXPECT_GT(referencesOf(host.get()), before);
    font.reset();
    EXPECT_EQ(referencesOf(host.get()), before);
    const win32::ComRef<IFont> attributes = host.as<IFont>();
    EXPECT_EQ(attributes->put_Bold(FALSE), S_OK) << "tells nobody who is gone";
}

TEST_F(OleFontTest, ACloneSharesNothing) {
    const win32::ComRef<IFontDisp> host = hostFont();
    const FontRef font = win32::fontFrom(host.get());
    const FontRef clone = font->Clone();
    EXPECT_EQ(clone->spec, font->spec);
    host.as<IFont>()->put_Bold(FALSE);
    EXPECT_TRUE(clone->spec.Bold);
    EXPECT_NE(win32::toIFont(clone).as<IUnknown>().get(), host.as<IUnknown>().get());
    win32::toIFont(clone).as<IFont>()->put_Italic(TRUE);
    EXPECT_TRUE(clone->spec.Italic);
    EXPECT_FALSE(font->spec.Italic);
}

TEST_F(OleFontTest, OursBecomesAnObjectWithItsAttributes) {
    const auto font = std::make_shared<Font>(FontSpec{
        .Name = u"DejaVu Sans Mono", .Size = 9.75F, .Bold = true, .Italic = true, .Strikethrough = true});
    const win32::ComRef<IFont> object = win32::toIFont(font).as<IFont>();
    ASSERT_TRUE(object);
    BSTR name = nullptr;
    BOOL bold = FALSE;
    BOOL underline = TRUE;
    object->get_Name(&name);
    object->get_Bold(&bold);
    object->get_Underline(&underline);
    EXPECT_EQ(win32::textOf(name), u"DejaVu Sans Mono");
    EXPECT_NE(bold, FALSE);
    EXPECT_EQ(underline, FALSE);
    SysFreeString(name);
}

TEST_F(OleFontTest, WhatTheHostChangesInAnObjectOfOursShowsInOurs) {
    const auto font = std::make_shared<Font>(FontSpec{.Name = u"DejaVu Sans Mono", .Size = 9.75F});
    const win32::ComRef<IFontDisp> object = win32::toIFont(font);
    object.as<IFont>()->put_Underline(TRUE);
    EXPECT_TRUE(font->spec.Underline);
    EXPECT_EQ(win32::toIFont(font).get(), object.get()) << "one object as long as it is held";
    EXPECT_EQ(win32::fontFrom(object.get()), font) << "given back, it is the same font";
}

TEST_F(OleFontTest, AnObjectOfOursKeepsTheFontAndLetsGoOfItAtItsEnd) {
    auto font = std::make_shared<Font>(FontSpec{.Name = u"DejaVu Sans Mono", .Size = 9.75F});
    const std::weak_ptr<Font> watched = font;
    win32::ComRef<IFontDisp> object = win32::toIFont(font);
    font.reset();
    EXPECT_FALSE(watched.expired());
    object.as<IFont>()->put_Bold(TRUE);
    object = {};
    EXPECT_TRUE(watched.expired());
}

TEST_F(OleFontTest, AnObjectMadeAnewKnowsTheChangesOfTheOneBefore) {
    const auto font = std::make_shared<Font>(FontSpec{.Name = u"DejaVu Sans Mono", .Size = 9.75F});
    win32::toIFont(font).as<IFont>()->put_Italic(TRUE);
    BOOL italic = FALSE;
    win32::toIFont(font).as<IFont>()->get_Italic(&italic);
    EXPECT_NE(italic, FALSE);
}

TEST_F(OleFontTest, OursTellsItsNameWhereThatFaceIsNotInstalled) {
    const auto font = std::make_shared<Font>(FontSpec{.Name = u"No Such Face", .Size = 12});
    const win32::ComRef<IFontDisp> object = win32::toIFont(font);
    EXPECT_EQ(nameOf(object.get()), u"No Such Face");
    object.as<IFont>()->put_Italic(TRUE);
    EXPECT_EQ(nameOf(object.get()), u"No Such Face");
    EXPECT_EQ(font->spec.Name, u"No Such Face");
    win32::ComRef<IFont> clone;
    ASSERT_EQ(object.as<IFont>()->Clone(clone.out()), S_OK);
    EXPECT_EQ(nameOf(clone.as<IFontDisp>().get()), u"No Such Face");
}

TEST_F(OleFontTest, OursTellsWhatTheSystemFoundOnceTheHostNamesAnother) {
    const auto font = std::make_shared<Font>(FontSpec{.Name = u"No Such Face", .Size = 12});
    const win32::ComRef<IFontDisp> object = win32::toIFont(font);
    for (const wchar_t* name : {L"DejaVu Sans Mono", L"No Such Face Either"}) {
        const BSTR text = SysAllocString(name);
        EXPECT_EQ(object.as<IFont>()->put_Name(text), S_OK);
        SysFreeString(text);
        EXPECT_EQ(nameOf(object.get()), font->spec.Name);
    }
    EXPECT_NE(font->spec.Name, u"No Such Face");
}

TEST_F(OleFontTest, AnObjectOfOursIsOneWithAllItsInterfaces) {
    const auto font = std::make_shared<Font>(FontSpec{.Name = u"DejaVu Sans Mono", .Size = 9.75F});
    const win32::ComRef<IFontDisp> object = win32::toIFont(font);
    const win32::ComRef<IUnknown> identity = object.as<IUnknown>();
    EXPECT_EQ(object.as<IFont>().as<IUnknown>().get(), identity.get());
    EXPECT_EQ(object.as<IDispatch>().as<IUnknown>().get(), identity.get());
    EXPECT_TRUE(object.as<IPersistStream>()) << "settings keep it by itself";
    EXPECT_EQ(object->QueryInterface(IID_IStream, nullptr), E_POINTER);
    EXPECT_FALSE(object.as<IStream>());
}

TEST_F(OleFontTest, AnInterfaceOfTheSystemsMayOutliveTheObject) {
    auto font = std::make_shared<Font>(FontSpec{.Name = u"DejaVu Sans Mono", .Size = 9.75F});
    win32::ComRef<IFontDisp> object = win32::toIFont(font);
    const auto stream = object.as<IPersistStream>();
    object = {};
    EXPECT_EQ(stream->IsDirty(), S_OK);
    EXPECT_EQ(nameOf(win32::toIFont(font).get()), u"DejaVu Sans Mono")
        << "a new object, not the one that went";
}

TEST_F(OleFontTest, SizesBeyondAllBoundsDoNoHarm) {
    for (const Single size : {-1.0F, 0.0F, 1e30F, std::numeric_limits<Single>::quiet_NaN()}) {
        const auto font = std::make_shared<Font>(FontSpec{.Name = u"DejaVu Sans Mono", .Size = size});
        EXPECT_TRUE(win32::toIFont(font)) << size;
    }
}

} // namespace
} // namespace lumtex::testing
