#include "worlds/win32/tick_source.h"

namespace lumtex::win32 {

namespace {

class SystemTicks final : public TickSource {
  public:
    bool start(HWND window, UINT_PTR run, Long milliseconds) override {
        return SetTimer(window, run, static_cast<UINT>(milliseconds), nullptr) != 0;
    }
    void stop(HWND window, UINT_PTR run) override { KillTimer(window, run); }
    bool mayBeLate() const override { return true; }
};

} // namespace

TickSource& systemTicks() {
    static SystemTicks ticks;
    return ticks;
}

} // namespace lumtex::win32
