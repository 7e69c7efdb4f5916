/// Files may fail at each operation and at each byte: what was written stands, and the next call works.
#include "adapters/json/json_property_bag.h"
#include "error_number.h"
#include "failures/failing_files.h"
#include "failures/failing_surface.h"
#include "failures/failure_walk.h"
#include "guards/bas_error.h"
#include "helpers/sp_ev.h"

namespace lumtex::testing {

class FileWalk : public FailureWalk {
  protected:
    FileWalk() { memory.world = &world_; }
    ~FileWalk() override { list.reset(); }

    /// Nothing but what a file can hold.
    void dress() override {
        FailureWalk::dress();
        list->letItemTag(1, 1, longText);
    }
    /// The first line of the first report; empty for none.
    std::string firstReport() {
        const auto& boxes = desktop.runtime().boxes;
        return boxes.empty() ? "" : toUtf8(boxes.front().text.substr(0, boxes.front().text.find(u'\r')));
    }

    RuntimeWithFailingFiles runtime{desktop.runtime()};
    FailingFiles& files = runtime.failing;

  private:
    FailurePoint surfaces_;
    FailingWorld world_{desktop, surfaces_, &runtime};
};

TEST_F(FileWalk, AContentFileHoldsWhatWasWrittenBeforeTheFailure) {
    Error().letSilentError(false);
    makeScene();
    const String file = folder.pathTo("content");
    list->ContentSave(file, true);
    const std::string whole = folder.contentOf("content");
    const Scene saving{"saving", [&] { list->ContentSave(file, true); }};
    const long met = walkScene(saving, [&](long n) {
        files.bytes.arm(n);
        guarded([&] { EXPECT_TRUE(list->ContentSave(file, true)); });
        if (files.bytes.disarm() == 0)
            return false;
        EXPECT_EQ(folder.contentOf("content"), whole.substr(0, static_cast<std::size_t>(n) - 1));
        EXPECT_EQ(firstReport(), "Error no.: 61");
        // A file that was cut off is loaded as far as it goes.
        Error().letSilentError(true);
        guarded([&] { EXPECT_TRUE(list->ContentInput(file, true)); });
        Error().letSilentError(false);
        return true;
    });
    EXPECT_GT(met, 40);
    EXPECT_EQ(folder.contentOf("content"), whole);
}

TEST_F(FileWalk, EachOperationOnAContentFileMayFail) {
    const String file = folder.pathTo("content");
    for (const bool silent : {true, false}) {
        const std::vector<Scene> scenes = {{"saving", [&] { EXPECT_TRUE(list->ContentSave(file, true)); }},
                                           {"loading",
                                            [&] {
                                                list->ContentSave(file, true);
                                                list->ContentInput(file, true);
                                            }},
                                           {"loading texts alone", [&] {
                                                list->ContentSave(file, false);
                                                list->ContentInput(file, false);
                                            }}};
        for (const Scene& scene : scenes) {
            Error().letSilentError(silent);
            const long met = walkScene(scene, [&](long n) {
                files.operations.arm(n);
                guarded(scene.play);
                if (files.operations.disarm() == 0)
                    return false;
                if (!silent) {
                    EXPECT_EQ(firstReport(), "Error no.: 57");
                }
                return true;
            });
            EXPECT_GE(met, 4); // a search, a deletion, an opening, a write, the end
        }
    }
}

/// As a list box of the host's.
class Entries final : public Object {
  public:
    std::vector<String> entries;
    FailurePoint point;

    Variant get(StringView name, std::span<Variant> arguments) override {
        point.pass(ErrorNumber::automationError);
        if (name == u"ListCount")
            return static_cast<Long>(entries.size());
        return entries.at(static_cast<std::size_t>(arguments[0].toLong()));
    }
    void put(StringView /*name*/, const Variant& /*value*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    Variant call(StringView /*name*/, std::span<Variant> arguments) override {
        point.pass(ErrorNumber::automationError);
        entries.push_back(arguments[0].toText());
        return {};
    }
};

TEST_F(FileWalk, SavedEntriesStandUpToTheByteThatFailed) {
    Error().letSilentError(false);
    SpEv helper(runtime);
    const auto entries = std::make_shared<Entries>();
    entries->entries = {u"one", u"two", u"three"};
    const std::string whole = "one\r\ntwo\r\nthree\r\n";
    for (std::size_t n = 1; n <= whole.size(); ++n) {
        desktop.runtime().boxes.clear();
        files.bytes.arm(static_cast<long>(n));
        guarded([&] { helper.ListSave(entries, folder.pathTo("entries")); });
        EXPECT_EQ(files.bytes.disarm(), 1);
        EXPECT_EQ(folder.contentOf("entries"), whole.substr(0, n - 1));
        EXPECT_EQ(firstReport(), "Error no.: 57");
    }
    helper.ListSave(entries, folder.pathTo("entries"));
    EXPECT_EQ(folder.contentOf("entries"), whole);
}

TEST_F(FileWalk, AnEntryThatCannotBeHadLeavesItsLineOut) {
    Error().letSilentError(false);
    SpEv helper(runtime);
    const auto entries = std::make_shared<Entries>();
    entries->entries = {u"one", u"two", u"three"};
    // The count comes first: without one there are no lines.
    for (const char* left : {"", "two\r\nthree\r\n", "one\r\nthree\r\n", "one\r\ntwo\r\n"}) {
        static long n = 0;
        desktop.runtime().boxes.clear();
        entries->point.arm(++n);
        guarded([&] { helper.ListSave(entries, folder.pathTo("entries")); });
        entries->point.disarm();
        EXPECT_EQ(folder.contentOf("entries"), left);
        EXPECT_EQ(firstReport(), "Error no.: 440");
    }
}

TEST_F(FileWalk, SettingsThatCannotBeWrittenLeaveTheOldOnesAndNothingElse) {
    const String file = folder.pathTo("settings.json");
    json::JsonPropertyBag bag(runtime);
    bag.WriteProperty(u"Enabled", false, true);
    bag.save(file);
    const std::string before = folder.contentOf("settings.json");
    bag.WriteProperty(u"BackColor", Long{255}, Long{0});
    const auto saveFails = [&] {
        EXPECT_NE(errorNumberOf([&] { bag.save(file); }), noError);
        EXPECT_EQ(folder.contentOf("settings.json"), before);
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path), {}), 1);
    };
    for (std::size_t n = 1; n <= bag.text().size(); ++n) {
        files.bytes.arm(static_cast<long>(n));
        saveFails();
        EXPECT_EQ(files.bytes.disarm(), 1);
    }
    for (const long n : {1, 2}) { // the opening, the write
        files.operations.arm(n);
        saveFails();
        files.operations.disarm();
    }
    bag.save(file);
    EXPECT_EQ(folder.contentOf("settings.json"), bag.text());
}

TEST_F(FileWalk, ALogThatCannotBeWrittenIsNoFailure) {
    Error().letSilentError(false);
    desktop.runtime().letSetting(u"Software\\Lumtex", u"ErrorLog", fromUtf8(folder.path.string()));
    const auto report = [&] {
        desktop.runtime().boxes.clear();
        reportError(
            runtime,
            {.number = 9, .description = u"text", .procedure = u"ItemText", .moduleName = u"lmListView"});
    };
    report();
    const std::string record = folder.contentOf("LumtexError.txt");
    ASSERT_NE(record, "missing");
    for (std::size_t n = 1; n <= record.size(); ++n) {
        std::filesystem::remove(folder.path / "LumtexError.txt");
        files.bytes.arm(static_cast<long>(n));
        guarded(report);
        EXPECT_EQ(files.bytes.disarm(), 1);
        EXPECT_EQ(folder.contentOf("LumtexError.txt"), record.substr(0, n - 1));
        EXPECT_EQ(firstReport(), "Error no.: 9");
    }
}

} // namespace lumtex::testing
