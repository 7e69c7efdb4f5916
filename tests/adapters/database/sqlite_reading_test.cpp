/// Queries leave a file of SQLite, and the folder around it, as they found them.
#include "database_fixture.h"
#include "sqlite_file.h"

#include <filesystem>
#include <fstream>
#include <map>

namespace lumtex::testing {
namespace {

namespace fs = std::filesystem;

class SqliteReading : public DatabaseFixture {
  protected:
    /// Names, and what stands for the bytes.
    static std::map<std::string, std::size_t> contentOf(const fs::path& folder) {
        std::map<std::string, std::size_t> files;
        for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
            if (!entry.is_regular_file())
                continue;
            std::ifstream stream(entry.path(), std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
            files[entry.path().filename().string()] = std::hash<std::string>()(bytes);
        }
        return files;
    }
    /// Loads, and looks at the folder before, during and after.
    void expectToLeave(const fs::path& folder, const std::string& database, const std::string& content) {
        const auto before = contentOf(folder);
        EXPECT_EQ(load(database, "select a from t"), content);
        EXPECT_EQ(reports(), "");
        EXPECT_EQ(contentOf(folder), before) << "while the list keeps the query";
        list.setRecordset(database::openRecordset(":memory:", "select 1"));
        EXPECT_EQ(contentOf(folder), before);
    }

    /// A copy of the file and these others beside it, in a folder that holds nothing else.
    std::string copyWith(std::initializer_list<const char*> others) {
        fs::remove_all(copies);
        fs::create_directory(copies);
        const std::string copy = (copies / "copy of 100% #1?.sqlite").string();
        fs::copy_file(file.path, copy);
        for (const std::string other : others)
            fs::copy_file(file.path + other, copy + other);
        return copy;
    }

    SqliteFile file;
    const fs::path copies = file.folder.path / "copies";
};

constexpr const char* twoRows = "create table t (a); insert into t values (1), (2)";
constexpr const char* writeAhead = "pragma journal_mode=wal; pragma wal_autocheckpoint=0;";
constexpr const char* copyBack = "pragma wal_checkpoint(truncate)";
constexpr const char* thirdRow = "insert into t values (3)";

TEST_F(SqliteReading, LeavesAPlainFileAsItIs) {
    file.run(twoRows);
    expectToLeave(copies, copyWith({}), "a\n1\n2");
}

TEST_F(SqliteReading, LeavesAWriteAheadFileAsItIs) {
    file.run(writeAhead);
    file.run(twoRows);
    file.run(copyBack);
    expectToLeave(copies, copyWith({}), "a\n1\n2");
    EXPECT_EQ(contentOf(copies).size(), 1U);
    expectToLeave(copies, copyWith({"-wal", "-shm"}), "a\n1\n2");
    EXPECT_EQ(contentOf(copies).size(), 3U);
}

TEST_F(SqliteReading, FindsWhatOnlyALeftLogHoldsAndLeavesIt) {
    file.run(writeAhead);
    file.run(twoRows);
    file.run(copyBack);
    file.run(thirdRow);
    expectToLeave(copies, copyWith({"-wal"}), "a\n1\n2\n3");
    EXPECT_EQ(contentOf(copies).size(), 2U);
    expectToLeave(copies, copyWith({"-wal", "-shm"}), "a\n1\n2\n3");
    EXPECT_EQ(contentOf(copies).size(), 3U);
}

TEST_F(SqliteReading, CountsALeftLogUpToItsDamage) {
    file.run(writeAhead);
    file.run(twoRows);
    file.run(copyBack);
    file.run(thirdRow);
    const std::string copy = copyWith({"-wal"});
    fs::resize_file(copy + "-wal", 100);
    expectToLeave(copies, copy, "a\n1\n2");
}

/// The index is its writer's: within one process both use the same.
TEST_F(SqliteReading, SeesWhatALiveWriterHasCommitted) {
    file.run(writeAhead);
    file.run(twoRows);
    for (const char* rows : {"a\n1\n2", "a\n1\n2\n3"}) {
        auto before = contentOf(file.folder.path);
        EXPECT_EQ(load(file.path, "select a from t"), rows);
        auto after = contentOf(file.folder.path);
        before["test.sqlite-shm"] = after["test.sqlite-shm"];
        EXPECT_EQ(after, before);
        EXPECT_EQ(after.size(), 3U);
        file.run(thirdRow);
    }
    EXPECT_EQ(reports(), "");
}

} // namespace
} // namespace lumtex::testing
