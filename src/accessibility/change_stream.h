/// \file
/// What changed since the last look.
#pragma once

#include "accessibility/accessible_list.h"
#include "accessibility/list_reader.h"

#include <vector>

namespace lumtex::accessibility {

/// Looks at a list whenever it rests, and tells what is another now: at once what can be compared in a few
/// numbers, and of rows and headers what the last pass put on the screen. So an unpainted change of a cell is
/// told when it shows, and a list of a million rows costs no more than one of twenty.
class ChangeStream {
  public:
    /// `list` must stand while `look` runs, until a listener ends it.
    ChangeStream(const AccessibleList& list, ListViewCore& core, ChangeListener listener);

    /// Calls the listener for each difference; again, a few times over, for what changes meanwhile.
    void look() noexcept;
    /// Nobody is called any more.
    void close() { closed_ = true; }

  private:
    struct Numbers {
        Long rows = 0;
        Long columns = 0;
        Long top = 0;
        Long shift = 0;
        Long sortColumn = -1; ///< from 0
        Byte sortAscending = 0;
        bool enabled = false;
        bool editorOpen = false;
        bool verticalBar = false;
        bool horizontalBar = false;
        bool headers = false;
        Element focus;
        Long passes = 0;
        bool operator==(const Numbers&) const = default;
    };
    struct ShownCell {
        String text;
        bool checked = false;
    };
    struct ShownRow {
        Long number = 0; ///< from 1
        bool selected = false;
        std::vector<ShownCell> cells;
    };
    struct Shown {
        std::vector<String> headers;
        std::vector<ShownRow> rows;
    };

    Numbers numbersNow() const;
    Shown shownNow() const;
    void compareNumbers(const Numbers& now);
    void compareShown(const Shown& now, bool sameRows);
    void compareSelection(const Shown& now);
    void compareCells(const Shown& now);
    void tell(ChangeKind kind, const Element& element, Long count = 0);
    void compare();
    bool deliver();

    const AccessibleList& list_;
    ListViewCore& core_;
    /// May close the stream while it is called, and stays as long as that.
    ChangeListener listener_;
    Numbers numbers_;
    Shown shown_;
    std::vector<Change> changes_;
    bool focusMoved_ = false; ///< since the pass that `shown_` is of
    bool closed_ = false;
    bool busy_ = false;
    bool again_ = false;
};

} // namespace lumtex::accessibility
