#include "failures/failure_walk.h"

namespace lumtex::testing {

FailureWalk::FailureWalk() {
    settings.WriteProperty(
        u"DefaultItemFont", FontRef(std::make_shared<Font>(FontSpec{u"DejaVu Sans", 12})), {});
    settings.WriteProperty(u"ColorStyle", Long{cXPOlive}, {});
    settings.WriteProperty(u"ScrollArrows", OLE_COLOR{255}, {});
    settings.WriteProperty(u"AutoRedraw", false, {});
    settings.WriteProperty(u"IconW", longText, {}); // no number
}

std::vector<FailureWalk::Scene> FailureWalk::longerScenes() {
    const auto records = std::make_shared<TestRecordset>(
        std::vector<String>{u"first", String(longText)},
        std::vector<std::vector<Variant>>{{u"1", u"2"}, {String(longText), u"4"}});
    const String file = folder.pathTo("content");
    return {
        {"a new list", [this] { list->UserControl_InitProperties(); }, true},
        {"settings", [this] { list->UserControl_ReadProperties(settings); }, true},
        {"saving the settings",
         [this] {
             MemoryPropertyBag bag;
             list->UserControl_WriteProperties(bag);
         }},
        {"saving the content", [this, file] { list->ContentSave(file, true); }},
        {"loading the content",
         [this, file] {
             list->ContentSave(file, true);
             list->ContentInput(file, true);
         }},
        {"loading texts alone",
         [this, file] {
             list->ContentSave(file, false);
             list->ContentInput(file, false);
         }},
        {"a recordset", [this, records] { list->setRecordset(records); }},
        {"adding",
         [this] {
             list->ColumnsAdd(
                 longText, nullptr, nullptr, nullptr, cColumnRight, 600, true, 0, longText, longText);
             list->RowsAdd(Long{1}, u",", String(longText) + u"," + String(longText));
         }},
        {"sorting as text", [this] { list->Sort(2, cDescending, cSortText); }},
        {"sorting as numbers", [this] { list->Sort(1, cAscending, cSortNumeric); }},
        {"finding", [this] { list->FindItem(u"*HOLD*", cFindStart, cFindText, u"1,2-3,", u"1-*,"); }},
        {"finding a tag", [this] { list->FindItem(u"<itemtag>*", cFindStart, cFindBinary); }},
        {"fitting columns",
         [this] {
             list->AutoColumnSize({Long{1}, longText, Long{3}});
         }},
        {"editing",
         [this] {
             list->SetEdit(2, 2);
             list->StopEdit();
         }},
        {"a skin", [this] { list->setSkin(std::make_shared<CallingPicture>(releases)); }},
        {"removing", [this] { list->RowsSelectedRemove(); }},
    };
}

std::vector<FailureWalk::Scene> FailureWalk::inputScenes() {
    using std::chrono::milliseconds;
    const auto at = [this](Long x, Long y) {
        desktop.move({x, y});
        desktop.advance(milliseconds(2));
    };
    return {
        {"a click on a cell",
         [this, at] {
             at(20, 40);
             desktop.click();
         }},
        {"a double click",
         [this, at] {
             at(20, 40);
             desktop.doubleClick();
         }},
        {"a click on a header",
         [this, at] {
             at(20, 10);
             desktop.click();
         }},
        {"a resize of a column",
         [this, at] {
             at(39, 10);
             desktop.dragTo({60, 10});
         }},
        {"a drag out of the rows",
         [this, at] {
             at(20, 40);
             desktop.press();
             desktop.move({20, 300});
             desktop.advance(milliseconds(5));
             desktop.release();
         }},
        {"a drag of the thumb",
         [this] {
             Window& thumb = ListViewInspector(*list).vertical().window();
             desktop.move(thumb, 5, 25);
             desktop.dragTo({95, 60});
         }},
        {"arrow and trough of a bar",
         [this] {
             desktop.move(arrowButton);
             desktop.press();
             desktop.advance(milliseconds(500));
             desktop.release();
             desktop.move({arrowButton.x, 45});
             desktop.click();
         }},
        {"a typed text",
         [this] {
             list->SetEdit(1, 1);
             desktop.type(u"a longer text\r");
         }},
        {"arrow keys",
         [this] {
             onWindow([](Window& window) { window.setFocus(); });
             desktop.key(40);
             desktop.key(38);
         }},
        {"the wheel",
         [this, at] {
             at(20, 40);
             desktop.wheel(-120);
             desktop.wheel(120);
         }},
        {"leaving",
         [at] {
             at(20, 10);
             at(500, 500);
         }},
        {"a new size", [this] { onWindow([](Window& window) { window.place(0, 0, 90, 60); }); }},
        {"hiding and showing",
         [this] {
             onWindow([](Window& window) { window.letVisible(false); });
             onWindow([](Window& window) { window.letVisible(true); });
         }},
    };
}

} // namespace lumtex::testing
