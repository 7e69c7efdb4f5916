/// \file
/// The looks of a header cell and of the empty field beside the last one, in painting order.
#pragma once

#include "drawing/strokes.h"

namespace lumtex::drawing::looks {

using enum Edge;
using enum Shape;

// clang-format off

constexpr Stroke headerNormal[] = {
    {fill, {left, 0},   {top, 0},  {right, -1}, {foot, -3}, ColorRole::headerFace},
    {line, {left, 0},   {foot, -2}, {right, 0}, {foot, -2}, ColorRole::headerFoot1},
    {line, {left, 0},   {foot, -1}, {right, 0}, {foot, -1}, ColorRole::headerFoot2},
    {line, {left, 0},   {foot, 0},  {right, 0}, {foot, 0},  ColorRole::headerFoot3},
    {line, {right, -2}, {top, 3}, {right, -2},  {foot, -3}, ColorRole::headerDividerDark},
    {line, {right, -1}, {top, 3}, {right, -1},  {foot, -3}, ColorRole::headerDividerLight},
};

constexpr Stroke headerHover[] = {
    {fill, {left, 0}, {top, 0}, {right, -1}, {foot, 0}, ColorRole::headerHoverFace},
};

constexpr Stroke headerDown[] = {
    {fill, {left, 0},   {top, 0},  {right, -1}, {foot, 0}, ColorRole::headerDownFace},
    {line, {left, 0},   {top, 0},  {left, 0},   {foot, 0}, ColorRole::headerDownOuter},
    {line, {left, 0},   {foot, 0}, {right, 0},  {foot, 0}, ColorRole::headerDownOuter},
    {line, {right, -1}, {top, 0},  {right, -1}, {foot, 0}, ColorRole::headerDownOuter},
    {line, {left, 1},   {top, 0},  {left, 1},   {foot, 0}, ColorRole::headerDownMiddle},
    {line, {left, 1},   {top, 0},  {right, -1}, {top, 0},  ColorRole::headerDownMiddle},
    {line, {left, 2},   {top, 1},  {left, 2},   {foot, 0}, ColorRole::headerDownInner},
    {line, {left, 2},   {top, 1},  {right, -1}, {top, 1},  ColorRole::headerDownInner},
};

/// The hover bar of the Olive style; Blue and Silver have bitmaps instead.
constexpr Stroke oliveBar[] = {
    {pixel, {left, 0},   {bar, 0}, {left, 0},   {bar, 0}, ColorRole::oliveBarDark},
    {pixel, {left, 1},   {bar, 1}, {left, 1},   {bar, 1}, ColorRole::oliveBarDark},
    {line,  {left, 2},   {bar, 2}, {right, -2}, {bar, 2}, ColorRole::oliveBarDark},
    {pixel, {right, -1}, {bar, 0}, {right, -1}, {bar, 0}, ColorRole::oliveBarDark},
    {pixel, {right, -2}, {bar, 1}, {right, -2}, {bar, 1}, ColorRole::oliveBarDark},
    {line,  {left, 1},   {bar, 0}, {right, -1}, {bar, 0}, ColorRole::oliveBarLight},
    {line,  {left, 2},   {bar, 1}, {right, -2}, {bar, 1}, ColorRole::oliveBarLight},
    {pixel, {left, 0},   {bar, 1}, {left, 0},   {bar, 1}, ColorRole::oliveBarCorner},
    {pixel, {left, 0},   {bar, 2}, {left, 0},   {bar, 2}, ColorRole::oliveBarCorner},
    {pixel, {left, 1},   {bar, 2}, {left, 1},   {bar, 2}, ColorRole::oliveBarCorner},
    {pixel, {right, -1}, {bar, 1}, {right, -1}, {bar, 1}, ColorRole::oliveBarCorner},
    {pixel, {right, -1}, {bar, 2}, {right, -1}, {bar, 2}, ColorRole::oliveBarCorner},
    {pixel, {right, -2}, {bar, 2}, {right, -2}, {bar, 2}, ColorRole::oliveBarCorner},
};

constexpr Stroke emptyField[] = {
    {fill, {left, 0}, {top, 0},   {right, 0}, {foot, -3}, ColorRole::emptyFieldFace},
    {line, {left, 0}, {foot, -2}, {right, 0}, {foot, -2}, ColorRole::emptyFieldFoot1},
    {line, {left, 0}, {foot, -1}, {right, 0}, {foot, -1}, ColorRole::emptyFieldFoot2},
    {line, {left, 0}, {foot, 0},  {right, 0}, {foot, 0},  ColorRole::emptyFieldFoot3},
};
// clang-format on

} // namespace lumtex::drawing::looks
