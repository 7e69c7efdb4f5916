/// \file
/// The widget with fonts that are the same everywhere, and with boxes that are noted and dismissed.
#pragma once

#include "qt/lumtex_list_view.h"
#include "test_fonts.h"
#include "values/text.h"
#include "worlds/qt/qt_runtime.h"
#include "worlds/qt/qt_world.h"

#include <QApplication>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lumtex::testing {

/// A world of Qt that asks nobody to press a button.
class QuietWorld final : public qt::QtWorld {
  public:
    QuietWorld(QWidget& container, std::vector<std::string>& boxes)
        : QtWorld(&container, nullptr, testFonts()), runtime_(mouse(), boxes) {}

    Runtime& runtime() override { return runtime_; }

  private:
    class QuietRuntime final : public qt::QtRuntime {
      public:
        QuietRuntime(worlds::Pointer& pointer, std::vector<std::string>& boxes)
            : QtRuntime(pointer), boxes_(boxes) {}
        void messageBox(StringView text, BoxStyle /*style*/, StringView /*title*/) override {
            boxes_.push_back(toUtf8(text));
        }

      private:
        std::vector<std::string>& boxes_;
    };

    QuietRuntime runtime_;
};

class WidgetTest : public ::testing::Test {
  protected:
    std::unique_ptr<LumtexListView> makeWidget(QWidget* parent = nullptr) {
        return std::make_unique<LumtexListView>(
            parent, [this](QWidget& container) { return std::make_unique<QuietWorld>(container, boxes); });
    }

    /// Two columns and two rows: "a1" to "b2".
    static void fill(LumtexListView& list) {
        list.ColumnsAdd(QStringLiteral("A"));
        list.ColumnsAdd(QStringLiteral("B"));
        list.RowsAdd(-1, QStringLiteral(","), QStringLiteral("a1,b1"));
        list.RowsAdd(-1, QStringLiteral(","), QStringLiteral("a2,b2"));
    }

    std::vector<std::string> boxes; ///< their texts
    std::unique_ptr<LumtexListView> widget = makeWidget();
};

} // namespace lumtex::testing
