/// Each call that the list makes of its host may fail: nothing reaches the caller, and the next call works.
#include "failures/failure_walk.h"

namespace lumtex::testing {

namespace {

/// What the host's own things fail with.
constexpr Long hostError = 51001;

class FailingHost final : public Host {
  public:
    explicit FailingHost(FailurePoint& point) : point_(point) {}

    bool UserMode() const override {
        point_.pass(hostError);
        return true;
    }
    String extenderName() const override {
        point_.pass(hostError);
        return u"list";
    }
    FontRef parentFont() const override {
        point_.pass(hostError);
        return nullptr;
    }
    void PropertyChanged(StringView /*name*/) override { point_.pass(hostError); }

  private:
    FailurePoint& point_;
};

class FailingPicture final : public Picture {
  public:
    explicit FailingPicture(FailurePoint& point) : point_(point) {}

    Long Width() const override {
        point_.pass(hostError);
        return 212; // 8 pixels
    }
    Long Height() const override {
        point_.pass(hostError);
        return 212;
    }
    const Bitmap& bitmap() const override {
        point_.pass(hostError);
        return bitmap_;
    }

  private:
    FailurePoint& point_;
    Bitmap bitmap_{8, 8};
};

class FailingFont final : public Font {
  public:
    explicit FailingFont(FailurePoint& point) : Font({.Name = u"DejaVu Sans", .Size = 9}), point_(point) {}
    std::shared_ptr<Font> Clone() const override {
        point_.pass(hostError);
        return std::make_shared<Font>(spec);
    }

  private:
    FailurePoint& point_;
};

class FailingBag final : public PropertyBag {
  public:
    explicit FailingBag(FailurePoint& point) : point_(point) {}

    Variant ReadProperty(StringView name, const Variant& defaultValue) const override {
        point_.pass(hostError);
        return kept_.ReadProperty(name, defaultValue);
    }
    void WriteProperty(StringView name, const Variant& value, const Variant& defaultValue) override {
        point_.pass(hostError);
        kept_.WriteProperty(name, value, defaultValue);
    }

  private:
    FailurePoint& point_;
    MemoryPropertyBag kept_;
};

} // namespace

class HostCallWalk : public FailureWalk {
  protected:
    HostCallWalk() {
        memory.container = &host_;
        embedded->onCall = [this] { point.pass(hostError); };
    }
    ~HostCallWalk() override { list.reset(); }

    /// Everything that is painted is the host's, and fails.
    void dress() override {
        FailureWalk::dress();
        list->letAutoRedraw(false);
        list->setItemIcon(1, 3, picture_);
        list->setItemIconSelected(1, 3, picture_);
        list->setItemIcon(2, 3, picture_);
        list->setColumnIcon(1, picture_);
        list->setBackgroundPicture(picture_);
        list->setDefaultItemFont(font_);
        list->letAutoRedraw(true);
    }
    long walkScenes(const std::vector<Scene>& scenes, Steps steps, bool onwards = false) {
        return walkScenesAt(point, scenes, steps, onwards);
    }
    /// Calls that hand over more of the host's.
    std::vector<Scene> hostScenes() {
        const auto records =
            std::make_shared<TestRecordset>(std::vector<String>{u"first", u"second"},
                                            std::vector<std::vector<Variant>>{{u"1", u"2"}, {u"3", u"4"}});
        records->onCall = [this](const std::string& /*call*/, int /*times*/) { point.pass(hostError); };
        return {{"a recordset", [this, records] { list->setRecordset(records); }},
                {"a font", [this] { list->setDefaultItemFont(font_); }},
                {"a column's font", [this] { list->setDefaultColumnFont(font_); }},
                {"a skin", [this] { list->setSkin(picture_); }},
                {"a control in a cell", [this] { list->setItemObject(1, 1, embedded); }},
                {"reading settings", [this] { list->UserControl_ReadProperties(bag_); }, true},
                {"writing settings", [this] { list->UserControl_WriteProperties(bag_); }}};
    }

    FailurePoint point;

  private:
    void expectFirstReport() override {
        const auto& boxes = desktop.runtime().boxes;
        if (boxes.empty())
            return;
        EXPECT_TRUE(boxes.front().text.starts_with(u"Error no.: 51001\r\n")) << toUtf8(boxes.front().text);
    }

    FailingHost host_{point};
    FailingBag bag_{point};
    const std::shared_ptr<FailingPicture> picture_ = std::make_shared<FailingPicture>(point);
    const std::shared_ptr<FailingFont> font_ = std::make_shared<FailingFont>(point);
};

TEST_F(HostCallWalk, AFailureReachesNoCaller) {
    EXPECT_GT(walkScenes(memberScenes(), Steps::coarse), 200);
    EXPECT_GT(walkScenes(hostScenes(), Steps::fine), 100);
}

TEST_F(HostCallWalk, AFailureReachesNoUser) {
    EXPECT_GT(walkScenes(inputScenes(), Steps::fine), 50);
}

TEST_F(HostCallWalk, AFailureIsReportedWithTheHostsOwnNumber) {
    Error().letSilentError(false);
    EXPECT_GT(walkScenes(hostScenes(), Steps::fine), 100);
    EXPECT_GT(walkScenes(longerScenes(), Steps::fine), 100);
}

TEST_F(HostCallWalk, AHostThatFailsForGoodReachesNobody) {
    EXPECT_GT(walkScenes(hostScenes(), Steps::fine, true), 100);
    EXPECT_GT(walkScenes(inputScenes(), Steps::fine, true), 50);
}

} // namespace lumtex::testing
