/// \file
/// A world of Qt in a shown widget, with a window that notes what it hears.
#pragma once

#include "test_fonts.h"
#include "user_hands.h"
#include "worlds/qt/qt_window.h"
#include "worlds/qt/qt_world.h"

#include <QApplication>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace lumtex::testing {

/// Writes a word for each event.
class NotingControl : public UserControl {
  public:
    std::vector<std::string> heard;
    std::function<void()> onMouseDown;
    std::function<void()> onKeyDown;

    void UserControl_MouseDown(Integer, Integer, Single X, Single Y) override {
        heard.push_back("down " + std::to_string(int(X)) + " " + std::to_string(int(Y)));
        if (onMouseDown)
            onMouseDown();
    }
    void UserControl_MouseUp(Integer, Integer, Single, Single) override { heard.push_back("up"); }
    void UserControl_Click() override { heard.push_back("click"); }
    void UserControl_GotFocus() override { heard.push_back("focus"); }
    void UserControl_LostFocus() override { heard.push_back("no focus"); }
    bool UserControl_Wheel(Long Rotation, Integer, Single, Single) override {
        heard.push_back("wheel " + std::to_string(Rotation));
        return true;
    }
    void UserControl_KeyDown(Integer KeyCode, Integer) override {
        heard.push_back("key " + std::to_string(KeyCode));
        if (onKeyDown)
            onKeyDown();
    }
    void UserControl_KeyPress(Integer KeyAscii) override {
        heard.push_back("character " + std::to_string(KeyAscii));
    }
};

class QtWorldTest : public ::testing::Test {
  protected:
    QtWorldTest() {
        container->setGeometry(0, 0, 400, 300);
        container->setFocusPolicy(Qt::StrongFocus);
        container->show();
        container->activateWindow();
        QCoreApplication::processEvents();
        container->setFocus();
        window = world.createWindow(nullptr, control);
        window->place(10, 20, 200, 100);
        QCoreApplication::processEvents();
    }

    qt::ScreenWidget& screen() { return *static_cast<qt::QtWindow&>(*window).screen(); }

    std::unique_ptr<QWidget> container = std::make_unique<QWidget>();
    qt::QtWorld world{container.get(), nullptr, testFonts()};
    NotingControl control;
    std::unique_ptr<Window> window;
    UserHands hands{*container, [] { QCoreApplication::processEvents(); }};
};

} // namespace lumtex::testing
