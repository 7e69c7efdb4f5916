#include "scenes.h"

#include "values/text.h"

#include <algorithm>
#include <array>
#include <functional>

namespace lumtex::gallery {

namespace {

constexpr Single sceneWidth = 620;  // pixels
constexpr Single sceneHeight = 340; // pixels

/// Rows that a look changes: more than one picture shows, few enough for any list.
constexpr Long touchedRows = 30;

struct StyleScene {
    const char* name;
    cColorStyle style;
};

constexpr std::array<StyleScene, 4> styles{
    {{"blue", cXPBlue}, {"silver", cXPSilver}, {"olive", cXPOlive}, {"custom", cCustom}}};

/// A look changes the list and takes its change back.
struct Look {
    const char* name;
    std::function<void(lmListView&, bool on)> apply;
};

void eachRow(lmListView& list, const std::function<void(Long)>& change) {
    for (Long row = 1; row <= std::min(list.RowsCount(), touchedRows); ++row)
        change(row);
}

void mixFonts(lmListView& list, bool on) {
    eachRow(list, [&](Long row) {
        for (Long column = 2; column <= list.ColumnsCount(); ++column) {
            list.letItemFontBold(row, column, on && row % 5 == 1);
            list.letItemFontItalic(row, column, on && row % 5 == 2);
            list.letItemFontUnderline(row, column, on && row % 5 == 3);
            list.letItemFontStrikethrough(row, column, on && row % 5 == 4);
            list.letItemForeColor(row, column, on && row % 5 == 0 ? 0x8B0000U : 0U);
        }
    });
}

void select(lmListView& list, bool on) {
    list.letMultiSelect(true);
    for (const Long row : {2, 3, 6}) {
        if (row > list.RowsCount())
            continue;
        list.letRowSelected(row, on);
        list.letItemChecked(row, 1, on);
    }
    // Choosing a row may scroll to it.
    list.letTopIndex(0);
}

/// Too wide and too long for its window, with some rows out of view above.
void scroll(lmListView& list, bool on) {
    for (Long column = 1; column <= list.ColumnsCount(); ++column)
        list.letColumnWidth(column, list.ColumnWidth(column) * (on ? 2.0F : 0.5F));
    list.CheckScroll();
    list.letTopIndex(on ? list.RowsCount() / 3 : 0);
}

const std::vector<Look>& looks() {
    static const std::vector<Look> all = {
        {"plain", [](lmListView&, bool) {}},
        {"grid", [](lmListView& list, bool on) { list.letGridLines(on); }},
        {"selection", select},
        {"disabled",
         [](lmListView& list, bool on) {
             eachRow(list, [&](Long row) {
                 if (row % 3 == 0)
                     list.letRowEnabled(row, !on);
             });
         }},
        {"fonts", mixFonts},
        {"scrolled", scroll},
    };
    return all;
}

void dress(lmListView& list, cColorStyle style) {
    list.letColorStyle(style);
    if (style != cCustom)
        return;
    list.letScrollColorStyle(cScrollCustom);
    list.letColumnBackColor(0xE8D9C5);
    list.letColumnHoverColor(0xF5ECE0);
    list.letColumnDownColor(0xD6C0A4);
    list.letEmptyColumnFieldColor(0xE8D9C5);
    list.letValueColor(0x8A5A2B);
    list.letBorderColor(0xB08C5A);
    list.letScrollBackColor(0xF7F0E8);
    list.letScrollBar(0xD9B98C);
    list.letScrollButtons(0xE8D9C5);
    list.letScrollArrows(0x8A5A2B);
    list.letAutoRowColor(true);
    list.letRowColorFirst(0xFFFFFF);
    list.letRowColorSecond(0xFBF5EE);
}

} // namespace

std::vector<Scene> renderScenes(headless::Desktop& desktop, lmListView& list) {
    std::vector<Scene> scenes;
    list.letAutoRedraw(false);
    list.window().place(0, 0, sceneWidth, sceneHeight);
    list.CheckScroll();
    for (const StyleScene& style : styles) {
        dress(list, style.style);
        for (const Look& look : looks()) {
            look.apply(list, true);
            list.Redraw();
            scenes.push_back({std::string(style.name) + "-" + look.name, desktop.screenshot(list.window())});
            look.apply(list, false);
        }
    }
    return scenes;
}

Bitmap contactSheet(headless::Desktop& desktop, const std::vector<Scene>& scenes) {
    constexpr Single margin = 12;
    constexpr Single caption = 22;
    const auto columns = static_cast<Single>(looks().size());
    const auto rows = static_cast<Single>(styles.size());
    const Single width = sceneWidth / 2;
    const Single height = sceneHeight / 2;
    const std::unique_ptr<Surface> sheet =
        desktop.createSurface(static_cast<Long>(margin + columns * (width + margin)),
                              static_cast<Long>(margin + rows * (height + caption + margin)));
    sheet->letBackColor(0xF4F2F0);
    sheet->letForeColor(0x404040);
    sheet->setFont({.Name = u"Verdana", .Size = 9});
    for (std::size_t i = 0; i < scenes.size(); ++i) {
        const std::size_t row = i / looks().size();
        const Single x = margin + static_cast<Single>(i % looks().size()) * (width + margin);
        const Single y = margin + static_cast<Single>(row) * (height + caption + margin);
        sheet->print(x, y, fromUtf8(scenes[i].name));
        sheet->paintPicture(BitmapPicture(scenes[i].picture), x, y + caption, width, height);
    }
    return sheet->image();
}

} // namespace lumtex::gallery
