/// \file
/// Which pages of the reference show their property at two values, and what the list is like beside it.
#pragma once

#include "values/types.h"

#include <span>

namespace lumtex::automation {

/// What is done to the list before a value is assigned. Several are a sum.
enum PictureSetting : unsigned {
    asItComes = 0,
    customScheme = 1,  ///< of list and bars
    boxesToCheck = 2,  ///< in the first column
    equalRows = 4,     ///< of 30 pixels
    rowChosen = 8,     ///< the second row is selected
    withIcons = 16,    ///< in headers and cells
    colouredRows = 32, ///< by AutoRowColor, white and grey
    cellOff = 64,      ///< the first cell of the second row is disabled
    listOff = 128,     ///< the control is disabled
    largeCell = 256,   ///< the first cell of the second row has a large font
};

/// To what the member belongs: the second row, the first column, or the cell in both.
enum class PicturePlace : Byte { list, column, row, cell };

struct PictureValue {
    Double number = 0;
    StringView text{}; ///< in place of the number, unless empty

    constexpr PictureValue(Double value) : number(value) {}
    constexpr PictureValue(StringView value) : text(value) {}
};

struct PagePicture {
    StringView member;
    PicturePlace place;
    PictureValue left;
    PictureValue right;
    unsigned settings = asItComes;
};

std::span<const PagePicture> pagePictures();

} // namespace lumtex::automation
