/// Filling the list from a file.
#include "content/content_colors.h"
#include "content/content_header.h"
#include "content/content_pictures.h"
#include "content/content_reader.h"
#include "helpers/file_exists.h"
#include "persistence/content_fields.h"
#include "persistence/load_at_once.h"

namespace lumtex {

namespace {

/// Reads one record and assigns it through the public accessors of the cell. A value that cannot be read is
/// its type's zero.
class LoadStepwise {
  public:
    LoadStepwise(lmListView& list, Runtime& runtime, Procedure& procedure, content::ContentReader& file)
        : list_(list), runtime_(runtime), p_(procedure), file_(file) {}

    void read(Long row, Long column, RecordForm form) {
        list_.letItemText(row, column, text());
        if (form == RecordForm::readProperties) {
            readProperties(row, column);
            return;
        }
        if (form == RecordForm::dropProperties)
            discardProperties();
        giveDefaults(row, column);
    }

  private:
    void readProperties(Long row, Long column) {
        forEachContentField([&]<class Field>(Field /*field*/) {
            using Value = typename Field::Value;
            if constexpr (Field::isTag) {
                (list_.*Field::let)(row, column, text());
            } else if constexpr (Field::isColor) {
                const Variant read = color();
                // The accessor that takes nothing but a number is not even reached by "def".
                if constexpr (std::is_same_v<Value, OLE_COLOR>)
                    p_.step([&] { (list_.*Field::let)(row, column, read.toColor()); });
                else
                    (list_.*Field::let)(row, column, read);
            } else {
                (list_.*Field::let)(row, column, value<Value>());
            }
        });
    }

    void discardProperties() {
        forEachContentField([&]<class Field>(Field /*field*/) {
            if constexpr (Field::isColor) {
                color();
            } else if constexpr (Field::isText || Field::isIcon) {
                if (Field::isText || number<Byte>() == 1)
                    discardBytes();
            } else {
                value<typename Field::Value>();
            }
        });
    }

    // Wanted: black text, whatever DefaultItemForeColor says.
    void giveDefaults(Long row, Long column) {
        const CellStyle plain;
        forEachContentField([&]<class Field>(Field /*field*/) {
            using Place = typename Field::Place;
            const auto give = [&](const auto& value) { (list_.*Field::let)(row, column, value); };
            // Wanted: the tag is the empty text, though that of a new cell is Empty.
            // Wanted: cells are editable where the list is, though new cells are not.
            if constexpr (Field::isTag)
                give(u"");
            else if constexpr (Field::isIcon)
                give(nullptr);
            else if constexpr (Field::isOfFont)
                p_.step([&] {
                    const CellStyle look = lookOfDefaultFont();
                    give(Place::of(look));
                });
            else if constexpr (std::is_same_v<Place, InStyle<&CellStyle::AllowEdit>>)
                give(list_.AllowEdit());
            else
                give(Place::of(plain));
        });
    }

    template <class T>
    T number() {
        return p_.value<T>([&] { return file_.get<T>(); });
    }
    template <class Value>
    Value value() {
        if constexpr (std::is_same_v<Value, bool>)
            return p_.value<bool>([&] { return file_.getBoolean(); });
        else if constexpr (std::is_same_v<Value, Single>)
            return number<Single>();
        else if constexpr (std::is_same_v<Value, String>)
            return text();
        else if constexpr (std::is_same_v<Value, PictureRef>)
            return picture();
        else
            return static_cast<Value>(number<Byte>());
    }
    String text() {
        const Long length = number<Long>();
        return p_.value<String>([&] { return file_.getText(length); });
    }
    Variant color() { return content::HTML2VBColor(number<Long>()); }
    PictureRef picture() {
        if (number<Byte>() != 1)
            return nullptr;
        const Long length = number<Long>();
        const auto bytes = p_.value<std::vector<Byte>>([&] { return file_.getBytes(length); });
        return content::GetStringPicture(runtime_, bytes);
    }
    void discardBytes() {
        const Long length = number<Long>();
        p_.step([&] { file_.skip(length); });
    }
    CellStyle lookOfDefaultFont() const {
        const FontRef font = list_.DefaultItemFont();
        if (!font)
            throw RuntimeError(ErrorNumber::objectVariableNotSet);
        CellStyle look;
        look.font = font->spec;
        return look;
    }

    lmListView& list_;
    Runtime& runtime_;
    Procedure& p_;
    content::ContentReader& file_;
};

} // namespace

bool lmListView::ContentInput(StringView sFilename, bool bReadItemPropertiesIfExists) {
    Procedure p = procedure(u"ContentInput");
    const bool exists = p.condition([&] { return FileExists(runtime().files(), sFilename); }, false);
    if (!exists)
        return false;
    const bool autoRedraw = properties.AutoRedraw;
    const bool autoCheckScroll = properties.AutoCheckScroll;
    properties.AutoRedraw = false;
    properties.AutoCheckScroll = false;

    content::ContentReader file(runtime());
    p.step([&] { file.open(sFilename); });
    content::ContentHeader header;
    // Wanted: a file of any version is read as if it were of this one.
    header.version = p.value<Integer>([&] { return file.get<Integer>(); });
    header.rowCount = p.value<Long>([&] { return file.get<Long>(); });
    header.columnCount = p.value<Long>([&] { return file.get<Long>(); });
    header.hasItemProperties = p.value<bool>([&] { return file.getBoolean(); });

    RowsClear();
    const bool possible = p.step([&] {
        if (!content::isPossible(header, file.remaining(), ColumnsCount()))
            throw RuntimeError(ErrorNumber::outOfMemory);
    });
    if (possible && header.rowCount > 0) {
        addEmptyRows(header.rowCount);
        const bool readsProperties = header.hasItemProperties && bReadItemPropertiesIfExists;
        const RecordForm form = readsProperties            ? RecordForm::readProperties
                                : header.hasItemProperties ? RecordForm::dropProperties
                                                           : RecordForm::textAlone;
        LoadStepwise stepwise(*this, runtime(), p, file);
        LoadAtOnce atOnce(*this, runtime().locale(), file, form);
        for (Long column = 1; column <= header.columnCount; ++column) {
            for (Long row = 1; row <= header.rowCount; ++row) {
                if (atOnce.read(row, column))
                    continue;
                stepwise.read(row, column, form);
                atOnce.forget();
            }
        }
    }
    file.close();
    properties.AutoRedraw = autoRedraw;
    properties.AutoCheckScroll = autoCheckScroll;
    CheckScroll();
    Redraw();
    return true;
}

} // namespace lumtex
