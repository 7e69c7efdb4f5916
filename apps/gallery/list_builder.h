/// \file
/// Filling a list record by record, through its public interface alone.
#pragma once

#include "model/list_view.h"

#include <functional>
#include <string>
#include <vector>

namespace lumtex::gallery {

/// What could not be shown, in words for the user.
struct Failure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Sizes the columns from `first` on by their first rows, and aligns numbers to the right. `extraOfFirst` is
/// in pixels. To be called while nothing is painted.
void fitColumns(lmListView& list, Long first, Single extraOfFirst);

/// Takes records of any length. The first column holds check boxes, and the second one icons.
class ListBuilder {
  public:
    /// `progress` hears of the number of rows now and then.
    ListBuilder(lmListView& list, std::function<void(Long)> progress);

    void begin(const std::vector<String>& titles);
    void add(const std::vector<String>& fields, const PictureRef& icon);
    /// Fits the columns and paints.
    void finish();

  private:
    void addColumn(const String& title);

    lmListView& list_;
    std::function<void(Long)> progress_;
    String line_;
    Long rows_ = 0;
};

} // namespace lumtex::gallery
