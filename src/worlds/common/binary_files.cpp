/// Files of bytes on the machine.
#include "values/runtime_error.h"
#include "worlds/common/machine_files.h"
#include "worlds/common/native_path.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

namespace lumtex::worlds {

namespace {

namespace fs = std::filesystem;

constexpr int mostNames = 10'000;

struct CloseStream {
    void operator()(std::FILE* stream) const { static_cast<void>(std::fclose(stream)); }
};
using Stream = std::unique_ptr<std::FILE, CloseStream>;

[[noreturn]] void throwWriteFailure(int reason) {
    const bool isFull = reason == ENOSPC || reason == EDQUOT || reason == EFBIG;
    throw RuntimeError(isFull ? ErrorNumber::diskFull : ErrorNumber::deviceError);
}

/// True for a link to a plain file, too; false where there is nothing.
bool demandPlainFile(const fs::path& file) {
    std::error_code failure;
    const fs::file_status status = fs::status(file, failure);
    if (status.type() == fs::file_type::not_found)
        return false;
    if (!fs::is_regular_file(status))
        throw RuntimeError(ErrorNumber::pathFileAccess);
    return true;
}

/// Collects everything in a hidden file beside its place.
class HiddenOutput final : public OutputFile {
  public:
    explicit HiddenOutput(fs::path place) : place_(std::move(place)) {
        errno = EEXIST;
        for (int number = 1; !stream_ && errno == EEXIST && number <= mostNames; ++number) {
            hidden_ = place_.parent_path() / (".lumtex." + std::to_string(number) + ".part");
            stream_.reset(std::fopen(hidden_.string().c_str(), "wbx"));
        }
        if (!stream_)
            throw RuntimeError(ErrorNumber::pathFileAccess);
        // The caller hands over large pieces, and a failure belongs to the piece that it hit.
        static_cast<void>(std::setvbuf(stream_.get(), nullptr, _IONBF, 0));
    }
    HiddenOutput(const HiddenOutput&) = delete;
    HiddenOutput& operator=(const HiddenOutput&) = delete;
    ~HiddenOutput() override {
        std::error_code failure;
        if (!hidden_.empty())
            fs::remove(hidden_, failure);
    }

    void write(std::span<const Byte> bytes) override {
        errno = 0;
        if (std::fwrite(bytes.data(), 1, bytes.size(), stream_.get()) != bytes.size())
            throwWriteFailure(errno);
    }
    void close() override {
        errno = 0;
        const bool complete = std::fclose(stream_.release()) == 0;
        const int reason = errno;
        std::error_code failure;
        fs::rename(hidden_, place_, failure);
        if (failure)
            throw RuntimeError(ErrorNumber::pathFileAccess);
        hidden_.clear();
        if (!complete)
            throwWriteFailure(reason);
    }

  private:
    fs::path place_;
    fs::path hidden_; ///< empty once it has become the file
    Stream stream_;
};

class PlainInput final : public InputFile {
  public:
    PlainInput(const fs::path& file) : stream_(std::fopen(file.string().c_str(), "rb")) {
        std::error_code failure;
        size_ = static_cast<std::int64_t>(fs::file_size(file, failure));
        if (!stream_ || failure)
            throw RuntimeError(ErrorNumber::pathFileAccess);
        static_cast<void>(std::setvbuf(stream_.get(), nullptr, _IONBF, 0));
    }

    std::int64_t size() const override { return size_; }
    std::size_t read(std::span<Byte> target) override {
        const std::size_t count = std::fread(target.data(), 1, target.size(), stream_.get());
        if (std::ferror(stream_.get()) != 0)
            throw RuntimeError(ErrorNumber::deviceError);
        return count;
    }

  private:
    Stream stream_;
    std::int64_t size_ = 0;
};

} // namespace

std::unique_ptr<OutputFile> MachineFiles::openForBinaryWriting(StringView path) {
    const fs::path file = nativePath(path);
    demandFolderOf(file);
    demandPlainFile(file);
    return std::make_unique<HiddenOutput>(file);
}

std::unique_ptr<InputFile> MachineFiles::openForBinaryReading(StringView path) {
    const fs::path file = nativePath(path);
    demandFolderOf(file);
    if (!demandPlainFile(file))
        throw RuntimeError(ErrorNumber::fileNotFound);
    return std::make_unique<PlainInput>(file);
}

void MachineFiles::deleteFile(StringView path) {
    const fs::path file = nativePath(path);
    demandFolderOf(file);
    if (!demandPlainFile(file))
        throw RuntimeError(ErrorNumber::fileNotFound);
    std::error_code failure;
    if (!fs::remove(file, failure))
        throw RuntimeError(ErrorNumber::pathFileAccess);
}

} // namespace lumtex::worlds
