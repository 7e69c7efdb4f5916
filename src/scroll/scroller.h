/// \file
/// The bars, the wheel and the first row shown.
#pragma once

#include "bars/scroll_bar.h"
#include "bars/wheel.h"
#include "model/list_view_core.h"

namespace lumtex {

class Scroller : private ListPart {
  public:
    explicit Scroller(ListViewCore& core);

    /// See `lmListView`.
    void CheckScroll();
    Long TopIndex() const { return VS_->Value(); }
    void letTopIndex(Long topIndex);
    /// The bars go where they belong in the window's present size.
    void CheckScrollPlacement();
    void resize();
    /// How many rows fit entirely under the headers.
    Long VisibleItems();

    bars::lmVScroll& vertical() { return *VS_; }
    bars::lmHScroll& horizontal() { return *HS_; }
    /// A bar's handler waits for the host's turn; a paint that runs meanwhile gives up.
    bool isPending() const { return state_.scrollPending; }

    /// Hands the ten scroll colours to the bars.
    void CheckProperty();

    // The wheel

    void listen(Procedure& p);
    void stopListening() { Wheel1_->DisableWheel(); }
    bool wheel(Long Rotation, Integer Shift, Single X, Single Y);

  private:
    friend class ListViewInspector; ///< how tests look inside

    struct State {
        Long visibleRowCount = 0;   ///< working result of `VisibleItems`
        bool lastRowHidden = false; ///< set by every `VisibleItems`, cleared only by its last test
        bool scrollPending = false;
        Long topIndex = 0; ///< last value given to `TopIndex`, which reads the bar instead
    };

    void VS_Change();
    void VS_Scroll();
    void HS_Change();
    void HS_Scroll();
    void Wheel1_WheelScroll(Integer& Rotation, Integer& Keys, Single& X, Single& Y);
    void wheelLinesDown(Procedure& p, Integer Rotation);
    void wheelLinesUp(Procedure& p);
    void wheelIndexDown(Procedure& p, Integer Rotation);
    void wheelIndexUp(Procedure& p, Integer Rotation);
    bool stopsWheel(Procedure& p, Long index);

    State state_;
    std::unique_ptr<bars::lmVScroll> VS_;
    std::unique_ptr<bars::lmHScroll> HS_;
    std::unique_ptr<bars::Wheel> Wheel1_;
};

} // namespace lumtex
