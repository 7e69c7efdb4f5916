/// \file
/// What the measures ask of a list.
#pragma once

#include "table.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lumtex::bench {

/// A list with five columns and a window of 1280 x 800, in which nothing is painted until `show`. Rows and
/// columns count from 0. Functions that give False or nothing have no counterpart in that list.
class Peer {
  public:
    Peer() = default;
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;
    virtual ~Peer() = default;

    virtual void load(const Table& table) = 0;
    virtual int count() = 0;
    virtual std::string text(int row, int column) = 0;
    /// Ascending, by what the column holds.
    virtual bool sort(TableColumn /*column*/) { return false; }
    /// The row of the first text that holds `part`, or -1.
    virtual std::optional<int> find(const std::string& /*part*/, bool /*anyCase*/) { return std::nullopt; }
    /// Rows of the table, one by one.
    virtual bool insertFirst(const Table& /*table*/, int /*row*/) { return false; }
    virtual bool removeFirst() { return false; }

    virtual bool show() { return false; }
    /// Makes it the first row that is seen, and paints.
    virtual void scrollTo(int /*row*/) {}
    /// Which row is seen first, and whether anything was painted: for the comparison, untimed.
    virtual int firstSeen() { return -1; }
    virtual bool hasInk() { return false; }
    /// Adds a row of the table at the end, and paints.
    virtual void appendPainted(const Table& /*table*/, int /*row*/) {}

    virtual bool save(const std::string& /*path*/) { return false; }
    virtual bool loadSaved(const std::string& /*path*/) { return false; }
    /// From a table `records` in a file of SQLite.
    virtual bool import(const std::string& /*path*/) { return false; }
};

struct PeerKind {
    const char* name;
    std::unique_ptr<Peer> (*make)();
    int mostRows = 1'000'000'000; ///< above these, whoever waits gives up
};

/// Runs the measures on the list that the first argument names, with as many rows as the second one says of
/// the kind that the third one names, and prints a line for each: measure, rows, value, what came out. Values
/// are milliseconds, or bytes.
int runMeasures(int count, char** arguments, const std::vector<PeerKind>& kinds);

} // namespace lumtex::bench
