/// \file
/// A tip platform that writes down what it is asked to do before it hands it on.
#pragma once

#include "platform/tip_platform.h"
#include "values/text.h"

#include <string>
#include <utility>
#include <vector>

namespace lumtex::testing {

/// One line for each call: `setDelay 2 500`, `add owner=5 id=6 text=Name`.
class RecordingTipWindow final : public TipWindow {
  public:
    RecordingTipWindow(std::unique_ptr<TipWindow> inner, std::vector<std::string>& log)
        : inner_(std::move(inner)), log_(log) {}
    ~RecordingTipWindow() override { log_.emplace_back("destroy"); }

    WindowHandle hWnd() const override { return inner_->hWnd(); }
    bool add(const TipTool& tool) override {
        log_.push_back("add" + lineOf(tool));
        return inner_->add(tool);
    }
    void remove(const TipTool& tool) override {
        log_.push_back("remove" + lineOf(tool));
        inner_->remove(tool);
    }
    void setText(const TipTool& tool) override {
        log_.push_back("setText" + lineOf(tool));
        inner_->setText(tool);
    }
    Long toolCount() const override {
        log_.emplace_back("toolCount");
        return inner_->toolCount();
    }
    std::optional<TipTool> tool(Long index, std::size_t textRoom) const override {
        log_.push_back("tool " + std::to_string(index) + " room=" + std::to_string(textRoom));
        return inner_->tool(index, textRoom);
    }
    OLE_COLOR backColor() const override {
        log_.emplace_back("backColor");
        return inner_->backColor();
    }
    void setBackColor(OLE_COLOR color) override {
        log_.push_back("setBackColor " + std::to_string(color));
        inner_->setBackColor(color);
    }
    OLE_COLOR setTextColor(OLE_COLOR color) override {
        log_.push_back("setTextColor " + std::to_string(color));
        return inner_->setTextColor(color);
    }
    Long delay(TipDelay which) const override {
        log_.push_back("delay " + std::to_string(static_cast<Long>(which)));
        return inner_->delay(which);
    }
    void setDelay(TipDelay which, Long milliseconds) override {
        log_.push_back("setDelay " + std::to_string(static_cast<Long>(which)) + " " +
                       std::to_string(milliseconds));
        inner_->setDelay(which, milliseconds);
    }
    Rect margins() const override {
        const Rect margins = inner_->margins();
        log_.push_back("margins" + lineOf(margins));
        return margins;
    }
    void setMargins(const Rect& margins) override {
        log_.push_back("setMargins" + lineOf(margins));
        inner_->setMargins(margins);
    }
    Long maxWidth() const override {
        log_.emplace_back("maxWidth");
        return inner_->maxWidth();
    }
    void setMaxWidth(Long width) override {
        log_.push_back("setMaxWidth " + std::to_string(width));
        inner_->setMaxWidth(width);
    }

  private:
    static std::string lineOf(const TipTool& tool) {
        return " owner=" + std::to_string(tool.owner) + " id=" + std::to_string(tool.id) +
               " text=" + toUtf8(tool.text);
    }
    static std::string lineOf(const Rect& margins) {
        return " " + std::to_string(margins.Left) + "," + std::to_string(margins.Top) + "," +
               std::to_string(margins.Right) + "," + std::to_string(margins.Bottom);
    }

    std::unique_ptr<TipWindow> inner_;
    std::vector<std::string>& log_;
};

class RecordingTips final : public TipPlatform {
  public:
    explicit RecordingTips(TipPlatform& inner) : inner_(inner) {}

    std::vector<std::string> log;
    bool refusesWindows = false;
    TipWindow* last = nullptr; ///< the window that was made last, as long as it lives

    std::vector<std::string> take() { return std::exchange(log, {}); }

    bool isFormOrSurface(WindowHandle window) const override { return inner_.isFormOrSurface(window); }
    std::unique_ptr<TipWindow> createTipWindow(WindowHandle owner) override {
        log.push_back("create owner=" + std::to_string(owner));
        if (refusesWindows)
            return nullptr;
        auto made = std::make_unique<RecordingTipWindow>(inner_.createTipWindow(owner), log);
        last = made.get();
        return made;
    }

  private:
    TipPlatform& inner_;
};

} // namespace lumtex::testing
