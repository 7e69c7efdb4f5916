/// The values of a new instance.
#include "guards/ignoring_errors.h"
#include "model/list_view.h"
#include "render/painting.h"

namespace lumtex {

namespace {

/// One program, recognised by its name, gets larger jumps and a lower text.
bool runsInKnownProgram(const ComponentInfo& component) {
    constexpr StringView known = u"qrdmph";
    const String& name = component.exeName;
    return name.size() == known.size() &&
           std::equal(name.begin(), name.end(), known.begin(), [](char16_t a, char16_t b) {
               return (a >= u'A' && a <= u'Z' ? a + (u'a' - u'A') : a) == b;
           });
}

} // namespace

/// A container without a font leaves that of the design.
void lmListView::takeContainersFont() {
    ignoringErrors([&] {
        if (const FontRef font = host().parentFont())
            lblFont->spec = font->spec;
    });
}

void lmListView::recogniseProgram() {
    knownProgram = runsInKnownProgram(runtime().program().component());
}

Long lmListView::defaultJumpLines() const {
    return knownProgram ? 4 : 1;
}

void lmListView::UserControl_InitProperties() {
    Procedure p = procedure(u"UserControl_InitProperties");
    takeContainersFont();
    recogniseProgram();

    p.step([&] { painting->hold(); });
    setDefaultItemFont(lblFont);
    letDefaultItemForeColor(0);
    letBackColor(0xFFFFFF);
    letBackColorDisabled(0xFFFFFF);
    letEnabled(true);
    letClickOnIndexChange(false);
    letColorStyle(cXPBlue);
    letBorderColor(0);
    letStyle(cDefault);
    letFullRowSelect(true);
    letAllowEdit(false);
    letValueColor(0xFF0000);
    letBorderVisible(true);
    letIndentTop(3);
    letIndentLeft(3);
    letIndentRight(3);
    letIndentBottom(3);
    letDistPicText(2);
    letAutoCheckScroll(true);
    letIconSelect(true);
    letIconW(16);
    letIconH(16);
    letColumnIconW(16);
    letColumnIconH(16);
    letListIndex(-1);
    letScrollColorStyle(cXPScrollBlue);
    letGridLines(false);
    letGridLineColor(0xC0C0C0);
    letEmptyColumnFieldColor(buttonFace);
    letMultiSelect(false);
    letHideColumnHeaders(false);
    letColumnTextY(2);
    letMoveColumnTextAtDown(false);
    setDefaultColumnFont(lblFont);
    letDefaultColumnForeColor(0);
    letEmptyColumnFieldWidth(0);
    letColumnBackColor(buttonFace);
    letColumnDownColor(buttonFace);
    letColumnHoverColor(buttonFace);
    letRowsDynamic(true);
    letRowHeight(scaleY(listWindow->surface(), defaultRowHeight, pixels, twips));
    letAutoRedraw(true);
    letScrollBackColor(buttonFace);
    letScrollArrows(0);
    letScrollButtons(buttonFace);
    letScrollBar(buttonFace);
    letScrollArrowsDown(0);
    letScrollButtonsDown(buttonFace);
    letScrollBarDown(buttonFace);
    letScrollArrowsHover(0);
    letScrollButtonsHover(buttonFace);
    letScrollBarHover(buttonFace);
    letWheelFunction(cWheelScroll);
    letDefaultIconSelectedIsIcon(true);
    letWheelScrollLines(1);
    letScrollButtonJumpLines(defaultJumpLines());
    letTextPositionDefault(cTextPosCenter);
    letDrawItemIcons(true);
    letDrawColumnIcons(true);
    letFixColumns(false);
    letCheckMouseOver(false);
    letOLEDropMode(0);
    letOLEDragMode(0);
    letHideSelection(false);
    letAllowItemMoving(false);
    p.step([&] { painting->release(); });
}

} // namespace lumtex
