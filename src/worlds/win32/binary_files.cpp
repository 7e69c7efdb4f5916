/// Files of bytes.
#include "worlds/win32/file_handle.h"
#include "worlds/win32/win32_files.h"

#include <algorithm>
#include <string>

namespace lumtex::win32 {

namespace {

constexpr int mostNames = 10'000;
/// What one call moves at most; any part of a file is, so this is no limit of files.
constexpr std::size_t largestPiece = std::size_t{1} << 30U;

[[noreturn]] void throwWriteFailure(DWORD reason) {
    const bool isFull = reason == ERROR_DISK_FULL || reason == ERROR_HANDLE_DISK_FULL;
    throw RuntimeError(isFull ? ErrorNumber::diskFull : ErrorNumber::deviceError);
}

void demandPlain(HANDLE file) {
    BY_HANDLE_FILE_INFORMATION information{};
    if (GetFileType(file) != FILE_TYPE_DISK || !GetFileInformationByHandle(file, &information) ||
        (information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        throw RuntimeError(ErrorNumber::pathFileAccess);
}

/// False where there is nothing of that name. Throws 75 for a folder or device, 76 for a missing folder.
bool isPlainFile(const String& path) {
    try {
        const FileHandle file(path, 0, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
        demandPlain(file.get());
    } catch (const RuntimeError& failure) {
        if (failure.number() == ErrorNumber::fileNotFound)
            return false;
        throw;
    }
    return true;
}

String folderOf(const String& path) {
    return path.substr(0, path.find_last_of(u"\\/:") + 1);
}

String hiddenName(const String& folder, int number) {
    const std::string digits = std::to_string(number);
    return folder + u".lumtex." + String(digits.begin(), digits.end()) + u".part";
}

/// A new file beside `place`, under a name that nothing has yet.
String freeName(const String& place) {
    const String folder = folderOf(place);
    for (int number = 1; number <= mostNames; ++number) {
        const String name = hiddenName(folder, number);
        if (GetFileAttributesW(wide(name)) == INVALID_FILE_ATTRIBUTES)
            return name;
    }
    throw RuntimeError(ErrorNumber::pathFileAccess);
}

/// Collects everything in a hidden file beside its place.
class HiddenOutput final : public OutputFile {
  public:
    explicit HiddenOutput(String place)
        : place_(std::move(place)), hidden_(freeName(place_)),
          file_(hidden_, GENERIC_WRITE, CREATE_NEW, FILE_ATTRIBUTE_HIDDEN) {}
    ~HiddenOutput() override {
        file_.close();
        if (!hidden_.empty())
            DeleteFileW(wide(hidden_));
    }

    void write(std::span<const Byte> bytes) override {
        while (!bytes.empty()) {
            const auto piece = static_cast<DWORD>(std::min(bytes.size(), largestPiece));
            DWORD written = 0;
            if (!WriteFile(file_.get(), bytes.data(), piece, &written, nullptr))
                throwWriteFailure(GetLastError());
            if (written == 0)
                throwWriteFailure(ERROR_DISK_FULL);
            bytes = bytes.subspan(written);
        }
    }
    void close() override {
        file_.close();
        SetFileAttributesW(wide(hidden_), FILE_ATTRIBUTE_NORMAL);
        if (!MoveFileExW(wide(hidden_), wide(place_), MOVEFILE_REPLACE_EXISTING))
            throw RuntimeError(ErrorNumber::pathFileAccess);
        hidden_.clear();
    }

  private:
    String place_;
    String hidden_; ///< empty once it has become the file
    FileHandle file_;
};

class PlainInput final : public InputFile {
  public:
    explicit PlainInput(const String& path) : file_(path, GENERIC_READ, OPEN_EXISTING) {
        demandPlain(file_.get());
        LARGE_INTEGER size{};
        if (!GetFileSizeEx(file_.get(), &size))
            throw RuntimeError(ErrorNumber::pathFileAccess);
        size_ = size.QuadPart;
    }

    std::int64_t size() const override { return size_; }
    std::size_t read(std::span<Byte> target) override {
        std::size_t count = 0;
        while (count < target.size()) {
            const auto piece = static_cast<DWORD>(std::min(target.size() - count, largestPiece));
            DWORD read = 0;
            if (!ReadFile(file_.get(), target.data() + count, piece, &read, nullptr))
                throw RuntimeError(ErrorNumber::deviceError);
            if (read == 0)
                break;
            count += read;
        }
        return count;
    }

  private:
    FileHandle file_;
    std::int64_t size_ = 0;
};

} // namespace

std::unique_ptr<OutputFile> Win32Files::openForBinaryWriting(StringView path) {
    String place(path);
    isPlainFile(place);
    return std::make_unique<HiddenOutput>(std::move(place));
}

std::unique_ptr<InputFile> Win32Files::openForBinaryReading(StringView path) {
    const String name(path);
    if (!isPlainFile(name))
        throw RuntimeError(ErrorNumber::fileNotFound);
    return std::make_unique<PlainInput>(name);
}

void Win32Files::deleteFile(StringView path) {
    const String name(path);
    if (!isPlainFile(name))
        throw RuntimeError(ErrorNumber::fileNotFound);
    if (!DeleteFileW(wide(name)))
        throw RuntimeError(ErrorNumber::pathFileAccess);
}

} // namespace lumtex::win32
