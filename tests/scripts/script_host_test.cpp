/// The host of scripts itself: what it tells of failures, and how a script ends.
#include "scratch_folder.h"
#include "scripts/script_run.h"
#include "test_object.h"
#include "values/runtime_error.h"
#include "variant_printing.h"

namespace lumtex::testing {
namespace {

ScriptOutcome run(const ScratchFolder& folder, const std::string& name, const std::string& source) {
    folder.write(name, source);
    return runScript(folder.path / name);
}

TEST(ScriptHosts, TellLineAndTextOfAFailure) {
    ScriptHost host(ScriptLanguage::vbScript);
    try {
        host.run(u"Dim a\n\nErr.Raise 1234, \"here\", \"as told\"\n");
        ADD_FAILURE() << "nothing failed";
    } catch (const ScriptFailure& failure) {
        EXPECT_EQ(failure.line, 3);
        EXPECT_EQ(failure.number, 1234);
        EXPECT_EQ(failure.text, u"as told");
        EXPECT_STREQ(failure.what(), "line 3, column 1: as told");
    }
}

TEST(ScriptHosts, TellWhereJScriptThrew) {
    ScriptHost host(ScriptLanguage::jScript);
    try {
        host.run(u"var a;\nthrow new Error(\"as told\");\n");
        ADD_FAILURE() << "nothing failed";
    } catch (const ScriptFailure& failure) {
        EXPECT_EQ(failure.line, 2);
        EXPECT_EQ(failure.text, u"as told");
    }
}

TEST(ScriptHosts, TellOfASyntaxError) {
    for (const ScriptLanguage language : {ScriptLanguage::vbScript, ScriptLanguage::jScript}) {
        ScriptHost host(language);
        EXPECT_THROW(host.run(u"a = 1\nif if (\n"), std::runtime_error);
    }
}

TEST(ScriptHosts, GoOnAfterAFailure) {
    ScriptHost host(ScriptLanguage::vbScript);
    EXPECT_THROW(host.run(u"Err.Raise 5"), ScriptFailure);
    EXPECT_EQ(host.failures().size(), 1U);
    host.run(u"kept = 7");
    EXPECT_TRUE(host.failures().empty());
    EXPECT_EQ(host.object()->get(u"kept").toLong(), 7);
}

TEST(ScriptHosts, GiveScriptsTheObjectsThatTheyKnowByName) {
    for (const ScriptLanguage language : {ScriptLanguage::vbScript, ScriptLanguage::jScript}) {
        const auto object = std::make_shared<TestObject>();
        object->properties[u"Caption"] = Variant(u"before");
        ScriptHost host(language);
        host.add(u"Window", object);
        host.run(u"Window.Caption = Window.Caption + \" and after\"");
        EXPECT_EQ(object->properties[u"Caption"], Variant(u"before and after"));
    }
}

TEST(ScriptRuns, PrintWhatTheScriptEchoesAndEndWellBySelf) {
    const ScratchFolder folder;
    const ScriptOutcome outcome = run(folder, "a.vbs", "WScript.Echo \"one\", 2\nWScript.Echo\n");
    EXPECT_EQ(outcome.output, "one 2\n\n");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.failure, "");
}

TEST(ScriptRuns, EndWhereTheScriptQuits) {
    const ScratchFolder folder;
    for (const auto& [name, source] :
         {std::pair("a.vbs", "WScript.Echo \"x\"\nWScript.Quit 3\nWScript.Echo \"y\"\n"),
          std::pair("a.js", "WScript.Echo('x'); WScript.Quit(3); WScript.Echo('y');")}) {
        const ScriptOutcome outcome = run(folder, name, source);
        EXPECT_EQ(outcome.output, "x\n") << name;
        EXPECT_EQ(outcome.status, 3) << name;
        EXPECT_EQ(outcome.failure, "") << name;
        EXPECT_TRUE(outcome.failuresInside.empty()) << name;
        const ScriptOutcome stock = runInStockHost(folder.path / name);
        EXPECT_EQ(stock.output, outcome.output) << name;
        EXPECT_EQ(stock.status, 3) << name;
    }
}

TEST(ScriptRuns, FailWithStatusOneAndKeepWhatWasPrinted) {
    const ScratchFolder folder;
    const ScriptOutcome outcome = run(folder, "a.vbs", "WScript.Echo \"x\"\nNoSuchProcedure 1\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "x\n");
    EXPECT_EQ(outcome.failure.find("line 2, "), 0U) << outcome.failure;
}

TEST(ScriptRuns, ReadUtf8) {
    const ScratchFolder folder;
    const std::string source = "WScript.Echo \"Größe 5 €, \" & Len(\"Ω\")\n";
    EXPECT_EQ(run(folder, "a.vbs", source).output, "Größe 5 €, 1\n");
}

TEST(ScriptRuns, InTheStockHostReadTheCodePageOfTheSystem) {
    const ScratchFolder folder;
    folder.write("a.vbs", "WScript.Echo \"Größe \" & Len(\"äöü\")\n");
    EXPECT_EQ(runInStockHost(folder.path / "a.vbs").output, "Größe 3\n");
}

TEST(ScriptRuns, InTheStockHostSwallowFailures) {
    const ScratchFolder folder;
    folder.write("a.vbs", "WScript.Echo \"x\"\nNoSuchProcedure 1\nWScript.Echo \"y\"\n");
    const ScriptOutcome outcome = runInStockHost(folder.path / "a.vbs");
    EXPECT_EQ(outcome.output, "x\n") << "which is why scripts for it end with a line of their own";
    EXPECT_EQ(outcome.status, 0);
}

TEST(ScriptRuns, AHandlerOfAnEventThatFailsIsTold) {
    const ScratchFolder folder;
    const ScriptOutcome outcome = run(folder,
                                      "a.vbs",
                                      "Sub list_SortDone\n"
                                      "  Err.Raise 1234, \"here\", \"as told\"\n"
                                      "End Sub\n"
                                      "Set list = CreateObject(\"LumtexListView.lmListView\")\n"
                                      "WScript.ConnectObject list, \"list_\"\n"
                                      "list.ColumnsAdd \"a\"\n"
                                      "list.RowsAdd , \",\", \"b\"\n"
                                      "list.RowsAdd , \",\", \"a\"\n"
                                      "list.Sort 1, 1\n"
                                      "WScript.Echo list.ItemText(1, 1)\n");
    EXPECT_EQ(outcome.output, "a\n") << "the list goes on";
    EXPECT_EQ(outcome.failure, "");
    ASSERT_EQ(outcome.failuresInside.size(), 1U);
    EXPECT_NE(outcome.failuresInside[0].find("as told"), std::string::npos) << outcome.failuresInside[0];
}

TEST(ScriptRuns, EventsOfTwoListsGoToTheirOwnFunctions) {
    const ScratchFolder folder;
    const ScriptOutcome outcome =
        run(folder,
            "a.js",
            "function first_ErrorWrongIndex(index) { WScript.Echo('first ' + index); }\n"
            "function second_ErrorWrongIndex(index) { WScript.Echo('second ' + index); }\n"
            "var lists = [];\n"
            "for (var i = 0; i < 2; ++i) {\n"
            "    lists[i] = new ActiveXObject('LumtexListView.lmListView');\n"
            "    WScript.ConnectObject(lists[i], ['first_', 'second_'][i]);\n"
            "    lists[i].ColumnsAdd('a');\n"
            "    lists[i].RowsAdd(-1, ',', 'x');\n"
            "}\n"
            "lists[1].ListIndex = 7;\n"
            "lists[0].ListIndex = 8;\n");
    EXPECT_EQ(outcome.output, "second 7\nfirst 8\n") << outcome.failure;
}

} // namespace
} // namespace lumtex::testing
