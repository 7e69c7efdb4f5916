/// \file
/// In what the vertical and the horizontal bar differ.
#pragma once

#include "bars/arrow.h"
#include "bars/axis.h"
#include "drawing/gradient.h"

namespace lumtex::bars {

struct BarTraits {
    Axis axis;
    StringView moduleName; ///< in error reports, as the names of procedures below
    StringView thumbSize;
    StringView lowStep;
    StringView highStep;
    Arrow low; ///< the button at the top or the left
    Arrow high;
    Long pressLow; ///< `pressDir` of a press before the thumb
    Long pressHigh;
    drawing::GradientDirection trough;
    bool jumpsLines; ///< has `ScrollButtonJumpLines`; otherwise an arrow steps by 1
};

constexpr BarTraits verticalBar{.axis = Axis::vertical,
                                .moduleName = u"lmVScroll",
                                .thumbSize = u"ÜberprüfeHeight",
                                .lowStep = u"VBtnUp1_ValueUp",
                                .highStep = u"VBtnDown1_ValueDown",
                                .low = Arrow::up,
                                .high = Arrow::down,
                                .pressLow = 1,
                                .pressHigh = 2,
                                .trough = drawing::GradientDirection::leftToRight,
                                .jumpsLines = true};

constexpr BarTraits horizontalBar{.axis = Axis::horizontal,
                                  .moduleName = u"lmHScroll",
                                  .thumbSize = u"ÜberprüfeWidth",
                                  .lowStep = u"VBtnLeft1_ValueUp",
                                  .highStep = u"VBtnRight1_ValueDown",
                                  .low = Arrow::left,
                                  .high = Arrow::right,
                                  .pressLow = 2,
                                  .pressHigh = 1,
                                  .trough = drawing::GradientDirection::bottomToTop,
                                  .jumpsLines = false};

} // namespace lumtex::bars
