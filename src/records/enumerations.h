/// \file
/// The enumerations of the public interface. Nothing checks ranges: any number may be stored in their place.
#pragma once

#include "values/types.h"

namespace lumtex {

enum cColorStyle : Long { cXPBlue = 0, cXPSilver = 1, cXPOlive = 2, cCustom = 99 };
enum cScrollColorStyle : Long {
    cXPScrollBlue = 0,
    cXPScrollSilver = 1,
    cXPScrollOlive = 2,
    cScrollCustom = 99
};
enum cWheelFunction : Long { cWheelScroll = 0, cWheelListIndex = 1, cWheelOff = 2 };
enum cListViewStyle : Long { cDefault = 0, cCheckBoxes = 1 };
enum cColumnHeaderAlign : Long { cColumnLeft = 0, cColumnCenter = 1, cColumnRight = 2 };
enum cItemAlign : Long { cItemLeft = 0, cItemCenter = 1, cItemRight = 2 };
enum cTextPosition : Long { cTextPosTop = 0, cTextPosCenter = 1, cTextPosBottom = 2 };
enum cSortMode : Long { cAscending = 1, cDescending = 2 };
enum cSortType : Long { cSortText = 0, cSortNumeric = 1, cSortDate = 2 };
enum cFindBegin : Long { cFindStart = 0, cFindContinue = 1 };
enum cFindCompare : Long { cFindBinary = 0, cFindText = 1 };

} // namespace lumtex
