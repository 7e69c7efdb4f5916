/// \file
/// Failures at every place of every call, one after another.
#pragma once

#include "failures/failure_point.h"
#include "hostcode/member_uses.h"
#include "hostcode/odd_moments_in_memory.h"
#include "list_fixture.h"
#include "scratch_folder.h"
#include "test_recordset.h"

namespace lumtex::testing {

/// A control of the host's, as it lives in a cell.
class EmbeddedControl final : public Object {
  public:
    using Object::call;
    using Object::get;

    std::function<void()> onCall = [] {};

    Variant get(StringView name, std::span<Variant> /*arguments*/) override {
        onCall();
        if (name == u"Height")
            return Single{240};
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    void put(StringView /*name*/, const Variant& /*value*/) override { onCall(); }
    Variant call(StringView /*name*/, std::span<Variant> /*arguments*/) override {
        onCall();
        return {};
    }
};

class FailureWalk : public OddMomentsInMemory {
  protected:
    static constexpr StringView longText = u"a text that no room inside a string or a cell can hold";

    /// A place of the upper arrow of the vertical bar.
    static constexpr Point arrowButton{92, 8};

    FailureWalk();

    /// Something that a host or a user does.
    struct Scene {
        std::string name;
        std::function<void()> play;
        bool changesSettings = false;
    };
    /// What is the same after a call that failed somewhere in its middle.
    struct Kept {
        bool autoRedraw;
        bool autoCheckScroll;
        bool operator==(const Kept&) const = default;
    };

    /// Each use of each member.
    std::vector<Scene> memberScenes() {
        std::vector<Scene> scenes;
        for (const MemberUse& each : memberUses())
            scenes.push_back({nameOf(each),
                              [this, each] {
                                  const Variant value = values.valueFor(*each.member);
                                  use(*list, each, values.good(*each.member), value);
                              },
                              each.assigns && each.member->count == 0});
        return scenes;
    }
    /// Calls of which there is more to tell than the table of members does.
    std::vector<Scene> longerScenes();
    /// Mouse, keys, wheel, timers, focus, size.
    std::vector<Scene> inputScenes();

    /// Calls `round` with 1, 2, 3, ... and ever larger steps until it says that nothing failed. How many
    /// rounds met a failure.
    enum class Steps { fine, coarse };
    static long walk(const std::function<bool(long n)>& round, Steps steps = Steps::fine) {
        const long stepByStep = steps == Steps::fine ? 40 : 6;
        const long part = steps == Steps::fine ? 8 : 1;
        long met = 0;
        for (long n = 1; round(n); n += n < stepByStep ? 1 : n / part)
            ++met;
        return met;
    }

    /// A list with everything in it that a call may come by.
    void makeScene() {
        makeList();
        dress();
    }
    /// The same once more, with the list that is there: it serves.
    void makeSceneAnew(bool settingsToo) {
        if (settingsToo)
            list->UserControl_ReadProperties(MemoryPropertyBag{});
        list->StopEdit();
        list->letListIndex(-1);
        list->letTopIndex(0);
        list->Sort(-1);
        list->RowsClear();
        list->ColumnsClear();
        fill();
        ASSERT_EQ(list->RowsCount(), rows);
        ASSERT_EQ(list->ColumnsCount(), columns);
        ASSERT_EQ(toUtf8(list->ItemText(2, 3)), "a");
        dress();
    }
    virtual void dress() {
        list->letAutoRedraw(false);
        list->letItemTag(1, 1, ObjectRef(std::make_shared<CallingObject>(releases)));
        list->setItemObject(2, 1, embedded);
        list->letItemBackColor(1, 2, Long{128});
        list->letItemForeColorSelect(1, 2, Long{255});
        list->setItemIcon(1, 3, std::make_shared<CallingPicture>(releases));
        list->setItemIconSelected(1, 3, std::make_shared<CallingPicture>(releases));
        list->setColumnIcon(1, std::make_shared<CallingPicture>(releases));
        list->letItemText(2, 2, longText);
        list->letItemToolTip(2, 2, longText);
        list->letColumnText(2, longText);
        list->letItemFontName(3, 1, longText);
        list->letAutoRedraw(true);
    }
    Kept kept() const { return {list->AutoRedraw(), list->AutoCheckScroll()}; }

    /// Whatever leaves `action` is a failure of the test.
    static void guarded(const std::function<void()>& action) {
        try {
            action();
        } catch (const std::exception& caught) {
            ADD_FAILURE() << caught.what() << " reached the caller";
        } catch (...) {
            ADD_FAILURE() << "something reached the caller";
        }
    }

    /// Painting is held off after no call but one whose paint was reported to have failed.
    void expectFlags(const Kept& before, const Scene& scene) {
        ListViewInspector inspector(*list);
        bool mayHold = false;
        for (const headless::HeadlessRuntime::Box& box : desktop.runtime().boxes)
            mayHold = mayHold || box.text.find(u"/Redraw") != String::npos;
        EXPECT_TRUE(mayHold || says(inspector.painting(), "held=no")) << "painting is held off";
        EXPECT_TRUE(says(inspector.scroll(), "pending=no"));
        if (!scene.changesSettings) {
            EXPECT_TRUE(kept() == before) << "AutoRedraw or AutoCheckScroll changed";
        }
    }

    /// How many rounds of a scene, each with a failure at another place, `plays` met one. Each begins on a
    /// list that is as new, after the one before.
    long walkScene(const Scene& scene, const std::function<bool(long n)>& plays, Steps steps = Steps::fine) {
        SCOPED_TRACE(scene.name);
        if (!list)
            makeScene();
        const bool quiet = !silentError() && isQuiet(scene);
        const auto round = [&](long n) {
            SCOPED_TRACE("place " + std::to_string(n));
            begin(scene);
            expectLooks();
            const Kept before = kept();
            const bool met = plays(n);
            if (met)
                expectFlags(before, scene);
            if (met && quiet)
                expectFirstReport();
            return met && !HasFatalFailure();
        };
        return walk(round, steps);
    }
    /// The same for all of `scenes`, with the failures at `point`: one a round, or from there on all of them.
    long walkScenesAt(FailurePoint& point, const std::vector<Scene>& scenes, Steps steps, bool onwards) {
        long met = 0;
        for (const Scene& scene : scenes)
            met += walkScene(
                scene,
                [&](long n) {
                    point.arm(n, onwards);
                    guarded(scene.play);
                    return point.disarm() != 0;
                },
                steps);
        return met;
    }
    virtual void expectFirstReport() {}
    /// At the begin of each round.
    virtual void expectLooks() {}
    bool isQuiet(const Scene& scene) {
        begin(scene);
        scene.play();
        return desktop.runtime().boxes.empty();
    }
    /// A window may refuse what the host itself asks of it.
    void onWindow(const std::function<void(Window&)>& call) {
        try {
            call(list->window());
        } catch (const RuntimeError&) {
            // The list is not asked.
        }
    }
    void begin(const Scene& scene) {
        desktop.release();
        desktop.move({900, 700});
        desktop.advance(std::chrono::milliseconds(3));
        list->window().place(0, 0, static_cast<Single>(width), static_cast<Single>(height));
        list->window().letVisible(true);
        makeSceneAnew(settingsChanged_ || says(ListViewInspector(*list).painting(), "held=yes"));
        settingsChanged_ = scene.changesSettings;
        desktop.runtime().boxes.clear();
    }

    const std::shared_ptr<EmbeddedControl> embedded = std::make_shared<EmbeddedControl>();
    ScratchFolder folder;
    CallValues values{folder.path.string(), longText};
    bool settingsChanged_ = false;
    MemoryPropertyBag settings; ///< of another list, one of them unusable
};

} // namespace lumtex::testing
