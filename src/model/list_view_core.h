/// \file
/// What the parts of one list work with; hosts never see it.
#pragma once

#include "guards/procedure.h"
#include "model/list_records.h"
#include "model/list_view_events.h"
#include "model/list_view_life.h"
#include "platform/host.h"
#include "platform/world.h"
#include "records/properties.h"
#include "values/references/object.h"

namespace lumtex::accessibility {
class ListReader;
} // namespace lumtex::accessibility

namespace lumtex {

class CellEditor;
class Finder;
class HeaderGesture;
class lmListView;
class Mouse;
class Painting;
class QueueWatch;
class RowDrag;
class Scroller;
class Selection;
class Sorter;

/// The counters of the long walks. All walks that run within one another share them on purpose: a host that
/// calls in from an event, a yield or a report changes them, and the walk goes on from there.
struct WalkCounters {
    Long scanIndex = 0;
    Long scanColumn = 0;
    Long scanObjectColumn = 0;
    Long saveColumn = 0; ///< of `ContentSave`, from 1
    Long saveRow = 0;    ///< of `ContentSave`, from 1
    Long newColumn = 0;  ///< the position that `ColumnsAdd` is filling
};

/// The values and records of a list, its window, its parts, and the way to its host. Each gesture and each
/// service of the list is a part that keeps its own state; see docs/architecture.md for who calls whom.
class ListViewCore : protected ListViewLife {
  public:
    /// The window is for the list to make, and the parts after it.
    ListViewCore(
        lmListView& list, void (*destroy)(void* list), World& world, Host& host, lmListViewEvents& events);
    ListViewCore(const ListViewCore&) = delete;
    ListViewCore& operator=(const ListViewCore&) = delete;

    lmListView& list() { return list_; }
    World& world() const { return world_; }
    Runtime& runtime() const { return world_.runtime(); }
    /// Once the list has ended, these two are a host and a receiver that do nothing.
    Host& host() const { return *host_; }
    lmListViewEvents& events() const { return *events_; }
    bool hasEnded() const { return life_.hasEnded(); }
    ControlLife& life() const { return life_; }

    Procedure procedure(StringView name) const;
    /// The host's turn, in which its code may throw as in an event. A control that has ended has no more
    /// business with it.
    void yield(Procedure& p) const;
    /// The same for a walk that runs no code of the host between two of its yields.
    void yield(Procedure& p, QueueWatch& watch) const;
    /// A host that cannot tell is taken for a running program.
    bool designMode() const;
    /// Paints where `AutoRedraw` or design mode asks for it.
    void CheckForRedraw();

    Properties properties;
    ListRecords records;
    WalkCounters counters;
    FontRef lblFont;           ///< initial value of the two default fonts
    bool knownProgram = false; ///< see `recogniseProgram`
    /// Pixels above a text placed at the top of its row.
    Single topInset() const { return knownProgram ? 3.0F : 0.0F; }

    std::unique_ptr<Window> listWindow;
    std::unique_ptr<Scroller> scroller;
    std::unique_ptr<CellEditor> editor;
    std::unique_ptr<HeaderGesture> headerGesture;
    std::unique_ptr<Mouse> mouse;
    std::unique_ptr<RowDrag> rowDrag;
    std::unique_ptr<Selection> selection;
    std::unique_ptr<Painting> painting;
    std::unique_ptr<Sorter> sorter;
    std::unique_ptr<Finder> finder;

  protected:
    ~ListViewCore();
    /// From now on nothing more reaches the host.
    void endForHost();
    /// The parts go, then the window. To be called while the list is whole: each part has a reference to it.
    void dropParts();

  private:
    lmListView& list_;
    World& world_;
    Host* host_;
    lmListViewEvents* events_;
};

/// Base of the parts: what they name all the time.
class ListPart {
  public:
    ListPart(const ListPart&) = delete;
    ListPart& operator=(const ListPart&) = delete;

  protected:
    /// The list's window must stand. The list outlives its parts.
    explicit ListPart(ListViewCore& core)
        : core_(core), list_(core.list()), records_(core.records), properties_(core.properties),
          window_(*core.listWindow) {}
    ~ListPart() = default;

    Procedure procedure(StringView name) const { return core_.procedure(name); }

    ListViewCore& core_;
    lmListView& list_;
    ListRecords& records_;
    Properties& properties_;
    Window& window_;
};

} // namespace lumtex
