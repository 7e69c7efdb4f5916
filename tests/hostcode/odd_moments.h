/// \file
/// A list whose host runs code of its own at every odd moment that there is.
#pragma once

#include "guards/error.h"
#include "hostcode/calling_things.h"
#include "hostcode/list_home.h"
#include "model/list_view.h"
#include "platform/property_bag.h"
#include "recording_events.h"
#include "values/text.h"

#include <gtest/gtest.h>

namespace lumtex::testing {

/// What lists hold of their hosts'.
enum class HeldKind {
    tag,
    backColor,
    foreColorSelect,
    backColorSelect,
    object,
    icon,
    iconSelected,
    columnIcon,
    columnIconHover,
    columnIconDown,
    backgroundPicture,
    skin,
    itemFont,
    columnFont,
    recordset,
};
constexpr HeldKind heldKinds[] = {HeldKind::tag,
                                  HeldKind::backColor,
                                  HeldKind::foreColorSelect,
                                  HeldKind::backColorSelect,
                                  HeldKind::object,
                                  HeldKind::icon,
                                  HeldKind::iconSelected,
                                  HeldKind::columnIcon,
                                  HeldKind::columnIconHover,
                                  HeldKind::columnIconDown,
                                  HeldKind::backgroundPicture,
                                  HeldKind::skin,
                                  HeldKind::itemFont,
                                  HeldKind::columnFont,
                                  HeldKind::recordset};

/// Columns and rows with texts, in a home of their own.
class OddMoments : public ::testing::Test {
  public:
    // Small, since thousands of them are made.
    static constexpr Long columns = 3;
    static constexpr Long rows = 4;
    static constexpr Long width = 100; // pixels
    static constexpr Long height = 70;

    using Code = void (OddMoments::*)();
    struct NamedCode {
        const char* name;
        Code code;
    };
    /// What host code does at an odd moment, the end of the list included.
    static std::span<const NamedCode> codes() {
        static constexpr NamedCode all[] = {{"reads", &OddMoments::reads},
                                            {"adds", &OddMoments::adds},
                                            {"removes", &OddMoments::removes},
                                            {"removes the selected", &OddMoments::removesSelected},
                                            {"clears rows", &OddMoments::clearsRows},
                                            {"clears columns", &OddMoments::clearsColumns},
                                            {"sorts", &OddMoments::sorts},
                                            {"paints", &OddMoments::paints},
                                            {"edits", &OddMoments::edits},
                                            {"restyles", &OddMoments::restyles},
                                            {"loads", &OddMoments::loads},
                                            {"ends", &OddMoments::ends}};
        return all;
    }

    // Host code. Each may find the list in any state, or ended.

    void doesNothing() {}
    void reads() {
        forEachCell([&](Long row, Long column) {
            list->ItemText(row, column);
            list->ItemTag(row, column);
            list->ItemBackColor(row, column);
            list->ItemIcon(row, column);
            list->ItemObject(row, column);
            list->ItemFontName(row, column);
            list->ColumnText(column);
            list->ColumnIcon(column);
        });
        whileThere({[&] { list->FindItem(u"*a*", cFindStart); }});
    }
    void adds() {
        whileThere({[&] {
                        if (list->ColumnsCount() < 8)
                            list->ColumnsAdd(u"more");
                    },
                    [&] {
                        if (list->RowsCount() < 12)
                            list->RowsAdd(Long{0}, u",", u"first");
                    },
                    [&] {
                        if (list->RowsCount() < 12)
                            list->RowsAdd(Long{-1}, u",", u"last");
                    }});
    }
    void removes() {
        whileThere({[&] { list->RowsRemove(1); }, [&] { list->RowsRemove(list->RowsCount()); }});
    }
    void removesSelected() {
        whileThere({[&] { list->RowsSelectedRemove(); }});
    }
    void clearsRows() {
        whileThere({[&] { list->RowsClear(); }});
    }
    void clearsColumns() {
        whileThere({[&] { list->ColumnsClear(); }});
    }
    void sorts() {
        whileThere({[&] { list->Sort(3, cDescending, cSortText); },
                    [&] { list->Sort(1, cAscending, cSortNumeric); }});
    }
    void paints() {
        whileThere({[&] { list->Redraw(); }, [&] { list->letTopIndex(1); }, [&] { list->CheckScroll(); }});
    }
    void edits() {
        whileThere({[&] { list->SetEdit(1, 1); }, [&] { list->StopEdit(); }, [&] { list->SetEdit(2, 2); }});
    }
    void restyles() {
        forEachCell([&](Long row, Long column) {
            whileThere({[&] { list->letItemTag(row, column, Long{1}); },
                        [&] { list->letItemBackColor(row, column, u"def"); },
                        [&] { list->letItemForeColorSelect(row, column, u"def"); },
                        [&] { list->letItemFontBold(row, column, true); },
                        [&] { list->setItemIcon(row, column, nullptr); },
                        [&] { list->setItemObject(row, column, nullptr); }});
        });
        whileThere({[&] { list->setSkin(nullptr); }, [&] { list->setBackgroundPicture(nullptr); }});
    }
    void loads() {
        whileThere({[&] { list->UserControl_ReadProperties(MemoryPropertyBag{}); }});
    }
    void ends() { list.reset(); }

  protected:
    explicit OddMoments(std::unique_ptr<ListHome> listsHome = makeListHome())
        : ownHome_(std::move(listsHome)), home(*ownHome_) {
        Error().letSilentError(true);
    }
    ~OddMoments() override {
        releases.code = {};
        list.reset();
        Error().letSilentError(false);
    }

    /// A new list; what an earlier one held goes quietly.
    void makeList() {
        releases.code = {};
        list.reset();
        list.reset(home.make(events, width, height));
        fill();
    }
    void fill() {
        list->letAutoRedraw(false);
        list->letStyle(cCheckBoxes);
        for (Long column = 0; column < columns; ++column)
            list->ColumnsAdd(u"column", nullptr, nullptr, nullptr, cColumnLeft, 600);
        for (Long row = 0; row < rows; ++row)
            list->RowsAdd(Long{-1}, u",", u"c,b,a");
        list->letColumnAllowSorting(1, true);
        list->letMultiSelect(true);
        list->letAllowEdit(true);
        list->letRowSelected(1, true);
        list->letRowSelected(3, true);
        list->letItemChecked(1, 1, true);
        for (Long row = 1; row <= rows; ++row)
            list->letItemAllowEdit(row, 1, true);
        list->letListIndex(1);
        list->letAutoRedraw(true);
        list->Redraw();
    }
    /// Has every cell, column, or the list itself hold something that calls back.
    void hold(HeldKind kind) {
        const auto object = [&] { return std::make_shared<CallingObject>(releases); };
        const auto picture = [&] { return std::make_shared<CallingPicture>(releases); };
        list->letAutoRedraw(false);
        for (Long row = 1; row <= rows; ++row) {
            for (Long column = 1; column <= columns; ++column) {
                if (kind == HeldKind::tag)
                    list->letItemTag(row, column, ObjectRef(object()));
                else if (kind == HeldKind::backColor)
                    list->letItemBackColor(row, column, ObjectRef(object()));
                else if (kind == HeldKind::foreColorSelect)
                    list->letItemForeColorSelect(row, column, ObjectRef(object()));
                else if (kind == HeldKind::backColorSelect)
                    list->letItemBackColorSelect(row, column, ObjectRef(object()));
                else if (kind == HeldKind::object)
                    list->setItemObject(row, column, object());
                else if (kind == HeldKind::icon)
                    list->setItemIcon(row, column, picture());
                else if (kind == HeldKind::iconSelected)
                    list->setItemIconSelected(row, column, picture());
            }
        }
        for (Long column = 1; column <= columns; ++column) {
            if (kind == HeldKind::columnIcon)
                list->setColumnIcon(column, picture());
            else if (kind == HeldKind::columnIconHover)
                list->setColumnIconHover(column, picture());
            else if (kind == HeldKind::columnIconDown)
                list->setColumnIconDown(column, picture());
        }
        if (kind == HeldKind::backgroundPicture)
            list->setBackgroundPicture(picture());
        else if (kind == HeldKind::skin)
            list->setSkin(picture());
        else if (kind == HeldKind::itemFont)
            list->setDefaultItemFont(std::make_shared<CallingFont>(releases));
        else if (kind == HeldKind::columnFont)
            list->setDefaultColumnFont(std::make_shared<CallingFont>(releases));
        else if (kind == HeldKind::recordset)
            list->setRecordset(object());
        list->letAutoRedraw(true);
    }
    void holdAll() {
        for (const HeldKind kind : heldKinds)
            hold(kind);
    }

    /// Runs `scene` once with a host that does nothing, and where any host code ran at all, once with each of
    /// `codes`.
    void withEachCode(const std::function<bool(const NamedCode& named)>& scene) {
        static constexpr NamedCode nothing{"does nothing", &OddMoments::doesNothing};
        if (!scene(nothing))
            return;
        for (const NamedCode& named : codes()) {
            SCOPED_TRACE(std::string("the host ") + named.name);
            scene(named);
        }
    }

    /// The same with four of them in turn, one of which ends the list: for scenes of which many are alike.
    void withSomeCodes(const std::function<bool(const NamedCode& named)>& scene) {
        static constexpr NamedCode nothing{"does nothing", &OddMoments::doesNothing};
        if (!scene(nothing))
            return;
        const std::size_t others = codes().size() - 1;
        for (int i = 0; i < 4; ++i) {
            const NamedCode& named = i == 0 ? codes()[others] : codes()[turn_++ % others];
            SCOPED_TRACE(std::string("the host ") + named.name);
            scene(named);
        }
    }

    /// `code` as host code that does not run within itself.
    std::function<void()> once(Code code) {
        return [this, code] {
            if (busy_)
                return;
            busy_ = true;
            (this->*code)();
            busy_ = false;
        };
    }

    /// Whatever happened, a list that is still there works as on its first day.
    void expectServes() {
        releases.code = {};
        home.release();
        if (!list)
            return;
        list->UserControl_ReadProperties(MemoryPropertyBag{});
        list->ColumnsClear();
        fill();
        EXPECT_EQ(list->RowsCount(), rows);
        EXPECT_EQ(toUtf8(list->ItemText(2, 3)), "a");
        list->RowsRemove(1);
        EXPECT_EQ(list->RowsCount(), rows - 1);
        EXPECT_EQ(list->ItemsCheckedCount(), 0);
    }

    /// As its host does, while host code can still call it.
    void endListInSight() {
        home.end(list.get());
        static_cast<void>(list.release());
    }

  private:
    struct EndsAtHome {
        OddMoments* moments;
        void operator()(lmListView* ending) const { moments->home.end(ending); }
    };
    std::unique_ptr<ListHome> ownHome_;

  protected:
    Releases releases;
    ListHome& home;
    RecordingEvents events;
    std::unique_ptr<lmListView, EndsAtHome> list{nullptr, {this}};

  private:
    /// Each call may end the list for those behind it.
    void whileThere(std::initializer_list<std::function<void()>> calls) {
        for (const auto& call : calls)
            if (list)
                call();
    }
    void forEachCell(const std::function<void(Long row, Long column)>& body) {
        for (Long row = 1; list && row <= list->RowsCount(); ++row)
            for (Long column = 1; list && column <= list->ColumnsCount(); ++column)
                body(row, column);
    }

    bool busy_ = false;
    std::size_t turn_ = 0; ///< of `withSomeCodes`
};

} // namespace lumtex::testing
