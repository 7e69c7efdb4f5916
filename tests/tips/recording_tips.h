/// \file
/// A tip platform that writes down each message before it hands it on.
#pragma once

#include "platform/tip_platform.h"
#include "values/text.h"

#include <string>
#include <utility>
#include <vector>

namespace lumtex::testing {

/// One line for each call: `1027 wParam=2 lParam=500`, `1028 size=40 flags=17 owner=5 id=6 text=Name`.
class RecordingTips final : public TipPlatform {
  public:
    explicit RecordingTips(TipPlatform& inner) : inner_(inner) {}

    std::vector<std::string> log;

    std::vector<std::string> take() { return std::exchange(log, {}); }

    bool isFormOrSurface(WindowHandle window) const override { return inner_.isFormOrSurface(window); }
    void initCommonControls() override {
        log.emplace_back("InitCommonControls");
        inner_.initCommonControls();
    }
    WindowHandle createWindow(const TipWindowForm& form) override {
        log.push_back("CreateWindow extendedStyle=" + number(form.extendedStyle) +
                      " class=" + toUtf8(form.className) + " style=" + number(form.style) +
                      " owner=" + number(form.owner));
        return refusesWindows ? 0 : inner_.createWindow(form);
    }
    void destroyWindow(WindowHandle tips) override {
        log.emplace_back("DestroyWindow");
        inner_.destroyWindow(tips);
    }
    Long send(WindowHandle tips, TipMessage message, Long wParam, Long lParam) override {
        log.push_back(number(message) + " wParam=" + number(wParam) + " lParam=" + number(lParam));
        return inner_.send(tips, message, wParam, lParam);
    }
    Long send(WindowHandle tips, TipMessage message, Long wParam, ToolInfo& tool) override {
        std::string line = number(message);
        if (message == ttmEnumTools)
            line += " index=" + number(wParam) + " size=" + number(tool.size) +
                    " buffer=" + (tool.text ? number(static_cast<Long>(tool.text->size())) : "none");
        else
            line += " size=" + number(tool.size) + " flags=" + number(tool.flags) +
                    " owner=" + number(tool.owner) + " id=" + number(tool.id) +
                    " text=" + (tool.text ? toUtf8(*tool.text) : "none");
        log.push_back(line);
        return inner_.send(tips, message, wParam, tool);
    }
    Long send(WindowHandle tips, TipMessage message, Long wParam, Rect& margins) override {
        const Long reply = inner_.send(tips, message, wParam, margins);
        log.push_back(number(message) + " margins=" + number(margins.Left) + "," + number(margins.Top) + "," +
                      number(margins.Right) + "," + number(margins.Bottom));
        return reply;
    }

    bool refusesWindows = false;

  private:
    static std::string number(Long value) { return std::to_string(value); }

    TipPlatform& inner_;
};

} // namespace lumtex::testing
