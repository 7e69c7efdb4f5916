/// \file
/// What a drag carries, as hosts read it.
#pragma once

#include "values/references/object.h"
#include "worlds/win32/com_ref.h"

namespace lumtex::win32 {

/// The data of a drag that another program or control started; it cannot be changed. Members, with the
/// system's numbers of formats, also as negative 16-bit numbers:
///
/// - `GetFormat(Format)`: whether there is data in that format.
/// - `GetData(Format)`: texts of formats 1, 13 and of rich text as a String, a bitmap of format 2 as a
///   picture; without a format, the text. RuntimeError 5 if there is none, or in any other format.
/// - `Files`: the names of dragged files, with `Count` and `Item(Index)`, Index from 1; RuntimeError 5 where
///   no files are dragged, 9 for an index outside.
ObjectRef carriedData(ComRef<IDataObject> data);

} // namespace lumtex::win32
