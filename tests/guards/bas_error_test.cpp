#include "guards/bas_error.h"
#include "support/fake_runtime.h"
#include "support/report_catcher.h"

#include <new>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumtex {
namespace {

using ::testing::ElementsAre;

constexpr ErrorReport report{.number = 9,
                             .description = u"Subscript out of range",
                             .procedure = u"ItemText",
                             .line = 0,
                             .moduleKind = ModuleKind::control,
                             .moduleName = u"lmListView"};

constexpr StringView text = u"Error no.: 9\r\n"
                            u"Error description: Subscript out of range\r\n"
                            u"Project: LumtexListView\r\n"
                            u"Module: Benutzersteuerelement lmListView\r\n"
                            u"Line/Procedure: 0/ItemText\r\n"
                            u"Version: 1.2.34";

const String record = u"2024-02-29 12:00:00\r\n" + String(text) + u"\r\n------------------------------\r\n";

class Report : public ::testing::Test {
  protected:
    void logInto(StringView folder) { runtime.storedTexts[u"Software\\Lumtex\\ErrorLog"] = folder; }

    ReportCatcher& installHandler() {
        const auto catcher = std::make_shared<ReportCatcher>();
        runtime.factories[String(ReportCatcher::programId)] = [this, catcher] {
            catcher->onRaiseError = [this, next = onRaiseError](std::span<Variant> arguments) {
                runtime.journal.push_back(u"RaiseError");
                next(arguments);
            };
            return catcher;
        };
        return *catcher;
    }

    FakeRuntime runtime;
    std::function<void(std::span<Variant>)> onRaiseError = [](std::span<Variant> /*arguments*/) {};
};

TEST(ReportText, HasSixLinesToTheLetter) {
    EXPECT_EQ(reportText(report, FakeProgram().info), text);
}

TEST(ReportText, NumbersAndLinesMayBeAnyLong) {
    const ErrorReport wide{.number = -2147483647 - 1,
                           .description = u"",
                           .procedure = u"Form_Load",
                           .line = 2147483647,
                           .moduleKind = ModuleKind::module,
                           .moduleName = u"basWheel"};
    EXPECT_EQ(reportText(wide, {u"", u"", 0, 0, 0}),
              u"Error no.: -2147483648\r\n"
              u"Error description: \r\n"
              u"Project: \r\n"
              u"Module: Modul basWheel\r\n"
              u"Line/Procedure: 2147483647/Form_Load\r\n"
              u"Version: 0.0.0");
}

TEST(ReportText, EachKindOfModuleHasItsWord) {
    struct Row {
        ModuleKind kind;
        StringView word;
    };
    constexpr Row rows[] = {
        {ModuleKind::control, u"Benutzersteuerelement"},
        {ModuleKind::classModule, u"Klassenmodul"},
        {ModuleKind::module, u"Modul"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(moduleKindText(row.kind), row.word);
}

TEST_F(Report, WithoutLogAndHandlerShowsTheCriticalBox) {
    reportError(runtime, report);
    ASSERT_EQ(runtime.boxes.size(), 1U);
    EXPECT_EQ(runtime.boxes[0].text, text);
    EXPECT_EQ(runtime.boxes[0].style, BoxStyle::critical);
    EXPECT_EQ(runtime.boxes[0].title, u"Error");
    EXPECT_TRUE(runtime.fileSystem.texts.empty());
}

TEST_F(Report, ErrorLogHoldingAFolderWithoutAClosingBackslashGetsOne) {
    runtime.fileSystem.folders = {u"C:\\Logs"};
    logInto(u"C:\\Logs");
    reportError(runtime, report);
    EXPECT_EQ(runtime.fileSystem.texts, (std::map<String, String>{{u"C:\\Logs\\LumtexError.txt", record}}));
}

TEST_F(Report, ErrorLogHoldingAFolderWithAClosingBackslashGetsNoSecond) {
    runtime.fileSystem.folders = {u"C:\\Logs"};
    logInto(u"C:\\Logs\\");
    reportError(runtime, report);
    EXPECT_EQ(runtime.fileSystem.texts, (std::map<String, String>{{u"C:\\Logs\\LumtexError.txt", record}}));
}

TEST_F(Report, ErrorLogHoldingAppWritesBesideTheComponent) {
    runtime.fileSystem.folders = {u"C:\\Components"};
    logInto(u"*app*");
    reportError(runtime, report);
    EXPECT_EQ(runtime.fileSystem.texts,
              (std::map<String, String>{{u"C:\\Components\\LumtexError.txt", record}}));
}

TEST_F(Report, ErrorLogHoldingAppBesideAComponentAtTheRoot) {
    runtime.process.info.folder = u"C:\\";
    runtime.fileSystem.folders = {u"C:"};
    logInto(u"*app*");
    reportError(runtime, report);
    EXPECT_EQ(runtime.fileSystem.texts, (std::map<String, String>{{u"C:\\LumtexError.txt", record}}));
}

TEST_F(Report, ErrorLogAppInOtherCaseIsAFolder) {
    runtime.fileSystem.folders = {u"*APP*"};
    logInto(u"*APP*");
    reportError(runtime, report);
    EXPECT_EQ(runtime.fileSystem.texts, (std::map<String, String>{{u"*APP*\\LumtexError.txt", record}}));
}

TEST_F(Report, BlanksAroundErrorLogDoNotCount) {
    runtime.fileSystem.folders = {u"C:\\Components"};
    logInto(u"  *app* ");
    reportError(runtime, report);
    EXPECT_EQ(runtime.fileSystem.texts,
              (std::map<String, String>{{u"C:\\Components\\LumtexError.txt", record}}));
}

TEST_F(Report, ErrorLogOfOnlyBlanksMeansNoLog) {
    logInto(u"   ");
    reportError(runtime, report);
    EXPECT_THAT(runtime.journal, ElementsAre(u"create LumtexErrorHandler.ErrorHandler", u"box"));
}

TEST_F(Report, ErrorLogNamingAFolderThatDoesNotExistIsNoComplaint) {
    logInto(u"C:\\Nowhere");
    reportError(runtime, report);
    EXPECT_TRUE(runtime.fileSystem.texts.empty());
    EXPECT_THAT(runtime.journal,
                ElementsAre(u"create LumtexErrorHandler.ErrorHandler",
                            u"append C:\\Nowhere\\LumtexError.txt",
                            u"box"));
    EXPECT_EQ(runtime.boxes[0].text, text);
}

TEST_F(Report, MemoryRunningOutWhileLoggingIsNoComplaint) {
    runtime.fileSystem.folders = {u"C:\\Logs"};
    logInto(u"C:\\Logs");
    runtime.onAppend = [] { throw std::bad_alloc(); };
    const ReportCatcher& handler = installHandler();
    reportError(runtime, report);
    EXPECT_TRUE(runtime.fileSystem.texts.empty());
    EXPECT_EQ(handler.calls.size(), 1U);
}

TEST_F(Report, ARepeatedFailureAddsOneRecordPerReport) {
    runtime.fileSystem.folders = {u"C:\\Logs"};
    runtime.fileSystem.texts[u"C:\\Logs\\LumtexError.txt"] = u"what was there\r\n";
    logInto(u"C:\\Logs");
    for (int i = 0; i < 3; ++i)
        reportError(runtime, report);
    EXPECT_EQ(runtime.fileSystem.texts[u"C:\\Logs\\LumtexError.txt"],
              u"what was there\r\n" + record + record + record);
}

TEST_F(Report, TheHandlerIsCreatedBeforeTheLogAndCalledAfterIt) {
    runtime.fileSystem.folders = {u"C:\\Logs"};
    logInto(u"C:\\Logs");
    installHandler();
    reportError(runtime, report);
    EXPECT_THAT(runtime.journal,
                ElementsAre(u"create LumtexErrorHandler.ErrorHandler",
                            u"append C:\\Logs\\LumtexError.txt",
                            u"RaiseError"));
}

TEST_F(Report, TheHandlerIsCreatedAndTheSettingReadAnewForEachReport) {
    installHandler();
    reportError(runtime, report);
    runtime.factories.clear();
    runtime.fileSystem.folders = {u"C:\\Logs"};
    logInto(u"C:\\Logs");
    reportError(runtime, report);
    EXPECT_THAT(runtime.journal,
                ElementsAre(u"create LumtexErrorHandler.ErrorHandler",
                            u"RaiseError",
                            u"create LumtexErrorHandler.ErrorHandler",
                            u"append C:\\Logs\\LumtexError.txt",
                            u"box"));
}

TEST_F(Report, TheHandlerGetsEightArgumentsInOrder) {
    runtime.application = std::make_shared<ReportCatcher>();
    const ReportCatcher& handler = installHandler();
    reportError(runtime, report);
    ASSERT_EQ(handler.calls.size(), 1U);
    EXPECT_EQ(handler.calls[0],
              (std::vector<Variant>{u"C:\\Programs\\Host.exe",
                                    runtime.application,
                                    Long{9},
                                    u"Subscript out of range",
                                    u"ItemText",
                                    Long{0},
                                    u"Benutzersteuerelement",
                                    u"lmListView"}));
    EXPECT_TRUE(runtime.boxes.empty());
}

TEST_F(Report, AHandlerGetsTheComponentWhereTheWorldHasNoApplicationObject) {
    const ReportCatcher& handler = installHandler();
    reportError(runtime, report);
    const ObjectRef application = handler.calls.at(0)[1].toObject();
    EXPECT_EQ(application->get(u"EXEName"), Variant(runtime.process.info.exeName));
    EXPECT_EQ(application->get(u"Path"), Variant(runtime.process.info.folder));
    EXPECT_EQ(application->get(u"Major").toLong(), runtime.process.info.major);
    EXPECT_EQ(application->get(u"Minor").toLong(), runtime.process.info.minor);
    EXPECT_EQ(application->get(u"Revision").toLong(), runtime.process.info.revision);
    EXPECT_THROW(application->get(u"Title"), RuntimeError);
    EXPECT_THROW(application->put(u"Path", u"elsewhere"), RuntimeError);
    EXPECT_EQ(application->call(u"EXEName"), Variant(runtime.process.info.exeName)) << "as some hosts read";
    Variant index(Long{1});
    EXPECT_THROW(application->get(u"Path", {&index, 1}), RuntimeError);
}

TEST_F(Report, AHandlerThatRaisesInRaiseErrorMeansTheBoxAsWell) {
    onRaiseError = [](std::span<Variant> /*arguments*/) {
        throw RuntimeError(ErrorNumber::invalidProcedureCall);
    };
    const ReportCatcher& handler = installHandler();
    reportError(runtime, report);
    EXPECT_EQ(handler.calls.size(), 1U);
    ASSERT_EQ(runtime.boxes.size(), 1U);
    EXPECT_EQ(runtime.boxes[0].text, text);
}

TEST_F(Report, AHandlerThatThrowsAnythingElseMeansTheBoxAsWell) {
    onRaiseError = [](std::span<Variant> /*arguments*/) { throw 1; };
    installHandler();
    reportError(runtime, report);
    EXPECT_EQ(runtime.boxes.size(), 1U);
}

TEST_F(Report, AFactoryThatGivesNothingMeansTheBox) {
    runtime.factories[String(ReportCatcher::programId)] = [] { return nullptr; };
    reportError(runtime, report);
    EXPECT_EQ(runtime.boxes.size(), 1U);
}

TEST_F(Report, AHandlerThatChangesItsArgumentsAndThenRaisesDoesNotChangeTheBox) {
    onRaiseError = [](std::span<Variant> arguments) {
        for (Variant& argument : arguments)
            argument = u"changed";
        throw RuntimeError(ErrorNumber::invalidProcedureCall);
    };
    installHandler();
    reportError(runtime, report);
    ASSERT_EQ(runtime.boxes.size(), 1U);
    EXPECT_EQ(runtime.boxes[0].text, text);
}

TEST_F(Report, AHandlerThatChangesItsArgumentsChangesNoLaterReport) {
    onRaiseError = [](std::span<Variant> arguments) {
        for (Variant& argument : arguments)
            argument = u"changed";
    };
    const ReportCatcher& handler = installHandler();
    reportError(runtime, report);
    reportError(runtime, report);
    EXPECT_EQ(handler.reports(), u"9 ItemText: Subscript out of range\n9 ItemText: Subscript out of range\n");
    EXPECT_TRUE(runtime.boxes.empty());
}

TEST_F(Report, ABoxThatCannotBeShownIsTheEnd) {
    runtime.onMessageBox = [] { throw RuntimeError(ErrorNumber::outOfMemory); };
    reportError(runtime, report);
    EXPECT_EQ(runtime.boxes.size(), 1U);
}

TEST_F(Report, AFailureDuringTheBoxBringsASecondBoxOnTop) {
    const ErrorReport second{.number = 13,
                             .description = u"Type mismatch",
                             .procedure = u"Timer1_Timer",
                             .line = 0,
                             .moduleKind = ModuleKind::control,
                             .moduleName = u"lmArrowButton"};
    runtime.onMessageBox = [&] {
        runtime.onMessageBox = [&] { runtime.journal.push_back(u"second is open"); };
        reportError(runtime, second);
        runtime.journal.push_back(u"second is gone");
    };
    reportError(runtime, report);
    EXPECT_THAT(runtime.journal,
                ElementsAre(u"create LumtexErrorHandler.ErrorHandler",
                            u"box",
                            u"create LumtexErrorHandler.ErrorHandler",
                            u"box",
                            u"second is open",
                            u"second is gone"));
    EXPECT_EQ(runtime.boxes[1].text, reportText(second, runtime.process.info));
}

TEST_F(Report, AHandlerThatFailsInItselfComesToAnEndWithOnlyTheLogOnTop) {
    runtime.fileSystem.folders = {u"C:\\Logs"};
    logInto(u"C:\\Logs");
    onRaiseError = [this](std::span<Variant> /*arguments*/) { reportError(runtime, report); };
    const ReportCatcher& handler = installHandler();
    reportError(runtime, report);
    EXPECT_EQ(handler.calls.size(), static_cast<std::size_t>(mostNestedReports));
    EXPECT_TRUE(runtime.boxes.empty());
    const auto records = static_cast<std::size_t>(mostNestedReports) + 1;
    EXPECT_EQ(runtime.fileSystem.texts[u"C:\\Logs\\LumtexError.txt"].size(), records * record.size());

    onRaiseError = [](std::span<Variant> /*arguments*/) {};
    reportError(runtime, report);
    EXPECT_EQ(handler.calls.size(), static_cast<std::size_t>(mostNestedReports) + 1);
}

TEST_F(Report, BoxesOfAnotherThreadDoNotSilenceIt) {
    int depth = 0;
    FakeRuntime other;
    runtime.onMessageBox = [&] {
        if (++depth < mostNestedReports)
            reportError(runtime, report);
        else
            std::thread([&] { reportError(other, report); }).join();
    };
    reportError(runtime, report);
    EXPECT_EQ(depth, mostNestedReports);
    EXPECT_EQ(other.boxes.size(), 1U);
}

} // namespace
} // namespace lumtex
