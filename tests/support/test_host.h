/// \file
/// A container that tests can look into.
#pragma once

#include "platform/host.h"
#include "values/runtime_error.h"

#include <vector>

namespace lumtex::testing {

class TestHost final : public Host {
  public:
    bool UserMode() const override {
        if (modeFails)
            throw RuntimeError(ErrorNumber::automationError);
        return userMode;
    }
    String extenderName() const override { return name; }
    FontRef parentFont() const override { return font; }
    void PropertyChanged(StringView property) override { changed.emplace_back(property); }

    bool userMode = true;
    bool modeFails = false; ///< as a container does that knows no modes
    String name = u"lmListView1";
    FontRef font;
    std::vector<String> changed; ///< names in the order in which they were told
};

} // namespace lumtex::testing
