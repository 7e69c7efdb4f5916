/// The data of a drag, as a host reads it.
#include "dragged_data.h"
#include "values/references/picture.h"
#include "values/runtime_error.h"
#include "values/variant.h"
#include "worlds/win32/carried_data.h"
#include "worlds/win32/module_lock.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

class CarriedData : public ::testing::Test {
  protected:
    CarriedData() { CoInitialize(nullptr); }
    ~CarriedData() override {
        data = nullptr;
        EXPECT_EQ(dragged.references, 1U);
        CoUninitialize();
    }

    Variant call(StringView name, std::vector<Variant> arguments) { return data->call(name, arguments); }
    /// The number of the failure, 0 for none.
    Long failure(StringView name, std::vector<Variant> arguments) {
        try {
            static_cast<void>(data->call(name, arguments));
            return 0;
        } catch (const RuntimeError& error) {
            return error.number();
        }
    }

    DraggedData dragged;
    ObjectRef data = win32::carriedData(win32::ComRef<IDataObject>(&dragged));
};

TEST_F(CarriedData, ATextIsReadInBothOfItsForms) {
    dragged.letText(CF_UNICODETEXT, u"Gr\u00FC\u00DFe");
    dragged.letText(CF_TEXT, "plain");
    EXPECT_EQ(call(u"GetData", {Integer{CF_UNICODETEXT}}), Variant(u"Gr\u00FC\u00DFe"));
    EXPECT_EQ(call(u"GetData", {Integer{CF_TEXT}}), Variant(u"plain"));
    EXPECT_EQ(call(u"getdata", {}), Variant(u"Gr\u00FC\u00DFe")) << "the better of the two";
}

TEST_F(CarriedData, AFormatIsThereOrNot) {
    dragged.letText(CF_TEXT, "plain");
    EXPECT_EQ(call(u"GetFormat", {Integer{CF_TEXT}}), Variant(true));
    EXPECT_EQ(call(u"GetFormat", {Integer{CF_UNICODETEXT}}), Variant(false));
    EXPECT_EQ(failure(u"GetData", {Integer{CF_UNICODETEXT}}), ErrorNumber::invalidProcedureCall);
    EXPECT_EQ(failure(u"GetData", {Integer{CF_WAVE}}), ErrorNumber::invalidProcedureCall);
}

TEST_F(CarriedData, ARegisteredFormatHasANegativeNumber) {
    const UINT format = RegisterClipboardFormatW(L"Rich Text Format");
    dragged.letText(static_cast<CLIPFORMAT>(format), "{\\rtf1}");
    const Long asInteger = static_cast<Long>(format) - 0x10000;
    EXPECT_EQ(call(u"GetFormat", {asInteger}), Variant(true));
    EXPECT_EQ(call(u"GetData", {asInteger}), Variant(u"{\\rtf1}"));
}

TEST_F(CarriedData, ATextWithoutAnEndEndsWithItsMemory) {
    dragged.blocks[CF_TEXT] = {'o', 'p', 'e', 'n'};
    EXPECT_EQ(call(u"GetData", {Integer{CF_TEXT}}).toText().substr(0, 4), u"open");
}

TEST_F(CarriedData, ABitmapIsAPicture) {
    dragged.bitmap = CreateBitmap(3, 2, 1, 32, nullptr);
    const PictureRef picture = call(u"GetData", {Integer{CF_BITMAP}}).toPicture();
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->bitmap().width, 3);
    EXPECT_EQ(picture->bitmap().height, 2);
}

TEST_F(CarriedData, FilesAreCountedFromOne) {
    dragged.letFiles({u"C:\\a.txt", u"C:\\Gr\u00FC\u00DFe.txt"});
    const ObjectRef files = data->get(u"Files").toObject();
    EXPECT_EQ(files->get(u"Count"), Variant(Long{2}));
    std::vector<Variant> index{Long{2}};
    EXPECT_EQ(files->get(u"Item", index), Variant(u"C:\\Gr\u00FC\u00DFe.txt"));
    EXPECT_EQ(files->get(u"", index), Variant(u"C:\\Gr\u00FC\u00DFe.txt"));
    for (const Long outside : {0, 3, -1}) {
        index = {outside};
        EXPECT_THROW(static_cast<void>(files->get(u"Item", index)), RuntimeError);
    }
}

TEST_F(CarriedData, WithoutFilesThereIsNoListOfThem) {
    EXPECT_EQ(failure(u"Files", {}), ErrorNumber::invalidProcedureCall);
}

TEST_F(CarriedData, OtherMembersAreUnknown) {
    EXPECT_EQ(failure(u"Clear", {}), ErrorNumber::objectDoesNotSupportMember);
    EXPECT_EQ(failure(u"GetFormat", {}), ErrorNumber::objectDoesNotSupportMember);
    EXPECT_EQ(failure(u"GetData", {Integer{1}, Integer{2}}), ErrorNumber::objectDoesNotSupportMember);
    EXPECT_THROW(data->put(u"Files", Variant()), RuntimeError);
}

} // namespace
} // namespace lumtex::testing
