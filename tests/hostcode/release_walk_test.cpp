/// Whatever member a host calls, and whatever it does as the list lets go of its things: nothing is harmed.
#include "hostcode/member_uses.h"
#include "hostcode/odd_moments.h"
#include "scratch_folder.h"
#include "test_recordset.h"

namespace lumtex::testing {

class ReleaseWalk : public OddMoments {
  protected:
    /// Runs `scene` on a list that `fill` gave something, with host code at each release.
    enum class Codes { all, some };
    void
    walk(const std::function<void()>& fillUp, const std::function<void()>& scene, Codes which = Codes::all) {
        const auto played = [&](const NamedCode& named) {
            makeList();
            fillUp();
            const int before = releases.gone;
            releases.code = once(named.code);
            scene();
            const bool released = releases.gone != before;
            releasing_ += released ? 1 : 0;
            expectServes();
            list.reset();
            home.run();
            EXPECT_EQ(releases.alive, 0);
            return released;
        };
        if (which == Codes::all)
            withEachCode(played);
        else
            withSomeCodes(played);
    }
    /// How many scenes let go of something, so that a walk that meets nothing is found out.
    int releasing_ = 0;

    ScratchFolder folder;
    CallValues values{folder.path.string()};
};

TEST_F(ReleaseWalk, NoMemberIsHarmedByWhatRunsAtARelease) {
    for (const MemberUse& each : memberUses()) {
        SCOPED_TRACE(nameOf(each));
        walk([&] { holdAll(); },
             [&] { use(*list, each, values.good(*each.member), values.valueFor(*each.member)); });
    }
    // What assigns to a cell or a column, clears, removes, loads.
    EXPECT_GT(releasing_, 15 * static_cast<int>(codes().size()));
}

TEST_F(ReleaseWalk, NoPlatformEventIsHarmedByWhatRunsAtARelease) {
    using Input = std::function<void()>;
    const std::pair<const char*, Input> inputs[] = {
        {"a click on a cell",
         [&] {
             home.move({20, 40});
             home.advance(std::chrono::milliseconds(2));
             home.click();
         }},
        {"a click on a header",
         [&] {
             home.move({20, 10});
             home.advance(std::chrono::milliseconds(2));
             home.click();
         }},
        {"a typed text",
         [&] {
             edits();
             home.type(u"x\r");
         }},
        {"an arrow key",
         [&] {
             home.focus();
             home.key(40);
         }},
        {"a wheel",
         [&] {
             home.move({20, 40});
             home.wheel(-120);
         }},
        {"a new size", [&] { home.resize(90, 70); }},
    };
    for (const auto& [name, input] : inputs) {
        SCOPED_TRACE(name);
        walk(
            [&] {
                holdAll();
                // The host replaces what the list holds in the middle of it, so that the list holds the last
                // reference.
                home.onYield([&] { restyles(); });
            },
            input);
    }
    EXPECT_GT(releasing_, 0);
}

/// Calls that let go of one kind of thing, or of all.
struct Dropping {
    const char* name;
    std::vector<std::function<void(lmListView&)>> calls;
};

TEST_F(ReleaseWalk, EachKindOfThingMayRunHostCodeAsItIsDropped) {
    const auto records = std::make_shared<TestRecordset>(
        std::vector<String>{u"a", u"b"}, std::vector<std::vector<Variant>>{{u"1", u"2"}, {u"3", u"4"}});
    const String file = fromUtf8((folder.path / "content").string());
    const Dropping droppings[] = {
        {"RowsClear", {[](lmListView& l) { l.RowsClear(); }}},
        {"ColumnsClear", {[](lmListView& l) { l.ColumnsClear(); }}},
        {"RowsRemove", {[](lmListView& l) { l.RowsRemove(2); }}},
        {"RowsRemove to the last row", {4, [](lmListView& l) { l.RowsRemove(1); }}},
        {"RowsSelectedRemove", {[](lmListView& l) { l.RowsSelectedRemove(); }}},
        {"UserControl_ReadProperties",
         {[](lmListView& l) { l.UserControl_ReadProperties(MemoryPropertyBag{}); }}},
        {"ContentInput",
         {[&](lmListView& l) { l.ContentSave(file, true); },
          [&](lmListView& l) { l.ContentInput(file, true); }}},
        {"Recordset", {[&](lmListView& l) { l.setRecordset(records); }}},
        {"overwriting",
         {[](lmListView& l) { l.letItemTag(1, 1, u""); },
          [](lmListView& l) { l.letItemTag(1, 2, Long{3}); },
          [](lmListView& l) { l.letItemBackColor(1, 1, Long{0}); },
          [](lmListView& l) { l.letItemForeColorSelect(1, 1, u"def"); },
          [](lmListView& l) { l.letItemBackColorSelect(1, 1, Long{1}); },
          [](lmListView& l) { l.setItemIcon(1, 1, nullptr); },
          [](lmListView& l) { l.setItemIconSelected(1, 1, nullptr); },
          [](lmListView& l) { l.setItemObject(1, 1, nullptr); },
          [](lmListView& l) { l.setColumnIcon(1, nullptr); },
          [](lmListView& l) { l.setColumnIconHover(1, nullptr); },
          [](lmListView& l) { l.setColumnIconDown(1, nullptr); },
          [](lmListView& l) { l.setSkin(nullptr); },
          [](lmListView& l) { l.setBackgroundPicture(nullptr); },
          [](lmListView& l) { l.setDefaultItemFont(nullptr); },
          [](lmListView& l) { l.setDefaultColumnFont(nullptr); },
          [](lmListView& l) { l.setRecordset(nullptr); }}},
    };
    for (const HeldKind kind : heldKinds) {
        const int before = releasing_;
        for (const Dropping& dropping : droppings) {
            SCOPED_TRACE("kind " + std::to_string(static_cast<int>(kind)) + ", " + dropping.name);
            walk([&] { hold(kind); },
                 [&] {
                     for (const auto& call : dropping.calls)
                         if (list)
                             call(*list);
                 },
                 Codes::some);
        }
        EXPECT_GT(releasing_, before) << "nothing lets go of kind " << static_cast<int>(kind);
    }
}

TEST_F(ReleaseWalk, AListThatGoesMayBeCalledByWhatItLetsGo) {
    for (const HeldKind kind : heldKinds) {
        for (const NamedCode& named : codes()) {
            if (named.code == &OddMoments::ends)
                continue; // nobody ends a list twice
            SCOPED_TRACE("kind " + std::to_string(static_cast<int>(kind)) + ", and the host " + named.name);
            makeList();
            hold(kind);
            const int before = releases.gone;
            releases.code = once(named.code);
            endListInSight();
            EXPECT_EQ(releases.alive, 0);
            EXPECT_GT(releases.gone, before);
        }
    }
}

} // namespace lumtex::testing
