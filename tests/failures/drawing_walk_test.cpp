/// Any operation on a surface or a window may fail: nothing reaches the caller, and the next paint is whole.
#include "failures/failing_surface.h"
#include "failures/failure_walk.h"

namespace lumtex::testing {

class DrawingWalk : public FailureWalk {
  protected:
    DrawingWalk() { memory.world = &failing_; }
    ~DrawingWalk() override { list.reset(); }

    long walkScenes(const std::vector<Scene>& scenes, Steps steps, bool onwards = false) {
        return walkScenesAt(point_, scenes, steps, onwards);
    }

    FailurePoint point_;

  private:
    void expectFirstReport() override {
        const auto& boxes = desktop.runtime().boxes;
        if (boxes.empty())
            return;
        EXPECT_TRUE(boxes.front().text.starts_with(u"Error no.: 7\r\n")) << toUtf8(boxes.front().text);
    }
    /// As the list looked before anything had failed.
    void expectLooks() override {
        const Bitmap picture = list->window().surface().image();
        if (looks_.width == 0)
            looks_ = picture;
        EXPECT_TRUE(picture.width == looks_.width && picture.height == looks_.height &&
                    picture.pixels == looks_.pixels)
            << "the next paint is not whole";
    }

    FailingWorld failing_{desktop, point_};
    Bitmap looks_;
};

TEST_F(DrawingWalk, AFailureReachesNoCaller) {
    EXPECT_GT(walkScenes(memberScenes(), Steps::coarse), 500);
    EXPECT_GT(walkScenes(longerScenes(), Steps::fine), 300);
}

TEST_F(DrawingWalk, AFailureReachesNoUser) {
    EXPECT_GT(walkScenes(inputScenes(), Steps::fine), 300);
}

TEST_F(DrawingWalk, AFailureIsReportedAsErrorSeven) {
    Error().letSilentError(false);
    EXPECT_GT(walkScenes(longerScenes(), Steps::coarse), 50);
}

TEST_F(DrawingWalk, AFailingPaintTellsTheHostUpToTheHeadersAndReportsFromTheRowsOn) {
    Error().letSilentError(false);
    long told = 0;
    long reported = 0;
    long neither = 0;
    const auto paint = [&](long n) {
        events.log.clear();
        point_.arm(n);
        list->Redraw();
        if (point_.disarm() == 0)
            return false;
        const bool tells = !events.log.empty();
        const auto& boxes = desktop.runtime().boxes;
        // The headers are measured by a procedure of their own, behind whose report the paint goes on.
        const bool measures = !boxes.empty() && boxes.front().text.find(u"/ColumnHeight") != String::npos;
        const bool reports = !boxes.empty() && !measures;
        EXPECT_FALSE(tells && reports);
        if (tells) {
            EXPECT_EQ(events.log.front(), "ListViewError eSub=Redraw eNumber=7 eDescription=Out of memory");
        }
        // Wanted: a pass that gave up leaves `paintBusy` set, one that told the host does not.
        EXPECT_TRUE(says(ListViewInspector(*list).painting(), "held=" + yesNo(reports)));
        ++(tells ? told : reports || measures ? reported : neither);
        return true;
    };
    walkScene({"a paint", [] {}}, paint);
    EXPECT_GT(told, 10);
    EXPECT_GT(reported, 10);
    EXPECT_LE(neither, 1) << "only a frame may go missing in silence";
}

TEST_F(DrawingWalk, ASurfaceThatFailsForGoodReachesNobody) {
    EXPECT_GT(walkScenes(longerScenes(), Steps::coarse, true), 50);
    EXPECT_GT(walkScenes(inputScenes(), Steps::coarse, true), 50);
}

} // namespace lumtex::testing
