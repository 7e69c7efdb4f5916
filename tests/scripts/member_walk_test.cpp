/// Every member of every public class, used by programs in both languages, against the core itself.
#include "activex/small_container.h"
#include "automation/record_table.h"
#include "guards/error.h"
#include "recording_events.h"
#include "scratch_folder.h"
#include "scripts/list_box.h"
#include "scripts/member_program.h"
#include "scripts/member_subject.h"
#include "test_host.h"
#include "test_object.h"
#include "worlds/win32/ole_font.h"
#include "worlds/win32/ole_picture.h"
#include "worlds/win32/win32_world.h"

namespace lumtex::testing {
namespace {

/// What the programs of a language cannot do, and why.
struct Unusable {
    ScriptLanguage language;
    std::string_view what;
    std::string_view reason;
};

constexpr Unusable unusable[] = {
    {ScriptLanguage::jScript, "arguments by reference", "the language passes copies"},
    {ScriptLanguage::jScript, "arguments left out in the middle", "the language has no word for it"},
    {ScriptLanguage::jScript, "kinds of numbers", "the language knows one kind"},
};

bool can(ScriptLanguage language, std::string_view what) {
    return std::ranges::none_of(
        unusable, [&](const Unusable& entry) { return entry.language == language && entry.what == what; });
}

/// Members whose results belong to one object alone.
constexpr StringView ownResults[] = {u"hwnd", u"hwndEdit"};

/// Opens a form that waits for its user.
bool opensForm(const automation::Member& member) {
    return member.name == u"About";
}

struct Walked {
    const automation::ClassDescription* owner;
    const automation::Member* member;
    ScriptLanguage language;
};

std::vector<Walked> everyMember() {
    std::vector<Walked> all;
    for (const ScriptLanguage language : {ScriptLanguage::vbScript, ScriptLanguage::jScript})
        for (const automation::ClassDescription& owner : automation::classTable())
            for (const automation::Member& member : owner.members)
                all.push_back({&owner, &member, language});
    return all;
}

void PrintTo(const Walked& walked, std::ostream* stream) {
    *stream << toUtf8(walked.owner->name) << "." << toUtf8(walked.member->name);
}

std::string nameOf(const ::testing::TestParamInfo<Walked>& info) {
    return toUtf8(info.param.owner->name) + "_" + toUtf8(info.param.member->name) +
           (info.param.language == ScriptLanguage::vbScript ? "_VBScript" : "_JScript");
}

/// Closes the form that opens next, from inside of its loop.
class ClosedForms {
  public:
    ClosedForms() : timer_(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, look)) { closed = 0; }
    ClosedForms(const ClosedForms&) = delete;
    ClosedForms& operator=(const ClosedForms&) = delete;
    ~ClosedForms() { KillTimer(nullptr, timer_); }

    static inline int closed = 0;

  private:
    static void CALLBACK look(HWND /*none*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) {
        EnumThreadWindows(GetCurrentThreadId(), close, 0);
    }
    static BOOL CALLBACK close(HWND window, LPARAM /*none*/) {
        if (IsWindowVisible(window) != FALSE && window != programWindow()) {
            ++closed;
            SendMessageW(window, WM_CLOSE, 0, 0);
        }
        return TRUE;
    }

    UINT_PTR timer_;
};

/// What a use of a member gave, and what it left behind.
struct Observed {
    std::string result;
    std::vector<std::string> arguments;
    std::string state;

    bool operator==(const Observed&) const = default;
};

void PrintTo(const Observed& observed, std::ostream* stream) {
    *stream << "result " << observed.result << "\narguments:";
    for (const std::string& argument : observed.arguments)
        *stream << " " << argument;
    *stream << "\n" << observed.state;
}

/// An object of the component and one of the core, which go through the same: all tests of a class in a
/// language share them, since making a list takes longer than using it.
struct Bench {
    Bench(const automation::ClassDescription& ofClass, ScriptLanguage language)
        : owner(ofClass), host(language), object(component.make(toUtf8(ofClass.name)).as<IDispatch>()) {
        list.UserControl_InitProperties();
        host.add(u"samplePicture", win32::toIPicture(picture).as<IDispatch>());
        host.add(u"sampleFont", win32::toIFont(font).as<IDispatch>());
        host.add(u"sampleObject",
                 win32::toIDispatch(&owner == &automation::listViewClass() ? placedObject : scriptBox));
    }

    const automation::ClassDescription& owner;
    Component component;
    ScriptHost host;
    win32::ComRef<IDispatch> object;

    PictureRef picture = std::make_shared<BitmapPicture>(Bitmap(3, 2));
    /// One that is there: for any other, the system gives another name to the component than the core has.
    FontRef font = std::make_shared<Font>(FontSpec{u"DejaVu Sans", 12, true});
    ObjectRef placedObject = win32::objectFrom(win32::toIDispatch(TestObject::control(300)).get());
    std::shared_ptr<ListBox> scriptBox = std::make_shared<ListBox>();
    std::shared_ptr<ListBox> coreBox = std::make_shared<ListBox>();

    win32::Win32Runtime runtime{GetModuleHandleW(nullptr)};
    win32::Win32World world{GetModuleHandleW(nullptr)};
    TestHost testHost;
    RecordingEvents events;
    lmListView list{world, testHost, events};
    SpEv spEv{runtime};
    Error error;
};

/// One member in one language; a component and a core that hold the same.
class EachMember : public ::testing::TestWithParam<Walked> {
  protected:
    EachMember() {
        processSilentFlag().silent = true;
        silenceComponent(true);
        // A button that went down in another test would still count for the first one who asks.
        bench.spEv.MouseButtonPressed();
        SetForegroundWindow(programWindow());
    }
    ~EachMember() override {
        silenceComponent(false);
        processSilentFlag().silent = false;
    }

    const automation::Member& member() const { return *GetParam().member; }
    ScriptLanguage language() const { return GetParam().language; }
    bool isList() const { return GetParam().owner == &automation::listViewClass(); }
    bool withKind() const { return can(language(), "kinds of numbers"); }
    bool isOwn() const { return std::ranges::find(ownResults, member().name) != std::end(ownResults); }

    std::vector<MemberUse> uses() {
        const SampleValues samples(
            {bench.picture, bench.font, isList() ? bench.placedObject : ObjectRef(bench.coreBox)},
            fromUtf8(folder.path.string()) + u"\\");
        return usesOf(member(), samples, can(language(), "arguments left out in the middle"));
    }

    void silenceComponent(bool on) {
        const win32::ComRef<IUnknown> reports = bench.component.make("Error");
        invoke(reports.as<IDispatch>().get(), L"SilentError", DISPATCH_PROPERTYPUT, {on});
    }

    /// What both sides hold before a member is used.
    void prepare(Subject& subject, ListBox& box) {
        if (isList())
            fill(subject);
        if (isList() && member().name == u"ContentInput") {
            subject.call(u"ContentSave", {fromUtf8(folder.path.string()) + u"\\sFilename.txt", true});
            subject.call(u"RowsClear", {});
        }
        box.entries = {u"first", u"second"};
        folder.write("Filename.txt", "one\r\ntwo\r\n");
    }
    std::string stateOfAll(Subject& subject, const ListBox& box) {
        std::string state = isList() ? stateOf(subject) : std::string();
        for (const String& entry : box.entries)
            state += "\nentry " + toUtf8(entry);
        for (const char* name : {"Filename.txt", "sFilename.txt"})
            state += "\n" + std::string(name) + ": " + folder.contentOf(name);
        return state;
    }

    std::string shownResult(const Variant& value) {
        if (isOwn())
            return value.toLong() != 0 ? "not 0" : "0";
        return shown(value, withKind());
    }

    Observed onCore(const MemberUse& use) {
        automation::CallByName byName = isList() ? automation::CallByName(bench.list)
                                        : GetParam().owner == &automation::spEvClass()
                                            ? automation::CallByName(bench.spEv)
                                            : automation::CallByName(bench.error);
        CoreSubject subject(byName);
        prepare(subject, *bench.coreBox);
        std::vector<Variant> arguments = use.arguments;
        Observed observed;
        const auto read = [&] {
            const Variant value = use.kind == MemberUse::Kind::call ? byName.call(member(), arguments)
                                                                    : byName.get(member(), arguments);
            if (member().type.code != automation::TypeCode::record)
                return shownResult(value);
            std::string fields;
            for (const automation::RecordField& field : automation::findResultsFields)
                fields += shown(value.toObject()->get(field.name), withKind()) + " ";
            return fields;
        };
        if (use.kind == MemberUse::Kind::let) {
            if (member().isReference())
                byName.set(member(), arguments, use.value);
            else
                byName.let(member(), arguments, use.value);
        }
        observed.result = read();
        for (std::size_t i = 0; i < arguments.size() && i < member().count; ++i)
            if (member().entries[i].byReference && !arguments[i].isMissing())
                observed.arguments.push_back(shown(arguments[i], withKind()));
        observed.state = stateOfAll(subject, *bench.coreBox);
        return observed;
    }

    std::vector<std::string> untouched(const MemberUse& use) {
        std::vector<std::string> arguments;
        for (std::size_t i = 0; i < use.arguments.size() && i < member().count; ++i)
            if (member().entries[i].byReference && !use.arguments[i].isMissing())
                arguments.push_back(shown(use.arguments[i], withKind()));
        return arguments;
    }

    Observed onComponent(const MemberUse& use) {
        ComponentSubject subject(bench.object);
        prepare(subject, *bench.scriptBox);
        Observed observed;
        MemberUse reading = use;
        if (use.kind == MemberUse::Kind::let) {
            run(use);
            reading.kind = MemberUse::Kind::get;
        }
        const Variant value = run(reading);
        const ObjectRef global = bench.host.object();
        if (member().type.code == automation::TypeCode::record)
            for (std::size_t i = 0; i < automation::findResultsFields.size(); ++i)
                observed.result +=
                    shown(global->get(u"field" + Variant(static_cast<Long>(i)).toText()), withKind()) + " ";
        else
            observed.result = shownResult(value);
        for (std::size_t i = 0; i < use.arguments.size() && i < member().count; ++i)
            if (member().entries[i].byReference && !use.arguments[i].isMissing())
                observed.arguments.push_back(
                    shown(global->get(u"argument" + Variant(static_cast<Long>(i)).toText()), withKind()));
        observed.state = stateOfAll(subject, *bench.scriptBox);
        return observed;
    }

    Variant run(const MemberUse& use) {
        bench.host.run(programFor(language(), member(), use));
        std::vector<Variant> target{win32::objectFrom(bench.object.get())};
        try {
            return bench.host.object()->call(u"Use", target);
        } catch (const RuntimeError&) {
            ADD_FAILURE() << use.shown() << " failed: "
                          << (bench.host.failures().empty() ? "" : bench.host.failures().back().what());
            return {};
        }
    }

    static void TearDownTestSuite() { bench_.reset(); }

  private:
    static Bench& benchFor(const Walked& walked) {
        if (!bench_ || &bench_->owner != walked.owner || benchLanguage_ != walked.language) {
            bench_.reset();
            bench_ = std::make_unique<Bench>(*walked.owner, walked.language);
            benchLanguage_ = walked.language;
        }
        return *bench_;
    }

    static inline std::unique_ptr<Bench> bench_;
    static inline ScriptLanguage benchLanguage_{};

  protected:
    BoxWatch watch;
    ScratchFolder folder;
    Bench& bench = benchFor(GetParam());
};

TEST_P(EachMember, GivesAScriptWhatTheCoreGives) {
    const std::vector<MemberUse> all = uses();
    ASSERT_FALSE(all.empty());
    for (const MemberUse& use : all) {
        SCOPED_TRACE(use.shown());
        if (opensForm(member())) {
            const ClosedForms forms;
            run(use);
            EXPECT_EQ(ClosedForms::closed, 1);
            continue;
        }
        Observed expected = onCore(use);
        const Observed seen = onComponent(use);
        if (!can(language(), "arguments by reference"))
            expected.arguments = untouched(use);
        EXPECT_EQ(seen, expected);
    }
}

TEST(MemberPrograms, JScriptHasNoWordForAnArgumentLeftOut) {
    ScriptHost host(ScriptLanguage::jScript);
    EXPECT_THROW(host.run(u"function use(target) { target.RowsAdd(1, , \"text\"); }"), ScriptFailure);
}

TEST(MemberPrograms, AMemberThatIsNotThereFails) {
    const Component component;
    for (const ScriptLanguage language : {ScriptLanguage::vbScript, ScriptLanguage::jScript}) {
        ScriptHost host(language);
        automation::Member unknown = automation::listViewClass().members[1];
        unknown.name = u"NoSuchMember";
        host.run(programFor(language, unknown, {MemberUse::Kind::call, {}, {}}));
        std::vector<Variant> target{win32::objectFrom(component.make("lmListView").as<IDispatch>().get())};
        EXPECT_THROW(host.object()->call(u"Use", target), RuntimeError);
        EXPECT_EQ(host.failures().size(), 1U);
    }
}

INSTANTIATE_TEST_SUITE_P(Scripts, EachMember, ::testing::ValuesIn(everyMember()), nameOf);

} // namespace
} // namespace lumtex::testing
