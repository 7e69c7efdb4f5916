#include "persistence/save_records.h"

#include "content/content_colors.h"
#include "content/content_pictures.h"
#include "persistence/content_fields.h"
#include "persistence/save_at_once.h"
#include "persistence/save_texts.h"

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

/// `write` says how many records it wrote, none for one that has to be written value by value.
template <class Write>
void walk(WalkCounters& counters, Long rows, Long columns, SaveStepwise& stepwise, Write write) {
    for (counters.saveColumn = 1; counters.saveColumn <= columns; ++counters.saveColumn) {
        counters.saveRow = 1;
        while (counters.saveRow <= rows) {
            Long written = write(counters.saveRow, counters.saveColumn);
            if (written == 0) {
                stepwise.write(counters.saveRow, counters.saveColumn);
                written = 1;
            }
            counters.saveRow += written;
        }
    }
}

} // namespace

void saveRecords(ListViewCore& core,
                 Procedure& p,
                 content::ContentWriter& file,
                 bool withProperties,
                 const KeptTexts::Limits& limits) {
    WalkCounters& counters = core.counters;
    const Long rows = core.records.RowsCount();
    const Long columns = core.records.ColumnsCount();
    SaveStepwise stepwise(core.list(), core.runtime(), p, file, withProperties);
    if (withProperties) {
        SaveAtOnce atOnce(core, core.runtime().locale(), file);
        walk(counters, rows, columns, stepwise, [&](Long row, Long column) {
            return atOnce.write(row, column) ? 1 : 0;
        });
    } else {
        SaveTexts texts(core, p, file, rows, columns, limits);
        walk(counters, rows, columns, stepwise, [&](Long row, Long column) {
            return texts.write(row, column);
        });
    }
}

} // namespace lumtex
