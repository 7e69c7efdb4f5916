/// A user works with a list that a program shows: everything goes in where a mouse and a keyboard do, and
/// after each step the list says what came of it and the screen is kept as a picture in out/windows.
#include "activex/event_sink.h"
#include "activex/small_container.h"
#include "folders.h"
#include "hosting/message_loop.h"
#include "records/enumerations.h"
#include "screenshot.h"
#include "stage/user_input.h"
#include "worlds/win32/window_pictures.h"

#include <algorithm>

namespace lumtex::testing {
namespace {

constexpr DISPID itemCheck = 3;
constexpr DISPID itemChecked = 4;
constexpr DISPID columnClick = 8;
constexpr DISPID scroll = 9;
constexpr DISPID itemChanged = 26;

// Columns, from 1.

constexpr Long city = 1;
constexpr Long country = 2;
constexpr Long people = 3;

const char16_t* const cities[] = {
    u"Lisbon;Portugal;545000",     u"Porto;Portugal;232000", u"Oslo;Norway;709000",
    u"Bergen;Norway;289000",       u"Graz;Austria;292000",   u"Vienna;Austria;1982000",
    u"Turin;Italy;848000",         u"Rome;Italy;2761000",    u"Naples;Italy;914000",
    u"Ghent;Belgium;265000",       u"Lyon;France;522000",    u"Nantes;France;323000",
    u"Malmo;Sweden;352000",        u"Uppsala;Sweden;177000", u"Tartu;Estonia;97000",
    u"Riga;Latvia;605000",         u"Gdansk;Poland;486000",  u"Lodz;Poland;658000",
    u"Brno;Czech Republic;396000", u"Bremen;Germany;569000", u"Leipzig;Germany;616000",
    u"Utrecht;Netherlands;361000", u"Bilbao;Spain;346000",   u"Valencia;Spain;792000"};

/// A list in a program's window, in front of a user.
class Story : public ListFixture {
  protected:
    Story() {
        silence(false);
        container.place = {20, 20, 480, 380};
        win32::demand(object->SetClientSite(&container));
        win32::demand(control.as<IPersistPropertyBag>()->Load(&settings, nullptr));
        win32::demand(
            object->DoVerb(OLEIVERB_UIACTIVATE, nullptr, &container, 0, container.window, &container.place));
        win32::demand(point->Advise(&sink, &cookie));
        win32::demand(control.as<IOleWindow>()->GetWindow(&list));
    }
    ~Story() override {
        point->Unadvise(cookie);
        point = {};
        container.active = {};
        object->Close(OLECLOSE_NOSAVE);
        object->SetClientSite(nullptr);
        object = {};
    }

    void fillWithCities() {
        FontSpec spec;
        spec.Name = u"DejaVu Sans";
        spec.Size = 9;
        const auto font = std::make_shared<Font>(spec);
        for (const wchar_t* use : {L"DefaultItemFont", L"ColumnFont"})
            setObject(use, Variant(FontRef(font)));
        let(L"RowsDynamic", {false});
        let(L"RowHeight", {Long{rowHeight * 15}});
        let(L"MultiSelect", {true});
        let(L"Style", {Long{cCheckBoxes}});
        let(L"AllowEdit", {true});
        let(L"GridLines", {true});
        addColumn(u"City", 130);
        addColumn(u"Country", 140);
        addColumn(u"People", 100);
        for (const char16_t* row : cities)
            call(L"RowsAdd", {Long{-1}, u";", row});
        let(L"ColumnCheckBoxes", {city, true});
        let(L"ColumnAllowSorting", {country, true});
        for (Long row = 1; row <= static_cast<Long>(std::size(cities)); ++row)
            let(L"ItemAllowEdit", {row, people, true});
        call(L"Redraw");
        letMessagesThrough(container.active);
        sink.raised.clear();
    }

    // Where things are, in pixels of the list.

    static constexpr int rowHeight = 20;
    static constexpr int headerHeight = 25;

    POINT onScreen(int x, int y) const { return onScreen(list, x, y); }
    static POINT onScreen(HWND window, int x, int y) {
        POINT at{x, y};
        ClientToScreen(window, &at);
        return at;
    }
    int edgeOf(Long column) {
        int edge = 0;
        for (Long i = 1; i <= column; ++i)
            edge += get(L"ColumnWidth", {i}).toLong() / 15;
        return edge;
    }
    POINT middleOf(Long column, Long row) {
        const Long line = row - 1 - get(L"TopIndex").toLong();
        return onScreen((edgeOf(column - 1) + edgeOf(column)) / 2,
                        headerHeight + line * rowHeight + rowHeight / 2);
    }
    POINT headerOf(Long column) {
        return onScreen((edgeOf(column - 1) + edgeOf(column)) / 2, headerHeight / 2);
    }
    POINT markOf(Long row) {
        POINT at = middleOf(city, row);
        at.x = onScreen(8, 0).x;
        return at;
    }
    /// The visible windows in a window, as rectangles on the screen.
    static std::vector<RECT> visibleIn(HWND window) {
        std::vector<RECT> all;
        for (HWND child = GetWindow(window, GW_CHILD); child != nullptr;
             child = GetWindow(child, GW_HWNDNEXT)) {
            RECT area{};
            if (IsWindowVisible(child) != FALSE && GetWindowRect(child, &area) != FALSE)
                all.push_back(area);
        }
        return all;
    }
    /// The vertical bar is the visible window that is higher than wide.
    HWND verticalBar() const {
        for (HWND child = GetWindow(list, GW_CHILD); child != nullptr;
             child = GetWindow(child, GW_HWNDNEXT)) {
            RECT area{};
            GetWindowRect(child, &area);
            if (IsWindowVisible(child) != FALSE && area.bottom - area.top > area.right - area.left)
                return child;
        }
        return nullptr;
    }
    /// Its thumb lies between the arrows at both ends.
    POINT thumb() const {
        std::vector<RECT> parts = visibleIn(verticalBar());
        if (parts.size() != 3)
            throw std::runtime_error("a bar has a thumb and two arrows");
        std::ranges::sort(parts, {}, &RECT::top);
        return {(parts[1].left + parts[1].right) / 2, (parts[1].top + parts[1].bottom) / 2};
    }

    // The hands.

    /// In some steps: the list learns from one that the mouse is inside, and looks at the place of the next.
    void glideTo(POINT to) {
        POINT from{};
        GetCursorPos(&from);
        constexpr int steps = 4;
        for (int i = 1; i <= steps; ++i)
            hands.move({from.x + (to.x - from.x) * i / steps, from.y + (to.y - from.y) * i / steps}, 0);
    }
    void click(POINT at) {
        glideTo(at);
        hands.press(leftButton, 0);
        hands.release(leftButton, 0);
    }
    void clickHolding(Integer key, POINT at) {
        hands.keyDown(key);
        click(at);
        hands.keyUp(key);
    }
    /// Where the mouse is. Press and release wait in the queue together: were the mouse held on the editor
    /// that opens below it, the list would find it outside and forget the cell.
    void clickQuickly() {
        INPUT inputs[2] = {};
        inputs[0].type = inputs[1].type = INPUT_MOUSE;
        inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
        inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
        SendInput(2, inputs, sizeof(INPUT));
        letMessagesThrough(container.active);
    }
    void drag(POINT from, POINT to) {
        glideTo(from);
        hands.press(leftButton, 0);
        glideTo(to);
        hands.release(leftButton, 0);
    }
    void strike(Integer key) {
        hands.keyDown(key);
        hands.keyUp(key);
    }

    // What came of it.

    std::vector<Long> selectedRows() {
        std::vector<Long> rows;
        for (Long row = 1; row <= get(L"RowsCount").toLong(); ++row)
            if (get(L"RowSelected", {row}).toBoolean())
                rows.push_back(row);
        return rows;
    }
    String textAt(Long row, Long column) { return get(L"ItemText", {row, column}).toText(); }
    bool wasTold(DISPID event) {
        const std::vector<DISPID> raised = std::exchange(sink.raised, {});
        return std::ranges::find(raised, event) != raised.end();
    }
    void keepScreen(const char* name) {
        letMessagesThrough(container.active);
        const std::filesystem::path folder = std::filesystem::path(sourceFolder()) / "out" / "windows";
        const std::string number = std::to_string(++pictures);
        writePng(screenPicture(programWindow()),
                 folder / ((number.size() < 2 ? "0" : "") + number + "-" + name + ".png"));
    }

    SmallContainer container;
    MapBag settings;
    EventSink sink;
    win32::ComRef<IOleObject> object = control.as<IOleObject>();
    win32::ComRef<IConnectionPoint> point = eventPointOf(control);
    DWORD cookie = 0;
    HWND list = nullptr;
    UserInput hands{[this] { letMessagesThrough(container.active); }};
    int pictures = 0;

  private:
    void addColumn(const char16_t* title, int width) {
        call(L"ColumnsAdd",
             {title, Missing{}, Missing{}, Missing{}, Long{0}, Single{static_cast<Single>(width * 15)}});
    }
    void setObject(const wchar_t* name, const Variant& value) {
        invoke(dispatch.get(), name, DISPATCH_PROPERTYPUTREF, {value});
    }
};

TEST_F(Story, AUserWorksWithAList) {
    fillWithCities();
    EXPECT_EQ(get(L"RowsCount"), Variant(static_cast<Long>(std::size(cities))));
    keepScreen("shown");

    click(middleOf(country, 3));
    EXPECT_EQ(get(L"ListIndex"), Variant(Long{2}));
    EXPECT_EQ(selectedRows(), std::vector<Long>{3});
    keepScreen("row-selected");

    clickHolding(VK_SHIFT, middleOf(country, 6));
    EXPECT_EQ(selectedRows(), (std::vector<Long>{3, 4, 5, 6}));
    clickHolding(VK_CONTROL, middleOf(country, 9));
    EXPECT_EQ(selectedRows(), (std::vector<Long>{3, 4, 5, 6, 9}));
    keepScreen("rows-selected");

    sink.raised.clear();
    click(markOf(8));
    EXPECT_TRUE(wasTold(itemChecked));
    EXPECT_EQ(get(L"ItemChecked", {Long{8}, city}), Variant(true));
    sink.handlers[itemCheck] = [](auto arguments) { *V_BOOLREF(arguments[3]) = VARIANT_TRUE; };
    click(markOf(2));
    EXPECT_FALSE(wasTold(itemChecked)) << "the program keeps this one as it is";
    EXPECT_EQ(get(L"ItemChecked", {Long{2}, city}), Variant(false));
    keepScreen("mark-ticked");

    click(middleOf(people, 5));
    clickQuickly();
    hands.type(u"305000");
    keepScreen("cell-open");
    strike(VK_RETURN);
    EXPECT_TRUE(wasTold(itemChanged));
    EXPECT_EQ(textAt(5, people), u"305000");
    keepScreen("cell-edited");

    const Long width = get(L"ColumnWidth", {city}).toLong();
    const int divider = edgeOf(city) - 2;
    glideTo(onScreen(divider, headerHeight / 2));
    hands.press(leftButton, 0);
    glideTo(onScreen(divider + 15, headerHeight / 2));
    keepScreen("column-dragged");
    glideTo(onScreen(divider + 32, headerHeight / 2));
    hands.release(leftButton, 0);
    EXPECT_NEAR(get(L"ColumnWidth", {city}).toLong(), width + 30 * 15, 15);
    keepScreen("column-resized");

    sink.raised.clear();
    click(headerOf(country));
    EXPECT_TRUE(wasTold(columnClick));
    EXPECT_EQ(textAt(1, country), u"Sweden");
    click(headerOf(country));
    EXPECT_EQ(textAt(1, country), u"Austria");
    keepScreen("sorted");

    EXPECT_EQ(get(L"TopIndex"), Variant(Long{0}));
    POINT below = thumb();
    below.y += 60;
    sink.raised.clear();
    drag(thumb(), below);
    EXPECT_TRUE(wasTold(scroll));
    const Long dragged = get(L"TopIndex").toLong();
    EXPECT_GT(dragged, 0);
    keepScreen("scrolled-by-thumb");

    glideTo(middleOf(country, dragged + 3));
    hands.wheel(WHEEL_DELTA, 0);
    EXPECT_LT(get(L"TopIndex").toLong(), dragged);
    EXPECT_TRUE(wasTold(scroll));
    keepScreen("scrolled-by-wheel");

    click(middleOf(country, get(L"TopIndex").toLong() + 2));
    const Long before = get(L"ListIndex").toLong();
    strike(VK_DOWN);
    strike(VK_DOWN);
    EXPECT_EQ(get(L"ListIndex").toLong(), before + 2);
    keepScreen("moved-by-keys");
}

} // namespace
} // namespace lumtex::testing
