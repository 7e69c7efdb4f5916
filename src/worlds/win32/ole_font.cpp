#include "worlds/win32/ole_font.h"

#include "worlds/win32/named_font.h"
#include "worlds/win32/object_pairs.h"
#include "worlds/win32/owned.h"
#include "worlds/win32/property_sink.h"

#include <algorithm>
#include <cmath>

namespace lumtex::win32 {

namespace {

/// Sizes of font objects are counted in these parts of a point.
constexpr Double partsOfAPoint = 10000;
constexpr Double largestSize = 100000; // points; keeps what a host may have set within the count

ObjectPairs<Font, IFontDisp>& pairs() {
    static ObjectPairs<Font, IFontDisp> all;
    return all;
}

void readName(IFont* font, FontSpec& spec) {
    OwnedBSTR name;
    if (SUCCEEDED(font->get_Name(name.out())))
        spec.Name = textOf(name.get(), SysStringLen(name.get()));
}

void readSize(IFont* font, FontSpec& spec) {
    CY size{};
    if (SUCCEEDED(font->get_Size(&size)))
        spec.Size = static_cast<Single>(static_cast<Double>(size.int64) / partsOfAPoint);
}

struct Switch {
    DISPID property;
    HRESULT (STDMETHODCALLTYPE IFont::*get)(BOOL*);
    bool FontSpec::*attribute;
};
constexpr Switch switches[] = {
    {DISPID_FONT_BOLD, &IFont::get_Bold, &FontSpec::Bold},
    {DISPID_FONT_WEIGHT, &IFont::get_Bold, &FontSpec::Bold},
    {DISPID_FONT_ITALIC, &IFont::get_Italic, &FontSpec::Italic},
    {DISPID_FONT_UNDER, &IFont::get_Underline, &FontSpec::Underline},
    {DISPID_FONT_STRIKE, &IFont::get_Strikethrough, &FontSpec::Strikethrough},
};

/// One attribute, or all where the number names none: a font object tells the face and size that it found,
/// which may be others than those that were asked for, so what did not change is not read again. What cannot
/// be read keeps its value.
void readAttribute(IFont* font, DISPID property, FontSpec& spec) {
    const bool all = property == DISPID_UNKNOWN;
    if (all || property == DISPID_FONT_NAME)
        readName(font, spec);
    if (all || property == DISPID_FONT_SIZE)
        readSize(font, spec);
    for (const Switch& one : switches) {
        BOOL value = FALSE;
        if ((all || property == one.property) && SUCCEEDED((font->*one.get)(&value)))
            spec.*one.attribute = value != FALSE;
    }
}

FontSpec attributesOf(IFont* font) {
    FontSpec spec;
    readAttribute(font, DISPID_UNKNOWN, spec);
    return spec;
}

/// A host's font object, which it keeps alive.
class OleFont final : public Font {
  public:
    explicit OleFont(ComRef<IFont> font)
        : Font(attributesOf(font.get())), font_(std::move(font)), identity_(queryFor<IUnknown>(font_.get())),
          sink_(PropertySink::make([this](DISPID property) { readAttribute(font_.get(), property, spec); },
                                   {})),
          listening_(sink_->listenTo(font_.get(), cookie_)) {}
    ~OleFont() override {
        sink_->silence();
        if (listening_)
            PropertySink::stopListening(font_.get(), cookie_);
        pairs().forget(identity_.get(), this);
    }
    OleFont(const OleFont&) = delete;
    OleFont& operator=(const OleFont&) = delete;

    std::shared_ptr<Font> Clone() const override;

    IFont* object() const { return font_.get(); }
    IUnknown* identity() const { return identity_.get(); }

  private:
    ComRef<IFont> font_;
    ComRef<IUnknown> identity_;
    DWORD cookie_ = 0;
    ComRef<PropertySink> sink_;
    bool listening_;
};

FontRef entered(ComRef<IFont> font) {
    auto made = std::make_shared<OleFont>(std::move(font));
    pairs().enterOurs(made->identity(), made);
    return made;
}

std::shared_ptr<Font> OleFont::Clone() const {
    ComRef<IFont> copy;
    if (FAILED(font_->Clone(copy.out())) || !copy)
        return std::make_shared<Font>(spec);
    return entered(std::move(copy));
}

ComRef<IFontDisp> makeObject(const FontSpec& spec, NamedFontClient client) {
    // Written so that what is not a number becomes 0.
    const Double size = spec.Size > 0 ? std::min<Double>(spec.Size, largestSize) : 0;
    String name = spec.Name;
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = wide(name.data());
    description.cySize.int64 = std::llround(size * partsOfAPoint);
    description.sWeight = spec.Bold ? FW_BOLD : FW_NORMAL;
    description.sCharset = DEFAULT_CHARSET;
    description.fItalic = spec.Italic ? TRUE : FALSE;
    description.fUnderline = spec.Underline ? TRUE : FALSE;
    description.fStrikethrough = spec.Strikethrough ? TRUE : FALSE;
    return makeNamedFont(description, std::move(client));
}

} // namespace

FontRef fontFrom(IFontDisp* font) {
    const ComRef<IUnknown> identity = queryFor<IUnknown>(font);
    if (!identity)
        return nullptr;
    if (FontRef known = pairs().oursFor(identity.get()))
        return known;
    ComRef<IFont> attributes = queryFor<IFont>(font);
    return attributes ? entered(std::move(attributes)) : nullptr;
}

ComRef<IFontDisp> toIFont(const FontRef& font) {
    if (!font)
        return {};
    if (const auto* hosts = dynamic_cast<const OleFont*>(font.get()))
        return queryFor<IFontDisp>(hosts->object());
    if (ComRef<IFontDisp> known = pairs().theirsFor(font.get()))
        return known;
    // The object keeps the font alive for the host.
    ComRef<IFontDisp> made = makeObject(
        font->spec,
        {.onChanged = [font](IFont* object, DISPID property) { readAttribute(object, property, font->spec); },
         .onGone = [font](IUnknown* identity) { pairs().forget(identity, font.get()); }});
    pairs().enterOurs(made.as<IUnknown>().get(), font);
    pairs().enterTheirs(font.get(), made.get());
    return made;
}

} // namespace lumtex::win32
