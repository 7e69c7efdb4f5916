/// How properties read and what may be chosen for them, for designers.
#include "component.h"

#include <algorithm>

namespace lumtex::testing {
namespace {

class Designer : public ListFixture {
  protected:
    DISPID number(const wchar_t* name) { return idOf(dispatch.get(), name); }

    /// The text of a property's value; the result in words where there is none.
    String reads(const wchar_t* name) {
        BSTR text = nullptr;
        const HRESULT result = browsing->GetDisplayString(number(name), &text);
        const String copy(win32::viewBSTR(text));
        SysFreeString(text);
        return result == S_OK ? copy : result == S_FALSE ? u"(no text)" : u"(refused)";
    }
    /// "0 - cXPBlue=0, ...": the choices and the value behind each.
    String offers(const wchar_t* name) {
        CALPOLESTR texts{};
        CADWORD cookies{};
        if (browsing->GetPredefinedStrings(number(name), &texts, &cookies) != S_OK)
            return u"(no choice)";
        String all;
        for (ULONG i = 0; i < texts.cElems; ++i) {
            win32::OwnedVARIANT value;
            EXPECT_EQ(browsing->GetPredefinedValue(number(name), cookies.pElems[i], value.out()), S_OK);
            all += (i > 0 ? u", " : u"") + String(win32::textOf(texts.pElems[i])) + u"=" +
                   win32::fromVARIANT(value.get()).toText();
            CoTaskMemFree(texts.pElems[i]);
        }
        EXPECT_EQ(texts.cElems, cookies.cElems);
        CoTaskMemFree(texts.pElems);
        CoTaskMemFree(cookies.pElems);
        return all;
    }
    String pageOf(const wchar_t* name) {
        CLSID page{};
        const HRESULT result = browsing->MapPropertyToPage(number(name), &page);
        if (result == PERPROP_E_NOPAGEAVAILABLE)
            return IsEqualGUID(page, GUID_NULL) ? u"none" : u"(left over)";
        EXPECT_EQ(result, S_OK);
        return IsEqualGUID(page, CLSID_CColorPropPage)                           ? u"colours"
               : IsEqualGUID(page, CLSID_CFontPropPage)                          ? u"fonts"
               : IsEqualGUID(page, CLSID_CPicturePropPage)                       ? u"pictures"
               : IsEqualGUID(page, win32::guidFrom(automation::generalPageUuid)) ? u"general"
                                                                                 : u"(unknown)";
    }

    win32::ComRef<IPerPropertyBrowsing> browsing = control.as<IPerPropertyBrowsing>();
};

TEST_F(Designer, OurOwnPageComesBeforeThoseOfTheSystem) {
    CAUUID pages{};
    ASSERT_EQ(control.as<ISpecifyPropertyPages>()->GetPages(&pages), S_OK);
    ASSERT_EQ(pages.cElems, 4U);
    EXPECT_TRUE(IsEqualGUID(pages.pElems[0], win32::guidFrom(automation::generalPageUuid)));
    EXPECT_TRUE(IsEqualGUID(pages.pElems[1], CLSID_CColorPropPage));
    EXPECT_TRUE(IsEqualGUID(pages.pElems[2], CLSID_CFontPropPage));
    EXPECT_TRUE(IsEqualGUID(pages.pElems[3], CLSID_CPicturePropPage));
    CoTaskMemFree(pages.pElems);
    EXPECT_EQ(control.as<ISpecifyPropertyPages>()->GetPages(nullptr), E_POINTER);
}

TEST_F(Designer, AnEnumerationReadsWithNumberAndName) {
    EXPECT_EQ(reads(L"ColorStyle"), u"0 - cXPBlue");
    let(L"ColorStyle", {Long{99}});
    EXPECT_EQ(reads(L"ColorStyle"), u"99 - cCustom");
    let(L"ColorStyle", {Long{7}});
    EXPECT_EQ(reads(L"ColorStyle"), u"(no text)") << "any number may be stored";
    EXPECT_EQ(reads(L"GridLines"), u"(no text)");
}

TEST_F(Designer, AnEnumerationOffersAllOfItsValues) {
    EXPECT_EQ(offers(L"ColorStyle"), u"0 - cXPBlue=0, 1 - cXPSilver=1, 2 - cXPOlive=2, 99 - cCustom=99");
    EXPECT_EQ(offers(L"Style"), u"0 - cDefault=0, 1 - cCheckBoxes=1");
    EXPECT_EQ(offers(L"IconW"), u"(no choice)");
}

TEST_F(Designer, EachPropertyHasThePageOfItsType) {
    EXPECT_EQ(pageOf(L"BackColor"), u"colours");
    EXPECT_EQ(pageOf(L"DefaultItemFont"), u"fonts");
    EXPECT_EQ(pageOf(L"BackgroundPicture"), u"pictures");
    EXPECT_EQ(pageOf(L"ColorStyle"), u"general");
    EXPECT_EQ(pageOf(L"GridLines"), u"general");
    EXPECT_EQ(pageOf(L"IconW"), u"none");
}

TEST_F(Designer, WhatIsNoPlainPropertyIsRefused) {
    CLSID page{};
    BSTR text = nullptr;
    CALPOLESTR texts{};
    CADWORD cookies{};
    win32::OwnedVARIANT value;
    for (const DISPID wrong : {number(L"RowsAdd"), number(L"ItemText"), DISPID{987654}}) {
        EXPECT_EQ(browsing->MapPropertyToPage(wrong, &page), DISP_E_MEMBERNOTFOUND);
        EXPECT_EQ(browsing->GetDisplayString(wrong, &text), DISP_E_MEMBERNOTFOUND);
        EXPECT_EQ(browsing->GetPredefinedStrings(wrong, &texts, &cookies), DISP_E_MEMBERNOTFOUND);
        EXPECT_EQ(browsing->GetPredefinedValue(wrong, 0, value.out()), DISP_E_MEMBERNOTFOUND);
    }
    EXPECT_EQ(browsing->GetPredefinedValue(number(L"ColorStyle"), 7, value.out()), E_INVALIDARG);
    EXPECT_EQ(browsing->GetPredefinedValue(number(L"IconW"), 0, value.out()), E_INVALIDARG);
}

} // namespace
} // namespace lumtex::testing
