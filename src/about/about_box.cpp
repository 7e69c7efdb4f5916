#include "about/about_box.h"

#include "guards/failure_of.h"
#include "values/color.h"
#include "values/date_text.h"
#include "values/rounding.h"
#include "values/version.h"

namespace lumtex::about {

namespace {

constexpr Integer helpKey = 112; // F1

constexpr StringView settingsKey = u"SOFTWARE\\Lumtex";
constexpr StringView applicationsSetting = u"ApplicationsPath";
constexpr StringView helpFolder = u"LumtexHelp\\";
constexpr StringView helpProgram = u"LumtexHelp.exe";

/// How a label looks and where it begins, in pixels of the background picture.
struct LabelForm {
    LumtexAbout::Control label;
    Single left;
    Single top;
    Single points;
    bool bold;
    bool underline;
    OLE_COLOR color;
};
constexpr LabelForm labels[] = {
    {LumtexAbout::lblKomponente, 29, 98, 10, true, false, white},
    {LumtexAbout::lblAutor, 29, 230, 8, false, false, 0x5A3A20},
    {LumtexAbout::lblLink, 29, 252, 8, false, true, 0xC05A10},
};

struct PictureForm {
    LumtexAbout::Control control;
    PictureRef AboutArtwork::*picture;
    Single left;
    Single top;
};
constexpr PictureForm pictures[] = {
    {LumtexAbout::imgText1, &AboutArtwork::title, 24, 44},
    {LumtexAbout::imgHelp, &AboutArtwork::help, 412, 237},
};

FontSpec fontOf(const LabelForm& label) {
    return {.Name = u"Tahoma",
            .Size = label.points,
            .Bold = label.bold,
            .Italic = false,
            .Underline = label.underline,
            .Strikethrough = false};
}

String numberText(Long number) {
    return Variant(number).toText();
}

String versionText(const ComponentInfo& component) {
    return String(componentName) + u" v" + numberText(component.major) + u"." + numberText(component.minor) +
           u"." + numberText(component.revision);
}

String creditText(const SystemLocale& locale) {
    return u"Copyright © Lumtex " + numberText(yearOf(locale.now()));
}

bool isInside(const Rect& place, Single x, Single y) {
    return x >= static_cast<Single>(place.Left) && x < static_cast<Single>(place.Right) &&
           y >= static_cast<Single>(place.Top) && y < static_cast<Single>(place.Bottom);
}

Point sizeOf(const Picture& picture, const Surface& surface) {
    return {roundToLong(scaleX(surface, picture.Width(), Unit::himetric, Unit::pixels)),
            roundToLong(scaleY(surface, picture.Height(), Unit::himetric, Unit::pixels))};
}

} // namespace

LumtexAbout::LumtexAbout(World& world) : world_(world), window_(world.createForm(*this)) {}

std::shared_ptr<LumtexAbout> LumtexAbout::of(World& world) {
    if (const std::shared_ptr<void> held = world.aboutForm.lock())
        return std::static_pointer_cast<LumtexAbout>(held);
    auto made = std::make_shared<LumtexAbout>(world);
    world.aboutForm = made;
    return made;
}

void LumtexAbout::Show(Mode mode) {
    // One that is neither shown nor hidden by us was closed by the desktop, and that unloads a form.
    const bool closed = !window_->Visible() && !hidden_;
    if (!loaded_ || closed)
        load();
    hidden_ = false;
    if (mode == Mode::modeless || modal_) {
        window_->letVisible(true);
        window_->setFocus();
        return;
    }
    modal_ = true;
    const auto failure = failureOf([&] { world_.showModal(*window_); });
    modal_ = false;
    unload();
    if (failure)
        throw RuntimeError(*failure);
}

void LumtexAbout::Hide() {
    hidden_ = true;
    window_->letVisible(false);
}

void LumtexAbout::load() {
    const Point screen = world_.screenSize();
    const Point size = sizeOf(*artwork_.background, window_->surface());
    const Point corner{(screen.x - size.x) / 2, (screen.y - size.y) / 2};
    window_->place(static_cast<Single>(corner.x),
                   static_cast<Single>(corner.y),
                   static_cast<Single>(size.x),
                   static_cast<Single>(size.y));
    Runtime& runtime = world_.runtime();
    captions_[lblKomponente] = versionText(runtime.program().component());
    captions_[lblAutor] = creditText(runtime.locale());
    captions_[lblLink] = makersLink;
    placeControls();
    paint();
    loaded_ = true;
}

void LumtexAbout::unload() {
    loaded_ = false;
    Hide();
}

void LumtexAbout::placeControls() {
    Surface& surface = window_->surface();
    // A finer screen shows the background larger than it is drawn.
    const Bitmap& drawn = artwork_.background->bitmap();
    const auto across = [&](Single x) {
        return roundToLong(x * window_->Width() / static_cast<Single>(drawn.width));
    };
    const auto down = [&](Single y) {
        return roundToLong(y * window_->Height() / static_cast<Single>(drawn.height));
    };
    for (const PictureForm& entry : pictures) {
        const Point size = sizeOf(*(artwork_.*entry.picture), surface);
        const Point at{across(entry.left), down(entry.top)};
        places_[entry.control] = {at.x, at.y, at.x + size.x, at.y + size.y};
    }
    for (const LabelForm& entry : labels) {
        surface.setFont(fontOf(entry));
        const String& caption = captions_[entry.label];
        const Point at{across(entry.left), down(entry.top)};
        places_[entry.label] = {at.x,
                                at.y,
                                at.x + roundToLong(surface.textWidth(caption)),
                                at.y + roundToLong(surface.textHeight(caption))};
    }
}

void LumtexAbout::paint() {
    Surface& surface = window_->surface();
    surface.paintPicture(*artwork_.background, 0, 0, window_->Width(), window_->Height());
    for (const PictureForm& entry : pictures) {
        const Rect& at = places_[entry.control];
        surface.paintPicture(*(artwork_.*entry.picture),
                             static_cast<Single>(at.Left),
                             static_cast<Single>(at.Top),
                             static_cast<Single>(at.Right - at.Left),
                             static_cast<Single>(at.Bottom - at.Top));
    }
    for (const LabelForm& entry : labels) {
        surface.setFont(fontOf(entry));
        surface.letForeColor(entry.color);
        surface.print(static_cast<Single>(places_[entry.label].Left),
                      static_cast<Single>(places_[entry.label].Top),
                      captions_[entry.label]);
    }
    window_->present();
}

LumtexAbout::Control LumtexAbout::controlAt(Single x, Single y) const {
    for (Byte control = controlCount - 1; control > form; --control) {
        if (isInside(places_[control], x, y))
            return static_cast<Control>(control);
    }
    return form;
}

void LumtexAbout::UserControl_MouseDown(Integer /*Button*/, Integer /*Shift*/, Single X, Single Y) {
    pressed_ = controlAt(X, Y);
}

void LumtexAbout::UserControl_MouseUp(Integer /*Button*/, Integer /*Shift*/, Single X, Single Y) {
    released_ = controlAt(X, Y);
}

void LumtexAbout::UserControl_MouseMove(Integer /*Button*/, Integer /*Shift*/, Single X, Single Y) {
    const Control under = controlAt(X, Y);
    const bool opens = under == lblLink || under == imgHelp;
    window_->setMouseIcon(opens ? artwork_.hand : nullptr);
    window_->letMousePointer(opens ? CursorShape::custom : CursorShape::standard);
}

void LumtexAbout::UserControl_Click() {
    if (pressed_ != released_)
        return;
    switch (pressed_) {
    case form:
    case imgText1:
        unload();
        break;
    case lblLink:
        ignoringErrors([&] { openLink(); });
        break;
    case imgHelp:
        ignoringErrors([&] { openHelp(); });
        break;
    default:
        break;
    }
}

void LumtexAbout::UserControl_KeyDown(Integer KeyCode, Integer /*Shift*/) {
    if (KeyCode == helpKey)
        ignoringErrors([&] { openHelp(); });
}

void LumtexAbout::openHelp() {
    Runtime& runtime = world_.runtime();
    // Reading a value that is not there fails, and there the click ends.
    std::optional<String> folder = runtime.settings().readOnlyText(settingsKey, applicationsSetting);
    if (!folder)
        return;
    if (!folder->ends_with(u'\\'))
        *folder += u'\\';
    *folder += helpFolder;
    runtime.desktop().open({.window = window_->hWnd(),
                            .file = *folder + String(helpProgram),
                            .parameters = u"/" + String(componentName),
                            .folder = *folder,
                            .maximised = true});
}

void LumtexAbout::openLink() {
    Runtime& runtime = world_.runtime();
    runtime.desktop().open({.window = window_->hWnd(),
                            .file = captions_[lblLink],
                            .parameters = {},
                            .folder = runtime.program().component().folder,
                            .maximised = false});
}

} // namespace lumtex::about
