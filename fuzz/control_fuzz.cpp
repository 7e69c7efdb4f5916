/// The whole control: a program of public calls and input, whose pieces also run as host code: in events, in
/// yields, while a report's box is open, and when the last reference to an object of the host goes. Whatever
/// it does, a list that it has not ended works afterwards.
#include "automation/call_by_name.h"
#include "fuzz_input.h"
#include "guards/error.h"
#include "model/list_view.h"
#include "recording_events.h"
#include "worlds/headless/desktop.h"
#include "worlds/headless/headless_window.h"

#include <algorithm>
#include <memory>
#include <set>

using namespace lumtex;

namespace {

constexpr int mostSteps = 120; // of one program, so that one that calls itself ends
constexpr int mostNesting = 4; // of host code within host code
constexpr Long mostRows = 200;

/// Members that a program of random bytes has no business with: files of the machine, and a box that waits.
bool isOffLimits(StringView name) {
    static const std::set<StringView> names{u"ContentSave", u"ContentInput", u"About"};
    return names.contains(name);
}

/// Members that take objects of a host, and that drop them.
const std::vector<const automation::Member*>& favourites() {
    static const std::vector<const automation::Member*> all = [] {
        std::vector<const automation::Member*> found;
        for (const char16_t* name : {u"ItemTag",
                                     u"ItemObject",
                                     u"ItemIcon",
                                     u"ItemBackColor",
                                     u"ItemForeColorSelect",
                                     u"ColumnTag",
                                     u"RowsClear",
                                     u"ColumnsClear",
                                     u"RowsAdd",
                                     u"ColumnsAdd",
                                     u"RowsRemove",
                                     u"ColumnsRemove",
                                     u"RowsSelectedRemove",
                                     u"DefaultItemFont",
                                     u"Recordset",
                                     u"Sort",
                                     u"SetEdit",
                                     u"ListIndex"}) {
            if (const automation::Member* member = automation::findMember(automation::listViewClass(), name))
                found.push_back(member);
        }
        return found;
    }();
    return all;
}

class HostProgram {
  public:
    HostProgram(const unsigned char* data, std::size_t size) : input_(data, size) {
        for (const char* name :
             {"Click",       "DblClick",        "ItemCheck",    "ItemChecked", "MouseUp",  "MouseMove",
              "MouseDown",   "Scroll",          "ColumnClick",  "KeyDown",     "KeyPress", "KeyUp",
              "SortDone",    "ItemClick",       "ItemDblClick", "ItemDown",    "ItemUp",   "ItemOver",
              "ItemChanged", "ErrorWrongIndex", "ListViewError"})
            events_.on(name, [this] { hostCode(); });
        desktop_.runtime().whileBoxIsOpen = [this] { hostCode(); };
        Error().letSilentError(false);
        list_->UserControl_ReadProperties(MemoryPropertyBag());
        list_->window().place(20, 20, 150, 90);
        for (int column = 0; column < 3; ++column)
            list_->ColumnsAdd(u"column", nullptr, nullptr, nullptr, cColumnLeft, 700);
        for (int row = 0; row < 8; ++row)
            list_->RowsAdd(Long{-1}, u",", u"a,b,c");
    }

    void run() {
        while (list_ && !input_.atEnd() && steps_ < mostSteps)
            step();
        // From here on the host is quiet.
        steps_ = mostSteps;
        desktop_.runtime().whileBoxIsOpen = nullptr;
        desktop_.run();
        if (!list_)
            return;
        list_->RowsClear();
        list_->ColumnsClear();
        list_->ColumnsAdd(u"column");
        list_->RowsAdd(Long{-1}, u",", u"still here");
        fuzz::require(list_->RowsCount() == 1 && list_->ItemText(1, 1) == u"still here");
    }

  private:
    /// An object of the host whose end runs host code.
    class Releasing final : public Object {
      public:
        explicit Releasing(HostProgram& program) : program_(program) {}
        ~Releasing() override { program_.hostCode(); }

        Variant get(StringView name, std::span<Variant> /*arguments*/) override {
            program_.asked();
            if (name == u"EOF")
                return true; // records without end are the host's own affair
            return static_cast<Long>(program_.input_.below(5));
        }
        void put(StringView /*name*/, const Variant& /*value*/) override { program_.asked(); }
        Variant call(StringView /*name*/, std::span<Variant> /*arguments*/) override {
            program_.asked();
            return {};
        }

      private:
        HostProgram& program_;
    };
    class ReleasingFont final : public Font {
      public:
        ReleasingFont(HostProgram& program, FontSpec attributes)
            : Font(std::move(attributes)), program_(program) {}
        ~ReleasingFont() override { program_.hostCode(); }
        std::shared_ptr<Font> Clone() const override {
            return std::make_shared<ReleasingFont>(program_, spec);
        }

      private:
        HostProgram& program_;
    };

    void hostCode() noexcept {
        if (nesting_ >= mostNesting || steps_ >= mostSteps || input_.atEnd() || !input_.flag())
            return;
        ++nesting_;
        if (asked_ == 0 && input_.below(32) == 0)
            list_.reset();
        else
            step();
        --nesting_;
    }
    /// Host code while an object of the host's is asked. An argument may be asked before its call begins, so
    /// the list is not ended there.
    void asked() noexcept {
        ++asked_;
        hostCode();
        --asked_;
    }

    void step() {
        if (!list_)
            return;
        ++steps_;
        events_.log.clear();
        try {
            if (input_.below(4) == 0)
                useInput();
            else
                callMember();
        } catch (const RuntimeError&) { // an argument that does not convert
        }
        if (list_ && list_->RowsCount() > mostRows)
            list_->RowsClear();
    }

    Variant argument(automation::TypeCode type) {
        switch (type) {
        case automation::TypeCode::object:
            return input_.below(4) == 0 ? ObjectRef{} : ObjectRef(std::make_shared<Releasing>(*this));
        case automation::TypeCode::font:
            return FontRef(std::make_shared<ReleasingFont>(*this, FontSpec{u"Tahoma", 8}));
        case automation::TypeCode::picture:
            return input_.flag() ? PictureRef{} : input_.picture();
        case automation::TypeCode::variant:
        case automation::TypeCode::variantList:
            return input_.below(3) == 0 ? Variant(ObjectRef(std::make_shared<Releasing>(*this)))
                                        : input_.value();
        case automation::TypeCode::string:
            return input_.text();
        case automation::TypeCode::boolean:
            return input_.flag();
        case automation::TypeCode::longInteger:
            return input_.below(4) == 0 ? input_.number() : static_cast<Long>(1 + input_.below(3));
        default:
            return input_.number();
        }
    }

    void callMember() {
        const std::span<const automation::Member> members = automation::listViewClass().members;
        const automation::Member& member = input_.flag()
                                               ? *favourites()[input_.byte() % favourites().size()]
                                               : members[input_.raw<std::uint16_t>() % members.size()];
        if (isOffLimits(member.name))
            return;
        std::vector<Variant> arguments;
        for (const automation::Parameter& parameter : member.parameters())
            arguments.push_back(argument(parameter.type.code));
        automation::CallByName list(*list_);
        if (member.isMethod())
            list.call(member, arguments);
        else if (member.let == nullptr || (member.get != nullptr && input_.below(4) == 0))
            list.get(member, arguments);
        else if (member.isReference())
            list.set(member, arguments, argument(member.type.code));
        else
            list.let(member, arguments, argument(member.type.code));
    }

    void useInput() {
        const auto x = static_cast<Long>(input_.byte());
        const auto y = static_cast<Long>(input_.below(150));
        const auto shift = static_cast<Integer>(input_.below(8));
        const auto key = static_cast<Integer>(input_.below(3) == 0 ? input_.byte() : 33 + input_.below(8));
        switch (input_.below(9)) {
        case 0:
            return desktop_.move({x, y}, shift);
        case 1:
            desktop_.move({x, y}, shift);
            return desktop_.press(input_.flag() ? leftButton : rightButton, shift);
        case 2:
            return desktop_.release(leftButton, shift);
        case 3:
            desktop_.move({x, y}, shift);
            return desktop_.doubleClick(leftButton, shift);
        case 4:
            return desktop_.wheel(static_cast<Long>(input_.byte()) * 30 - 3600, shift);
        case 5:
            return desktop_.key(key, shift);
        case 6:
            return desktop_.type(input_.text());
        case 7:
            return desktop_.onYield([this] { hostCode(); });
        default:
            return desktop_.advance(std::chrono::milliseconds(input_.byte()));
        }
    }

    fuzz::Input input_;
    int steps_ = 0;
    int nesting_ = 0;
    int asked_ = 0;
    headless::Desktop desktop_;
    Host host_;
    testing::RecordingEvents events_;
    std::unique_ptr<lmListView> list_{new lmListView(desktop_, host_, events_)}; ///< null once ended
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    HostProgram(data, size).run();
    return 0;
}
