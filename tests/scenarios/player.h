/// \file
/// Plays a script on a stage.
#pragma once

#include "script.h"
#include "stage.h"

#include <functional>

namespace lumtex::testing {

struct Played {
    StepLogs logs;
    std::vector<Bitmap> frames; ///< of a film, in order
};

/// A step that cannot be understood throws std::runtime_error.
///
///     size 300 200                     the list's window
///     columns 60 60                    columns of these widths in pixels, without text
///     rows 5                           rows that read "1a" "1b", "2a" "2b" ...
///     call RowsAdd -1 "," "a,b"        a method; "-> value" is logged if it returns one
///     get ItemText 1 2                 logs "-> value"
///     let GridLines = True             a property; arguments stand before the "="
///     set Skin = Nothing               a reference: Nothing, picture W H 0xRRGGBB, font "Name" SIZE
///     show                             logs index, top row, selected and checked rows
///     headers                          logs which header has which state, and the guide if it shows
///     editor                           logs place and text of the editor
///     texts 1                          logs the texts of a column
///     move 20 30                       also "cell ROW COLUMN", "check ROW COLUMN", "header COLUMN",
///     press cell 2 1 right shift       "divider COLUMN", "away"; with a button and shift keys
///     click, release, doubleclick      the same; without a point, where the pointer is
///     wheel -120 shift
///     key down control, down a, up a   keys by name, letter or number; "hold" and "let go" for one half
///     type "text"
///     focus list, focus away
///     switch away, switch back         to another program and back
///     advance 350                      milliseconds
///     on ItemDown call RowsClear       what the host does in each such event; "on ItemDown" ends it
///     yield call RowsClear             what it does in the next yield
///     cancel True                      whether the host cancels check marks
///     picture NAME                     compares with the reference scenario-NAME.png
///     frame                            takes a picture for the film of this scenario
///
/// Points name the list as it was painted last. A call that fails before it reaches the control logs "! " and
/// the number.
///
/// `afterStep`, if there is one, is called after each step.
Played play(const Script& script, Stage& stage, const std::function<void()>& afterStep = {});

} // namespace lumtex::testing
