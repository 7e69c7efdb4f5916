#include "film_file.h"

#include "adapters/pictures/image_file.h"
#include "doc_files.h"

#include <stdexcept>
#include <string_view>

namespace lumtex::testing {
namespace {

constexpr std::string_view signature = "\x89PNG\r\n\x1A\n";

void demand(bool condition, const char* what) {
    if (!condition)
        throw std::runtime_error(what);
}

std::uint32_t number(std::string_view bytes, std::size_t at, std::size_t size = 4) {
    demand(at + size <= bytes.size(), "a chunk ends early");
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < size; ++i)
        value = value << 8U | static_cast<unsigned char>(bytes[at + i]);
    return value;
}

std::string fourBytes(std::uint32_t value) {
    std::string bytes;
    for (const unsigned shift : {24U, 16U, 8U, 0U})
        bytes += static_cast<char>(value >> shift & 0xFFU);
    return bytes;
}

std::uint32_t checksum(std::string_view bytes) {
    std::uint32_t sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum & 1U) != 0 ? sum >> 1U ^ 0xEDB88320U : sum >> 1U;
    }
    return ~sum;
}

std::string chunk(std::string_view name, std::string_view content) {
    const std::string body = std::string(name) + std::string(content);
    return fourBytes(static_cast<std::uint32_t>(content.size())) + body + fourBytes(checksum(body));
}

/// What a control chunk says of the frame behind it.
struct Part {
    Long left = 0;
    Long top = 0;
    std::string size; ///< width and height, as the header of a picture has them
    std::chrono::milliseconds shown{0};
    std::string pixels; ///< packed
};

Part partFrom(std::string_view control) {
    demand(number(control, 24, 1) == 0 && number(control, 25, 1) == 0, "a frame is blended, or taken away");
    const std::uint32_t unit = number(control, 22, 2); // of a second; 0 stands for 100
    return {static_cast<Long>(number(control, 12)),
            static_cast<Long>(number(control, 16)),
            std::string(control.substr(4, 8)),
            std::chrono::milliseconds(number(control, 20, 2) * 1000 / (unit == 0 ? 100 : unit)),
            {}};
}

/// The pixels of a part lie in a picture of their own, as a reader of pictures takes it.
Bitmap bitmapOf(const Part& part, std::string_view header) {
    const std::string file = std::string(signature) +
                             chunk("IHDR", part.size + std::string(header.substr(8))) +
                             chunk("IDAT", part.pixels) + chunk("IEND", {});
    const PictureRef picture =
        pictures::loadPicture({reinterpret_cast<const Byte*>(file.data()), file.size()});
    return picture->bitmap();
}

} // namespace

std::vector<film::Frame> framesOf(const std::filesystem::path& file) {
    const std::string bytes = contentOf(file);
    demand(bytes.starts_with(signature), "this is no picture of the kind");
    std::string header;
    std::vector<Part> parts;
    for (std::size_t at = signature.size(); at < bytes.size();) {
        const std::size_t size = number(bytes, at);
        const std::string name = bytes.substr(at + 4, 4);
        const std::string_view content = std::string_view(bytes).substr(at + 8, size);
        at += size + 12;
        if (name == "IHDR")
            header = content;
        else if (name == "fcTL")
            parts.push_back(partFrom(content));
        else if (name == "IDAT" && !parts.empty())
            parts.back().pixels += content;
        else if (name == "fdAT")
            parts.back().pixels += content.substr(4);
    }
    std::vector<film::Frame> frames;
    for (const Part& part : parts) {
        const Bitmap piece = bitmapOf(part, header);
        Bitmap whole = frames.empty() ? piece : frames.back().picture;
        for (Long y = 0; y < piece.height; ++y)
            for (Long x = 0; x < piece.width; ++x)
                whole.at(part.left + x, part.top + y) = piece.at(x, y);
        frames.push_back({std::move(whole), part.shown});
    }
    return frames;
}

} // namespace lumtex::testing
