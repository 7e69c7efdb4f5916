#include "adapters/json/json_property_bag.h"
#include "error_number.h"
#include "list_fixture.h"
#include "scratch_folder.h"
#include "variant_printing.h"

#include <limits>

namespace lumtex::testing {
namespace {

class JsonPropertyBagTest : public ListFixture {
  protected:
    Variant read(StringView name, const Variant& byDefault = Long{-7}) {
        return bag.ReadProperty(name, byDefault);
    }
    Long errorOfReading(StringView name) {
        return errorNumberOf([&] { read(name); });
    }

    ScratchFolder folder;
    json::JsonPropertyBag bag{desktop.runtime()};
};

PictureRef twoPixels(std::uint32_t left, std::uint32_t right) {
    Bitmap bitmap(2, 1);
    bitmap.at(0, 0) = left;
    bitmap.at(1, 0) = right;
    return std::make_shared<BitmapPicture>(std::move(bitmap));
}

TEST_F(JsonPropertyBagTest, StartsAsAnEmptyObject) {
    EXPECT_EQ(bag.text(), "{}\n");
    EXPECT_EQ(read(u"BackColor"), Variant(Long{-7}));
}

TEST_F(JsonPropertyBagTest, WritesAPropertyALineInTheOrderOfWriting) {
    bag.WriteProperty(u"GridLines", true, false);
    bag.WriteProperty(u"BackColor", OLE_COLOR{0x8000000F}, OLE_COLOR{0});
    bag.WriteProperty(u"IndentTop", Single{0.1F}, Single{3});
    bag.WriteProperty(u"Caption", u"Größe \"A\"\n", u"");
    bag.WriteProperty(u"Font",
                      std::make_shared<Font>(FontSpec{.Name = u"Verdana", .Size = 8.25F, .Bold = true}),
                      FontRef{});
    EXPECT_EQ(bag.text(),
              "{\n"
              "    \"GridLines\": true,\n"
              "    \"BackColor\": -2147483633,\n"
              "    \"IndentTop\": 0.1,\n"
              "    \"Caption\": \"Größe \\\"A\\\"\\n\",\n"
              "    \"Font\": {\n"
              "        \"Name\": \"Verdana\",\n"
              "        \"Size\": 8.25,\n"
              "        \"Bold\": true\n"
              "    }\n"
              "}\n");
}

TEST_F(JsonPropertyBagTest, ReadsWhatAPersonWrote) {
    bag.parse(R"({
        // seen from far away
        "backcolor": 4278190080, "RowHeight": 1e3, "IndentTop": 2.5,
        "GRIDLINES": false, "Caption": "\u00e4",
        "Font": {"Size": 12, "Name": "Tahoma", "Underline": true}
    })");
    EXPECT_EQ(read(u"BackColor").toColor(), 0xFF000000U);
    EXPECT_EQ(read(u"RowHeight"), Variant(Long{1000}));
    EXPECT_EQ(read(u"IndentTop"), Variant(2.5));
    EXPECT_EQ(read(u"GridLines"), Variant(false));
    EXPECT_EQ(read(u"Caption"), Variant(u"ä"));
    EXPECT_EQ(read(u"Font").toFont()->spec, (FontSpec{.Name = u"Tahoma", .Size = 12, .Underline = true}));
}

TEST_F(JsonPropertyBagTest, AValueThatEqualsItsDefaultIsLeftOut) {
    bag.WriteProperty(u"GridLines", true, false);
    bag.WriteProperty(u"gridlines", false, false);
    bag.WriteProperty(u"Skin", PictureRef{}, PictureRef{});
    EXPECT_EQ(bag.text(), "{}\n");
}

TEST_F(JsonPropertyBagTest, WritingAgainReplacesInPlace) {
    bag.WriteProperty(u"IconW", Single{1}, Single{16});
    bag.WriteProperty(u"IconH", Single{2}, Single{16});
    bag.WriteProperty(u"ICONW", Single{3}, Single{16});
    EXPECT_EQ(bag.text(), "{\n    \"IconW\": 3.0,\n    \"IconH\": 2.0\n}\n");
}

TEST_F(JsonPropertyBagTest, PicturesOfBothKindsComeBackWithTheirPixels) {
    const PictureRef opaque = twoPixels(0xFF102030, 0xFFFFFFFF);
    const PictureRef masked = twoPixels(0xFF102030, 0);
    bag.WriteProperty(u"Skin", opaque, PictureRef{});
    bag.WriteProperty(u"BackgroundPicture", masked, PictureRef{});
    json::JsonPropertyBag other(desktop.runtime());
    other.parse(bag.text());
    EXPECT_EQ(other.ReadProperty(u"Skin", PictureRef{}).toPicture()->bitmap().pixels,
              opaque->bitmap().pixels);
    EXPECT_EQ(other.ReadProperty(u"BackgroundPicture", PictureRef{}).toPicture()->bitmap().pixels,
              masked->bitmap().pixels);
}

TEST_F(JsonPropertyBagTest, WhatIsNoValueIsATypeMismatch) {
    bag.parse(
        R"({"List": [1], "Object": {"Colour": 1}, "Font": {"Name": 3, "Size": 8}, "Sizeless": {"Name": "A"}})");
    for (const char16_t* name : {u"List", u"Object", u"Font", u"Sizeless"})
        EXPECT_EQ(errorOfReading(name), ErrorNumber::typeMismatch) << toUtf8(name);
}

TEST_F(JsonPropertyBagTest, AFontsSizePastASingleOverflows) {
    bag.parse(R"({"Font": {"Name": "A", "Size": 1e300}})");
    EXPECT_EQ(errorOfReading(u"Font"), ErrorNumber::overflow);
}

TEST_F(JsonPropertyBagTest, APictureOfGarbageIsAnInvalidPicture) {
    bag.parse(R"({"Empty": {"Picture": ""}, "Garbage": {"Picture": "AAAAAAAA"}, "Number": {"Picture": 5}})");
    EXPECT_EQ(errorOfReading(u"Empty"), ErrorNumber::invalidPicture);
    EXPECT_EQ(errorOfReading(u"Garbage"), ErrorNumber::invalidPicture);
    EXPECT_EQ(errorOfReading(u"Number"), ErrorNumber::typeMismatch);
}

TEST_F(JsonPropertyBagTest, WhatCannotBeStoredIsRefusedAndTheOldValueStays) {
    bag.WriteProperty(u"IconW", Single{1}, Single{16});
    const Variant refused[] = {Variant(std::numeric_limits<Single>::infinity()),
                               Variant(std::numeric_limits<Double>::quiet_NaN()),
                               Variant(Null{}),
                               Variant(Date{1}),
                               Variant()};
    for (const Variant& value : refused)
        EXPECT_EQ(errorNumberOf([&] { bag.WriteProperty(u"IconW", value, Single{16}); }),
                  ErrorNumber::typeMismatch);
    EXPECT_EQ(read(u"IconW"), Variant(Long{1}));
}

TEST_F(JsonPropertyBagTest, TextThatIsNoObjectIsAnInvalidFormatAndChangesNothing) {
    bag.WriteProperty(u"IconW", Single{1}, Single{16});
    const std::string before = bag.text();
    const std::string deep(100'000, '[');
    for (const std::string& text : {std::string(),
                                    std::string("[]"),
                                    std::string("3"),
                                    std::string("{"),
                                    std::string("{\"a\": \"\xFF\"}"),
                                    std::string("{} {}"),
                                    deep}) {
        EXPECT_EQ(errorNumberOf([&] { bag.parse(text); }), ErrorNumber::invalidFileFormat)
            << text.substr(0, 20);
        EXPECT_EQ(bag.text(), before);
    }
}

TEST_F(JsonPropertyBagTest, TextNestedDeeperThanAnyOfOursIsRefused) {
    const auto nested = [](int levels, const std::string& open, const std::string& close) {
        std::string text = "{\"a\": ";
        for (int i = 0; i < levels; ++i)
            text += open;
        text += "1";
        for (int i = 0; i < levels; ++i)
            text += close;
        return text + "}";
    };
    EXPECT_EQ(errorNumberOf([&] { bag.parse(nested(6, "[", "]")); }), noError);
    for (const int levels : {9, 20, 1'000'000}) {
        EXPECT_EQ(errorNumberOf([&] { bag.parse(nested(levels, "[", "]")); }), ErrorNumber::invalidFileFormat)
            << levels;
        EXPECT_EQ(errorNumberOf([&] { bag.parse(nested(levels, "{\"b\":", "}")); }),
                  ErrorNumber::invalidFileFormat);
    }
}

TEST_F(JsonPropertyBagTest, WhatNobodyAsksForIsNotWrittenAgain) {
    bag.parse(R"({"Zebra": 1, "IconW": 5, "iconw": 6, "Ape": {"deep": [1, 2]}, "IconH": 7})");
    EXPECT_EQ(bag.text(), "{}\n");
    EXPECT_EQ(read(u"ICONH"), Variant(Long{7}));
    EXPECT_EQ(read(u"IconW"), Variant(Long{5})) << "the first of two spellings";
    EXPECT_EQ(bag.text(), "{\n    \"IconW\": 5,\n    \"IconH\": 7\n}\n");
    bag.WriteProperty(u"IconW", Single{16}, Single{16});
    bag.WriteProperty(u"Ape", Long{1}, Long{0});
    EXPECT_EQ(bag.text(), "{\n    \"Ape\": 1,\n    \"IconH\": 7\n}\n");
    EXPECT_EQ(read(u"IconW"), Variant(Long{-7}));
    EXPECT_EQ(read(u"IconH"), Variant(Long{7}));
}

/// Looking at all others for each of them would take hours.
TEST_F(JsonPropertyBagTest, HundredsOfThousandsOfMembersAreReadOver) {
    std::string text = "{";
    for (int i = 0; i < 100'000; ++i)
        text += "\"k" + std::to_string(i) + "\": {\"Name\": 1},";
    bag.parse(text + "\"IconW\": 5}");
    EXPECT_EQ(read(u"IconW"), Variant(Long{5}));
    EXPECT_EQ(bag.text(), "{\n    \"IconW\": 5\n}\n");
}

TEST_F(JsonPropertyBagTest, CutAnywhereTheTextIsRefused) {
    bag.WriteProperty(u"IconW", Single{1}, Single{16});
    bag.WriteProperty(u"Font", std::make_shared<Font>(FontSpec{.Name = u"ä", .Size = 8}), FontRef{});
    const std::string whole = bag.text();
    // The line end behind the object may be missing.
    for (std::size_t size = 0; size + 1 < whole.size(); ++size)
        EXPECT_EQ(errorNumberOf([&] { bag.parse(whole.substr(0, size)); }), ErrorNumber::invalidFileFormat)
            << size;
}

TEST_F(JsonPropertyBagTest, AMissingFileIsNotFound) {
    EXPECT_EQ(errorNumberOf([&] { bag.load(folder.pathTo("none.json")); }), ErrorNumber::fileNotFound);
}

TEST_F(JsonPropertyBagTest, AListsSettingsComeBackFromAFile) {
    list.UserControl_ReadProperties(MemoryPropertyBag());
    list.letBackColor(0x8000000F);
    list.letColorStyle(cCustom);
    list.letRowHeight(450.5F);
    list.letGridLines(true);
    list.letOLEDragMode(2);
    list.setDefaultItemFont(
        std::make_shared<Font>(FontSpec{.Name = u"Größe", .Size = 20.25F, .Italic = true}));
    list.setSkin(twoPixels(0xFF102030, 0xFFFFFFFF));
    list.UserControl_WriteProperties(bag);
    bag.save(folder.pathTo("settings.json"));

    json::JsonPropertyBag saved(desktop.runtime());
    saved.load(folder.pathTo("settings.json"));
    lmListView other{desktop, host, events};
    other.UserControl_ReadProperties(saved);
    json::JsonPropertyBag again(desktop.runtime());
    other.UserControl_WriteProperties(again);
    EXPECT_EQ(again.text(), bag.text());
    EXPECT_EQ(other.BackColor(), 0x8000000FU);
    EXPECT_EQ(other.RowHeight(), 450.5F);
    EXPECT_EQ(other.DefaultItemFont()->spec, list.DefaultItemFont()->spec);
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(JsonPropertyBagTest, WhatAPersonGotWrongIsReportedAndTheRestHolds) {
    bag.parse(
        R"({"IconW": "wide", "IconH": 24, "GridLines": [], "Skin": null, "DefaultItemFont": null, "RowHeight": 600})");
    list.UserControl_ReadProperties(bag);
    EXPECT_EQ(reportCount(), 2U) << "one for the width, one for the lines";
    EXPECT_EQ(lastReport(), "13 UserControl_ReadProperties");
    EXPECT_EQ(list.IconH(), 24);
    EXPECT_EQ(list.RowHeight(), 600);
}

} // namespace
} // namespace lumtex::testing
