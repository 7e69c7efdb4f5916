/// The classes of LumtexListView.hpp, as a host in C++ calls them.
#include "LumtexListView.hpp"
#include "windows/box_watch.h"

#include <thread>

namespace lumtex::testing {
namespace {

using LumtexListView::Failure;
using LumtexListView::Ref;
using LumtexListView::Value;
using Lists = LumtexListView::lmListView;

/// Reports are silenced; the component is found by the program's manifest.
class HostWrapper : public ::testing::Test {
  protected:
    HostWrapper() { LumtexListView::Error::make().letSilentError(true); }
    ~HostWrapper() override { LumtexListView::Error::make().letSilentError(false); }

    /// The result that a call failed with; S_OK where it did not.
    template <class Call>
    static HRESULT resultOf(Call call) {
        try {
            call();
        } catch (const Failure& failure) {
            return failure.result();
        }
        return S_OK;
    }
    static std::wstring rowOf(const Lists& from, long row) {
        return from.ItemText(row, 1) + L"/" + from.ItemText(row, 2);
    }
    void fill() {
        list.ColumnsAdd(L"City");
        list.ColumnsAdd(L"Country");
        for (const wchar_t* row : {L"Quito,Ecuador", L"Bern,Switzerland", L"Oslo,Norway"})
            list.RowsAdd(-1, L",", row);
    }

    struct Apartment {
        Apartment() { OleInitialize(nullptr); }
        Apartment(const Apartment&) = delete;
        Apartment& operator=(const Apartment&) = delete;
        ~Apartment() { OleUninitialize(); }
    };

    Apartment apartment_;
    BoxWatch watch;
    Lists list = Lists::make();
};

TEST_F(HostWrapper, LeavesOutWhatHasADefault) {
    list.ColumnsAdd(L"City");
    EXPECT_EQ(list.ColumnsCount(), 1);
    EXPECT_EQ(list.ColumnWidth(1), 1000);
    EXPECT_EQ(list.ColumnAlignment(1), LumtexListView::cColumnLeft);
    EXPECT_FALSE(list.ColumnAllowSorting(1));
    EXPECT_EQ(list.ColumnKey(1), L"");
    EXPECT_EQ(static_cast<IPictureDisp*>(list.ColumnIcon(1)), nullptr);
    list.RowsAdd();
    EXPECT_EQ(list.RowsCount(), 1);
}

TEST_F(HostWrapper, HandsOnWhatIsSaid) {
    list.ColumnsAdd(L"City",
                    nullptr,
                    nullptr,
                    nullptr,
                    LumtexListView::cColumnRight,
                    2400,
                    true,
                    0xFF,
                    L"city",
                    L"tag",
                    1,
                    2);
    EXPECT_EQ(list.ColumnWidth(1), 2400);
    EXPECT_EQ(list.ColumnAlignment(1), LumtexListView::cColumnRight);
    EXPECT_TRUE(list.ColumnAllowSorting(1));
    EXPECT_EQ(list.ColumnForeColor(1), 0xFFU);
    EXPECT_EQ(list.ColumnKey(1), L"city");
    EXPECT_EQ(list.ColumnTag(1), L"tag");
    EXPECT_EQ(list.ColumnForeColorHover(1), 1U);
    EXPECT_EQ(list.ColumnForeColorDown(1), 2U);
}

TEST_F(HostWrapper, TakesTextsUnderEitherNameOfTheirUnits) {
    fill();
    list.letItemText(1, 1, std::wstring(L"a\0b", 3));
    EXPECT_EQ(list.ItemText(1, 1).size(), 3U) << "a text may hold a zero";
    list.letItemText(1, 1, u"Z\u00FCrich");
    EXPECT_EQ(list.ItemText(1, 1), L"Z\u00FCrich");
    list.letItemText(1, 1, std::u16string(u"Graz"));
    EXPECT_EQ(LumtexListView::utf16(list.ItemText(1, 1)), u"Graz");
    list.letItemText(1, 1, std::wstring_view(L"Linz/Donau").substr(0, 4));
    EXPECT_EQ(list.ItemText(1, 1), L"Linz");
}

TEST_F(HostWrapper, GivesTheVariableOfAReferenceWhatTheListLeaves) {
    fill();
    Value place = 99;
    list.RowsAdd(&place, L";", L"Hanoi;Vietnam");
    EXPECT_EQ(place.toLong(), list.NewIndex());
    EXPECT_EQ(place.toLong(), 3);
    EXPECT_EQ(rowOf(list, 4), L"Hanoi/Vietnam");
}

TEST_F(HostWrapper, KeepsValuesOfEveryKind) {
    fill();
    for (const Value& tag : {Value(), Value(true), Value(7), Value(2.5), Value(L"x"), Value(u"y")}) {
        list.letItemTag(1, 1, tag);
        const Value kept = list.ItemTag(1, 1);
        EXPECT_EQ(kept.type(), tag.type());
        EXPECT_EQ(kept.toText(), tag.toText());
    }
    list.letItemBackColor(2, 1, RGB(1, 2, 3));
    EXPECT_EQ(list.ItemBackColor(2, 1).toLong(), 0x030201);
}

TEST_F(HostWrapper, CountsRowsByWholeNumbersOfAnyType) {
    fill();
    for (const Value& row : {Value(2), Value(2L), Value(short{2}), Value(std::size_t{2}), Value(2U)}) {
        EXPECT_EQ(row.type(), VT_I4);
        EXPECT_EQ(list.ItemText(row, 1), L"Bern");
    }
    EXPECT_EQ(Value(LumtexListView::cDescending).toLong(), 2);
    EXPECT_EQ(Value(0x80000005UL).toLong(), static_cast<long>(0x80000005UL)) << "a colour of the system's";
}

TEST_F(HostWrapper, KeepsObjectsWithTheirOwnReferences) {
    fill();
    FONTDESC description{};
    description.cbSizeofstruct = sizeof(description);
    wchar_t family[] = L"Tahoma";
    description.lpstrName = family;
    description.cySize.int64 = 120000;
    Ref<IFontDisp> font;
    ASSERT_EQ(OleCreateFontIndirect(&description, IID_IFontDisp, font.anyPlace()), S_OK);
    list.setDefaultItemFont(font);
    list.RowsAdd(-1, L",", L"Hanoi,Vietnam");
    EXPECT_EQ(list.ItemFontSize(4, 1), 12);
    Ref<IFont> given;
    ASSERT_EQ(list.DefaultItemFont()->QueryInterface(IID_IFont, given.anyPlace()), S_OK);
    CY size{};
    ASSERT_EQ(given->get_Size(&size), S_OK);
    EXPECT_EQ(size.int64, 120000);
    const LumtexListView::SpEv helper = LumtexListView::SpEv::make();
    list.letItemTag(1, 1, static_cast<IDispatch*>(helper.face()));
    EXPECT_EQ(static_cast<IDispatch*>(list.ItemTag(1, 1).toObject()), helper.face());
}

TEST_F(HostWrapper, SortsFindsAndFitsColumns) {
    fill();
    list.Sort(1, LumtexListView::cDescending, LumtexListView::cSortText);
    EXPECT_EQ(rowOf(list, 1), L"Quito/Ecuador");
    const LumtexListView::FindResults found =
        list.FindItem(L"nor*", LumtexListView::cFindStart, LumtexListView::cFindText);
    EXPECT_TRUE(found.FindSuccessful);
    EXPECT_EQ(list.ItemText(found.FindRow, found.FindColumn), L"Norway");
    EXPECT_FALSE(list.FindItem(L"none").FindSuccessful);
    list.letColumnWidth(1, 9000);
    list.letColumnWidth(2, 9000);
    list.AutoColumnSize({2});
    EXPECT_EQ(list.ColumnWidth(1), 9000);
    EXPECT_LT(list.ColumnWidth(2), 9000);
    list.AutoColumnSize();
    EXPECT_LT(list.ColumnWidth(1), 9000);
}

TEST_F(HostWrapper, GivesAListTheSettingsOfANewOne) {
    Lists made = Lists::make();
    LumtexListView::loadUsualSettings(made.face());
    EXPECT_EQ(made.RowHeight(), list.RowHeight());
    EXPECT_EQ(made.BackColor(), list.BackColor());
    EXPECT_EQ(made.WheelScrollLines(), list.WheelScrollLines());
    EXPECT_TRUE(FAILED(resultOf([&] { LumtexListView::loadUsualSettings(made.face()); })))
        << "they come once";
    EXPECT_EQ(resultOf([] { LumtexListView::loadUsualSettings(LumtexListView::SpEv::make().face()); }),
              E_NOINTERFACE);
}

TEST_F(HostWrapper, SharesTheListWithItsCopies) {
    Lists copy = list;
    copy.ColumnsAdd(L"City");
    EXPECT_EQ(list.ColumnsCount(), 1);
    EXPECT_EQ(Lists(list.face()).ColumnsCount(), 1);
}

TEST_F(HostWrapper, ReachesTheHelpers) {
    EXPECT_TRUE(LumtexListView::Error::make().SilentError());
    LumtexListView::SpEv helper = LumtexListView::SpEv::make();
    EXPECT_FALSE(helper.FileExists(L"C:\\no such file"));
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    const std::wstring file = folder + std::wstring(L"lumtex_host_wrapper.txt");
    helper.TextSave(file, L"two\nlines");
    EXPECT_EQ(helper.TextRead(file), L"two\nlines");
    DeleteFileW(file.c_str());
}

TEST_F(HostWrapper, HandsOnTextsOfAnyLengthOneAfterAnother) {
    list.ColumnsAdd(L"Text");
    const std::size_t lengths[] = {40, 3, 0, 60, 20, 5000, 4, 3000, 39};
    long row = 0;
    for (const std::size_t length : lengths) {
        const std::wstring text(length, static_cast<wchar_t>(L'a' + row));
        list.RowsAdd(-1, L", which is in none of them", text);
        EXPECT_EQ(list.ItemText(++row, 1), text);
        list.letItemText(1, 1, text + L"!");
        EXPECT_EQ(list.ItemText(1, 1), text + L"!");
    }
}

TEST_F(HostWrapper, ThrowsWhatACallWasRefusedWith) {
    fill();
    HRESULT elsewhere = S_OK;
    std::thread([&] { elsewhere = resultOf([&] { list.RowsCount(); }); }).join();
    EXPECT_EQ(elsewhere, RPC_E_WRONG_THREAD);
    EXPECT_EQ(resultOf([] { Lists(LumtexListView::SpEv::make().face()); }), E_NOINTERFACE);
    EXPECT_EQ(resultOf([] { Value(L"no number").toLong(); }), DISP_E_TYPEMISMATCH);
    try {
        Value(L"no number").toLong();
    } catch (const Failure& failure) {
        EXPECT_STREQ(failure.what(), "Value: result 0x80020005");
    }
}

TEST_F(HostWrapper, ThrowsNothingForWhatTheListReports) {
    fill();
    EXPECT_EQ(list.ItemText(99, 1), L"");
    LumtexListView::Error::make().letSilentError(false);
    EXPECT_EQ(list.ItemText(99, 1), L"");
    EXPECT_EQ(watch.boxes.size(), 1U);
    watch.boxes.clear();
}

} // namespace
} // namespace lumtex::testing
