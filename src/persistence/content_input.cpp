/// Filling the list from a file.
#include "content/content_colors.h"
#include "content/content_header.h"
#include "content/content_pictures.h"
#include "content/content_reader.h"
#include "helpers/file_exists.h"
#include "model/list_view.h"
#include "persistence/whole_record_loading.h"
#include "values/color.h"

namespace lumtex {

namespace {

/// Reads one record and assigns it through the public accessors of the cell. A value that cannot be read is
/// its type's zero.
class CellLoading {
  public:
    CellLoading(lmListView& list, Runtime& runtime, Procedure& procedure, ContentReader& file)
        : list_(list), runtime_(runtime), p_(procedure), file_(file) {}

    void readText(Long row, Long column) { list_.letItemText(row, column, text()); }

    void readProperties(Long row, Long column) {
        list_.letItemEnabled(row, column, boolean());
        list_.letItemFontBold(row, column, boolean());
        list_.letItemFontItalic(row, column, boolean());
        list_.letItemFontUnderline(row, column, boolean());
        list_.letItemFontStrikethrough(row, column, boolean());
        list_.letItemFontSize(row, column, number<Single>());
        list_.letItemFontName(row, column, text());
        list_.letItemAllowEdit(row, column, boolean());
        list_.letItemAlignment(row, column, alignment());
        list_.letItemTag(row, column, text());
        // This accessor alone takes nothing but a number, so "def" does not even reach it.
        const Variant foreColor = color();
        p_.step([&] { list_.letItemForeColor(row, column, foreColor.toColor()); });
        list_.letItemForeColorSelect(row, column, color());
        list_.letItemForeColorDis(row, column, color());
        list_.letItemBackColor(row, column, color());
        list_.letItemBackColorSelect(row, column, color());
        list_.letItemBackColorDis(row, column, color());
        list_.letItemIconAlignment(row, column, alignment());
        list_.setItemIcon(row, column, picture());
        list_.setItemIconSelected(row, column, picture());
    }

    void discardProperties() {
        for (int flag = 0; flag < 5; ++flag)
            boolean(); // enabled, and four of the font
        number<Single>();
        discardBytes();
        boolean();
        number<Byte>();
        discardBytes();
        for (int i = 0; i < 6; ++i)
            color();
        number<Byte>();
        for (int i = 0; i < 2; ++i)
            if (number<Byte>() == 1)
                discardBytes();
    }

    void giveDefaults(Long row, Long column) {
        list_.letItemEnabled(row, column, true);
        p_.step([&] { list_.letItemFontBold(row, column, defaultFont().Bold); });
        p_.step([&] { list_.letItemFontItalic(row, column, defaultFont().Italic); });
        p_.step([&] { list_.letItemFontUnderline(row, column, defaultFont().Underline); });
        p_.step([&] { list_.letItemFontStrikethrough(row, column, defaultFont().Strikethrough); });
        p_.step([&] { list_.letItemFontSize(row, column, defaultFont().Size); });
        p_.step([&] { list_.letItemFontName(row, column, defaultFont().Name); });
        // Wanted: cells are editable where the list is, though new cells are not.
        list_.letItemAllowEdit(row, column, list_.AllowEdit());
        list_.letItemAlignment(row, column, cItemLeft);
        // Wanted: the tag is the empty text, though that of a new cell is Empty.
        list_.letItemTag(row, column, u"");
        // Wanted: black text, whatever DefaultItemForeColor says.
        list_.letItemForeColor(row, column, black);
        list_.letItemForeColorSelect(row, column, u"def");
        list_.letItemForeColorDis(row, column, grayText);
        list_.letItemBackColor(row, column, u"def");
        list_.letItemBackColorSelect(row, column, u"def");
        list_.letItemBackColorDis(row, column, buttonFace);
        list_.letItemIconAlignment(row, column, cItemLeft);
        list_.setItemIcon(row, column, nullptr);
        list_.setItemIconSelected(row, column, nullptr);
    }

  private:
    template <class T>
    T number() {
        return p_.value<T>([&] { return file_.get<T>(); });
    }
    bool boolean() {
        return p_.value<bool>([&] { return file_.getBoolean(); });
    }
    String text() {
        const Long length = number<Long>();
        return p_.value<String>([&] { return file_.getText(length); });
    }
    Variant color() { return HTML2VBColor(number<Long>()); }
    cItemAlign alignment() { return static_cast<cItemAlign>(number<Byte>()); }
    PictureRef picture() {
        if (number<Byte>() != 1)
            return nullptr;
        const Long length = number<Long>();
        const auto bytes = p_.value<std::vector<Byte>>([&] { return file_.getBytes(length); });
        return GetStringPicture(runtime_, bytes);
    }
    void discardBytes() {
        const Long length = number<Long>();
        p_.step([&] { file_.skip(length); });
    }
    FontSpec defaultFont() const {
        const FontRef font = list_.DefaultItemFont();
        if (!font)
            throw RuntimeError(objectVariableNotSet);
        return font->spec;
    }

    lmListView& list_;
    Runtime& runtime_;
    Procedure& p_;
    ContentReader& file_;
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

    ContentReader file(runtime());
    p.step([&] { file.open(sFilename); });
    ContentHeader header;
    // Wanted: a file of any version is read as if it were of this one.
    header.version = p.value<Integer>([&] { return file.get<Integer>(); });
    header.rowCount = p.value<Long>([&] { return file.get<Long>(); });
    header.columnCount = p.value<Long>([&] { return file.get<Long>(); });
    header.hasItemProperties = p.value<bool>([&] { return file.getBoolean(); });

    RowsClear();
    const bool possible = p.step([&] {
        if (!isPossible(header, file.remaining(), ColumnsCount()))
            throw RuntimeError(outOfMemory);
    });
    if (possible && header.rowCount > 0) {
        for (Long row = 1; row <= header.rowCount; ++row)
            RowsAdd(Long{-1}, u",", u"");
        const bool readsProperties = header.hasItemProperties && bReadItemPropertiesIfExists;
        const RecordForm form = readsProperties            ? RecordForm::readProperties
                                : header.hasItemProperties ? RecordForm::dropProperties
                                                           : RecordForm::textAlone;
        CellLoading loading(*this, runtime(), p, file);
        WholeRecordLoading fast(*this, runtime().locale(), file, form);
        for (Long column = 1; column <= header.columnCount; ++column) {
            for (Long row = 1; row <= header.rowCount; ++row) {
                if (fast.read(row, column))
                    continue;
                loading.readText(row, column);
                if (form == RecordForm::readProperties) {
                    loading.readProperties(row, column);
                } else {
                    if (form == RecordForm::dropProperties)
                        loading.discardProperties();
                    loading.giveDefaults(row, column);
                }
                fast.forget();
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
