/// \file
/// What a drag carries, as hosts read it.
#pragma once

#include "values/references/object.h"

#include <QMimeData>

namespace lumtex::qt {

/// The data of a drag that some program or widget started; it cannot be changed. Members, with the numbers of
/// formats that hosts know, also as negative 16-bit numbers:
///
/// - `GetFormat(Format)`: whether there is data in that format.
/// - `GetData(Format)`: texts of formats 1, 13 and of rich text (-16639) as a String, a bitmap of format 2 as
/// a
///   picture; without a format, the text. RuntimeError 5 if there is none, or in any other format.
/// - `Files`: the names of dragged files (format 15), with `Count` and `Item(Index)`, Index from 1;
/// RuntimeError 5 where
///   no files are dragged, 9 for an index outside.
///
/// Once `data` is gone, or the drag is over, there is data in no format; names of files that were read stay.
class CarriedData : public Object {
  public:
    /// The drag is over.
    virtual void end() = 0;
    /// Null once the drag is over, or the data is gone.
    virtual QMimeData* mimeData() const = 0;
};

std::shared_ptr<CarriedData> carriedData(const QMimeData& data);

} // namespace lumtex::qt
