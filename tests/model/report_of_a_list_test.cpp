#include "guards/error.h"
#include "list_fixture.h"
#include "report_catcher.h"
#include "scratch_folder.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

/// What a failing list leaves in the files of the machine.
class ReportOfAList : public ::testing::Test {
  protected:
    ReportOfAList() {
        runtime.componentInfo = {u"LumtexListView", fromUtf8(folder.path.string()), 1, 2, 34};
        runtime.clock = Date{46347.5 + 3723.0 / 86400}; // 2026-11-21 13:02:03
        list.UserControl_InitProperties();
        list.ColumnsAdd(u"Name");
        list.RowsAdd();
    }
    ~ReportOfAList() override { Error().letSilentError(false); }

    void letErrorLog(StringView text) { runtime.letSetting(u"Software\\Lumtex", u"ErrorLog", text); }
    std::string log() const { return folder.contentOf("LumtexError.txt"); }
    /// Asks for a row that is not there.
    void fail() { list.ItemText(Long{9}, Long{1}); }

    static constexpr const char* record = "2026-11-21 13:02:03\r\n"
                                          "Error no.: 9\r\n"
                                          "Error description: Subscript out of range\r\n"
                                          "Project: LumtexListView\r\n"
                                          "Module: Benutzersteuerelement lmListView\r\n"
                                          "Line/Procedure: 0/ItemText\r\n"
                                          "Version: 1.2.34\r\n"
                                          "------------------------------\r\n";

    ScratchFolder folder;
    headless::Desktop desktop{testFonts()};
    headless::HeadlessRuntime& runtime = desktop.runtime();
    TestHost host;
    RecordingEvents events;
    lmListView list{desktop, host, events};
};

TEST_F(ReportOfAList, TheRecordIsInTheFolderThatTheSettingNamesToTheByte) {
    letErrorLog(fromUtf8(folder.path.string()));
    fail();
    EXPECT_EQ(log(), record);
    ASSERT_EQ(runtime.boxes.size(), 1U);
    const std::string box = toUtf8(runtime.boxes[0].text);
    EXPECT_EQ(box, std::string(record).substr(21, box.size()));
    EXPECT_EQ(runtime.boxes[0].style, BoxStyle::critical);
    EXPECT_EQ(runtime.boxes[0].title, u"Error");
}

TEST_F(ReportOfAList, AClosingBackslashOrAppNameTheSameFile) {
    letErrorLog(fromUtf8(folder.path.string()) + u"\\");
    fail();
    letErrorLog(u"*app*");
    fail();
    EXPECT_EQ(log(), std::string(record) + record);
}

TEST_F(ReportOfAList, AFolderThatDoesNotExistIsNoComplaint) {
    letErrorLog(folder.pathTo("missing"));
    fail();
    EXPECT_EQ(log(), "missing");
    EXPECT_FALSE(std::filesystem::exists(folder.path / "missing"));
    EXPECT_EQ(runtime.boxes.size(), 1U);
}

TEST_F(ReportOfAList, TheFileGrowsByOneRecordPerFailureAndIsNeverCut) {
    letErrorLog(u"*app*");
    folder.write("LumtexError.txt", "older\n");
    std::string expected = "older\n";
    for (int i = 0; i < 5; ++i) {
        fail();
        expected += record;
        EXPECT_EQ(log(), expected);
    }
}

TEST_F(ReportOfAList, ATimerThatFailsDuringTheBoxBringsASecondRecordAndBox) {
    letErrorLog(u"*app*");
    const auto timer = desktop.createTimer([&] {
        list.ItemText(u"no number", Long{1});
        runtime.whileBoxIsOpen = nullptr;
    });
    timer->letInterval(5);
    timer->letEnabled(true);
    runtime.whileBoxIsOpen = [&] {
        desktop.jump(std::chrono::milliseconds(5));
        timer->letEnabled(timer->Enabled() && runtime.boxes.size() < 2);
    };
    fail();
    EXPECT_EQ(runtime.boxes.size(), 2U);
    EXPECT_TRUE(runtime.boxes[1].text.starts_with(u"Error no.: 13\r\n"));
    EXPECT_TRUE(log().starts_with(record));
    EXPECT_NE(log().find("Error no.: 13\r\n"), std::string::npos);
}

TEST_F(ReportOfAList, SilentErrorTrueMeansNeitherFileNorHandlerNorBox) {
    letErrorLog(u"*app*");
    const auto handler = std::make_shared<ReportCatcher>();
    runtime.factories[String(ReportCatcher::programId)] = [&] { return handler; };
    Error().letSilentError(true);
    fail();
    EXPECT_EQ(log(), "missing");
    EXPECT_TRUE(handler->calls.empty());
    EXPECT_TRUE(runtime.boxes.empty());
    Error().letSilentError(false);
    fail();
    EXPECT_EQ(log(), record);
    EXPECT_EQ(handler->calls.size(), 1U);
    EXPECT_TRUE(runtime.boxes.empty());
}

TEST_F(ReportOfAList, AHandlerThatRaisesMeansTheBoxAsWell) {
    const auto handler = std::make_shared<ReportCatcher>();
    handler->onRaiseError = [](std::span<Variant> /*arguments*/) {
        throw RuntimeError(ErrorNumber::invalidProcedureCall);
    };
    runtime.factories[String(ReportCatcher::programId)] = [&] { return handler; };
    fail();
    EXPECT_EQ(handler->calls.size(), 1U);
    EXPECT_EQ(runtime.boxes.size(), 1U);
}

} // namespace
} // namespace lumtex::testing
