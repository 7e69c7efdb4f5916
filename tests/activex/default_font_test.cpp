/// The font that new cells take, where it is not installed as well.
#include "component.h"

namespace lumtex::testing {
namespace {

class DefaultFont : public ListFixture {
  protected:
    DefaultFont() { fill(1, {u"a"}); }

    win32::ComRef<IDispatch> font() {
        win32::OwnedVARIANT object = win32::toVARIANT(get(L"DefaultItemFont"));
        return win32::ComRef<IDispatch>(V_DISPATCH(&object.get()));
    }
    static Variant of(IDispatch* object, const wchar_t* name) {
        return invoke(object, name, DISPATCH_PROPERTYGET).value;
    }
    void expectNewCellsAgree() {
        ASSERT_EQ(call(L"RowsAdd", {Long{-1}, u",", u"b"}).result, S_OK);
        const Long row = get(L"RowsCount").toLong();
        EXPECT_EQ(get(L"ItemFontName", {row, Long{1}}), of(font().get(), L"Name"));
        EXPECT_EQ(get(L"ItemFontSize", {row, Long{1}}).toDouble(), of(font().get(), L"Size").toDouble());
    }
};

TEST_F(DefaultFont, AgreesWithNewCellsFromTheStart) {
    expectNewCellsAgree();
    EXPECT_EQ(get(L"ItemFontName", {Long{1}, Long{1}}), of(font().get(), L"Name"))
        << "before anybody asked for it";
}

TEST_F(DefaultFont, AgreesWithNewCellsWhateverFaceIsNamed) {
    for (const StringView name : {u"Tahoma", u"No Such Face 17", u"Verdana"}) {
        ASSERT_EQ(invoke(font().get(), L"Name", DISPATCH_PROPERTYPUT, {Variant(name)}).result, S_OK);
        expectNewCellsAgree();
    }
}

} // namespace
} // namespace lumtex::testing
