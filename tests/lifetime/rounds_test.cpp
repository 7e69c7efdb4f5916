/// Controls that come and go leave nothing behind.
#include "activex/event_sink.h"
#include "activex/small_container.h"
#include "resources.h"

namespace lumtex::testing {
namespace {

constexpr int warmUpRounds = 200;
constexpr int rounds = 10000;
/// A round in so many also fills the list and has it tell of a sort.
constexpr int roundsPerFilledOne = 20;

// What the whole of the rounds may leave. A block forgotten in each round would be a hundred times as many.

constexpr std::size_t mostBlocks = 100;
constexpr std::size_t mostHeapBytes = 64 * 1024;
constexpr std::size_t mostPrivateBytes = 1024 * 1024;
/// Other programs of the session use the same table.
constexpr int mostUserTablePlaces = 2000;

class Rounds : public ::testing::Test {
  protected:
    Rounds() { CoInitialize(nullptr); }
    ~Rounds() override { CoUninitialize(); }

    /// A control is made, placed, closed and let go.
    void round(bool filled) {
        const win32::ComRef<IUnknown> control = component.make("lmListView");
        const auto object = control.as<IOleObject>();
        win32::demand(object->SetClientSite(&container));
        win32::demand(control.as<IPersistPropertyBag>()->Load(&settings, nullptr));
        win32::demand(object->DoVerb(
            OLEIVERB_INPLACEACTIVATE, nullptr, &container, 0, container.window, &container.place));
        DWORD cookie = 0;
        win32::demand(eventPointOf(control)->Advise(&sink, &cookie));
        if (filled)
            use(control.as<IDispatch>().get());
        object->Close(OLECLOSE_NOSAVE);
        object->SetClientSite(nullptr);
        container.told.clear();
        sink.raised.clear();
        answerOthers();
    }
    /// Other programs wait for a window's answer.
    static void answerOthers() {
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE)
            DispatchMessageW(&message);
    }
    static void use(IDispatch* list) {
        for (const char16_t* column : {u"a", u"b"})
            invoke(list, L"ColumnsAdd", DISPATCH_METHOD, {column});
        for (const char16_t* texts : {u"d,c", u"a,b"})
            invoke(list, L"RowsAdd", DISPATCH_METHOD, {Long{-1}, u",", texts});
        invoke(list, L"Sort", DISPATCH_METHOD, {Long{1}, Long{1}});
        invoke(list, L"FindItem", DISPATCH_METHOD, {u"b"});
        invoke(list, L"DefaultItemFont", DISPATCH_PROPERTYGET);
    }
    void play(int count) {
        for (int i = 0; i < count; ++i)
            round(i % roundsPerFilledOne == 0);
    }

    Component component;
    SmallContainer container;
    MapBag settings;
    EventSink sink;
};

TEST_F(Rounds, TenThousandControlsLeaveNothingBehind) {
    {
        // Only here, since each window that comes or goes is told to the watch.
        const BoxWatch watch;
        play(warmUpRounds);
    }
    const HeapUse heap = heapUse();
    const std::size_t memory = privateBytes();
    const int drawing = gdiObjectCount();
    const int windows = windowCount();
    const int reach = userTableReach();
    play(rounds);
    EXPECT_LE(heapUse().blocks, heap.blocks + mostBlocks);
    EXPECT_LE(heapUse().bytes, heap.bytes + mostHeapBytes);
    EXPECT_LE(privateBytes(), memory + mostPrivateBytes);
    EXPECT_EQ(gdiObjectCount(), drawing);
    EXPECT_EQ(windowCount(), windows);
    EXPECT_LE(userTableReach(), reach + mostUserTablePlaces);
    EXPECT_EQ(container.references, 1U);
    EXPECT_EQ(sink.references, 1U);
    EXPECT_TRUE(component.canUnload());
}

} // namespace
} // namespace lumtex::testing
