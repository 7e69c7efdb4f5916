/// \file
/// The programs of examples/qt, whose `main` the build renames for this test.
#pragma once

int minimal(int argc, char** argv);
int file_browser(int argc, char** argv);
int database_browser(int argc, char** argv);
int log_viewer(int argc, char** argv);
int task_list(int argc, char** argv);
int progress_bars(int argc, char** argv);
