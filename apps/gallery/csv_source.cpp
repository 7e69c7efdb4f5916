#include "csv_source.h"

#include "icons.h"
#include "values/text.h"

#include <algorithm>
#include <exception>
#include <fstream>

#include <csv.h>

namespace lumtex::gallery {

namespace {

constexpr std::size_t blockSize = 1 << 16;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

char separatorOf(std::string_view block) {
    const std::string_view line = block.substr(0, block.find('\n'));
    char best = ',';
    std::ptrdiff_t most = 0;
    for (const char candidate : {',', ';', '\t'}) {
        const auto count = std::count(line.begin(), line.end(), candidate);
        if (count > most) {
            most = count;
            best = candidate;
        }
    }
    return best;
}

/// Collects fields into records. A failure waits here, since it cannot pass through the parser.
struct Reader {
    ListBuilder& builder;
    PictureRef icon;
    std::vector<String> record;
    bool begun = false;
    std::exception_ptr failure;

    template <class Body>
    void guarded(Body body) {
        if (failure)
            return;
        try {
            body();
        } catch (...) {
            failure = std::current_exception();
        }
    }

    void field(const char* bytes, std::size_t length) {
        guarded([&] { record.push_back(fromUtf8({bytes, length})); });
    }

    void endOfRecord() {
        guarded([&] {
            if (begun)
                builder.add(record, icon);
            else
                builder.begin(record);
            begun = true;
            record.clear();
        });
    }
};

void onField(void* bytes, std::size_t length, void* reader) {
    static_cast<Reader*>(reader)->field(static_cast<const char*>(bytes), length);
}

void onRecord(int /*terminator*/, void* reader) {
    static_cast<Reader*>(reader)->endOfRecord();
}

/// Owns the parser's memory.
class Parser {
  public:
    explicit Parser(char separator) {
        csv_init(&parser_, CSV_APPEND_NULL);
        csv_set_delim(&parser_, static_cast<unsigned char>(separator));
    }
    Parser(const Parser&) = delete;
    Parser& operator=(const Parser&) = delete;
    ~Parser() { csv_free(&parser_); }

    void parse(std::string_view bytes, Reader& reader) {
        const std::size_t read = csv_parse(&parser_, bytes.data(), bytes.size(), onField, onRecord, &reader);
        check(read == bytes.size(), reader);
    }
    void finish(Reader& reader) { check(csv_fini(&parser_, onField, onRecord, &reader) == 0, reader); }

  private:
    void check(bool parsed, const Reader& reader) {
        if (reader.failure)
            std::rethrow_exception(reader.failure);
        if (!parsed)
            throw Failure(csv_strerror(csv_error(&parser_)));
    }

    csv_parser parser_{};
};

} // namespace

void readCsv(const std::filesystem::path& file, ListBuilder& builder) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw Failure("cannot open " + file.string());
    std::vector<char> block(blockSize);
    const auto readBlock = [&] {
        stream.read(block.data(), static_cast<std::streamsize>(block.size()));
        return std::string_view(block.data(), static_cast<std::size_t>(stream.gcount()));
    };
    std::string_view bytes = readBlock();
    if (bytes.substr(0, byteOrderMark.size()) == byteOrderMark)
        bytes.remove_prefix(byteOrderMark.size());
    if (bytes.empty())
        throw Failure(file.string() + " is empty");
    if (bytes.find('\0') != std::string_view::npos)
        throw Failure(file.string() + " is not a text file");
    Parser parser(separatorOf(bytes));
    Reader reader{builder, documentIcon(), {}, false, nullptr};
    for (; !bytes.empty(); bytes = readBlock())
        parser.parse(bytes, reader);
    parser.finish(reader);
    if (!reader.begun)
        throw Failure(file.string() + " holds no records");
    builder.finish();
}

} // namespace lumtex::gallery
