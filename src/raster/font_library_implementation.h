/// \file
/// How the library finds font files; shared by the files that talk to the font libraries.
#pragma once

#include "raster/font_handles.h"
#include "raster/font_library.h"

#include <string>
#include <unordered_map>

namespace lumtex::raster {

/// What is asked of a face, in whole pixels.
struct FaceRequest {
    String name;
    Long pixels = 13;
    bool bold = false;
    bool italic = false;

    bool operator==(const FaceRequest&) const = default;
};

struct FaceRequestHash {
    std::size_t operator()(const FaceRequest& request) const;
};

/// A file that answers a request, and what has to be done to its outlines in place of a missing style.
struct FaceFile {
    std::string path;
    int index = 0;
    bool embolden = false;
    bool slant = false;
};

struct FontLibrary::Implementation {
    FcConfigHandle configuration;
    FtLibraryHandle freetype;
    std::unordered_map<FaceRequest, std::shared_ptr<Typeface>, FaceRequestHash> typefaces;

    /// The best file; with a character, the best one that has it, in colours if it shall. An empty path if
    /// there is none.
    enum class Coloring { any, colored };
    FaceFile
    find(const FaceRequest& request, char32_t character = 0, Coloring coloring = Coloring::any) const;
    /// A face of pictures has the size of theirs that comes nearest. Throws RuntimeError 53 if the file
    /// cannot be opened.
    FtFaceHandle open(const FaceFile& file, Long pixels) const;
};

} // namespace lumtex::raster
