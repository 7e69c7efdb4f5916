/// \file
/// An event receiver that writes one line for each event it gets.
#pragma once

#include "model/list_view_events.h"
#include "values/text.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace lumtex::testing {

/// `ItemDown Row=2 Column=1`, indented by the depth of yields. A host handler set by `on` runs after its line
/// was written.
class RecordingEvents final : public lmListViewEvents {
  public:
    using Arguments = std::vector<std::pair<const char*, Variant>>;

    std::vector<std::string> log;
    std::function<int()> depth = [] { return 0; };
    void on(const std::string& name, std::function<void()> handler) { handlers_[name] = std::move(handler); }
    /// What a handler of `ItemCheck` and `ErrorWrongIndex` writes into its by-reference argument.
    bool cancelCheck = false;
    /// What a handler of `KeyDown` makes of the key.
    std::optional<Integer> otherKey;
    /// Where a handler of `MouseMove` and `MouseUp` puts the mouse.
    std::optional<Single> otherY;

    void Click() override { note("Click", {}); }
    void DblClick() override { note("DblClick", {}); }
    void ItemCheck(Long Row, Long Column, bool NewValue, bool& Cancel) override {
        note("ItemCheck", {{"Row", Row}, {"Column", Column}, {"NewValue", NewValue}});
        Cancel = cancelCheck;
    }
    void ItemChecked(Long Row, Long Column, bool NewValue) override {
        note("ItemChecked", {{"Row", Row}, {"Column", Column}, {"NewValue", NewValue}});
    }
    void MouseUp(Integer& Button, Integer& Shift, Single& X, Single& Y) override {
        mouse("MouseUp", Button, Shift, X, Y);
        Y = otherY.value_or(Y);
    }
    void MouseMove(Integer& Button, Integer& Shift, Single& X, Single& Y) override {
        mouse("MouseMove", Button, Shift, X, Y);
        Y = otherY.value_or(Y);
    }
    void MouseDown(Integer& Button, Integer& Shift, Single& X, Single& Y) override {
        mouse("MouseDown", Button, Shift, X, Y);
    }
    void ColumnClick(Long& Column) override { note("ColumnClick", {{"Column", Column}}); }
    void Scroll() override { note("Scroll", {}); }
    void KeyDown(Integer& KeyCode, Integer& Shift) override {
        note("KeyDown", {{"KeyCode", KeyCode}, {"Shift", Shift}});
        KeyCode = otherKey.value_or(KeyCode);
    }
    void KeyPress(Integer& KeyAscii) override { note("KeyPress", {{"KeyAscii", KeyAscii}}); }
    void KeyUp(Integer& KeyCode, Integer& Shift) override {
        note("KeyUp", {{"KeyCode", KeyCode}, {"Shift", Shift}});
    }
    void OLECompleteDrag(Long& Effect) override { note("OLECompleteDrag", {{"Effect", Effect}}); }
    void OLEDragDrop(
        DragData& Data, Long& Effect, Integer& Button, Integer& Shift, Single& X, Single& Y) override {
        note("OLEDragDrop",
             {{"Data", Data != nullptr},
              {"Effect", Effect},
              {"Button", Button},
              {"Shift", Shift},
              {"X", X},
              {"Y", Y}});
    }
    void OLEDragOver(DragData& Data,
                     Long& Effect,
                     Integer& Button,
                     Integer& Shift,
                     Single& X,
                     Single& Y,
                     Integer& State) override {
        note("OLEDragOver",
             {{"Data", Data != nullptr},
              {"Effect", Effect},
              {"Button", Button},
              {"Shift", Shift},
              {"X", X},
              {"Y", Y},
              {"State", State}});
    }
    void OLEGiveFeedback(Long& Effect, bool& DefaultCursors) override {
        note("OLEGiveFeedback", {{"Effect", Effect}, {"DefaultCursors", DefaultCursors}});
    }
    void OLESetData(DragData& Data, Integer& DataFormat) override {
        note("OLESetData", {{"Data", Data != nullptr}, {"DataFormat", DataFormat}});
    }
    void OLEStartDrag(DragData& Data, Long& AllowedEffects) override {
        note("OLEStartDrag", {{"Data", Data != nullptr}, {"AllowedEffects", AllowedEffects}});
    }
    void ErrorWrongIndex(Variant& Index) override { note("ErrorWrongIndex", {{"Index", Index}}); }
    void SortDone() override { note("SortDone", {}); }
    void ListViewError(const String& eSub, Long eNumber, const String& eDescription) override {
        note("ListViewError", {{"eSub", eSub}, {"eNumber", eNumber}, {"eDescription", eDescription}});
    }
    void ItemClick(Long Row, Long Column) override { note("ItemClick", {{"Row", Row}, {"Column", Column}}); }
    void ItemDblClick(Long Row, Long Column) override {
        note("ItemDblClick", {{"Row", Row}, {"Column", Column}});
    }
    void ItemDown(Long Row, Long Column) override { note("ItemDown", {{"Row", Row}, {"Column", Column}}); }
    void ItemUp(Long Row, Long Column) override { note("ItemUp", {{"Row", Row}, {"Column", Column}}); }
    void ItemChanged(Long Row, Long Column, const String& NewValue) override {
        note("ItemChanged", {{"Row", Row}, {"Column", Column}, {"NewValue", NewValue}});
    }
    void ItemOver(Long Row, Long Column, bool bOverItem) override {
        note("ItemOver", {{"Row", Row}, {"Column", Column}, {"bOverItem", bOverItem}});
    }

  private:
    void mouse(const char* name, Integer button, Integer shift, Single x, Single y) {
        note(name, {{"Button", button}, {"Shift", shift}, {"X", x}, {"Y", y}});
    }

    void note(const char* name, const Arguments& arguments) {
        std::string line(static_cast<std::size_t>(2 * depth()), ' ');
        line += name;
        for (const auto& [argument, value] : arguments)
            line += std::string(" ") + argument + "=" + toUtf8(value.toText());
        log.push_back(line);
        if (const auto found = handlers_.find(name); found != handlers_.end()) {
            const std::function<void()> handler = found->second;
            handler();
        }
    }

    std::map<std::string, std::function<void()>> handlers_;
};

} // namespace lumtex::testing
