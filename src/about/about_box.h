/// \file
/// The form with name, version and maker of the component.
#pragma once

#include "about/about_artwork.h"
#include "platform/world.h"
#include "values/geometry.h"

#include <array>
#include <memory>

namespace lumtex::about {

/// A form without a frame in the middle of the screen. A click on it closes it; the link and the help button
/// open what they name; F1 is the help button.
///
/// Reports nothing itself: Show() throws, and an answer to the user that fails leaves the rest undone.
class LumtexAbout final : public UserControl {
  public:
    enum class Mode : Byte { modeless, modal };

    /// The graphical children of the form, lowest first.
    enum Control : Byte { form, imgText1, lblKomponente, lblAutor, lblLink, imgHelp, controlCount };

    explicit LumtexAbout(World& world);

    /// The one form of a world, which lives as long as anybody holds it.
    static std::shared_ptr<LumtexAbout> of(World& world);

    /// Loads the form unless it is loaded, and shows it. A modal one returns after it was closed; a form that
    /// is modal already only comes to the front.
    void Show(Mode mode = Mode::modeless);
    void Hide();

    bool Visible() const { return window_->Visible(); }
    Window& window() { return *window_; }
    /// Where a child lies, in pixels of the form.
    const Rect& place(Control control) const { return places_[control]; }

    void UserControl_MouseDown(Integer Button, Integer Shift, Single X, Single Y) override;
    void UserControl_MouseMove(Integer Button, Integer Shift, Single X, Single Y) override;
    void UserControl_MouseUp(Integer Button, Integer Shift, Single X, Single Y) override;
    void UserControl_Click() override;
    void UserControl_KeyDown(Integer KeyCode, Integer Shift) override;

  private:
    void load();
    void unload();
    void placeControls();
    void paint();
    Control controlAt(Single x, Single y) const;
    void openLink();
    void openHelp();

    World& world_;
    AboutArtwork artwork_ = AboutArtwork::standard();
    std::unique_ptr<Window> window_;
    bool loaded_ = false;
    bool hidden_ = false; ///< by `Hide`, not by the desktop
    bool modal_ = false;
    Control pressed_ = form;
    Control released_ = form;
    std::array<String, controlCount> captions_;
    std::array<Rect, controlCount> places_{};
};

} // namespace lumtex::about
