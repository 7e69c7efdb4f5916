#include "desktop_fixture.h"
#include "error_number.h"
#include "scratch_folder.h"

#include <csignal>
#include <filesystem>
#include <numeric>

#include <sys/resource.h>

namespace lumtex::testing {
namespace {

namespace fs = std::filesystem;

using Bytes = std::vector<Byte>;

class BinaryFiles : public DesktopFixture {
  protected:
    headless::HeadlessRuntime& runtime() { return desktop.runtime(); }
    std::size_t filesInFolder() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder.path), fs::directory_iterator()));
    }

    ScratchFolder folder;
};

/// Files of this process end at `bytes` while this lives, as if the disk were full.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit smaller = before_;
        smaller.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &smaller);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        static_cast<void>(std::signal(SIGXFSZ, handler_));
    }

  private:
    rlimit before_{};
    void (*handler_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

TEST_F(BinaryFiles, WhatIsWrittenIsReadAgain) {
    Bytes bytes(1000);
    std::iota(bytes.begin(), bytes.end(), Byte{0});
    const auto output = runtime().files().openForBinaryWriting(folder.pathTo("list.dat"));
    output->write(bytes);
    output->write(Bytes{1, 0, 13, 10});
    output->close();
    bytes.insert(bytes.end(), {1, 0, 13, 10});

    const auto input = runtime().files().openForBinaryReading(folder.pathTo("list.dat"));
    EXPECT_EQ(input->size(), 1004);
    Bytes first(500);
    Bytes rest(900);
    EXPECT_EQ(input->read(first), 500U);
    EXPECT_EQ(input->read(rest), 504U);
    EXPECT_EQ(input->read(rest), 0U);
    EXPECT_TRUE(std::equal(first.begin(), first.end(), bytes.begin()));
}

TEST_F(BinaryFiles, NothingStandsUnderTheNameBeforeTheFileIsClosed) {
    const auto output = runtime().files().openForBinaryWriting(folder.pathTo("list.dat"));
    output->write(Bytes{1, 2, 3});
    EXPECT_EQ(folder.contentOf("list.dat"), "missing");
    output->close();
    EXPECT_EQ(folder.contentOf("list.dat"), "\1\2\3");
    EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(BinaryFiles, AFileThatTookTheNameMeanwhileIsReplaced) {
    const auto output = runtime().files().openForBinaryWriting(folder.pathTo("list.dat"));
    folder.write("list.dat", "someone else's, and longer");
    output->write(Bytes{'o', 'u', 'r', 's'});
    output->close();
    EXPECT_EQ(folder.contentOf("list.dat"), "ours");
}

TEST_F(BinaryFiles, AFileThatIsNeverClosedLeavesNothing) {
    runtime().files().openForBinaryWriting(folder.pathTo("list.dat"))->write(Bytes{1, 2, 3});
    EXPECT_EQ(filesInFolder(), 0U);
}

TEST_F(BinaryFiles, SeveralAreWrittenSideBySide) {
    const auto first = runtime().files().openForBinaryWriting(folder.pathTo("list.dat"));
    const auto second = runtime().files().openForBinaryWriting(folder.pathTo("list.dat"));
    const auto third = runtime().files().openForBinaryWriting(folder.pathTo("other.dat"));
    first->write(Bytes{'1'});
    second->write(Bytes{'2'});
    third->write(Bytes{'3'});
    second->close();
    first->close();
    third->close();
    EXPECT_EQ(folder.contentOf("list.dat"), "1");
    EXPECT_EQ(folder.contentOf("other.dat"), "3");
    EXPECT_EQ(filesInFolder(), 2U);
}

TEST_F(BinaryFiles, AFullDiskIsToldAndWhatItTookStandsUnderTheName) {
    const auto output = runtime().files().openForBinaryWriting(folder.pathTo("list.dat"));
    output->write(Bytes(100, 'a'));
    {
        const FullDisk full(150);
        EXPECT_EQ(errorNumberOf([&] { output->write(Bytes(100, 'b')); }), ErrorNumber::diskFull);
    }
    output->close();
    EXPECT_EQ(folder.contentOf("list.dat"), std::string(100, 'a') + std::string(50, 'b'));
}

TEST_F(BinaryFiles, ANameThatBecameAFolderIsToldAtTheEnd) {
    const auto output = runtime().files().openForBinaryWriting(folder.pathTo("list.dat"));
    fs::create_directory(folder.path / "list.dat");
    EXPECT_EQ(errorNumberOf([&] { output->close(); }), ErrorNumber::pathFileAccess);
}

struct Unusable {
    const char* path; ///< below the test's folder, or from the root
    ErrorNumber atWriting;
    ErrorNumber atReading;
    ErrorNumber atDeleting;
};

constexpr std::array<Unusable, 9> unusable{{
    {"", ErrorNumber::pathFileAccess, ErrorNumber::pathFileAccess, ErrorNumber::pathFileAccess},
    {"folder", ErrorNumber::pathFileAccess, ErrorNumber::pathFileAccess, ErrorNumber::pathFileAccess},
    {"folder/", ErrorNumber::pathFileAccess, ErrorNumber::pathFileAccess, ErrorNumber::pathFileAccess},
    {"nowhere/list.dat", ErrorNumber::pathNotFound, ErrorNumber::pathNotFound, ErrorNumber::pathNotFound},
    {"file/list.dat", ErrorNumber::pathNotFound, ErrorNumber::pathNotFound, ErrorNumber::pathNotFound},
    {"missing.dat", ErrorNumber{}, ErrorNumber::fileNotFound, ErrorNumber::fileNotFound},
    {"loop", ErrorNumber::pathFileAccess, ErrorNumber::pathFileAccess, ErrorNumber::pathFileAccess},
    {"/dev/full", ErrorNumber::pathFileAccess, ErrorNumber::pathFileAccess, ErrorNumber::pathFileAccess},
    {"/proc/lumtex.dat", ErrorNumber::pathFileAccess, ErrorNumber::fileNotFound, ErrorNumber::fileNotFound},
}};

TEST_F(BinaryFiles, WhatIsNoPlainFileIsRefused) {
    fs::create_directory(folder.path / "folder");
    folder.write("file", "text");
    fs::create_symlink(folder.path / "loop", folder.path / "loop");
    for (const Unusable& row : unusable) {
        SCOPED_TRACE(row.path);
        const String path = fromUtf8((folder.path / row.path).string());
        EXPECT_EQ(errorNumberOf([&] { runtime().files().openForBinaryWriting(path); }), row.atWriting);
        EXPECT_EQ(errorNumberOf([&] { runtime().files().openForBinaryReading(path); }), row.atReading);
        EXPECT_EQ(errorNumberOf([&] { runtime().files().deleteFile(path); }), row.atDeleting);
    }
    EXPECT_TRUE(fs::exists("/dev/full"));
}

TEST_F(BinaryFiles, ANameAsLongAsTheMachineAllowsIsWritten) {
    const std::string name(255, 'n');
    const auto output = runtime().files().openForBinaryWriting(folder.pathTo(name));
    output->write(Bytes{'x'});
    output->close();
    EXPECT_EQ(folder.contentOf(name), "x");
    const String tooLong = folder.pathTo(name + "n");
    EXPECT_EQ(errorNumberOf([&] { runtime().files().deleteFile(tooLong); }), ErrorNumber::pathFileAccess);
}

TEST_F(BinaryFiles, DeletingALinkLeavesWhatItNames) {
    folder.write("file", "text");
    fs::create_symlink(folder.path / "file", folder.path / "link");
    runtime().files().deleteFile(folder.pathTo("link"));
    EXPECT_EQ(folder.contentOf("file"), "text");
    EXPECT_EQ(filesInFolder(), 1U);
    runtime().files().deleteFile(folder.pathTo("file"));
    EXPECT_EQ(filesInFolder(), 0U);
}

TEST_F(BinaryFiles, AnsiIsCodePage1252ByteForUnit) {
    const String text = u"Ünit€\u03A9\U0001F600";
    Bytes bytes(text.size());
    runtime().toAnsi(text, bytes);
    EXPECT_EQ(bytes, (Bytes{0xDC, 'n', 'i', 't', 0x80, '?', '?', '?'}));
    String back(bytes.size(), u' ');
    runtime().fromAnsi(bytes, back);
    EXPECT_EQ(back, u"Ünit€???");
}

TEST_F(BinaryFiles, PicturesComeBackFromTheirImages) {
    const BitmapPicture icon(Bitmap(3, 3, 0x80400000U));
    const PictureRef back = runtime().pictureOfImage(runtime().imageOfPicture(icon));
    EXPECT_EQ(back->kind(), PictureKind::icon);
    EXPECT_EQ(back->bitmap(), icon.bitmap());
}

} // namespace
} // namespace lumtex::testing
