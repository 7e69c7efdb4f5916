/// \file
/// Where a widget's world comes from.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>

namespace lumtex::qt {

class QtWorld;

/// Makes the world whose outermost windows lie in that widget.
using WorldFactory = std::function<std::unique_ptr<QtWorld>(QWidget&)>;

/// The user's screen, with the fonts of the system.
std::unique_ptr<QtWorld> worldOfQt(QWidget& container);

} // namespace lumtex::qt
