/// \file
/// The page "Moving rows".
#pragma once

#include "page.h"

namespace lumtex::gallery {

/// Rows that are dragged to another place.
class MovingPage final : public Page {
    Q_OBJECT

  public:
    MovingPage();
    void fill() override;
};

} // namespace lumtex::gallery
