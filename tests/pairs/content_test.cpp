/// A record is saved and loaded at once where nothing can fail, else value by value. Lists at random make the
/// same file and come back the same either way.
#include "persistence/content_fixture.h"
#include "values/variant_conversion.h"
#include "values/windows_1252.h"

#include <random>

namespace lumtex::testing {
namespace {

std::string ansi(const String& text) {
    std::string bytes;
    for (const char16_t unit : text)
        bytes += static_cast<char>(toWindows1252(unit));
    return bytes;
}

class ContentRoundTrip : public ContentFixture {
  protected:
    std::uint32_t below(std::uint32_t limit) { return static_cast<std::uint32_t>(random_() % limit); }
    bool oneIn(std::uint32_t n) { return below(n) == 0; }

    /// Mostly short and plain; now and then with signs of the upper half, or longer than any buffer.
    String text() {
        if (oneIn(4))
            return {};
        String text(oneIn(200) ? 70'000 : below(30), u'a');
        for (char16_t& unit : text)
            unit = fromWindows1252(static_cast<Byte>(oneIn(40) ? below(256) : ' ' + below(95)));
        return text;
    }
    Variant color() { return oneIn(3) ? Variant(u"def") : Variant(static_cast<Long>(below(0x1000000))); }
    PictureRef picture() {
        if (!oneIn(10))
            return nullptr;
        Bitmap bitmap(static_cast<Long>(1 + below(5)), static_cast<Long>(1 + below(5)));
        const bool masked = oneIn(2);
        for (std::uint32_t& pixel : bitmap.pixels)
            pixel = masked && oneIn(2) ? 0 : 0xFF000000U | below(0x1000000);
        return std::make_shared<BitmapPicture>(bitmap, masked ? PictureKind::icon : PictureKind::bitmap);
    }

    void fill() {
        const std::uint32_t columns = below(4);
        fill(below(20), columns);
    }
    void fill(std::uint32_t rows, std::uint32_t columns) {
        list.RowsClear();
        list.ColumnsClear();
        for (std::uint32_t i = columns; i > 0; --i)
            list.ColumnsAdd(u"");
        for (std::uint32_t i = rows; i > 0; --i)
            list.RowsAdd();
        for (Long row = 1; row <= list.RowsCount(); ++row)
            for (Long column = 1; column <= list.ColumnsCount(); ++column)
                fillCell(row, column);
    }
    void fillCell(Long row, Long column) {
        list.letItemText(row, column, text());
        if (oneIn(2))
            return; // with the look of a new cell
        list.letItemEnabled(row, column, oneIn(2));
        list.letItemFontBold(row, column, oneIn(2));
        list.letItemFontSize(row, column, static_cast<Single>(below(100)) / 4);
        list.letItemFontName(row, column, oneIn(2) ? String(u"Größe") : text());
        list.letItemAllowEdit(row, column, oneIn(2));
        list.letItemAlignment(row, column, static_cast<cItemAlign>(below(256)));
        list.letItemTag(row, column, text());
        list.letItemForeColor(row, column, below(0x1000000));
        list.letItemForeColorSelect(row, column, color());
        list.letItemBackColor(row, column, color());
        list.letItemBackColorSelect(row, column, color());
        list.letItemBackColorDis(row, column, static_cast<Long>(below(0x1000000)));
        list.letItemIconAlignment(row, column, static_cast<cItemAlign>(below(256)));
        list.setItemIcon(row, column, picture());
        list.setItemIconSelected(row, column, picture());
    }

    static std::int64_t code(const Variant& color) {
        return color == Variant(u"def") ? 999999999 : color.toLong();
    }
    std::string imageOf(const PictureRef& picture) {
        if (!picture)
            return {};
        const std::vector<Byte> image = desktop.runtime().imageOfPicture(*picture);
        return CellProperties::image({image.begin(), image.end()});
    }
    CellProperties propertiesOf(Long row, Long column) {
        return {.enabled = list.ItemEnabled(row, column),
                .bold = list.ItemFontBold(row, column),
                .italic = list.ItemFontItalic(row, column),
                .underline = list.ItemFontUnderline(row, column),
                .strikethrough = list.ItemFontStrikethrough(row, column),
                .fontSize = list.ItemFontSize(row, column),
                .fontName = ansi(list.ItemFontName(row, column)),
                .allowEdit = list.ItemAllowEdit(row, column),
                .alignment = list.ItemAlignment(row, column),
                .tag = ansi(list.ItemTag(row, column).toText()),
                .foreColor = list.ItemForeColor(row, column),
                .foreColorSelect = code(list.ItemForeColorSelect(row, column)),
                .foreColorDis = code(list.ItemForeColorDis(row, column)),
                .backColor = code(list.ItemBackColor(row, column)),
                .backColorSelect = code(list.ItemBackColorSelect(row, column)),
                .backColorDis = code(list.ItemBackColorDis(row, column)),
                .iconAlignment = list.ItemIconAlignment(row, column),
                .icon = imageOf(list.ItemIcon(row, column)),
                .iconSelected = imageOf(list.ItemIconSelected(row, column))};
    }
    /// The file that the accessors' values make, put together the plain way.
    std::string expectedFile(bool properties) {
        ContentBytes bytes;
        bytes.header(list.RowsCount(), list.ColumnsCount(), properties);
        for (Long column = 1; column <= list.ColumnsCount(); ++column) {
            for (Long row = 1; row <= list.RowsCount(); ++row) {
                bytes.text(ansi(list.ItemText(row, column)));
                if (properties)
                    bytes.raw(propertiesOf(row, column).bytes());
            }
        }
        return bytes;
    }
    /// Every cell's fields, whether its tag is a text, the rows' own fields, and the number of the
    /// newest.
    std::string content() {
        std::string all = expectedFile(true);
        for (const RowRecord& row : inside.rows())
            all += std::to_string(row.items.count()) + (row.Enabled ? "e" : "-") +
                   (row.Selected ? "s" : "-") + (row.Checked ? "c" : "-") + std::to_string(row.TextPosition) +
                   " ";
        all += "new " + std::to_string(list.NewIndex());
        for (Long column = 1; column <= list.ColumnsCount(); ++column)
            for (Long row = 1; row <= list.RowsCount(); ++row)
                all += list.ItemTag(row, column).isString() ? "t" : "-";
        return all;
    }

  private:
    std::mt19937 random_{20261121};
};

constexpr int lists = 40;

TEST_F(ContentRoundTrip, SavedFilesHoldWhatTheAccessorsGive) {
    list.letAutoRedraw(false);
    for (int i = 0; i < lists; ++i) {
        fill();
        for (const bool properties : {false, true})
            ASSERT_EQ(saved(properties), expectedFile(properties)) << "list " << i;
    }
    EXPECT_EQ(takeReports(), "");
}

TEST_F(ContentRoundTrip, FilesOfManyRowsHoldWhatTheAccessorsGive) {
    list.letAutoRedraw(false);
    fill(2'000, 4);
    for (const bool properties : {false, true})
        ASSERT_TRUE(saved(properties) == expectedFile(properties)) << properties;
    EXPECT_EQ(takeReports(), "");
}

TEST_F(ContentRoundTrip, AListComesBackAsItWas) {
    list.letAutoRedraw(false);
    for (int i = 0; i < lists; ++i) {
        fill();
        const std::string before = saved(true);
        ASSERT_TRUE(load(true));
        ASSERT_EQ(saved(true), before) << "list " << i;
        const std::string short_ = saved(false);
        ASSERT_TRUE(load(i % 2 == 0));
        ASSERT_EQ(saved(false), short_) << "list " << i;
    }
    EXPECT_EQ(takeReports(), "");
}

/// In design mode each assignment paints, so there each goes through its accessor.
TEST_F(ContentRoundTrip, CellByCellOrValueByValueTheSameIsLoaded) {
    list.letAllowEdit(true);
    list.letAutoRedraw(false);
    list.letTextPositionDefault(cTextPosBottom);
    for (int i = 0; i < lists; ++i) {
        fill();
        save(i % 3 != 0);
        const bool properties = i % 2 == 0;
        const auto loadOverOneRow = [&] {
            list.RowsClear();
            list.RowsAdd();
            return load(properties);
        };
        ASSERT_TRUE(loadOverOneRow());
        const std::string quick = content();
        host.userMode = false;
        window().place(100, 100, 4, 4);
        ASSERT_TRUE(loadOverOneRow());
        host.userMode = true;
        ASSERT_EQ(content(), quick) << "list " << i;
    }
    EXPECT_EQ(takeReports(), "");
}

} // namespace
} // namespace lumtex::testing
