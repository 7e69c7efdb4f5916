/// \file
/// The desktop in memory as the home of a list.
#pragma once

#include "hostcode/list_home.h"
#include "platform/property_bag.h"
#include "test_fonts.h"
#include "test_host.h"
#include "worlds/headless/desktop.h"

namespace lumtex::testing {

/// The list is made by `new`, so that host code may end it.
class HeadlessHome final : public ListHome {
  public:
    lmListView* make(lmListViewEvents& events, Long width, Long height) override {
        auto* list = new lmListView(*world, *container, events);
        window_ = &list->window();
        list->UserControl_ReadProperties(MemoryPropertyBag{});
        resize(width, height);
        window_->letVisible(true);
        return list;
    }
    void end(lmListView* list) override { delete list; }

    void move(Point to) override { desktop.move(to); }
    void press() override { desktop.press(); }
    void release() override { desktop.release(); }
    void doubleClick() override { desktop.doubleClick(); }
    void wheel(Long rotation) override { desktop.wheel(rotation); }
    void key(Integer keyCode) override { desktop.key(keyCode); }
    void type(StringView text) override { desktop.type(text); }
    void resize(Long width, Long height) override {
        window_->place(0, 0, static_cast<Single>(width), static_cast<Single>(height));
    }
    void focus() override { window_->setFocus(); }
    void advance(std::chrono::milliseconds span) override { desktop.advance(span); }
    void run() override { desktop.run(); }
    void onYield(std::function<void()> body, int times) override { desktop.onYield(std::move(body), times); }
    void yield() override { runtime_.DoEvents(); }
    std::vector<String> boxes() const override {
        std::vector<String> texts;
        for (const headless::HeadlessRuntime::Box& box : runtime_.boxes)
            texts.push_back(box.text);
        return texts;
    }
    void clearBoxes() override { runtime_.boxes.clear(); }
    void whileBoxIsOpen(std::function<void()> body) override { runtime_.whileBoxIsOpen = std::move(body); }

    headless::Desktop desktop{testFonts()};
    TestHost host;
    // What the next list is made in; a test may put something in front of both.
    World* world = &desktop;
    Host* container = &host;

  private:
    headless::HeadlessRuntime& runtime_ = desktop.runtime();
    Window* window_ = nullptr; ///< of the list that was made last
};

} // namespace lumtex::testing
