/// \file
/// The list for those who cannot see it: a tree of elements, what each says and does, and what changed.
#pragma once

#include "accessibility/change.h"
#include "accessibility/element.h"
#include "guards/control_life.h"
#include "platform/window.h"
#include "values/geometry.h"

#include <functional>
#include <memory>
#include <optional>

namespace lumtex {
class lmListView;
class ListViewCore;
} // namespace lumtex

namespace lumtex::accessibility {

class ChangeStream;

/// Works everything out when it is asked, from the records and from what the last pass painted: no call but
/// `childCount` for the count of rows knows how many rows there are, and none takes longer for more of them.
/// Children are had by number. Texts are those of the list; what the product says itself is in the language
/// of the system's user.
///
/// Asking reports nothing, and runs no code of the host but for the name that it gave the list. Acting does
/// what the user's own act does, with the same events of the list, but for those of the mouse itself; the
/// host may do anything in them, and end the list. Once the list has ended, or another watcher took this
/// one's place, nothing is there any more.
///
/// The object must outlive its own calls. Places are whole pixels of the list's surface.
class AccessibleList final : private ControlWatcher {
  public:
    explicit AccessibleList(lmListView& list);
    AccessibleList(const AccessibleList&) = delete;
    AccessibleList& operator=(const AccessibleList&) = delete;
    ~AccessibleList() override;

    bool hasEnded() const { return core_ == nullptr; }

    // The tree (tree.cpp)

    /// The children of the list are its rows, by their numbers, and behind them whatever is there of headers,
    /// vertical bar, horizontal bar and editor.
    Long childCount(const Element& element) const;
    /// `number` counts from 1; nothing for one that is not there.
    Element child(const Element& element, Long number) const;
    /// The number among the parent's children, from 1; 0 for what is not there, and for the list.
    Long numberOf(const Element& element) const;
    Element parent(const Element& element) const;
    /// Between siblings, and for cells up and down the column.
    Element navigate(const Element& element, Direction direction) const;
    /// The editor, the current row, or the list.
    Element focus() const;
    bool exists(const Element& element) const;

    Long rowCount() const;
    Long columnCount() const;
    /// The selected row behind `row`; 0 if there is none. Walks over the rows between.
    Long nextSelected(Long row) const;

    // Where (places.cpp)

    /// What of the element is on the surface as it was painted last; none for the rest.
    std::optional<Rect> place(const Element& element) const;
    /// The innermost element; nothing outside the list.
    Element at(Long x, Long y) const;
    /// The window that is the element's alone; 0 for one that is painted on a window of another.
    WindowHandle window(const Element& element) const;

    // What it says (words.cpp, states.cpp)

    String name(const Element& element) const;
    String value(const Element& element) const;
    String description(const Element& element) const;
    /// The tip of a cell.
    String help(const Element& element) const;
    /// What kind of thing it is, in a word; empty where readers have a word of their own.
    String kind(const Element& element) const;
    /// What `act` would do, in a word; empty for nothing.
    String action(const Element& element) const;
    /// The keys that do the same, as far as there are any.
    String keys(const Element& element) const;
    States states(const Element& element) const;

    struct Range {
        Long least = 0;
        Long value = 0;
        Long most = 0;
        Long step = 0; ///< of a press on an arrow
        Long page = 0; ///< of a press on the trough
    };
    /// Of a bar.
    std::optional<Range> range(const Element& element) const;

    // What it does (actions.cpp); false where it cannot

    /// A header is clicked, a check box toggled, a row made the current one, a cell pressed or, if it may be
    /// edited, opened; an arrow of a bar steps.
    bool act(const Element& element);
    /// The row becomes the current and only selected one, as by the arrow keys.
    bool selectOnly(const Element& element);
    /// Of several; where the list takes only one, that one.
    bool select(const Element& element, bool selected);
    bool scrollTo(const Element& element);
    /// The list gets the keyboard; a row becomes the current one besides.
    bool takeFocus(const Element& element);
    bool edit(const Element& element);
    /// The text of a cell that may be edited, as if typed and closed with Enter; that of the open editor; the
    /// place of a bar.
    bool setValue(const Element& element, StringView value);
    bool setRange(const Element& element, Long value);

    // What changed (change_stream.cpp)

    /// Calls `listener` from now on; none for an empty one. It may do what an event's handler may.
    void listen(ChangeListener listener);

  private:
    void controlRests() noexcept override;
    void controlEnds() noexcept override;

    ListViewCore* core_; ///< null once the list has ended
    std::shared_ptr<ChangeStream> stream_;
};

} // namespace lumtex::accessibility
