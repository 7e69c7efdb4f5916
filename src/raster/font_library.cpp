#include "raster/font_library.h"

#include "raster/font_library_implementation.h"
#include "raster/typeface_implementation.h"
#include "values/rounding.h"
#include "values/runtime_error.h"
#include "values/text.h"

#include <algorithm>
#include <cmath>

namespace lumtex::raster {

namespace {

constexpr Double pixelsPerInch = 96;
constexpr Double pointsPerInch = 72;
constexpr Double smallest = 1;   // pixels
constexpr Double largest = 1000; // pixels

/// How many typefaces are kept before all are let go. Each holds a file open.
constexpr std::size_t typefacesKept = 64;

Long pixelsOf(Single points) {
    const Double pixels = static_cast<Double>(points) * pixelsPerInch / pointsPerInch;
    // Written so that what is not a number ends up smallest.
    return pixels >= smallest ? roundToLong(std::min(pixels, largest)) : static_cast<Long>(smallest);
}

/// The smallest of its sizes that need not be enlarged; the largest one if all must be.
FT_Int pictureSizeFor(FT_Face face, Long pixels) {
    const auto heightOf = [&](FT_Int size) { return face->available_sizes[size].y_ppem; };
    FT_Int best = 0;
    for (FT_Int size = 1; size < face->num_fixed_sizes; ++size) {
        const bool isEnough = heightOf(size) >= FT_Pos{pixels} * 64;
        const bool bestIsEnough = heightOf(best) >= FT_Pos{pixels} * 64;
        const bool isNearer = isEnough ? heightOf(size) < heightOf(best) : heightOf(size) > heightOf(best);
        if (isEnough == bestIsEnough ? isNearer : isEnough)
            best = size;
    }
    return best;
}

} // namespace

std::size_t FaceRequestHash::operator()(const FaceRequest& request) const {
    const std::size_t style =
        static_cast<std::size_t>(request.pixels) * 4 + (request.bold ? 2 : 0) + (request.italic ? 1 : 0);
    return std::hash<String>{}(request.name) ^ (style * 0x9E3779B97F4A7C15ULL);
}

FaceFile
FontLibrary::Implementation::find(const FaceRequest& request, char32_t character, Coloring coloring) const {
    const FcPatternHandle pattern(FcPatternCreate());
    const std::string family = toUtf8(request.name);
    FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(family.c_str()));
    FcPatternAddInteger(pattern.get(), FC_WEIGHT, request.bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    FcPatternAddInteger(pattern.get(), FC_SLANT, request.italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue);
    if (coloring == Coloring::colored)
        FcPatternAddBool(pattern.get(), FC_COLOR, FcTrue);
    if (character != 0) {
        const FcCharSetHandle characters(FcCharSetCreate());
        FcCharSetAddChar(characters.get(), character);
        FcPatternAddCharSet(pattern.get(), FC_CHARSET, characters.get());
    }
    FcConfigSubstitute(configuration.get(), pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    FcResult result = FcResultNoMatch;
    const FcPatternHandle match(FcFontMatch(configuration.get(), pattern.get(), &result));
    FcChar8* path = nullptr;
    if (!match || FcPatternGetString(match.get(), FC_FILE, 0, &path) != FcResultMatch)
        return {};
    FaceFile file;
    file.path = reinterpret_cast<const char*>(path);
    int weight = FC_WEIGHT_REGULAR;
    int slant = FC_SLANT_ROMAN;
    FcPatternGetInteger(match.get(), FC_INDEX, 0, &file.index);
    FcPatternGetInteger(match.get(), FC_WEIGHT, 0, &weight);
    FcPatternGetInteger(match.get(), FC_SLANT, 0, &slant);
    file.embolden = request.bold && weight < FC_WEIGHT_DEMIBOLD;
    file.slant = request.italic && slant == FC_SLANT_ROMAN;
    return file;
}

FtFaceHandle FontLibrary::Implementation::open(const FaceFile& file, Long pixels) const {
    FT_Face face = nullptr;
    if (FT_New_Face(freetype.get(), file.path.c_str(), file.index, &face) != 0)
        throw RuntimeError(ErrorNumber::fileNotFound);
    FtFaceHandle handle(face);
    if (FT_IS_SCALABLE(face))
        FT_Set_Pixel_Sizes(face, 0, static_cast<FT_UInt>(pixels));
    else
        FT_Select_Size(face, pictureSizeFor(face, pixels));
    return handle;
}

FontLibrary::FontLibrary(std::unique_ptr<Implementation> implementation)
    : implementation_(std::move(implementation)) {}

FontLibrary::~FontLibrary() = default;

namespace {

std::unique_ptr<FontLibrary::Implementation> implementationOf(FcConfigHandle configuration) {
    auto implementation = std::make_unique<FontLibrary::Implementation>();
    implementation->configuration = std::move(configuration);
    FT_Library freetype = nullptr;
    if (!implementation->configuration || FT_Init_FreeType(&freetype) != 0)
        throw RuntimeError(ErrorNumber::outOfMemory);
    implementation->freetype.reset(freetype);
    return implementation;
}

} // namespace

std::shared_ptr<FontLibrary> FontLibrary::ofSystem() {
    static const std::shared_ptr<FontLibrary> library(
        new FontLibrary(implementationOf(FcConfigHandle(FcInitLoadConfigAndFonts()))));
    return library;
}

std::shared_ptr<FontLibrary> FontLibrary::fromConfiguration(const std::filesystem::path& file) {
    FcConfigHandle configuration(FcConfigCreate());
    const auto* path = reinterpret_cast<const FcChar8*>(file.c_str());
    if (!configuration || FcConfigParseAndLoad(configuration.get(), path, FcTrue) == FcFalse ||
        FcConfigBuildFonts(configuration.get()) == FcFalse)
        throw RuntimeError(ErrorNumber::fileNotFound);
    return std::shared_ptr<FontLibrary>(new FontLibrary(implementationOf(std::move(configuration))));
}

std::shared_ptr<Typeface> FontLibrary::typeface(const FontSpec& font) {
    const FaceRequest request{font.Name, pixelsOf(font.Size), font.Bold, font.Italic};
    auto& typefaces = implementation_->typefaces;
    if (const auto found = typefaces.find(request); found != typefaces.end())
        return found->second;
    if (typefaces.size() >= typefacesKept)
        typefaces.clear();
    auto made = std::make_shared<Typeface>(Typeface::Implementation::make(shared_from_this(), request));
    typefaces.emplace(request, made);
    return made;
}

} // namespace lumtex::raster
