/// The widget as the home of a list: what walks through odd moments in memory walks through them here.
#include "hostcode/list_home.h"
#include "qt/lumtex_list_view.h"
#include "recording_events.h"
#include "values/rounding.h"
#include "widget/signal_relay.h"
#include "widget/stage_world.h"
#include "worlds/qt/user_hands.h"

#include <QPointer>

namespace lumtex::testing {

namespace {

/// Events are heard as signals.
class WidgetHome final : public ListHome {
  public:
    WidgetHome() {
        loop_.onBox = [this](StringView text) {
            boxes_.emplace_back(text);
            const std::function<void()> body = whileBoxIsOpen_;
            if (body)
                body();
        };
    }
    ~WidgetHome() override { delete widget_.data(); }

    lmListView* make(lmListViewEvents& events, Long width, Long height) override {
        widget_ = new LumtexListView(&program_.window(), [this](QWidget& container) {
            return std::make_unique<StageWorld>(container, loop_);
        });
        const SignalRelay relay(*widget_, events);
        widget_->setGeometry(0, 0, width, height);
        widget_->show();
        loop_.deliver();
        return &widget_->list();
    }
    void end(lmListView* /*list*/) override { delete widget_.data(); }

    void move(Point to) override { hands_.move({to.x, to.y}, 0); }
    void press() override { hands_.press(leftButton, 0); }
    void release() override { hands_.release(leftButton, 0); }
    void doubleClick() override {
        click();
        hands_.doublePress(leftButton, 0);
        release();
    }
    void wheel(Long rotation) override { hands_.wheel(rotation, 0); }
    void key(Integer keyCode) override {
        hands_.keyDown(keyCode);
        hands_.keyUp(keyCode);
    }
    void type(StringView text) override { hands_.type(text); }
    void resize(Long width, Long height) override {
        widget_->resize(width, height);
        loop_.deliver();
    }
    void focus() override {
        widget_->setFocus();
        loop_.deliver();
    }
    void advance(std::chrono::milliseconds span) override { loop_.advance(span); }
    void run() override { loop_.deliver(); }
    void onYield(std::function<void()> body, int times) override {
        loop_.yields.insert(loop_.yields.end(), static_cast<std::size_t>(times), body);
    }
    void yield() override { loop_.runYieldBody(); }
    std::vector<String> boxes() const override { return boxes_; }
    void clearBoxes() override { boxes_.clear(); }
    void whileBoxIsOpen(std::function<void()> body) override { whileBoxIsOpen_ = std::move(body); }

  private:
    StageLoop loop_;
    ProgramWindow program_;
    QPointer<LumtexListView> widget_; ///< owned
    UserHands hands_{program_.window(), [this] { loop_.deliver(); }};
    std::vector<String> boxes_;
    std::function<void()> whileBoxIsOpen_;
};

} // namespace

std::unique_ptr<ListHome> makeListHome() {
    return std::make_unique<WidgetHome>();
}

} // namespace lumtex::testing
