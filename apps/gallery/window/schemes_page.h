/// \file
/// The page "Colour schemes".
#pragma once

#include "page.h"

#include <vector>

namespace lumtex::gallery {

/// The same list in each scheme. The panel shows the one that has the focus.
class SchemesPage final : public Page {
    Q_OBJECT

  public:
    SchemesPage();
    void fill() override;

  private:
    std::vector<LumtexListView*> lists_;
};

} // namespace lumtex::gallery
