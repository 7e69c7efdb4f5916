/// \file
/// Picture files that are sound, and some that are damaged in ways that decoders have fallen for.
#pragma once

#include "values/picture_image.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace lumtex::testing {

using Image = std::vector<Byte>;

struct NamedImage {
    std::string name;
    Image image;
};

inline void put(Image& image, std::size_t offset, std::uint32_t number, unsigned bytes) {
    for (unsigned i = 0; i < bytes; ++i)
        image.at(offset + i) = static_cast<Byte>(number >> (8 * i));
}

inline void add(Image& image, const Image& more) {
    image.insert(image.end(), more.begin(), more.end());
}

inline void addHighFirst(Image& image, std::uint32_t number, unsigned bytes) {
    for (unsigned i = bytes; i-- > 0;)
        image.push_back(static_cast<Byte>(number >> (8 * i)));
}

inline Image bitmapImage(Long width, Long height) {
    return imageOfPicture(BitmapPicture(Bitmap(width, height, 0xFF336699U)));
}

/// An icon file with these pictures, each as it stands in a file.
inline Image iconOf(const std::vector<Image>& pictures) {
    Image image{0, 0, 1, 0, 0, 0};
    put(image, 4, static_cast<std::uint32_t>(pictures.size()), 2);
    std::size_t offset = 6 + 16 * pictures.size();
    for (const Image& picture : pictures) {
        Image entry{16, 16, 0, 0, 1, 0, 32, 0, 0, 0, 0, 0, 0, 0, 0, 0};
        put(entry, 8, static_cast<std::uint32_t>(picture.size()), 4);
        put(entry, 12, static_cast<std::uint32_t>(offset), 4);
        offset += picture.size();
        add(image, entry);
    }
    for (const Image& picture : pictures)
        add(image, picture);
    return image;
}

/// What stands in an icon file for a picture of one colour.
inline Image iconPart(Long size, std::uint32_t color = 0xFF336699U) {
    const Image whole = imageOfPicture(BitmapPicture(Bitmap(size, size, color), PictureKind::icon));
    return {whole.begin() + 22, whole.end()};
}

inline Image iconImage(Long size = 16) {
    Image image = iconOf({iconPart(size)});
    image[6] = image[7] = static_cast<Byte>(size);
    return image;
}

inline void addPngChunk(Image& image, const std::string& name, const Image& data) {
    addHighFirst(image, static_cast<std::uint32_t>(data.size()), 4);
    Image checked(name.begin(), name.end());
    add(checked, data);
    std::uint32_t sum = ~0U;
    for (const Byte byte : checked) {
        sum ^= byte;
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1U) ^ ((sum & 1U) != 0 ? 0xEDB88320U : 0U);
    }
    add(image, checked);
    addHighFirst(image, ~sum, 4);
}

/// Declares this size with 8 bits of grey a pixel; holds the pixels of two by two.
inline Image pngImage(std::uint32_t width = 2, std::uint32_t height = 2) {
    Image image{0x89, 'P', 'N', 'G', 13, 10, 26, 10};
    Image header;
    addHighFirst(header, width, 4);
    addHighFirst(header, height, 4);
    add(header, {8, 0, 0, 0, 0});
    addPngChunk(image, "IHDR", header);
    // One stored block: a line each begins with its filter, none.
    addPngChunk(
        image, "IDAT", {0x78, 0x01, 0x01, 6, 0, 0xF9, 0xFF, 0, 10, 20, 0, 30, 40, 0x00, 0xEC, 0x00, 0x65});
    addPngChunk(image, "IEND", {});
    return image;
}

/// One pixel, black.
inline Image gifImage(std::uint32_t width = 1, std::uint32_t height = 1) {
    Image image{'G', 'I',  'F', '8', '9', 'a', 0, 0, 0, 0, 0x80, 0, 0, 0,    0,    0, 255, 255,
                255, 0x2C, 0,   0,   0,   0,   0, 0, 0, 0, 0,    2, 2, 0x44, 0x01, 0, 0x3B};
    for (const std::size_t offset : {std::size_t{6}, std::size_t{24}}) {
        put(image, offset, width, 2);
        put(image, offset + 2, height, 2);
    }
    return image;
}

/// A skeleton: marks and lengths, with nothing that could be decoded.
inline Image jpegImage(std::uint32_t width, std::uint32_t height, int scans) {
    Image image{0xFF, 0xD8, 0xFF, 0xC2, 0, 11, 8};
    addHighFirst(image, height, 2);
    addHighFirst(image, width, 2);
    add(image, {1, 1, 0x11, 0});
    for (int scan = 0; scan < scans; ++scan)
        add(image, {0xFF, 0xDA, 0, 8, 1, 1, 0, 0, 0, 0, 0x5A, 0xFF, 0, 0xFF, 0xD0, 0x5A});
    add(image, {0xFF, 0xD9});
    return image;
}

/// None of them may reach a decoder.
inline std::vector<NamedImage> damagedImages() {
    std::vector<NamedImage> images;
    const auto changed = [&](const std::string& name, Image image, auto change) {
        change(image);
        images.push_back({name, std::move(image)});
    };
    changed("an icon whose picture begins behind its end", iconImage(), [](Image& image) {
        put(image, 18, static_cast<std::uint32_t>(image.size()) + 100, 4);
    });
    changed("an icon whose picture ends behind its end", iconImage(), [](Image& image) {
        put(image, 14, static_cast<std::uint32_t>(image.size()), 4);
    });
    changed("an icon whose place and length together overflow", iconImage(), [](Image& image) {
        put(image, 18, 0xFFFFFFF0U, 4);
        put(image, 14, 0x20U, 4);
    });
    changed("an icon whose picture lies in its directory", iconImage(), [](Image& image) {
        put(image, 18, 0, 4);
    });
    changed(
        "65,535 entries in 106 bytes", iconOf({Image(84)}), [](Image& image) { put(image, 4, 65535, 2); });
    changed("an icon without entries", iconImage(), [](Image& image) { put(image, 4, 0, 2); });
    changed("an icon whose second picture is missing",
            iconOf({iconPart(16), iconPart(16)}),
            [](Image& image) { image.resize(image.size() - 1); });
    {
        Image huge = pngImage(20000, 20000);
        huge.resize(48000);
        images.push_back({"an icon of 48 kB with 20,000 x 20,000 pixels", iconOf({huge})});
    }
    changed("an icon with a bitmap of 20,000 x 20,000 pixels", iconImage(), [](Image& image) {
        put(image, 26, 20000, 4);
        put(image, 30, 40000, 4);
    });
    images.push_back({"an icon with a picture in a picture", iconOf({iconImage()})});
    changed("an icon without a mask", iconOf({iconPart(32)}), [](Image& image) {
        image.resize(image.size() - 128);
        put(image, 14, static_cast<std::uint32_t>(image.size()) - 22, 4);
    });
    changed("an icon in runs", iconImage(), [](Image& image) { put(image, 38, 1, 4); });
    changed("a bitmap whose lines begin behind its end", bitmapImage(4, 4), [](Image& image) {
        put(image, 10, static_cast<std::uint32_t>(image.size()), 4);
    });
    changed("a bitmap that ends in its last line", bitmapImage(4, 4), [](Image& image) { image.pop_back(); });
    changed("a bitmap of a size that overflows", bitmapImage(4, 4), [](Image& image) {
        put(image, 18, 0x10000, 4);
        put(image, 22, 0x10000, 4);
    });
    changed("a bitmap without a width", bitmapImage(4, 4), [](Image& image) { put(image, 18, 0, 4); });
    changed("a bitmap of the least height", bitmapImage(4, 4), [](Image& image) {
        put(image, 22, 0x80000000U, 4);
    });
    changed(
        "a bitmap whose palette is not there", bitmapImage(1, 1), [](Image& image) { put(image, 28, 8, 2); });
    changed("a bitmap with too many colours", bitmapImage(300, 300), [](Image& image) {
        put(image, 46, 0x10000, 4);
    });
    changed("a bitmap with a header longer than itself", bitmapImage(1, 1), [](Image& image) {
        put(image, 14, 124, 4);
    });
    changed("a bitmap of runs that end behind it", bitmapImage(40, 40), [](Image& image) {
        put(image, 28, 8, 2);
        put(image, 30, 1, 4);
        put(image, 10, 54 + 1024, 4);
        put(image, 34, 100'000, 4);
    });
    changed("a bitmap of runs without a length", bitmapImage(40, 40), [](Image& image) {
        put(image, 28, 8, 2);
        put(image, 30, 1, 4);
        put(image, 10, 54 + 1024, 4);
        put(image, 34, 0, 4);
    });
    changed(
        "a bitmap with another image in it", bitmapImage(4, 4), [](Image& image) { put(image, 30, 5, 4); });
    images.push_back({"a PNG of 60,000 x 60,000 pixels", pngImage(60000, 60000)});
    images.push_back({"a GIF of 65,535 x 65,535 pixels", gifImage(65535, 65535)});
    images.push_back({"a JPEG of 65,535 x 65,535 pixels", jpegImage(65535, 65535, 1)});
    images.push_back({"a JPEG of a thousand scans", jpegImage(100, 100, 1000)});
    images.push_back(
        {"a metafile", {0xD7, 0xCD, 0xC6, 0x9A, 0, 0, 0, 0, 0, 0, 10, 0, 10, 0, 96, 0, 0, 0, 0, 0, 0, 0}});
    images.push_back({"nothing", {}});
    return images;
}

} // namespace lumtex::testing
