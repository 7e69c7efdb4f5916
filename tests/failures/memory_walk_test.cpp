/// Memory may run out at any moment of any call: nothing reaches the caller, and the next call works.
#include "failures/failing_memory.h"
#include "failures/failure_walk.h"

namespace lumtex::testing {

class MemoryWalk : public FailureWalk {
  protected:
    using Which = FailingMemory::Which;

    /// Requests count while a call of the list runs.
    bool playWithout(const Scene& scene, long n, Which which) {
        FailingMemory::arm(
            n,
            which,
            [](const void* life) { return static_cast<const ControlLife*>(life)->isBusy(); },
            &ListViewInspector(*list).life());
        guarded(scene.play);
        return FailingMemory::disarm() != 0;
    }
    long walkScenes(const std::vector<Scene>& scenes, Which which, Steps steps = Steps::fine) {
        long met = 0;
        for (const Scene& scene : scenes)
            met += walkScene(
                scene, [&](long n) { return playWithout(scene, n, which); }, steps);
        return met;
    }

    /// What comes behind the report of the shortage may follow from it.
    void expectFirstReport() override {
        const auto& boxes = desktop.runtime().boxes;
        if (boxes.empty())
            return;
        ++reported_;
        EXPECT_TRUE(boxes.front().text.starts_with(u"Error no.: 7\r\n")) << toUtf8(boxes.front().text);
    }
    long reported_ = 0;
};

TEST_F(MemoryWalk, AShortageReachesNoCaller) {
    EXPECT_GT(walkScenes(memberScenes(), Which::thatOne), 300);
    EXPECT_GT(walkScenes(longerScenes(), Which::thatOne), 300);
}

TEST_F(MemoryWalk, AShortageReachesNoUser) {
    EXPECT_GT(walkScenes(inputScenes(), Which::thatOne), 100);
}

TEST_F(MemoryWalk, ALastingShortageReachesNoCaller) {
    EXPECT_GT(walkScenes(memberScenes(), Which::allFromThere, Steps::coarse), 150);
    EXPECT_GT(walkScenes(longerScenes(), Which::allFromThere, Steps::coarse), 50);
}

TEST_F(MemoryWalk, AShortageIsReportedAsErrorSeven) {
    Error().letSilentError(false);
    EXPECT_GT(walkScenes(memberScenes(), Which::thatOne, Steps::coarse), 150);
    EXPECT_GT(walkScenes(longerScenes(), Which::thatOne, Steps::coarse), 50);
    EXPECT_GT(reported_, 100);
}

/// Requests of the whole program.
bool always(const void* /*context*/) {
    return true;
}

TEST_F(MemoryWalk, AListIsMadeWholeOrNotAtAll) {
    makeList(); // what a process makes once is there
    long shortages = 0;
    for (long n = 1;; ++n) {
        FailingMemory::arm(n, Which::thatOne, always, nullptr);
        bool made = true;
        try {
            const lmListView another(desktop, host, events);
        } catch (const std::bad_alloc&) {
            made = false;
        } catch (const RuntimeError& error) {
            made = false;
            EXPECT_EQ(error.number(), ErrorNumber::outOfMemory);
        }
        const long failures = FailingMemory::disarm();
        if (failures == 0) {
            EXPECT_TRUE(made);
            break;
        }
        ++shortages;
    }
    EXPECT_GT(shortages, 20);
    expectServes();
}

TEST_F(MemoryWalk, AListEndsWithoutMemory) {
    for (const HeldKind kind : heldKinds) {
        makeScene();
        hold(kind);
        desktop.move(arrowButton); // which holds the mouse, and gives it back
        EXPECT_NE(desktop.captured(), 0);
        FailingMemory::arm(1, Which::allFromThere, always, nullptr);
        list.reset();
        FailingMemory::disarm();
        EXPECT_EQ(releases.alive, 0);
    }
}

TEST_F(MemoryWalk, NotEvenTheArgumentsOfASearchLetAShortageOut) {
    makeScene();
    const long met = walk([&](long n) {
        FailingMemory::arm(n, Which::thatOne, always, nullptr);
        guarded(
            [&] { list->FindItem(longText, cFindStart, cFindText, u"1,2,3,1,2,3,1,2,3", u"1,2,3,1,2,3,"); });
        return FailingMemory::disarm() != 0;
    });
    EXPECT_GT(met, 3);
    expectServes();
}

} // namespace lumtex::testing
