#include "scroll/scroller.h"

namespace lumtex {

Scroller::Scroller(ListViewCore& core)
    : ListPart(core), VS_(std::make_unique<bars::lmVScroll>(
                          core.world(),
                          *core.listWindow,
                          bars::ScrollBar::Events{[this] { VS_Change(); }, [this] { VS_Scroll(); }},
                          &core.life())),
      HS_(std::make_unique<bars::lmHScroll>(
          core.world(),
          *core.listWindow,
          bars::ScrollBar::Events{[this] { HS_Change(); }, [this] { HS_Scroll(); }},
          &core.life())),
      Wheel1_(std::make_unique<bars::Wheel>(
          core.world(),
          *core.listWindow,
          [this](Integer& Rotation, Integer& Keys, Single& X, Single& Y) {
              Wheel1_WheelScroll(Rotation, Keys, X, Y);
          },
          &core.life())) {
    VS_->UserControl_InitProperties();
    HS_->UserControl_InitProperties();
}

} // namespace lumtex
