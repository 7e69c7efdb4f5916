#include "guards/error.h"
#include "guards/failure_of.h"
#include "guards/procedure.h"
#include "support/fake_runtime.h"
#include "support/report_catcher.h"

#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

namespace lumtex {
namespace {

class ProcedureTest : public ::testing::Test {
  protected:
    ProcedureTest() {
        runtime.factories[String(ReportCatcher::programId)] = [this] { return handler; };
    }
    ~ProcedureTest() override { Error().letSilentError(false); }

    FakeRuntime runtime;
    std::shared_ptr<ReportCatcher> handler = std::make_shared<ReportCatcher>();
    Procedure p{runtime, u"ItemText", ModuleKind::control, u"lmListView"};
};

void fail(ErrorNumber error = ErrorNumber::subscriptOutOfRange) {
    throw RuntimeError(error);
}

TEST_F(ProcedureTest, AStatementThatSucceedsReportsNothing) {
    int ran = 0;
    EXPECT_TRUE(p.step([&] { ++ran; }));
    EXPECT_EQ(ran, 1);
    EXPECT_EQ(handler->reports(), u"");
}

TEST_F(ProcedureTest, AFailingStatementIsReportedAndTheNextOneRuns) {
    bool nextRan = false;
    EXPECT_FALSE(p.step([] { fail(); }));
    EXPECT_TRUE(p.step([&] { nextRan = true; }));
    EXPECT_TRUE(nextRan);
    EXPECT_EQ(handler->reports(), u"9 ItemText: Subscript out of range\n");
}

TEST_F(ProcedureTest, AReportNamesProcedureLineAndModule) {
    p.step([] { fail(); });
    ASSERT_EQ(handler->calls.size(), 1U);
    EXPECT_EQ(handler->calls[0][4], Variant(u"ItemText"));
    EXPECT_EQ(handler->calls[0][5], Variant(Long{0}));
    EXPECT_EQ(handler->calls[0][6], Variant(u"Benutzersteuerelement"));
    EXPECT_EQ(handler->calls[0][7], Variant(u"lmListView"));
}

TEST_F(ProcedureTest, AnObjectsOwnErrorKeepsItsText) {
    p.step([] { throw RuntimeError(380, u"Invalid property value of the host"); });
    EXPECT_EQ(handler->reports(), u"380 ItemText: Invalid property value of the host\n");
}

TEST_F(ProcedureTest, RunningOutOfMemoryIsErrorSeven) {
    EXPECT_FALSE(p.step([] { throw std::bad_alloc(); }));
    EXPECT_FALSE(p.step([] { throw std::length_error("text"); }));
    EXPECT_EQ(handler->reports(), u"7 ItemText: Out of memory\n7 ItemText: Out of memory\n");
}

TEST_F(ProcedureTest, AFaultOfTheProgramIsNotHidden) {
    EXPECT_THROW(p.step([] { throw std::logic_error("fault"); }), std::logic_error);
    EXPECT_THROW(ignoringErrors([] { throw std::logic_error("fault"); }), std::logic_error);
    EXPECT_EQ(handler->reports(), u"");
}

TEST_F(ProcedureTest, AFailingStatementKeepsWhatItDidBefore) {
    int value = 1;
    p.step([&] {
        value = 2;
        fail();
        value = 3;
    });
    EXPECT_EQ(value, 2);
}

TEST_F(ProcedureTest, AFailedGetReturnsItsTypesZero) {
    EXPECT_EQ(p.value<Long>([]() -> Long {
        fail();
        return 5;
    }),
              0);
    EXPECT_EQ(p.value<String>([]() -> String {
        fail();
        return u"text";
    }),
              u"");
    EXPECT_TRUE(p.value<Variant>([]() -> Variant {
                     fail();
                     return Long{5};
                 }).isEmpty());
    EXPECT_EQ(handler->calls.size(), 3U);
    EXPECT_EQ(p.value<Long>([] { return 5; }), 5);
    EXPECT_EQ(handler->calls.size(), 3U);
}

TEST_F(ProcedureTest, AFailedConditionTakesTheBranchThatWasNamed) {
    const auto failing = []() -> bool {
        fail(ErrorNumber::typeMismatch);
        return true;
    };
    EXPECT_TRUE(p.condition(failing, true));
    EXPECT_FALSE(p.condition(failing, false));
    EXPECT_EQ(handler->reports(), u"13 ItemText: Type mismatch\n13 ItemText: Type mismatch\n");
    EXPECT_TRUE(p.condition([] { return true; }, false));
    EXPECT_FALSE(p.condition([] { return false; }, true));
    EXPECT_EQ(handler->calls.size(), 2U);
}

TEST_F(ProcedureTest, WhateverAHandlerThrowsIsReportedAsError440) {
    p.raise([] { throw std::logic_error("no rows today"); });
    p.raise([] { throw 1; });
    EXPECT_EQ(handler->reports(),
              u"440 ItemText: no rows today\n440 ItemText: " +
                  errorDescription(numberOf(ErrorNumber::automationError)) + u"\n");
}

TEST_F(ProcedureTest, AFailingStatementInALoopCostsAReportOnEachTurn) {
    int turns = 0;
    for (int i = 0; i < 5; ++i) {
        p.step([&] {
            ++turns;
            fail();
        });
    }
    EXPECT_EQ(turns, 5);
    EXPECT_EQ(handler->calls.size(), 5U);
}

TEST_F(ProcedureTest, WhatFailsInANestedProcedureIsReportedThereAndDoesNotReachTheOuterOne) {
    bool outerWentOn = false;
    EXPECT_TRUE(p.step([&] {
        Procedure inner{runtime, u"CheckScroll", ModuleKind::control, u"lmListView"};
        inner.step([] { fail(); });
        outerWentOn = true;
    }));
    EXPECT_TRUE(outerWentOn);
    EXPECT_EQ(handler->reports(), u"9 CheckScroll: Subscript out of range\n");
}

TEST_F(ProcedureTest, SilentErrorTrueMeansNeitherFileNorHandlerNorBox) {
    runtime.fileSystem.folders = {u"C:\\Logs"};
    runtime.storedTexts[u"Software\\Lumtex\\ErrorLog"] = u"C:\\Logs";
    Error().letSilentError(true);
    bool nextRan = false;
    EXPECT_FALSE(p.step([] { fail(); }));
    EXPECT_TRUE(p.step([&] { nextRan = true; }));
    EXPECT_TRUE(nextRan);
    EXPECT_EQ(p.value<Long>([]() -> Long { throw RuntimeError(ErrorNumber::overflow); }), 0);
    EXPECT_TRUE(p.condition([]() -> bool { throw RuntimeError(ErrorNumber::overflow); }, true));
    p.report(RuntimeError(ErrorNumber::overflow));
    EXPECT_TRUE(runtime.journal.empty());
    EXPECT_TRUE(runtime.fileSystem.texts.empty());
    EXPECT_TRUE(runtime.boxes.empty());
    EXPECT_TRUE(handler->calls.empty());

    Error().letSilentError(false);
    p.step([] { fail(); });
    EXPECT_EQ(handler->calls.size(), 1U);
}

TEST_F(ProcedureTest, AProcedureMayReportAFailureThatItHandledItself) {
    const auto failure = failureOf([] { fail(ErrorNumber::invalidPicture); });
    ASSERT_TRUE(failure.has_value());
    p.report(*failure);
    EXPECT_EQ(handler->reports(), u"481 ItemText: Invalid picture\n");
    EXPECT_FALSE(failureOf([] {}).has_value());
}

TEST_F(ProcedureTest, AFailingHandlerThatUsesTheControlComesToAnEnd) {
    handler->onRaiseError = [this](std::span<Variant> /*arguments*/) {
        p.step([] { fail(ErrorNumber::typeMismatch); });
    };
    p.step([] { fail(); });
    EXPECT_EQ(handler->calls.size(), static_cast<std::size_t>(mostNestedReports));
}

TEST_F(ProcedureTest, IgnoredErrorsAreNotReported) {
    int reached = 0;
    EXPECT_FALSE(ignoringErrors([&] {
        reached = 1;
        fail();
        reached = 2;
    }));
    EXPECT_EQ(reached, 1);
    EXPECT_FALSE(ignoringErrors([] { throw std::bad_alloc(); }));
    EXPECT_TRUE(ignoringErrors([&] { reached = 3; }));
    EXPECT_EQ(reached, 3);
    EXPECT_TRUE(runtime.journal.empty());
}

} // namespace
} // namespace lumtex
