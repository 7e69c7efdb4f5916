#include "arguments.h"
#include "guards/error.h"
#include "list_fixture.h"
#include "query_source.h"
#include "scratch_folder.h"

#include <cstdlib>
#include <fstream>
#include <limits>

#include <sys/wait.h>

namespace lumtex::testing {
namespace {

class GalleryQuery : public ListFixture {
  protected:
    std::string failureOf(const std::string& database, const std::string& sql) {
        try {
            gallery::readQuery(database, sql, list, [this](Long records) {
                heard.push_back(records);
                return records < wanted;
            });
        } catch (const gallery::Failure& failure) {
            return failure.what();
        }
        return "no failure";
    }

    std::vector<Long> heard;
    Long wanted = std::numeric_limits<Long>::max(); ///< with as many it is enough
};

TEST_F(GalleryQuery, FillsTheListAndFitsItsColumns) {
    EXPECT_EQ(failureOf(":memory:", "values ('a text of some width', 1), ('b', 22)"), "no failure");
    EXPECT_EQ(list.RowsCount(), 2);
    EXPECT_EQ(list.ColumnText(1), u"column1");
    EXPECT_EQ(list.ItemText(2, 2), u"22");
    EXPECT_GT(list.ColumnWidth(1), 1000);
    EXPECT_EQ(list.ItemAlignment(2, 2), cItemRight);
    EXPECT_TRUE(list.AutoRedraw());
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(GalleryQuery, TellsHowFarItGot) {
    EXPECT_EQ(failureOf(":memory:",
                        "with recursive n(x) as (select 1 union all select x + 1 from n where x < 31000) "
                        "select x from n"),
              "no failure");
    EXPECT_EQ(heard, (std::vector<Long>{10'000, 20'000, 30'000}));
}

TEST_F(GalleryQuery, EndsWhereItIsStopped) {
    wanted = 20'000;
    EXPECT_EQ(failureOf(":memory:",
                        "with recursive n(x) as (select 1 union all select x + 1 from n where x < 31000) "
                        "select x from n"),
              "no failure");
    EXPECT_EQ(list.RowsCount(), 20'000);
    EXPECT_EQ(list.ItemText(20'000, 1), u"20000");
}

TEST_F(GalleryQuery, SaysInOneLineWhatIsWrong) {
    const ScratchFolder folder;
    const std::string none = (folder.path / "none.sqlite").string();
    EXPECT_EQ(failureOf(none, "select 1"), none + ": unable to open database file");
    EXPECT_EQ(failureOf(":memory:", "selec"), ":memory:: near \"selec\": syntax error");
    EXPECT_EQ(failureOf(":memory:", "select 1 where 0"), "the query yields no records");
    EXPECT_EQ(failureOf(":memory:",
                        "with recursive n(x) as (select 1 union all select x + 1 from n where x < 9) "
                        "select case when x = 4 then abs(-9223372036854775807 - 1) else x end as n from n"),
              "the query failed after 3 records: integer overflow");
    EXPECT_EQ(list.RowsCount(), 3) << "what came before stays";
    EXPECT_EQ(failureOf(":memory:", "select abs(-9223372036854775807 - 1)"),
              "the query failed after 0 records: integer overflow");
    EXPECT_EQ(reportCount(), 0U);
    EXPECT_FALSE(silentError());
}

TEST_F(GalleryQuery, KeepsThePasswordOfAnAddressToItself) {
    const std::string failure = failureOf("postgresql://user:secret@/x?host=/nowhere", "select 1");
    EXPECT_EQ(failure.find("the server: "), 0U);
    EXPECT_EQ(failure.find("secret"), std::string::npos);
    EXPECT_EQ(failure.find('\n'), std::string::npos);
}

TEST(GalleryArguments, NameAPathOrAQuery) {
    using gallery::Subject;
    using gallery::subjectFrom;
    EXPECT_EQ(subjectFrom({}), (Subject{".", "", ""}));
    EXPECT_EQ(subjectFrom({"a.csv"}), (Subject{"a.csv", "", ""}));
    EXPECT_EQ(subjectFrom({"--query", "a.db", "select 1"}), (Subject{"", "a.db", "select 1"}));
    EXPECT_TRUE(subjectFrom({"--query", "a.db", "select 1"})->isQuery());
    for (const auto& words : std::vector<std::vector<std::string>>{{"a.csv", "b.csv"},
                                                                   {"--query"},
                                                                   {"--query", "a.db"},
                                                                   {"--query", "a.db", "select", "1"},
                                                                   {"--other"},
                                                                   {""}})
        EXPECT_EQ(subjectFrom(words), std::nullopt);
}

struct Outcome {
    int status;
    std::string errors;
};

/// The program itself, with what it wrote to its error output.
Outcome runGallery(const ScratchFolder& folder, const std::string& arguments) {
    const std::string command = "cd '" + folder.path.string() + "' && '" LUMTEX_PROGRAMS "/lumtex_gallery' " +
                                arguments + " >output 2>errors";
    const int status = std::system(command.c_str());
    return {WEXITSTATUS(status), folder.contentOf("errors")};
}

TEST(GalleryProgram, RefusesWithOneLineAndANonzeroStatus) {
    const ScratchFolder folder;
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"--query none.sqlite 'select 1'", "none.sqlite: unable to open database file\n"},
        {"--query :memory: 'select * from t'", ":memory:: no such table: t\n"},
        {"none.csv", "there is no none.csv\n"},
    };
    for (const auto& [arguments, line] : cases) {
        const Outcome run = runGallery(folder, arguments);
        EXPECT_EQ(run.status, 1) << arguments;
        EXPECT_EQ(run.errors, line);
    }
    const Outcome run = runGallery(folder, "--query :memory:");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.errors.find("usage: "), 0U);
}

TEST(GalleryProgram, DrawsTheResultOfAQuery) {
    const ScratchFolder folder;
    const Outcome run = runGallery(folder, "--query :memory: \"values ('Oslo', 1), ('Quito', 2)\"");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_NE(folder.contentOf("output").find("2 rows, 2 columns\n"), std::string::npos);
    EXPECT_TRUE(std::filesystem::exists(folder.path / "out" / "blue-plain.png"));
}

} // namespace
} // namespace lumtex::testing
