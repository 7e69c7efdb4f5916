/// What the widget's members do. Made from the tables in src/automation by scripts/reference; do not edit.
// clang-format off
#include "qt/lumtex_list_view.h"

#include "qt/qt_values.h"
#include "qt/widget_events.h"
#include "qt/world_factory.h"
#include "worlds/qt/qt_text.h"
#include "worlds/qt/qt_world.h"

namespace lumtex::qt {

namespace {

/// Raises the control's events as signals.
class SignalSource final : public WidgetEvents {
  public:
    explicit SignalSource(LumtexListView& widget) : widget_(widget) {}

    void Click() override {
        if (muted)
            return;
        Q_EMIT widget_.Click();
    }
    void DblClick() override {
        if (muted)
            return;
        Q_EMIT widget_.DblClick();
    }
    void ItemCheck(Long Row, Long Column, bool NewValue, bool& Cancel) override {
        if (muted)
            return;
        Q_EMIT widget_.ItemCheck(Row, Column, NewValue, Cancel);
    }
    void ItemChecked(Long Row, Long Column, bool NewValue) override {
        if (muted)
            return;
        Q_EMIT widget_.ItemChecked(Row, Column, NewValue);
    }
    void MouseUp(Integer& Button, Integer& Shift, Single& X, Single& Y) override {
        if (muted)
            return;
        Q_EMIT widget_.MouseUp(Button, Shift, X, Y);
    }
    void MouseMove(Integer& Button, Integer& Shift, Single& X, Single& Y) override {
        if (muted)
            return;
        Q_EMIT widget_.MouseMove(Button, Shift, X, Y);
    }
    void MouseDown(Integer& Button, Integer& Shift, Single& X, Single& Y) override {
        if (muted)
            return;
        Q_EMIT widget_.MouseDown(Button, Shift, X, Y);
    }
    void ColumnClick(Long& Column) override {
        if (muted)
            return;
        Q_EMIT widget_.ColumnClick(Column);
    }
    void Scroll() override {
        if (muted)
            return;
        Q_EMIT widget_.Scroll();
    }
    void KeyDown(Integer& KeyCode, Integer& Shift) override {
        if (muted)
            return;
        Q_EMIT widget_.KeyDown(KeyCode, Shift);
    }
    void KeyPress(Integer& KeyAscii) override {
        if (muted)
            return;
        Q_EMIT widget_.KeyPress(KeyAscii);
    }
    void KeyUp(Integer& KeyCode, Integer& Shift) override {
        if (muted)
            return;
        Q_EMIT widget_.KeyUp(KeyCode, Shift);
    }
    void OLECompleteDrag(Long& Effect) override {
        if (muted)
            return;
        Q_EMIT widget_.OLECompleteDrag(Effect);
    }
    void OLEDragDrop(DragData& Data, Long& Effect, Integer& Button, Integer& Shift, Single& X, Single& Y) override {
        if (muted)
            return;
        Q_EMIT widget_.OLEDragDrop(toQObject(Data), Effect, Button, Shift, X, Y);
    }
    void OLEDragOver(DragData& Data, Long& Effect, Integer& Button, Integer& Shift, Single& X, Single& Y, Integer& State) override {
        if (muted)
            return;
        Q_EMIT widget_.OLEDragOver(toQObject(Data), Effect, Button, Shift, X, Y, State);
    }
    void OLEGiveFeedback(Long& Effect, bool& DefaultCursors) override {
        if (muted)
            return;
        Q_EMIT widget_.OLEGiveFeedback(Effect, DefaultCursors);
    }
    void OLESetData(DragData& Data, Integer& DataFormat) override {
        if (muted)
            return;
        Q_EMIT widget_.OLESetData(toQObject(Data), DataFormat);
    }
    void OLEStartDrag(DragData& Data, Long& AllowedEffects) override {
        if (muted)
            return;
        Q_EMIT widget_.OLEStartDrag(toQObject(Data), AllowedEffects);
    }
    void ErrorWrongIndex(Variant& Index) override {
        if (muted)
            return;
        QVariant ownIndex = toQVariant(Index);
        Q_EMIT widget_.ErrorWrongIndex(ownIndex);
        takeBack(ownIndex, Index);
    }
    void SortDone() override {
        if (muted)
            return;
        Q_EMIT widget_.SortDone();
    }
    void ListViewError(const String& eSub, Long eNumber, const String& eDescription) override {
        if (muted)
            return;
        Q_EMIT widget_.ListViewError(toQString(eSub), eNumber, toQString(eDescription));
    }
    void ItemClick(Long Row, Long Column) override {
        if (muted)
            return;
        Q_EMIT widget_.ItemClick(Row, Column);
    }
    void ItemDblClick(Long Row, Long Column) override {
        if (muted)
            return;
        Q_EMIT widget_.ItemDblClick(Row, Column);
    }
    void ItemDown(Long Row, Long Column) override {
        if (muted)
            return;
        Q_EMIT widget_.ItemDown(Row, Column);
    }
    void ItemUp(Long Row, Long Column) override {
        if (muted)
            return;
        Q_EMIT widget_.ItemUp(Row, Column);
    }
    void ItemChanged(Long Row, Long Column, const String& NewValue) override {
        if (muted)
            return;
        Q_EMIT widget_.ItemChanged(Row, Column, toQString(NewValue));
    }
    void ItemOver(Long Row, Long Column, bool bOverItem) override {
        if (muted)
            return;
        Q_EMIT widget_.ItemOver(Row, Column, bOverItem);
    }

  private:
    LumtexListView& widget_;
};

} // namespace

} // namespace lumtex::qt

LumtexListView::LumtexListView(QWidget* parent) : LumtexListView(parent, lumtex::qt::worldOfQt) {}

LumtexListView::LumtexListView(QWidget* parent, const lumtex::qt::WorldFactory& makeWorld) : ListWidget(parent) {
    start(makeWorld, [this] { return std::make_unique<lumtex::qt::SignalSource>(*this); });
}

LumtexListView::~LumtexListView() {
    finish();
}

void LumtexListView::ColumnsAdd(const QVariant& aText, const QPixmap& aIcon, const QPixmap& aIconHover, const QPixmap& aIconDown, cColumnHeaderAlign aAlignment, double aWidth, bool aAllowSorting, QColor aForeColor, const QString& aKey, const QString& aTag, QColor aForeColorHover, QColor aForeColorDown) {
    call(1, {QVariant::fromValue(aText), QVariant::fromValue(aIcon), QVariant::fromValue(aIconHover), QVariant::fromValue(aIconDown), static_cast<int>(aAlignment), QVariant::fromValue(aWidth), QVariant::fromValue(aAllowSorting), QVariant::fromValue(aForeColor), QVariant::fromValue(aKey), QVariant::fromValue(aTag), QVariant::fromValue(aForeColorHover), QVariant::fromValue(aForeColorDown)});
}
void LumtexListView::ColumnsClear() {
    call(2);
}
void LumtexListView::ColumnsRemove(const QVariant& Index) {
    call(3, {QVariant::fromValue(Index)});
}
int LumtexListView::ColumnsCount() const {
    return get(4).value<int>();
}
void LumtexListView::RowsAdd(const QVariant& aIndex, const QString& aSplit, const QString& aItemTexts) {
    call(5, {QVariant::fromValue(aIndex), QVariant::fromValue(aSplit), unlessNull(aItemTexts)});
}
void LumtexListView::RowsRemove(const QVariant& Index) {
    call(6, {QVariant::fromValue(Index)});
}
void LumtexListView::RowsSelectedRemove() {
    call(7);
}
void LumtexListView::RowsClear() {
    call(8);
}
int LumtexListView::RowsCount() const {
    return get(9).value<int>();
}
int LumtexListView::RowSelectedCount() {
    return call(10).value<int>();
}
bool LumtexListView::WrongIndex(const QVariant& Index) {
    return call(11, {QVariant::fromValue(Index)}).value<bool>();
}
bool LumtexListView::WrongColumnIndex(const QVariant& Index) {
    return call(12, {QVariant::fromValue(Index)}).value<bool>();
}
int LumtexListView::NewIndex() const {
    return get(13).value<int>();
}
int LumtexListView::ListIndex() const {
    return get(14).value<int>();
}
void LumtexListView::setListIndex(int value) {
    assign(14, {}, QVariant::fromValue(value));
}
int LumtexListView::RowIndex() const {
    return get(15).value<int>();
}
void LumtexListView::setRowIndex(int value) {
    assign(15, {}, QVariant::fromValue(value));
}
int LumtexListView::TopIndex() const {
    return get(16).value<int>();
}
void LumtexListView::setTopIndex(int value) {
    assign(16, {}, QVariant::fromValue(value));
}
void LumtexListView::CheckScroll() {
    call(17);
}
void LumtexListView::Redraw() {
    call(18);
}
void LumtexListView::ClearListView() {
    call(19);
}
void LumtexListView::StopEdit() {
    call(20);
}
int LumtexListView::hwnd() const {
    return get(21).value<int>();
}
int LumtexListView::hwndEdit() const {
    return get(22).value<int>();
}
void LumtexListView::SetEdit(const QVariant& Row, const QVariant& Column) {
    call(23, {QVariant::fromValue(Row), QVariant::fromValue(Column)});
}
int LumtexListView::ColumnIndex() const {
    return get(24).value<int>();
}
void LumtexListView::Sort(int Column, cSortMode SortMode, cSortType SortType) {
    call(25, {QVariant::fromValue(Column), static_cast<int>(SortMode), static_cast<int>(SortType)});
}
int LumtexListView::SortColumnIndex() const {
    return get(26).value<int>();
}
QVariantMap LumtexListView::FindItem(const QString& sFind, cFindBegin cBegin, cFindCompare cCompare, const QString& sColumns, const QString& sRows) {
    return call(27, {QVariant::fromValue(sFind), static_cast<int>(cBegin), static_cast<int>(cCompare), QVariant::fromValue(sColumns), QVariant::fromValue(sRows)}).value<QVariantMap>();
}
void LumtexListView::AutoColumnSize(const QVariantList& lColumns) {
    call(28, lColumns);
}
bool LumtexListView::ContentSave(const QString& sFilename, bool bSaveItemProperties) {
    return call(29, {QVariant::fromValue(sFilename), QVariant::fromValue(bSaveItemProperties)}).value<bool>();
}
bool LumtexListView::ContentInput(const QString& sFilename, bool bReadItemPropertiesIfExists) {
    return call(30, {QVariant::fromValue(sFilename), QVariant::fromValue(bReadItemPropertiesIfExists)}).value<bool>();
}
void LumtexListView::About() {
    call(-552);
}
QFont LumtexListView::DefaultItemFont() const {
    return get(100).value<QFont>();
}
void LumtexListView::setDefaultItemFont(const QFont& value) {
    assign(100, {}, QVariant::fromValue(value));
}
void LumtexListView::resetDefaultItemFont() {
    reset(u"DefaultItemFont");
}
QColor LumtexListView::DefaultItemForeColor() const {
    return get(101).value<QColor>();
}
void LumtexListView::setDefaultItemForeColor(QColor value) {
    assign(101, {}, QVariant::fromValue(value));
}
void LumtexListView::resetDefaultItemForeColor() {
    reset(u"DefaultItemForeColor");
}
QColor LumtexListView::BackColor() const {
    return get(102).value<QColor>();
}
void LumtexListView::setBackColor(QColor value) {
    assign(102, {}, QVariant::fromValue(value));
}
void LumtexListView::resetBackColor() {
    reset(u"BackColor");
}
QColor LumtexListView::BackColorDisabled() const {
    return get(103).value<QColor>();
}
void LumtexListView::setBackColorDisabled(QColor value) {
    assign(103, {}, QVariant::fromValue(value));
}
void LumtexListView::resetBackColorDisabled() {
    reset(u"BackColorDisabled");
}
bool LumtexListView::Enabled() const {
    return get(104).value<bool>();
}
void LumtexListView::setEnabled(bool value) {
    assign(104, {}, QVariant::fromValue(value));
}
void LumtexListView::resetEnabled() {
    reset(u"Enabled");
}
bool LumtexListView::ClickOnIndexChange() const {
    return get(105).value<bool>();
}
void LumtexListView::setClickOnIndexChange(bool value) {
    assign(105, {}, QVariant::fromValue(value));
}
void LumtexListView::resetClickOnIndexChange() {
    reset(u"ClickOnIndexChange");
}
LumtexListView::cColorStyle LumtexListView::ColorStyle() const {
    return static_cast<cColorStyle>(get(106).toInt());
}
void LumtexListView::setColorStyle(cColorStyle value) {
    assign(106, {}, static_cast<int>(value));
}
void LumtexListView::resetColorStyle() {
    reset(u"ColorStyle");
}
QColor LumtexListView::BorderColor() const {
    return get(107).value<QColor>();
}
void LumtexListView::setBorderColor(QColor value) {
    assign(107, {}, QVariant::fromValue(value));
}
void LumtexListView::resetBorderColor() {
    reset(u"BorderColor");
}
LumtexListView::cListViewStyle LumtexListView::Style() const {
    return static_cast<cListViewStyle>(get(108).toInt());
}
void LumtexListView::setStyle(cListViewStyle value) {
    assign(108, {}, static_cast<int>(value));
}
void LumtexListView::resetStyle() {
    reset(u"Style");
}
bool LumtexListView::FullRowSelect() const {
    return get(109).value<bool>();
}
void LumtexListView::setFullRowSelect(bool value) {
    assign(109, {}, QVariant::fromValue(value));
}
void LumtexListView::resetFullRowSelect() {
    reset(u"FullRowSelect");
}
bool LumtexListView::AllowEdit() const {
    return get(110).value<bool>();
}
void LumtexListView::setAllowEdit(bool value) {
    assign(110, {}, QVariant::fromValue(value));
}
void LumtexListView::resetAllowEdit() {
    reset(u"AllowEdit");
}
QColor LumtexListView::ValueColor() const {
    return get(111).value<QColor>();
}
void LumtexListView::setValueColor(QColor value) {
    assign(111, {}, QVariant::fromValue(value));
}
void LumtexListView::resetValueColor() {
    reset(u"ValueColor");
}
bool LumtexListView::BorderVisible() const {
    return get(112).value<bool>();
}
void LumtexListView::setBorderVisible(bool value) {
    assign(112, {}, QVariant::fromValue(value));
}
void LumtexListView::resetBorderVisible() {
    reset(u"BorderVisible");
}
double LumtexListView::IndentTop() const {
    return get(113).value<double>();
}
void LumtexListView::setIndentTop(double value) {
    assign(113, {}, QVariant::fromValue(value));
}
void LumtexListView::resetIndentTop() {
    reset(u"IndentTop");
}
double LumtexListView::IndentLeft() const {
    return get(114).value<double>();
}
void LumtexListView::setIndentLeft(double value) {
    assign(114, {}, QVariant::fromValue(value));
}
void LumtexListView::resetIndentLeft() {
    reset(u"IndentLeft");
}
double LumtexListView::IndentRight() const {
    return get(115).value<double>();
}
void LumtexListView::setIndentRight(double value) {
    assign(115, {}, QVariant::fromValue(value));
}
void LumtexListView::resetIndentRight() {
    reset(u"IndentRight");
}
double LumtexListView::IndentBottom() const {
    return get(116).value<double>();
}
void LumtexListView::setIndentBottom(double value) {
    assign(116, {}, QVariant::fromValue(value));
}
void LumtexListView::resetIndentBottom() {
    reset(u"IndentBottom");
}
double LumtexListView::DistPicText() const {
    return get(117).value<double>();
}
void LumtexListView::setDistPicText(double value) {
    assign(117, {}, QVariant::fromValue(value));
}
void LumtexListView::resetDistPicText() {
    reset(u"DistPicText");
}
bool LumtexListView::AutoCheckScroll() const {
    return get(118).value<bool>();
}
void LumtexListView::setAutoCheckScroll(bool value) {
    assign(118, {}, QVariant::fromValue(value));
}
void LumtexListView::resetAutoCheckScroll() {
    reset(u"AutoCheckScroll");
}
bool LumtexListView::AutoRedraw() const {
    return get(119).value<bool>();
}
void LumtexListView::setAutoRedraw(bool value) {
    assign(119, {}, QVariant::fromValue(value));
}
void LumtexListView::resetAutoRedraw() {
    reset(u"AutoRedraw");
}
bool LumtexListView::IconSelect() const {
    return get(120).value<bool>();
}
void LumtexListView::setIconSelect(bool value) {
    assign(120, {}, QVariant::fromValue(value));
}
void LumtexListView::resetIconSelect() {
    reset(u"IconSelect");
}
double LumtexListView::IconW() const {
    return get(121).value<double>();
}
void LumtexListView::setIconW(double value) {
    assign(121, {}, QVariant::fromValue(value));
}
void LumtexListView::resetIconW() {
    reset(u"IconW");
}
double LumtexListView::IconH() const {
    return get(122).value<double>();
}
void LumtexListView::setIconH(double value) {
    assign(122, {}, QVariant::fromValue(value));
}
void LumtexListView::resetIconH() {
    reset(u"IconH");
}
double LumtexListView::ColumnIconW() const {
    return get(123).value<double>();
}
void LumtexListView::setColumnIconW(double value) {
    assign(123, {}, QVariant::fromValue(value));
}
void LumtexListView::resetColumnIconW() {
    reset(u"ColumnIconW");
}
double LumtexListView::ColumnIconH() const {
    return get(124).value<double>();
}
void LumtexListView::setColumnIconH(double value) {
    assign(124, {}, QVariant::fromValue(value));
}
void LumtexListView::resetColumnIconH() {
    reset(u"ColumnIconH");
}
LumtexListView::cScrollColorStyle LumtexListView::ScrollColorStyle() const {
    return static_cast<cScrollColorStyle>(get(125).toInt());
}
void LumtexListView::setScrollColorStyle(cScrollColorStyle value) {
    assign(125, {}, static_cast<int>(value));
}
void LumtexListView::resetScrollColorStyle() {
    reset(u"ScrollColorStyle");
}
bool LumtexListView::GridLines() const {
    return get(126).value<bool>();
}
void LumtexListView::setGridLines(bool value) {
    assign(126, {}, QVariant::fromValue(value));
}
void LumtexListView::resetGridLines() {
    reset(u"GridLines");
}
QColor LumtexListView::GridLineColor() const {
    return get(127).value<QColor>();
}
void LumtexListView::setGridLineColor(QColor value) {
    assign(127, {}, QVariant::fromValue(value));
}
void LumtexListView::resetGridLineColor() {
    reset(u"GridLineColor");
}
bool LumtexListView::MultiSelect() const {
    return get(128).value<bool>();
}
void LumtexListView::setMultiSelect(bool value) {
    assign(128, {}, QVariant::fromValue(value));
}
void LumtexListView::resetMultiSelect() {
    reset(u"MultiSelect");
}
bool LumtexListView::HideColumnHeaders() const {
    return get(129).value<bool>();
}
void LumtexListView::setHideColumnHeaders(bool value) {
    assign(129, {}, QVariant::fromValue(value));
}
void LumtexListView::resetHideColumnHeaders() {
    reset(u"HideColumnHeaders");
}
int LumtexListView::ColumnTextY() const {
    return get(130).value<int>();
}
void LumtexListView::setColumnTextY(int value) {
    assign(130, {}, QVariant::fromValue(value));
}
void LumtexListView::resetColumnTextY() {
    reset(u"ColumnTextY");
}
bool LumtexListView::MoveColumnTextAtDown() const {
    return get(131).value<bool>();
}
void LumtexListView::setMoveColumnTextAtDown(bool value) {
    assign(131, {}, QVariant::fromValue(value));
}
void LumtexListView::resetMoveColumnTextAtDown() {
    reset(u"MoveColumnTextAtDown");
}
QFont LumtexListView::DefaultColumnFont() const {
    return get(132).value<QFont>();
}
void LumtexListView::setDefaultColumnFont(const QFont& value) {
    assign(132, {}, QVariant::fromValue(value));
}
void LumtexListView::resetDefaultColumnFont() {
    reset(u"DefaultColumnFont");
}
QColor LumtexListView::DefaultColumnForeColor() const {
    return get(133).value<QColor>();
}
void LumtexListView::setDefaultColumnForeColor(QColor value) {
    assign(133, {}, QVariant::fromValue(value));
}
void LumtexListView::resetDefaultColumnForeColor() {
    reset(u"DefaultColumnForeColor");
}
double LumtexListView::EmptyColumnFieldWidth() const {
    return get(134).value<double>();
}
void LumtexListView::setEmptyColumnFieldWidth(double value) {
    assign(134, {}, QVariant::fromValue(value));
}
void LumtexListView::resetEmptyColumnFieldWidth() {
    reset(u"EmptyColumnFieldWidth");
}
QColor LumtexListView::ColumnBackColor() const {
    return get(135).value<QColor>();
}
void LumtexListView::setColumnBackColor(QColor value) {
    assign(135, {}, QVariant::fromValue(value));
}
void LumtexListView::resetColumnBackColor() {
    reset(u"ColumnBackColor");
}
QColor LumtexListView::ColumnHoverColor() const {
    return get(136).value<QColor>();
}
void LumtexListView::setColumnHoverColor(QColor value) {
    assign(136, {}, QVariant::fromValue(value));
}
void LumtexListView::resetColumnHoverColor() {
    reset(u"ColumnHoverColor");
}
QColor LumtexListView::ColumnDownColor() const {
    return get(137).value<QColor>();
}
void LumtexListView::setColumnDownColor(QColor value) {
    assign(137, {}, QVariant::fromValue(value));
}
void LumtexListView::resetColumnDownColor() {
    reset(u"ColumnDownColor");
}
bool LumtexListView::RowsDynamic() const {
    return get(138).value<bool>();
}
void LumtexListView::setRowsDynamic(bool value) {
    assign(138, {}, QVariant::fromValue(value));
}
void LumtexListView::resetRowsDynamic() {
    reset(u"RowsDynamic");
}
double LumtexListView::RowHeight() const {
    return get(139).value<double>();
}
void LumtexListView::setRowHeight(double value) {
    assign(139, {}, QVariant::fromValue(value));
}
void LumtexListView::resetRowHeight() {
    reset(u"RowHeight");
}
QColor LumtexListView::ScrollBackColor() const {
    return get(140).value<QColor>();
}
void LumtexListView::setScrollBackColor(QColor value) {
    assign(140, {}, QVariant::fromValue(value));
}
void LumtexListView::resetScrollBackColor() {
    reset(u"ScrollBackColor");
}
QColor LumtexListView::ScrollArrows() const {
    return get(141).value<QColor>();
}
void LumtexListView::setScrollArrows(QColor value) {
    assign(141, {}, QVariant::fromValue(value));
}
void LumtexListView::resetScrollArrows() {
    reset(u"ScrollArrows");
}
QColor LumtexListView::ScrollButtons() const {
    return get(142).value<QColor>();
}
void LumtexListView::setScrollButtons(QColor value) {
    assign(142, {}, QVariant::fromValue(value));
}
void LumtexListView::resetScrollButtons() {
    reset(u"ScrollButtons");
}
QColor LumtexListView::ScrollBar() const {
    return get(143).value<QColor>();
}
void LumtexListView::setScrollBar(QColor value) {
    assign(143, {}, QVariant::fromValue(value));
}
void LumtexListView::resetScrollBar() {
    reset(u"ScrollBar");
}
QColor LumtexListView::ScrollArrowsDown() const {
    return get(144).value<QColor>();
}
void LumtexListView::setScrollArrowsDown(QColor value) {
    assign(144, {}, QVariant::fromValue(value));
}
void LumtexListView::resetScrollArrowsDown() {
    reset(u"ScrollArrowsDown");
}
QColor LumtexListView::ScrollButtonsDown() const {
    return get(145).value<QColor>();
}
void LumtexListView::setScrollButtonsDown(QColor value) {
    assign(145, {}, QVariant::fromValue(value));
}
void LumtexListView::resetScrollButtonsDown() {
    reset(u"ScrollButtonsDown");
}
QColor LumtexListView::ScrollBarDown() const {
    return get(146).value<QColor>();
}
void LumtexListView::setScrollBarDown(QColor value) {
    assign(146, {}, QVariant::fromValue(value));
}
void LumtexListView::resetScrollBarDown() {
    reset(u"ScrollBarDown");
}
QColor LumtexListView::ScrollArrowsHover() const {
    return get(147).value<QColor>();
}
void LumtexListView::setScrollArrowsHover(QColor value) {
    assign(147, {}, QVariant::fromValue(value));
}
void LumtexListView::resetScrollArrowsHover() {
    reset(u"ScrollArrowsHover");
}
QColor LumtexListView::ScrollButtonsHover() const {
    return get(148).value<QColor>();
}
void LumtexListView::setScrollButtonsHover(QColor value) {
    assign(148, {}, QVariant::fromValue(value));
}
void LumtexListView::resetScrollButtonsHover() {
    reset(u"ScrollButtonsHover");
}
QColor LumtexListView::ScrollBarHover() const {
    return get(149).value<QColor>();
}
void LumtexListView::setScrollBarHover(QColor value) {
    assign(149, {}, QVariant::fromValue(value));
}
void LumtexListView::resetScrollBarHover() {
    reset(u"ScrollBarHover");
}
QColor LumtexListView::EmptyColumnFieldColor() const {
    return get(150).value<QColor>();
}
void LumtexListView::setEmptyColumnFieldColor(QColor value) {
    assign(150, {}, QVariant::fromValue(value));
}
void LumtexListView::resetEmptyColumnFieldColor() {
    reset(u"EmptyColumnFieldColor");
}
LumtexListView::cWheelFunction LumtexListView::WheelFunction() const {
    return static_cast<cWheelFunction>(get(151).toInt());
}
void LumtexListView::setWheelFunction(cWheelFunction value) {
    assign(151, {}, static_cast<int>(value));
}
void LumtexListView::resetWheelFunction() {
    reset(u"WheelFunction");
}
int LumtexListView::WheelScrollLines() const {
    return get(152).value<int>();
}
void LumtexListView::setWheelScrollLines(int value) {
    assign(152, {}, QVariant::fromValue(value));
}
void LumtexListView::resetWheelScrollLines() {
    reset(u"WheelScrollLines");
}
bool LumtexListView::DefaultIconSelectedIsIcon() const {
    return get(153).value<bool>();
}
void LumtexListView::setDefaultIconSelectedIsIcon(bool value) {
    assign(153, {}, QVariant::fromValue(value));
}
void LumtexListView::resetDefaultIconSelectedIsIcon() {
    reset(u"DefaultIconSelectedIsIcon");
}
int LumtexListView::ScrollButtonJumpLines() const {
    return get(154).value<int>();
}
void LumtexListView::setScrollButtonJumpLines(int value) {
    assign(154, {}, QVariant::fromValue(value));
}
void LumtexListView::resetScrollButtonJumpLines() {
    reset(u"ScrollButtonJumpLines");
}
LumtexListView::cTextPosition LumtexListView::TextPositionDefault() const {
    return static_cast<cTextPosition>(get(155).toInt());
}
void LumtexListView::setTextPositionDefault(cTextPosition value) {
    assign(155, {}, static_cast<int>(value));
}
void LumtexListView::resetTextPositionDefault() {
    reset(u"TextPositionDefault");
}
bool LumtexListView::DrawItemIcons() const {
    return get(156).value<bool>();
}
void LumtexListView::setDrawItemIcons(bool value) {
    assign(156, {}, QVariant::fromValue(value));
}
void LumtexListView::resetDrawItemIcons() {
    reset(u"DrawItemIcons");
}
bool LumtexListView::DrawColumnIcons() const {
    return get(157).value<bool>();
}
void LumtexListView::setDrawColumnIcons(bool value) {
    assign(157, {}, QVariant::fromValue(value));
}
void LumtexListView::resetDrawColumnIcons() {
    reset(u"DrawColumnIcons");
}
QPixmap LumtexListView::BackgroundPicture() const {
    return get(158).value<QPixmap>();
}
void LumtexListView::setBackgroundPicture(const QPixmap& value) {
    assign(158, {}, QVariant::fromValue(value));
}
void LumtexListView::resetBackgroundPicture() {
    reset(u"BackgroundPicture");
}
QPixmap LumtexListView::Skin() const {
    return get(159).value<QPixmap>();
}
void LumtexListView::setSkin(const QPixmap& value) {
    assign(159, {}, QVariant::fromValue(value));
}
void LumtexListView::resetSkin() {
    reset(u"Skin");
}
bool LumtexListView::FixColumns() const {
    return get(160).value<bool>();
}
void LumtexListView::setFixColumns(bool value) {
    assign(160, {}, QVariant::fromValue(value));
}
void LumtexListView::resetFixColumns() {
    reset(u"FixColumns");
}
bool LumtexListView::CheckMouseOver() const {
    return get(161).value<bool>();
}
void LumtexListView::setCheckMouseOver(bool value) {
    assign(161, {}, QVariant::fromValue(value));
}
void LumtexListView::resetCheckMouseOver() {
    reset(u"CheckMouseOver");
}
int LumtexListView::OLEDragMode() const {
    return get(162).value<int>();
}
void LumtexListView::setOLEDragMode(int value) {
    assign(162, {}, QVariant::fromValue(value));
}
void LumtexListView::resetOLEDragMode() {
    reset(u"OLEDragMode");
}
int LumtexListView::OLEDropMode() const {
    return get(163).value<int>();
}
void LumtexListView::setOLEDropMode(int value) {
    assign(163, {}, QVariant::fromValue(value));
}
void LumtexListView::resetOLEDropMode() {
    reset(u"OLEDropMode");
}
bool LumtexListView::AutoRowColor() const {
    return get(164).value<bool>();
}
void LumtexListView::setAutoRowColor(bool value) {
    assign(164, {}, QVariant::fromValue(value));
}
void LumtexListView::resetAutoRowColor() {
    reset(u"AutoRowColor");
}
QColor LumtexListView::RowColorFirst() const {
    return get(165).value<QColor>();
}
void LumtexListView::setRowColorFirst(QColor value) {
    assign(165, {}, QVariant::fromValue(value));
}
void LumtexListView::resetRowColorFirst() {
    reset(u"RowColorFirst");
}
QColor LumtexListView::RowColorSecond() const {
    return get(166).value<QColor>();
}
void LumtexListView::setRowColorSecond(QColor value) {
    assign(166, {}, QVariant::fromValue(value));
}
void LumtexListView::resetRowColorSecond() {
    reset(u"RowColorSecond");
}
bool LumtexListView::HideSelection() const {
    return get(167).value<bool>();
}
void LumtexListView::setHideSelection(bool value) {
    assign(167, {}, QVariant::fromValue(value));
}
void LumtexListView::resetHideSelection() {
    reset(u"HideSelection");
}
QObject* LumtexListView::Recordset() const {
    return get(168).value<QObject*>();
}
void LumtexListView::setRecordset(QObject* value) {
    assign(168, {}, QVariant::fromValue(value));
}
QString LumtexListView::ColumnText(const QVariant& Index) const {
    return get(200, {QVariant::fromValue(Index)}).value<QString>();
}
void LumtexListView::setColumnText(const QVariant& Index, const QString& value) {
    assign(200, {QVariant::fromValue(Index)}, QVariant::fromValue(value));
}
QPixmap LumtexListView::ColumnIcon(const QVariant& Index) const {
    return get(201, {QVariant::fromValue(Index)}).value<QPixmap>();
}
void LumtexListView::setColumnIcon(const QVariant& Index, const QPixmap& value) {
    assign(201, {QVariant::fromValue(Index)}, QVariant::fromValue(value));
}
QPixmap LumtexListView::ColumnIconHover(const QVariant& Index) const {
    return get(202, {QVariant::fromValue(Index)}).value<QPixmap>();
}
void LumtexListView::setColumnIconHover(const QVariant& Index, const QPixmap& value) {
    assign(202, {QVariant::fromValue(Index)}, QVariant::fromValue(value));
}
QPixmap LumtexListView::ColumnIconDown(const QVariant& Index) const {
    return get(203, {QVariant::fromValue(Index)}).value<QPixmap>();
}
void LumtexListView::setColumnIconDown(const QVariant& Index, const QPixmap& value) {
    assign(203, {QVariant::fromValue(Index)}, QVariant::fromValue(value));
}
double LumtexListView::ColumnLeft(const QVariant& Index) const {
    return get(204, {QVariant::fromValue(Index)}).value<double>();
}
double LumtexListView::ColumnWidth(const QVariant& Index) const {
    return get(205, {QVariant::fromValue(Index)}).value<double>();
}
void LumtexListView::setColumnWidth(const QVariant& Index, double value) {
    assign(205, {QVariant::fromValue(Index)}, QVariant::fromValue(value));
}
QString LumtexListView::ColumnTag(const QVariant& Index) const {
    return get(206, {QVariant::fromValue(Index)}).value<QString>();
}
void LumtexListView::setColumnTag(const QVariant& Index, const QString& value) {
    assign(206, {QVariant::fromValue(Index)}, QVariant::fromValue(value));
}
QString LumtexListView::ColumnKey(const QVariant& Index) const {
    return get(207, {QVariant::fromValue(Index)}).value<QString>();
}
void LumtexListView::setColumnKey(const QVariant& Index, const QString& value) {
    assign(207, {QVariant::fromValue(Index)}, QVariant::fromValue(value));
}
LumtexListView::cColumnHeaderAlign LumtexListView::ColumnAlignment(const QVariant& Index) const {
    return static_cast<cColumnHeaderAlign>(get(208, {QVariant::fromValue(Index)}).toInt());
}
void LumtexListView::setColumnAlignment(const QVariant& Index, cColumnHeaderAlign value) {
    assign(208, {QVariant::fromValue(Index)}, static_cast<int>(value));
}
LumtexListView::cColumnHeaderAlign LumtexListView::ColumnIconAlignment(const QVariant& Index) const {
    return static_cast<cColumnHeaderAlign>(get(209, {QVariant::fromValue(Index)}).toInt());
}
void LumtexListView::setColumnIconAlignment(const QVariant& Index, cColumnHeaderAlign value) {
    assign(209, {QVariant::fromValue(Index)}, static_cast<int>(value));
}
QColor LumtexListView::ColumnForeColor(const QVariant& Index) const {
    return get(210, {QVariant::fromValue(Index)}).value<QColor>();
}
void LumtexListView::setColumnForeColor(const QVariant& Index, QColor value) {
    assign(210, {QVariant::fromValue(Index)}, QVariant::fromValue(value));
}
QColor LumtexListView::ColumnForeColorHover(const QVariant& Index) const {
    return get(211, {QVariant::fromValue(Index)}).value<QColor>();
}
void LumtexListView::setColumnForeColorHover(const QVariant& Index, QColor value) {
    assign(211, {QVariant::fromValue(Index)}, QVariant::fromValue(value));
}
QColor LumtexListView::ColumnForeColorDown(const QVariant& Index) const {
    return get(212, {QVariant::fromValue(Index)}).value<QColor>();
}
void LumtexListView::setColumnForeColorDown(const QVariant& Index, QColor value) {
    assign(212, {QVariant::fromValue(Index)}, QVariant::fromValue(value));
}
bool LumtexListView::ColumnAllowSorting(const QVariant& Index) const {
    return get(213, {QVariant::fromValue(Index)}).value<bool>();
}
void LumtexListView::setColumnAllowSorting(const QVariant& Index, bool value) {
    assign(213, {QVariant::fromValue(Index)}, QVariant::fromValue(value));
}
bool LumtexListView::ColumnCheckBoxes(const QVariant& Index) const {
    return get(214, {QVariant::fromValue(Index)}).value<bool>();
}
void LumtexListView::setColumnCheckBoxes(const QVariant& Index, bool value) {
    assign(214, {QVariant::fromValue(Index)}, QVariant::fromValue(value));
}
bool LumtexListView::ColumnAdjustItemIcons(const QVariant& Index) const {
    return get(215, {QVariant::fromValue(Index)}).value<bool>();
}
void LumtexListView::setColumnAdjustItemIcons(const QVariant& Index, bool value) {
    assign(215, {QVariant::fromValue(Index)}, QVariant::fromValue(value));
}
bool LumtexListView::ColumnItemIconH(const QVariant& Index) const {
    return get(216, {QVariant::fromValue(Index)}).value<bool>();
}
void LumtexListView::setColumnItemIconH(const QVariant& Index, bool value) {
    assign(216, {QVariant::fromValue(Index)}, QVariant::fromValue(value));
}
bool LumtexListView::ColumnItemIconW(const QVariant& Index) const {
    return get(217, {QVariant::fromValue(Index)}).value<bool>();
}
void LumtexListView::setColumnItemIconW(const QVariant& Index, bool value) {
    assign(217, {QVariant::fromValue(Index)}, QVariant::fromValue(value));
}
bool LumtexListView::RowEnabled(const QVariant& Index) const {
    return get(300, {QVariant::fromValue(Index)}).value<bool>();
}
void LumtexListView::setRowEnabled(const QVariant& Index, bool value) {
    assign(300, {QVariant::fromValue(Index)}, QVariant::fromValue(value));
}
bool LumtexListView::RowSelected(const QVariant& Index) const {
    return get(301, {QVariant::fromValue(Index)}).value<bool>();
}
void LumtexListView::setRowSelected(const QVariant& Index, bool value) {
    assign(301, {QVariant::fromValue(Index)}, QVariant::fromValue(value));
}
bool LumtexListView::RowChecked(const QVariant& Index) const {
    return get(302, {QVariant::fromValue(Index)}).value<bool>();
}
void LumtexListView::setRowChecked(const QVariant& Index, bool value) {
    assign(302, {QVariant::fromValue(Index)}, QVariant::fromValue(value));
}
LumtexListView::cTextPosition LumtexListView::TextPosition(const QVariant& Index) const {
    return static_cast<cTextPosition>(get(303, {QVariant::fromValue(Index)}).toInt());
}
void LumtexListView::setTextPosition(const QVariant& Index, cTextPosition value) {
    assign(303, {QVariant::fromValue(Index)}, static_cast<int>(value));
}
bool LumtexListView::ItemFontBold(const QVariant& Row, const QVariant& Column) const {
    return get(400, {QVariant::fromValue(Row), QVariant::fromValue(Column)}).value<bool>();
}
void LumtexListView::setItemFontBold(const QVariant& Row, const QVariant& Column, bool value) {
    assign(400, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, QVariant::fromValue(value));
}
bool LumtexListView::ItemFontItalic(const QVariant& Row, const QVariant& Column) const {
    return get(401, {QVariant::fromValue(Row), QVariant::fromValue(Column)}).value<bool>();
}
void LumtexListView::setItemFontItalic(const QVariant& Row, const QVariant& Column, bool value) {
    assign(401, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, QVariant::fromValue(value));
}
bool LumtexListView::ItemFontUnderline(const QVariant& Row, const QVariant& Column) const {
    return get(402, {QVariant::fromValue(Row), QVariant::fromValue(Column)}).value<bool>();
}
void LumtexListView::setItemFontUnderline(const QVariant& Row, const QVariant& Column, bool value) {
    assign(402, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, QVariant::fromValue(value));
}
bool LumtexListView::ItemFontStrikethrough(const QVariant& Row, const QVariant& Column) const {
    return get(403, {QVariant::fromValue(Row), QVariant::fromValue(Column)}).value<bool>();
}
void LumtexListView::setItemFontStrikethrough(const QVariant& Row, const QVariant& Column, bool value) {
    assign(403, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, QVariant::fromValue(value));
}
double LumtexListView::ItemFontSize(const QVariant& Row, const QVariant& Column) const {
    return get(404, {QVariant::fromValue(Row), QVariant::fromValue(Column)}).value<double>();
}
void LumtexListView::setItemFontSize(const QVariant& Row, const QVariant& Column, double value) {
    assign(404, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, QVariant::fromValue(value));
}
QString LumtexListView::ItemFontName(const QVariant& Row, const QVariant& Column) const {
    return get(405, {QVariant::fromValue(Row), QVariant::fromValue(Column)}).value<QString>();
}
void LumtexListView::setItemFontName(const QVariant& Row, const QVariant& Column, const QString& value) {
    assign(405, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, QVariant::fromValue(value));
}
QColor LumtexListView::ItemForeColor(const QVariant& Row, const QVariant& Column) const {
    return get(406, {QVariant::fromValue(Row), QVariant::fromValue(Column)}).value<QColor>();
}
void LumtexListView::setItemForeColor(const QVariant& Row, const QVariant& Column, QColor value) {
    assign(406, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, QVariant::fromValue(value));
}
QVariant LumtexListView::ItemBackColor(const QVariant& Row, const QVariant& Column) const {
    return get(407, {QVariant::fromValue(Row), QVariant::fromValue(Column)});
}
void LumtexListView::setItemBackColor(const QVariant& Row, const QVariant& Column, const QVariant& value) {
    assign(407, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, value);
}
QVariant LumtexListView::ItemForeColorSelect(const QVariant& Row, const QVariant& Column) const {
    return get(408, {QVariant::fromValue(Row), QVariant::fromValue(Column)});
}
void LumtexListView::setItemForeColorSelect(const QVariant& Row, const QVariant& Column, const QVariant& value) {
    assign(408, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, value);
}
QVariant LumtexListView::ItemBackColorSelect(const QVariant& Row, const QVariant& Column) const {
    return get(409, {QVariant::fromValue(Row), QVariant::fromValue(Column)});
}
void LumtexListView::setItemBackColorSelect(const QVariant& Row, const QVariant& Column, const QVariant& value) {
    assign(409, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, value);
}
QVariant LumtexListView::ItemForeColorDis(const QVariant& Row, const QVariant& Column) const {
    return get(410, {QVariant::fromValue(Row), QVariant::fromValue(Column)});
}
void LumtexListView::setItemForeColorDis(const QVariant& Row, const QVariant& Column, const QVariant& value) {
    assign(410, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, value);
}
QVariant LumtexListView::ItemBackColorDis(const QVariant& Row, const QVariant& Column) const {
    return get(411, {QVariant::fromValue(Row), QVariant::fromValue(Column)});
}
void LumtexListView::setItemBackColorDis(const QVariant& Row, const QVariant& Column, const QVariant& value) {
    assign(411, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, value);
}
QVariant LumtexListView::ItemTag(const QVariant& Row, const QVariant& Column) const {
    return get(412, {QVariant::fromValue(Row), QVariant::fromValue(Column)});
}
void LumtexListView::setItemTag(const QVariant& Row, const QVariant& Column, const QVariant& value) {
    assign(412, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, value);
}
bool LumtexListView::ItemEnabled(const QVariant& Row, const QVariant& Column) const {
    return get(413, {QVariant::fromValue(Row), QVariant::fromValue(Column)}).value<bool>();
}
void LumtexListView::setItemEnabled(const QVariant& Row, const QVariant& Column, bool value) {
    assign(413, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, QVariant::fromValue(value));
}
QPixmap LumtexListView::ItemIcon(const QVariant& Row, const QVariant& Column) const {
    return get(414, {QVariant::fromValue(Row), QVariant::fromValue(Column)}).value<QPixmap>();
}
void LumtexListView::setItemIcon(const QVariant& Row, const QVariant& Column, const QPixmap& value) {
    assign(414, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, QVariant::fromValue(value));
}
QPixmap LumtexListView::ItemIconSelected(const QVariant& Row, const QVariant& Column) const {
    return get(415, {QVariant::fromValue(Row), QVariant::fromValue(Column)}).value<QPixmap>();
}
void LumtexListView::setItemIconSelected(const QVariant& Row, const QVariant& Column, const QPixmap& value) {
    assign(415, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, QVariant::fromValue(value));
}
bool LumtexListView::ItemAllowEdit(const QVariant& Row, const QVariant& Column) const {
    return get(416, {QVariant::fromValue(Row), QVariant::fromValue(Column)}).value<bool>();
}
void LumtexListView::setItemAllowEdit(const QVariant& Row, const QVariant& Column, bool value) {
    assign(416, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, QVariant::fromValue(value));
}
bool LumtexListView::ItemChecked(const QVariant& Row, const QVariant& Column) const {
    return get(417, {QVariant::fromValue(Row), QVariant::fromValue(Column)}).value<bool>();
}
void LumtexListView::setItemChecked(const QVariant& Row, const QVariant& Column, bool value) {
    assign(417, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, QVariant::fromValue(value));
}
LumtexListView::cItemAlign LumtexListView::ItemAlignment(const QVariant& Row, const QVariant& Column) const {
    return static_cast<cItemAlign>(get(418, {QVariant::fromValue(Row), QVariant::fromValue(Column)}).toInt());
}
void LumtexListView::setItemAlignment(const QVariant& Row, const QVariant& Column, cItemAlign value) {
    assign(418, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, static_cast<int>(value));
}
LumtexListView::cItemAlign LumtexListView::ItemIconAlignment(const QVariant& Row, const QVariant& Column) const {
    return static_cast<cItemAlign>(get(419, {QVariant::fromValue(Row), QVariant::fromValue(Column)}).toInt());
}
void LumtexListView::setItemIconAlignment(const QVariant& Row, const QVariant& Column, cItemAlign value) {
    assign(419, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, static_cast<int>(value));
}
QString LumtexListView::ItemText(const QVariant& Row, const QVariant& Column) const {
    return get(420, {QVariant::fromValue(Row), QVariant::fromValue(Column)}).value<QString>();
}
void LumtexListView::setItemText(const QVariant& Row, const QVariant& Column, const QString& value) {
    assign(420, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, QVariant::fromValue(value));
}
QString LumtexListView::ItemToolTip(const QVariant& Row, const QVariant& Column) const {
    return get(421, {QVariant::fromValue(Row), QVariant::fromValue(Column)}).value<QString>();
}
void LumtexListView::setItemToolTip(const QVariant& Row, const QVariant& Column, const QString& value) {
    assign(421, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, QVariant::fromValue(value));
}
double LumtexListView::ItemTextWidth(const QVariant& Row, const QVariant& Column) const {
    return get(422, {QVariant::fromValue(Row), QVariant::fromValue(Column)}).value<double>();
}
QObject* LumtexListView::ItemObject(const QVariant& Row, const QVariant& Column) const {
    return get(423, {QVariant::fromValue(Row), QVariant::fromValue(Column)}).value<QObject*>();
}
void LumtexListView::setItemObject(const QVariant& Row, const QVariant& Column, QObject* value) {
    assign(423, {QVariant::fromValue(Row), QVariant::fromValue(Column)}, QVariant::fromValue(value));
}
int LumtexListView::ItemsCheckedCount(int Column) {
    return call(424, {QVariant::fromValue(Column)}).value<int>();
}
bool LumtexListView::AllowItemMoving() const {
    return setting(u"AllowItemMoving").value<bool>();
}
void LumtexListView::setAllowItemMoving(bool value) {
    letSetting(u"AllowItemMoving", QVariant::fromValue(value));
}
void LumtexListView::resetAllowItemMoving() {
    reset(u"AllowItemMoving");
}
