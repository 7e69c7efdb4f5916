#include "activex/settings_objects.h"

#include "values/image_check.h"
#include "values/picture_image.h"
#include "values/text.h"
#include "worlds/win32/ansi_text.h"
#include "worlds/win32/com_ref.h"
#include "worlds/win32/ole_font.h"
#include "worlds/win32/ole_picture.h"
#include "worlds/win32/ole_picture_image.h"

namespace lumtex::win32 {

namespace {

constexpr GUID fontClass{0x0BE35203, 0x8F91, 0x11CE, {0x9D, 0xE3, 0x00, 0xAA, 0x00, 0x4B, 0xB8, 0x51}};
constexpr GUID pictureClass{0x0BE35204, 0x8F91, 0x11CE, {0x9D, 0xE3, 0x00, 0xAA, 0x00, 0x4B, 0xB8, 0x51}};
constexpr Byte fontVersion = 1;
constexpr std::uint32_t largestSize = 1'000'000'000; // parts of a point, of which it has 10,000
constexpr std::uint32_t pictureMark = 0x0000746C;    // "lt"

enum FontFlags : Byte { italic = 2, underlined = 4, struckThrough = 8 };

struct Key {
    StringView name;
    SettingsKind kind;
};
constexpr Key objectKeys[] = {
    {u"DefaultItemFont", SettingsKind::font},
    {u"DefaultColumnFont", SettingsKind::font},
    {u"BackgroundPicture", SettingsKind::picture},
    {u"Skin", SettingsKind::picture},
};

/// The system's own font objects know what they were asked for, which may be more than they found.
bool saveAsTheSystem(SettingsWriter& to, const ComRef<IFont>& font) {
    const ComRef<IPersistStream> persist = font.as<IPersistStream>();
    GUID named{};
    if (!persist || FAILED(persist->GetClassID(&named)) || !IsEqualGUID(named, fontClass))
        return false;
    to.plain(fontClass);
    if (FAILED(persist->Save(&to.stream(), TRUE)))
        throw RuntimeError(ErrorNumber::deviceError);
    return true;
}

void saveFont(SettingsWriter& to, const FontRef& ours) {
    const ComRef<IFont> font = toIFont(ours).as<IFont>();
    if (!font)
        throw RuntimeError(ErrorNumber::deviceError);
    if (saveAsTheSystem(to, font))
        return;
    SHORT weight = FW_NORMAL;
    SHORT charset = DEFAULT_CHARSET;
    CY size{};
    font->get_Weight(&weight);
    font->get_Charset(&charset);
    font->get_Size(&size);
    const FontSpec& spec = ours->spec;
    std::string name = ansiFrom(spec.Name);
    name.resize(std::min<std::size_t>(name.size(), 0xFF));
    to.plain(fontClass);
    to.plain(fontVersion);
    to.plain(charset);
    to.plain(static_cast<Byte>((spec.Italic ? italic : 0) | (spec.Underline ? underlined : 0) |
                               (spec.Strikethrough ? struckThrough : 0)));
    to.plain(weight);
    to.plain(static_cast<std::uint32_t>(std::clamp<std::int64_t>(size.int64, 0, largestSize)));
    to.plain(static_cast<Byte>(name.size()));
    to.bytes(name.data(), name.size());
}

Variant loadFont(SettingsReader& from, SettingsKind kind) {
    if (from.plain<Byte>() != fontVersion)
        SettingsReader::refuse();
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.sCharset = from.plain<SHORT>();
    const auto flags = from.plain<Byte>();
    description.fItalic = (flags & italic) != 0 ? TRUE : FALSE;
    description.fUnderline = (flags & underlined) != 0 ? TRUE : FALSE;
    description.fStrikethrough = (flags & struckThrough) != 0 ? TRUE : FALSE;
    description.sWeight = from.plain<SHORT>();
    description.cySize.int64 = std::min(from.number(), largestSize);
    const std::vector<Byte> bytes = from.many(from.plain<Byte>());
    String name = textFromAnsi({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    description.lpstrName = wide(name.data());
    if (kind == SettingsKind::plain)
        return {};
    void* made = nullptr;
    if (FAILED(OleCreateFontIndirect(&description, IID_IFontDisp, &made)))
        SettingsReader::refuse();
    return fontFrom(ComRef<IFontDisp>::adopting(static_cast<IFontDisp*>(made)).get());
}

/// In the form that the system has it, if it would be read again.
std::vector<Byte> imageOf(const Picture& picture) {
    std::vector<Byte> image;
    if (IPicture* const hosts = hostsPicture(picture))
        image = fileOfPicture(*hosts);
    if (!isSoundImage(image, freeSettingsPixels))
        image = imageOfHostsPicture(picture);
    return image.empty() ? imageOfPicture(picture) : image;
}

void savePicture(SettingsWriter& to, const Picture& picture) {
    const std::vector<Byte> image = imageOf(picture);
    to.plain(pictureClass);
    to.plain(pictureMark);
    to.plain(static_cast<std::uint32_t>(image.size()));
    to.bytes(image.data(), image.size());
}

Variant loadSettingsPicture(SettingsReader& from, SettingsKind kind) {
    if (from.number() != pictureMark)
        SettingsReader::refuse();
    const std::vector<Byte> image = from.many(from.number());
    // No image, no picture: so the system saves an object without one.
    if (kind == SettingsKind::plain || image.empty())
        return {};
    return loadOlePicture(image, freeSettingsPixels);
}

} // namespace

SettingsKind settingsKindOf(StringView key) {
    for (const Key& known : objectKeys)
        if (sameName(known.name, key))
            return known.kind;
    return SettingsKind::plain;
}

bool isSavedObject(const Variant& value) {
    if (const FontRef* font = value.as<FontRef>())
        return *font != nullptr;
    const PictureRef* picture = value.as<PictureRef>();
    return picture != nullptr && *picture != nullptr && !(*picture)->bitmap().pixels.empty();
}

void saveSettingsObject(SettingsWriter& to, const Variant& value) {
    if (const FontRef* font = value.as<FontRef>())
        saveFont(to, *font);
    else
        savePicture(to, **value.as<PictureRef>());
}

Variant loadSettingsObject(SettingsReader& from, SettingsKind kind) {
    const auto named = from.plain<GUID>();
    const bool isFont = IsEqualGUID(named, fontClass) != FALSE;
    if (!isFont && !IsEqualGUID(named, pictureClass))
        SettingsReader::refuse();
    if (kind != SettingsKind::plain && isFont != (kind == SettingsKind::font))
        SettingsReader::refuse();
    try {
        return isFont ? loadFont(from, kind) : loadSettingsPicture(from, kind);
    } catch (const RuntimeError& error) {
        if (error.number() == ErrorNumber::outOfMemory)
            throw;
        SettingsReader::refuse();
    }
}

} // namespace lumtex::win32
