/// \file
/// Windows and surfaces whose operations fail where a test says so.
#pragma once

#include "failures/failure_point.h"
#include "forwarding_window.h"
#include "worlds/headless/desktop.h"

namespace lumtex::testing {

/// Hands everything on to another surface. What draws, measures or sets something may fail as by a lack of
/// memory; then it does nothing.
class FailingSurface final : public Surface {
  public:
    FailingSurface(Surface& inner, FailurePoint& point) : inner_(inner), point_(point) {}
    FailingSurface(std::unique_ptr<Surface> inner, FailurePoint& point)
        : owned_(std::move(inner)), inner_(*owned_), point_(point) {}

    Long scaleWidth() const override { return inner_.scaleWidth(); }
    Long scaleHeight() const override { return inner_.scaleHeight(); }
    Double pixelsPerInchX() const override { return inner_.pixelsPerInchX(); }
    Double pixelsPerInchY() const override { return inner_.pixelsPerInchY(); }
    void Cls() override { may().Cls(); }
    OLE_COLOR BackColor() const override { return inner_.BackColor(); }
    void letBackColor(OLE_COLOR color) override { may().letBackColor(color); }
    OLE_COLOR ForeColor() const override { return inner_.ForeColor(); }
    void letForeColor(OLE_COLOR color) override { may().letForeColor(color); }
    const FontSpec& font() const override { return inner_.font(); }
    void setFont(const FontSpec& font) override { may().setFont(font); }
    void polygon(std::span<const Point> points, OLE_COLOR fill) override { may().polygon(points, fill); }
    void drawLine(Point from, Point to, OLE_COLOR color) override { may().drawLine(from, to, color); }
    void fillArea(const Rect& area, OLE_COLOR color) override { may().fillArea(area, color); }
    void blendPicture(const Bitmap& source, const Rect& part, const Rect& target) override {
        may().blendPicture(source, part, target);
    }
    void stretchDIBits(Long x, Long y, Long width, Long height, const Dib24& source) override {
        may().stretchDIBits(x, y, width, height, source);
    }
    void print(Single x, Single y, StringView text) override { may().print(x, y, text); }
    Single textWidth(StringView text) override { return may().textWidth(text); }
    Single textHeight(StringView text) override { return may().textHeight(text); }
    Long drawText(StringView text, Rect& rect, TextFormat format) override {
        return may().drawText(text, rect, format);
    }
    Bitmap image() const override { return inner_.image(); }

  private:
    Surface& may() {
        point_.pass(ErrorNumber::outOfMemory);
        return inner_;
    }

    std::unique_ptr<Surface> owned_;
    Surface& inner_;
    FailurePoint& point_;
};

/// So does what changes a window. Input that it had stays with it.
class FailingWindow final : public ForwardingWindow {
  public:
    FailingWindow(std::unique_ptr<Window> inner, FailurePoint& point)
        : ForwardingWindow(std::move(inner)), point_(point) {}

    Surface& surface() override { return surface_; }
    void place(Single left, Single top, Single width, Single height) override {
        point_.pass(ErrorNumber::outOfMemory);
        ForwardingWindow::place(left, top, width, height);
    }
    void letVisible(bool visible) override {
        point_.pass(ErrorNumber::outOfMemory);
        ForwardingWindow::letVisible(visible);
    }
    void letEnabled(bool enabled) override {
        point_.pass(ErrorNumber::outOfMemory);
        ForwardingWindow::letEnabled(enabled);
    }
    void letOLEDropMode(Long mode) override {
        point_.pass(ErrorNumber::outOfMemory);
        ForwardingWindow::letOLEDropMode(mode);
    }
    void letMousePointer(CursorShape shape) override {
        point_.pass(ErrorNumber::outOfMemory);
        ForwardingWindow::letMousePointer(shape);
    }
    void setMouseIcon(PictureRef icon) override {
        point_.pass(ErrorNumber::outOfMemory);
        ForwardingWindow::setMouseIcon(std::move(icon));
    }
    void setFocus() override {
        point_.pass(ErrorNumber::outOfMemory);
        ForwardingWindow::setFocus();
    }
    void setCapture() override {
        point_.pass(ErrorNumber::outOfMemory);
        ForwardingWindow::setCapture();
    }
    void releaseCapture() override {
        point_.pass(ErrorNumber::outOfMemory);
        ForwardingWindow::releaseCapture();
    }
    void present() override {
        point_.pass(ErrorNumber::outOfMemory);
        ForwardingWindow::present();
    }

  private:
    FailurePoint& point_;
    FailingSurface surface_{inner().surface(), point_};
};

/// A desktop of such windows and surfaces.
class FailingWorld final : public World {
  public:
    /// `runtime` stands in for the desktop's, unless it is null.
    FailingWorld(headless::Desktop& desktop, FailurePoint& point, Runtime* runtime = nullptr)
        : desktop_(desktop), point_(point), runtime_(runtime != nullptr ? *runtime : desktop.runtime()) {}

    Runtime& runtime() override { return runtime_; }
    TipPlatform& tips() override { return desktop_.tips(); }
    std::unique_ptr<Window> createWindow(Window* parent, UserControl& client) override {
        return std::make_unique<FailingWindow>(desktop_.createWindow(innerOf(parent), client), point_);
    }
    std::unique_ptr<Window> createForm(UserControl& client) override {
        return std::make_unique<FailingWindow>(desktop_.createForm(client), point_);
    }
    void showModal(Window& form) override { desktop_.showModal(*innerOf(&form)); }
    Point screenSize() const override { return desktop_.screenSize(); }
    std::unique_ptr<TextBox> createTextBox(Window& parent, TextBoxClient& client) override {
        return desktop_.createTextBox(*innerOf(&parent), client);
    }
    std::unique_ptr<GuideLine> createGuideLine(Window& parent) override {
        return desktop_.createGuideLine(*innerOf(&parent));
    }
    std::unique_ptr<Timer> createTimer(std::function<void()> onTimer) override {
        return desktop_.createTimer(std::move(onTimer));
    }
    std::unique_ptr<Surface> createSurface(Long width, Long height) override {
        point_.pass(ErrorNumber::outOfMemory);
        return std::make_unique<FailingSurface>(desktop_.createSurface(width, height), point_);
    }

  private:
    static Window* innerOf(Window* window) {
        return window != nullptr ? &static_cast<FailingWindow*>(window)->inner() : nullptr;
    }

    headless::Desktop& desktop_;
    FailurePoint& point_;
    Runtime& runtime_;
};

} // namespace lumtex::testing
