/// Writing all cells to a file.
#include "content/content_header.h"
#include "content/content_writer.h"
#include "helpers/file_exists.h"
#include "model/list_view.h"
#include "persistence/save_records.h"

namespace lumtex {

bool lmListView::ContentSave(StringView sFilename, bool bSaveItemProperties) {
    Procedure p = procedure(u"ContentSave");
    const bool exists = p.condition([&] { return FileExists(runtime().files(), sFilename); }, false);
    if (exists)
        p.step([&] { runtime().files().deleteFile(sFilename); });
    content::ContentWriter file(runtime());
    p.step([&] { file.open(sFilename); });

    p.step([&] { file.put(content::SaveVersion()); });
    p.step([&] { file.put(RowsCount()); });
    p.step([&] { file.put(ColumnsCount()); });
    p.step([&] { file.put(content::booleanNumber(bSaveItemProperties)); });
    if (ColumnsCount() >= 1 && RowsCount() >= 1)
        saveRecords(*this, p, file, bSaveItemProperties);
    p.step([&] { file.close(); });
    // Wanted: True even where a statement failed; that was reported.
    return true;
}

} // namespace lumtex
