/// \file
/// A program with a window, run from its `main` to its end, with somebody in front of it.
#pragma once

#include "qt/lumtex_list_view.h"

#include <QString>
#include <functional>
#include <string>
#include <vector>

namespace lumtex::testing {

/// The `main` of a program, which has another name in a test.
using ProgramMain = int (*)(int, char**);

/// Runs it with the words of its command line. Once its events run, its window is waited for and `use` is
/// called with it; then all windows are closed, as by their user. Returns its status, or -1 where it ended
/// without showing a window.
int useProgram(ProgramMain program,
               const std::vector<std::string>& words,
               const std::function<void(QWidget& window)>& use);

/// The rows as they read, their cells between bars, each with an end.
std::string rowsOf(const LumtexListView& list);

/// A click, or a double click, into the cell, by a mouse that goes there first and rests. Rows are of one
/// height.
void clickCell(const LumtexListView& list, int row, int column);
void doubleClickCell(const LumtexListView& list, int row, int column);
/// A click on the check box in the first column.
void clickBox(const LumtexListView& list, int row);
/// A click on the header of a column.
void clickHeader(const LumtexListView& list, int column);
/// Down and up.
void pressKey(LumtexListView& list, Qt::Key key);

/// Whether the window looks like the picture of its program, which the documents show.
void expectPicture(QWidget& window, const std::string& name);

} // namespace lumtex::testing
