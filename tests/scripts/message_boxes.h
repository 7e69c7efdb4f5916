/// \file
/// Message boxes that nobody is there to close.
#pragma once

#include "platform/types.h"
#include "platform/win32/windows_api.h"

#include <vector>

namespace lumtex::testing {

bool isMessageBox(HWND window);

/// The text that a message box shows.
String textOfBox(HWND box);

/// Closes a message box as its one button does.
void answer(HWND box);

/// Answers each message box of this thread as soon as it comes up. One object at a time.
class AnsweredBoxes {
  public:
    AnsweredBoxes();
    AnsweredBoxes(const AnsweredBoxes&) = delete;
    AnsweredBoxes& operator=(const AnsweredBoxes&) = delete;
    ~AnsweredBoxes();

    std::vector<String> texts;

  private:
    static LRESULT CALLBACK noticed(int what, WPARAM window, LPARAM details);

    static AnsweredBoxes* current;
    HHOOK hook_;
};

} // namespace lumtex::testing
