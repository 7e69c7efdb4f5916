// A list of tasks to tick off, by the classes of LumtexListView.hpp: defaults, texts of the language,
// handlers by name.
//
// In this folder, with one compiler or another:
//
// clang-format off
//   x86_64-w64-mingw32-g++ -std=c++17 -mwindows -static -I../../include tasks.cpp -o tasks.exe -lole32 -loleaut32 -luuid
//   cl /std:c++17 /EHsc /I..\..\include tasks.cpp /link /subsystem:windows user32.lib shell32.lib ole32.lib oleaut32.lib uuid.lib
//   clang-cl /std:c++17 /EHsc /I..\..\include tasks.cpp /link /subsystem:windows user32.lib shell32.lib ole32.lib oleaut32.lib uuid.lib
// clang-format on
//
// Nothing needs to be registered: put LumtexListView.ocx and LumtexListView.manifest beside the program, of
// its width.
#include "program.h"

namespace {

using namespace LumtexListView;

class Tasks : public program::ListWindow {
  public:
    Tasks() : ListWindow(L"Tasks", 400, 240) {
        list.letAutoRedraw(false);
        list.letGridLines(true);
        list.letRowsDynamic(false);
        list.letRowHeight(300); // twips
        list.letStyle(cCheckBoxes);
        list.ColumnsAdd(L"Task", nullptr, nullptr, nullptr, cColumnLeft, 3000);
        list.ColumnsAdd(L"Until");
        list.letColumnCheckBoxes(1, true);
        for (const wchar_t* row : {L"Read the notes,Monday", L"Write a program,Tuesday", L"Ship it,Friday"})
            list.RowsAdd(-1, L",", row);
        list.letItemChecked(1, 1, true);
        list.letAutoRedraw(true);
        list.Redraw();
        tellHowMany();
    }

  private:
    /// What is read stays read.
    void ItemCheck(long Row, long, bool, bool& Cancel) override { Cancel = Row == 1; }
    void ItemChecked(long, long, bool) override { tellHowMany(); }

    void tellHowMany() {
        letTitle(L"Tasks: " + std::to_wstring(list.ItemsCheckedCount(1)) + L" of " +
                 std::to_wstring(list.RowsCount()) + L" done");
    }
};

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return program::run("Tasks", [] { Tasks().show(); });
}
