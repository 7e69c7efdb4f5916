/// \file
/// What the film shows: a list, and a user of it.
#pragma once

#include "hand.h"
#include "model/list_view.h"

#include <functional>
#include <string>
#include <vector>

namespace lumtex::film {

/// A list of elements, and what a user does with it in a few seconds, act by act. Each act begins where the
/// one before it ended.
class Play {
  public:
    struct Act {
        std::string name;
        std::function<void()> run;
    };

    /// Draws with these fonts.
    explicit Play(std::shared_ptr<raster::FontLibrary> fonts);

    const std::vector<Act>& acts() const { return acts_; }
    lmListView& list() { return list_; }
    /// What has been filmed so far.
    const std::vector<Frame>& frames() const { return camera_.frames(); }
    /// Boxes that the list showed, which nobody wants in a film.
    std::size_t boxes() { return desktop_.runtime().boxes.size(); }

  private:
    void fill();
    /// Pixels from the upper edge of the list to the middle of the element's row.
    Single middleOf(StringView element);
    void hover();
    void sort();
    void select();
    void scroll();
    void edit();

    headless::Desktop desktop_;
    Host host_;
    lmListViewEvents events_;
    lmListView list_{desktop_, host_, events_};
    Camera camera_{desktop_, list_.window()};
    Hand hand_{desktop_, list_.window(), camera_};
    std::vector<Act> acts_;
};

} // namespace lumtex::film
