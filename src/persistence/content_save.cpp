/// Writing all cells to a file.
#include "content/content_colors.h"
#include "content/content_header.h"
#include "content/content_pictures.h"
#include "content/content_writer.h"
#include "helpers/file_exists.h"
#include "persistence/content_fields.h"
#include "persistence/save_at_once.h"

namespace lumtex {

namespace {

/// Writes one record, each value as the public accessor of the cell gives it. A value that cannot be had goes
/// into the file as its type's zero, so that readers stay in step.
class SaveStepwise {
  public:
    SaveStepwise(lmListView& list,
                 Runtime& runtime,
                 Procedure& procedure,
                 content::ContentWriter& file,
                 bool withProperties)
        : list_(list), runtime_(runtime), p_(procedure), file_(file), withProperties_(withProperties) {}

    void write(Long row, Long column) {
        putText(list_.ItemText(row, column));
        if (withProperties_)
            writeProperties(row, column);
    }

  private:
    void writeProperties(Long row, Long column) {
        forEachContentField([&]<class Field>(Field /*field*/) {
            const auto value = (list_.*Field::get)(row, column);
            if constexpr (Field::isTag)
                putText(p_.value<String>([&] { return value.toText(); }));
            else if constexpr (Field::isColor)
                putColor(value);
            else
                putValue(value);
        });
    }

    template <class T>
    void put(T value) {
        p_.step([&] { file_.put(value); });
    }
    void putValue(bool value) { put(content::booleanNumber(value)); }
    void putValue(Single value) { put(value); }
    void putValue(const String& value) { putText(value); }
    void putValue(cItemAlign value) {
        put(p_.value<Byte>([&] { return Variant(static_cast<Long>(value)).toByte(); }));
    }
    void putText(const String& text) {
        put(static_cast<Long>(text.size()));
        p_.step([&] { file_.putText(text); });
    }
    void putColor(const Variant& color) {
        put(p_.value<Long>([&] { return content::GetCorrectColor(runtime_, color.toText()); }));
    }
    void putValue(const PictureRef& picture) {
        if (!picture) {
            put(Byte{0});
            return;
        }
        Long length = 0;
        const std::vector<Byte> bytes = content::GetPictureString(runtime_, *picture, length);
        put(Byte{1});
        put(length);
        p_.step([&] { file_.putBytes(bytes); });
    }

    lmListView& list_;
    Runtime& runtime_;
    Procedure& p_;
    content::ContentWriter& file_;
    bool withProperties_;
};

} // namespace

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
    if (ColumnsCount() >= 1 && RowsCount() >= 1) {
        SaveStepwise stepwise(*this, runtime(), p, file, bSaveItemProperties);
        SaveAtOnce atOnce(*this, runtime().locale(), file, bSaveItemProperties);
        const Long columns = ColumnsCount();
        const Long rows = RowsCount();
        for (counters.saveColumn = 1; counters.saveColumn <= columns; ++counters.saveColumn) {
            for (counters.saveRow = 1; counters.saveRow <= rows; ++counters.saveRow) {
                if (!atOnce.write(counters.saveRow, counters.saveColumn))
                    stepwise.write(counters.saveRow, counters.saveColumn);
            }
        }
    }
    p.step([&] { file.close(); });
    // Wanted: True even where a statement failed; that was reported.
    return true;
}

} // namespace lumtex
