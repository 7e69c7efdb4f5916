/// A walk over rows goes on at once while nothing waits for the host, else step by step. Each test runs
/// twice, once with a host that takes part in every yield and does nothing there, so that none is passed by;
/// nobody can tell the two apart.
#include "list_fixture.h"

#include <memory>
#include <random>
#include <sstream>

namespace lumtex::testing {
namespace {

constexpr int rows = 200;

class WalkedList : public ListFixture {
  public:
    WalkedList() {
        list.letMultiSelect(true);
        addColumns({60, 60});
        list.letAutoRedraw(false);
        for (int row = 0; row < rows; ++row)
            list.RowsAdd(Long{-1},
                         u",",
                         String(1, static_cast<char16_t>(u'A' + row % 26)) + u"," + Variant(row).toText());
        for (int row = 1; row <= rows; row += 7)
            list.letItemChecked(row, 2, true);
    }

    void TestBody() override {}

    std::string state() {
        std::ostringstream out;
        for (const RowRecord& row : inside.rows())
            out << (row.items.count() > 1 ? toUtf8(row.items[1].text().toString()) : "-")
                << (row.Selected ? "s" : "") << ' ';
        out << "; index " << list.ListIndex() << ", scan " << inside.counters().scanIndex << ", checked "
            << list.ItemsCheckedCount() << ", top " << list.TopIndex() << '\n';
        for (const std::string& line : events.log)
            out << line << '\n';
        for (const auto& box : desktop.runtime().boxes)
            out << toUtf8(box.text) << '\n';
        return out.str();
    }

    /// Ends with the walk's list.
    std::shared_ptr<int> walking = std::make_shared<int>();

    using ListFixture::desktop;
    using ListFixture::events;
    using ListFixture::inside;
    using ListFixture::list;
};

/// An object of a host that takes a row away as the list lets go of it.
class RemovesOnEnd final : public Object {
  public:
    explicit RemovesOnEnd(WalkedList& of) : of_(of), walking_(of.walking) {}
    RemovesOnEnd(const RemovesOnEnd&) = delete;
    RemovesOnEnd& operator=(const RemovesOnEnd&) = delete;
    ~RemovesOnEnd() override {
        if (walking_.expired())
            return;
        of_.events.log.push_back("gone with " + std::to_string(of_.list.RowsCount()) + " rows");
        of_.list.RowsRemove(2);
    }
    Variant get(StringView /*name*/, std::span<Variant> /*arguments*/) override { return {}; }
    void put(StringView /*name*/, const Variant& /*value*/) override {}
    Variant call(StringView /*name*/, std::span<Variant> /*arguments*/) override { return {}; }

  private:
    WalkedList& of_;
    std::weak_ptr<int> walking_;
};

using Step = std::function<void(WalkedList&)>;

/// What `walk` ends in. The host acts in its first yields, and where it is present in all others too.
std::string outcome(const Step& walk, const std::vector<Step>& inYields, bool present) {
    WalkedList tried;
    for (const Step& step : inYields)
        tried.desktop.onYield([&] { step(tried); });
    if (present)
        tried.desktop.onYield([] {}, 20000);
    walk(tried);
    return tried.state();
}

const std::vector<std::pair<const char*, Step>> walks{
    {"remove the first", [](WalkedList& of) { of.list.RowsRemove(1); }},
    {"remove one in the middle", [](WalkedList& of) { of.list.RowsRemove(rows / 2); }},
    {"remove the selected",
     [](WalkedList& of) {
         for (int row = 1; row < rows; row += 3)
             of.list.letRowSelected(row, true);
         of.list.RowsSelectedRemove();
     }},
    {"remove all but the last",
     [](WalkedList& of) {
         for (int row = 1; row < rows; ++row)
             of.list.letRowSelected(row, true);
         of.list.RowsSelectedRemove();
     }},
    {"remove all",
     [](WalkedList& of) {
         for (int row = 1; row <= rows; ++row)
             of.list.letRowSelected(row, true);
         of.list.RowsSelectedRemove();
     }},
    {"remove selected rows of which some miss a cell",
     [](WalkedList& of) {
         for (int row = 2; row < rows; row += 2)
             of.list.letRowSelected(row, true);
         for (std::size_t row = 5; row < rows; row += 9)
             of.inside.rows()[row].items = Items::create(1);
         of.list.RowsSelectedRemove();
     }},
    {"remove selected rows whose tags remove rows",
     [](WalkedList& of) {
         for (int row = 3; row < rows; row += 2)
             of.list.letRowSelected(row, true);
         for (int row = 25; row < rows; row += 40)
             of.list.letItemTag(row, 1, Variant(ObjectRef(std::make_shared<RemovesOnEnd>(of))));
         of.list.RowsSelectedRemove();
     }},
    {"select one alone", [](WalkedList& of) { of.inside.SetNewSelected(17); }},
    {"wheel down over disabled rows",
     [](WalkedList& of) {
         of.list.letWheelFunction(cWheelListIndex);
         for (int row = 2; row <= rows / 2; ++row)
             of.list.letRowEnabled(row, false);
         of.inside.turnWheel(-1);
     }},
    {"wheel up over disabled rows",
     [](WalkedList& of) {
         of.list.letWheelFunction(cWheelListIndex);
         of.list.letListIndex(rows - 1);
         for (int row = rows / 2; row < rows; ++row)
             of.list.letRowEnabled(row, false);
         of.inside.turnWheel(1);
     }},
};

const std::vector<Step> deeds{
    [](WalkedList& of) { of.list.RowsRemove(3); },
    [](WalkedList& of) { of.list.RowsAdd(Long{-1}, u",", u"z,new"); },
    [](WalkedList& of) { of.list.Sort(1); },
    [](WalkedList& of) { of.list.RowsClear(); },
    [](WalkedList& of) { of.list.Redraw(); },
    [](WalkedList& of) { of.list.letItemText(5, 2, u"written"); },
    [](WalkedList& of) { of.desktop.post([&of] { of.list.RowsRemove(2); }); },
    [](WalkedList& of) { of.inside.SetNewSelected(4); },
    [](WalkedList&) {},
};

TEST(QuietWalks, NobodyCanTellThemFromOnesThatYieldAtEachStep) {
    for (const auto& [name, walk] : walks)
        EXPECT_EQ(outcome(walk, {}, false), outcome(walk, {}, true)) << name;
}

TEST(QuietWalks, AHostThatActsInYieldsFindsTheSameAndLeavesTheSame) {
    std::mt19937 random(20261122); // NOLINT(cert-msc51-cpp): the same hosts in each run
    for (const auto& [name, walk] : walks) {
        for (int host = 0; host < 8; ++host) {
            std::vector<Step> inYields;
            for (unsigned count = 1 + random() % 6; count > 0; --count)
                inYields.push_back(deeds[random() % deeds.size()]);
            EXPECT_EQ(outcome(walk, inYields, false), outcome(walk, inYields, true))
                << name << ", host " << host;
        }
    }
}

} // namespace
} // namespace lumtex::testing
