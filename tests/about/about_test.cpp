#include "about/about_box.h"
#include "list_fixture.h"
#include "log_comparison.h"
#include "picture_check.h"
#include "recording_world.h"
#include "tips/qi.h"
#include "values/version.h"
#include "worlds/headless/desktop.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

using Control = about::LumtexAbout::Control;

class About : public ::testing::Test {
  protected:
    About() {
        runtime.componentInfo = {u"LumtexListView", u"C:\\Components", 1, 2, 34};
        runtime.clock = Date{46347.5}; // 2026-11-21
    }

    about::LumtexAbout& shown() {
        form->Show();
        return *form;
    }
    headless::HeadlessWindow& window() { return static_cast<RecordingWindow&>(shown().window()).inner(); }
    /// The three labels as they were written last: the name, the credit line, the link.
    static std::vector<std::string> written(about::LumtexAbout& form) {
        std::vector<std::string> labels =
            static_cast<RecordingWindow&>(form.window()).recorder().lines("Print ");
        labels.erase(labels.begin(), labels.end() - std::min<std::ptrdiff_t>(3, std::ssize(labels)));
        for (std::string& label : labels)
            label = label.substr(label.find(' ', label.find(',')) + 1);
        return labels;
    }
    std::string creditLine() { return written(shown()).at(1); }
    /// The middle of a child, clicked.
    void click(Control control) {
        const Rect& place = form->place(control);
        desktop.click(form->window(),
                      static_cast<Single>(place.Left + place.Right) / 2,
                      static_cast<Single>(place.Top + place.Bottom) / 2);
    }
    void letApplicationsPath(StringView path) {
        runtime.letSetting(u"SOFTWARE\\Lumtex", u"ApplicationsPath", path);
    }

    headless::Desktop desktop{testFonts()};
    headless::HeadlessRuntime& runtime = desktop.runtime();
    RecordingWorld world{desktop};
    std::shared_ptr<about::LumtexAbout> form = about::LumtexAbout::of(world);
};

TEST_F(About, LooksLikeThis) {
    EXPECT_TRUE(showsPicture("about", desktop.screenshot(window())));
}

TEST_F(About, HasTheSizeOfItsBackgroundInTheMiddleOfTheScreen) {
    const Bitmap& background = about::AboutArtwork::standard().background->bitmap();
    const Window& window = shown().window();
    EXPECT_EQ(window.Width(), static_cast<Single>(background.width));
    EXPECT_EQ(window.Height(), static_cast<Single>(background.height));
    EXPECT_EQ(window.Left(), (1024 - window.Width()) / 2);
    EXPECT_EQ(window.Top(), (768 - window.Height()) / 2);
}

TEST_F(About, TellsNameAndVersion) {
    EXPECT_EQ(written(shown()).at(0), "LumtexListView v1.2.34");
}

TEST_F(About, NameAndVersionAreThoseOfTheTree) {
    headless::Desktop fresh(testFonts());
    RecordingWorld around(fresh);
    const auto other = about::LumtexAbout::of(around);
    other->Show();
    EXPECT_EQ(written(*other).at(0),
              "LumtexListView v" + std::to_string(versionMajor) + "." + std::to_string(versionMinor) + "." +
                  std::to_string(versionRevision));
}

TEST_F(About, TheCreditLineEndsWithTheCurrentYear) {
    EXPECT_EQ(creditLine(), "Copyright © Lumtex 2026");
    click(Control::imgText1);
    runtime.clock = Date{46387.99}; // the last minutes of 2026-12-31
    EXPECT_EQ(creditLine(), "Copyright © Lumtex 2026");
    click(Control::imgText1);
    desktop.advance(std::chrono::hours(1));
    EXPECT_EQ(creditLine(), "Copyright © Lumtex 2027");
}

TEST_F(About, TheLinkHoldsTheAddress) {
    EXPECT_EQ(written(shown()).at(2), toUtf8(makersLink));
}

TEST_F(About, AClickOnTheFormCloses) {
    desktop.click(shown().window(), 200, 150);
    EXPECT_FALSE(form->Visible());
    EXPECT_TRUE(runtime.opened.empty());
}

TEST_F(About, AClickOnTheTitleCloses) {
    shown();
    click(Control::imgText1);
    EXPECT_FALSE(form->Visible());
}

TEST_F(About, AClickOnNameOrCreditDoesNothing) {
    shown();
    for (const Control label : {Control::lblKomponente, Control::lblAutor}) {
        click(label);
        EXPECT_TRUE(form->Visible());
    }
    EXPECT_TRUE(runtime.opened.empty());
}

TEST_F(About, APressThatIsReleasedOverSomethingElseIsNoClick) {
    shown();
    const Rect& link = form->place(Control::lblLink);
    desktop.press(form->window(), 200, 150);
    desktop.move(form->window(), static_cast<Single>(link.Left + 2), static_cast<Single>(link.Top + 2));
    desktop.release();
    EXPECT_TRUE(form->Visible());
    EXPECT_TRUE(runtime.opened.empty());
}

TEST_F(About, OverLinkAndHelpThePointerIsAHand) {
    headless::HeadlessWindow& window = this->window();
    for (const Control control : {Control::lblLink, Control::imgHelp}) {
        const Rect& place = form->place(control);
        desktop.move(window, static_cast<Single>(place.Left), static_cast<Single>(place.Top));
        EXPECT_EQ(window.MousePointer(), CursorShape::custom);
        EXPECT_EQ(window.MouseIcon(), about::AboutArtwork::standard().hand);
        desktop.move(window, static_cast<Single>(place.Right), static_cast<Single>(place.Bottom));
        EXPECT_EQ(window.MousePointer(), CursorShape::standard);
        EXPECT_EQ(window.MouseIcon(), nullptr);
    }
}

TEST_F(About, AClickOnTheLinkOpensItsCaption) {
    shown();
    click(Control::lblLink);
    ASSERT_EQ(runtime.opened.size(), 1U);
    const OpenRequest& request = runtime.opened[0];
    EXPECT_EQ(request.window, form->window().hWnd());
    EXPECT_EQ(toUtf8(request.file), written(*form).at(2));
    EXPECT_EQ(request.parameters, u"");
    EXPECT_EQ(request.folder, u"C:\\Components");
    EXPECT_FALSE(request.maximised);
    EXPECT_TRUE(form->Visible());
}

TEST_F(About, AClickOnHelpOpensTheHelpProgramMaximised) {
    letApplicationsPath(u"C:\\Apps");
    shown();
    click(Control::imgHelp);
    ASSERT_EQ(runtime.opened.size(), 1U);
    const OpenRequest& request = runtime.opened[0];
    EXPECT_EQ(request.window, form->window().hWnd());
    EXPECT_EQ(request.file, u"C:\\Apps\\LumtexHelp\\LumtexHelp.exe");
    EXPECT_EQ(request.parameters, u"/LumtexListView");
    EXPECT_EQ(request.folder, u"C:\\Apps\\LumtexHelp\\");
    EXPECT_TRUE(request.maximised);
    EXPECT_TRUE(form->Visible());
}

TEST_F(About, AFolderOfApplicationsWithAClosingBackslashGetsNoSecond) {
    letApplicationsPath(u"C:\\Apps\\");
    shown();
    click(Control::imgHelp);
    ASSERT_EQ(runtime.opened.size(), 1U);
    EXPECT_EQ(runtime.opened[0].file, u"C:\\Apps\\LumtexHelp\\LumtexHelp.exe");
}

TEST_F(About, WithoutAFolderOfApplicationsHelpDoesNothing) {
    shown();
    click(Control::imgHelp);
    EXPECT_TRUE(runtime.opened.empty());
    EXPECT_TRUE(runtime.boxes.empty());
    EXPECT_TRUE(form->Visible());
}

TEST_F(About, F1ActsAsAClickOnHelp) {
    letApplicationsPath(u"C:\\Apps");
    shown();
    desktop.key(113);
    EXPECT_TRUE(runtime.opened.empty());
    desktop.key(112);
    ASSERT_EQ(runtime.opened.size(), 1U);
    EXPECT_EQ(runtime.opened[0].parameters, u"/LumtexListView");
    EXPECT_TRUE(form->Visible());
}

TEST_F(About, IsOneFormForAllWhoShowIt) {
    EXPECT_EQ(about::LumtexAbout::of(world), form);
    headless::Desktop other(testFonts());
    EXPECT_NE(about::LumtexAbout::of(other), form);
}

TEST_F(About, GoesWithTheLastWhoHoldsIt) {
    const std::weak_ptr<about::LumtexAbout> watched = form;
    shown();
    form.reset();
    EXPECT_TRUE(watched.expired());
    form = about::LumtexAbout::of(world);
    EXPECT_FALSE(form->Visible());
}

/// The four entries, each on a world that notes how forms come and go.
class AboutEntries : public ::testing::Test {
  protected:
    AboutEntries() { list.UserControl_InitProperties(); }

    std::vector<std::string> forms() { return std::exchange(world.forms, {}); }

    headless::Desktop desktop{testFonts()};
    RecordingWorld world{desktop};
    TestHost host;
    RecordingEvents events;
    lmListView list{world, host, events};
    ListViewInspector inside{list};
    tips::QI qi{world};
};

TEST_F(AboutEntries, TheListShowsTheFormModally) {
    std::vector<std::string> log;
    desktop.whileFormIsOpen = [&](Window& window) {
        log.emplace_back(window.Visible() ? "open" : "hidden");
        desktop.click(window, 200, 150);
        log.emplace_back(window.Visible() ? "open" : "hidden");
    };
    list.About();
    EXPECT_TRUE(sameLog(log, {"open", "hidden"}));
    EXPECT_TRUE(sameLog(forms(), {"modal", "hide", "modal end", "hide"}));
    EXPECT_FALSE(about::LumtexAbout::of(world)->Visible());
}

TEST_F(AboutEntries, TheBarsShowTheFormAndReturn) {
    inside.vertical().About();
    const auto form = about::LumtexAbout::of(world);
    EXPECT_TRUE(form->Visible());
    EXPECT_TRUE(sameLog(forms(), {"show"}));
    inside.horizontal().About();
    EXPECT_EQ(about::LumtexAbout::of(world), form);
    EXPECT_TRUE(sameLog(forms(), {"show"}));
    desktop.click(form->window(), 200, 150);
    EXPECT_FALSE(form->Visible());
}

TEST_F(AboutEntries, QiShowsHidesAndShowsModally) {
    qi.About();
    EXPECT_TRUE(sameLog(forms(), {"show", "hide", "modal", "modal end", "hide"}));
}

TEST_F(AboutEntries, AFormThatIsModalAlreadyIsNotShownTwice) {
    int opened = 0;
    desktop.whileFormIsOpen = [&](Window& window) {
        ++opened;
        list.About();
        inside.vertical().About();
        EXPECT_TRUE(window.Visible());
    };
    list.About();
    EXPECT_EQ(opened, 1);
    EXPECT_FALSE(about::LumtexAbout::of(world)->Visible());
}

TEST_F(AboutEntries, AModelessFormBecomesModal) {
    inside.vertical().About();
    forms();
    list.About();
    EXPECT_TRUE(sameLog(forms(), {"modal", "modal end", "hide"}));
}

TEST_F(AboutEntries, AListMayGoWhileItsFormIsOpen) {
    auto doomed = std::make_unique<lmListView>(world, host, events);
    desktop.whileFormIsOpen = [&](Window& window) {
        doomed.reset();
        EXPECT_TRUE(window.Visible());
    };
    doomed->About();
    EXPECT_EQ(doomed, nullptr);
}

TEST_F(AboutEntries, TheWindowsOfAListGoBeforeTheFormThatItHolds) {
    auto doomed = std::make_unique<lmListView>(world, host, events);
    doomed->About();
    doomed.reset();
    EXPECT_TRUE(sameLog(world.ends, {"child", "window", "form"}));
}

TEST_F(AboutEntries, AFormThatCannotBeLoadedIsReportedByTheEntry) {
    desktop.runtime().clock = Date{1e9};
    list.About();
    ASSERT_EQ(desktop.runtime().boxes.size(), 1U);
    const String& text = desktop.runtime().boxes[0].text;
    EXPECT_TRUE(text.starts_with(u"Error no.: 6\r\n"));
    EXPECT_NE(text.find(u"Module: Benutzersteuerelement lmListView\r\nLine/Procedure: 0/About\r\n"),
              String::npos);
    EXPECT_FALSE(about::LumtexAbout::of(world)->Visible());
    inside.vertical().About();
    inside.horizontal().About();
    qi.About();
    constexpr StringView modules[] = {u"Benutzersteuerelement lmListView",
                                      u"Benutzersteuerelement lmVScroll",
                                      u"Benutzersteuerelement lmHScroll",
                                      u"Klassenmodul QI"};
    ASSERT_EQ(desktop.runtime().boxes.size(), std::size(modules));
    for (std::size_t i = 0; i < std::size(modules); ++i)
        EXPECT_NE(desktop.runtime().boxes[i].text.find(modules[i]), String::npos);
}

TEST(AboutPictures, TheBackgroundIsOpaqueAndTheOthersLetItThrough) {
    const about::AboutArtwork artwork = about::AboutArtwork::standard();
    for (const std::uint32_t pixel : artwork.background->bitmap().pixels)
        ASSERT_EQ(pixel >> 24U, 0xFFU);
    for (const PictureRef& picture : {artwork.title, artwork.help, artwork.hand})
        EXPECT_EQ(picture->bitmap().at(0, 0), 0U);
}

TEST(AboutPictures, AreDrawnLikeThis) {
    constexpr Long gap = 4; // pixels
    const about::AboutArtwork artwork = about::AboutArtwork::standard();
    const PictureRef pictures[] = {artwork.background, artwork.title, artwork.help, artwork.hand};
    Long width = 0;
    Long height = gap;
    for (const PictureRef& picture : pictures) {
        width = std::max(width, picture->bitmap().width);
        height += picture->bitmap().height + gap;
    }
    raster::RasterSurface sheet(width, height, testFonts());
    sheet.letBackColor(0x808000);
    Long top = gap;
    for (const PictureRef& picture : pictures) {
        sheet.paintPicture(*picture, 0, static_cast<Single>(top));
        top += picture->bitmap().height + gap;
    }
    EXPECT_TRUE(showsPicture("about-pictures", sheet.image()));
}

TEST(AboutPictures, NoPixelIsBrighterThanItsAlphaAllows) {
    const about::AboutArtwork artwork = about::AboutArtwork::standard();
    for (const PictureRef& picture : {artwork.background, artwork.title, artwork.help, artwork.hand}) {
        for (const std::uint32_t pixel : picture->bitmap().pixels) {
            for (const unsigned shift : {0U, 8U, 16U})
                ASSERT_LE((pixel >> shift) & 0xFFU, pixel >> 24U);
        }
    }
}

TEST_F(About, OneThatTheDesktopClosedLoadsAnew) {
    Window& window = shown().window();
    const Single left = window.Left();
    window.place(0, 0, window.Width(), window.Height());
    window.letVisible(false);
    runtime.clock = Date{46388}; // 2027-01-01
    EXPECT_EQ(shown().window().Left(), left);
    EXPECT_EQ(creditLine(), "Copyright © Lumtex 2027");
}

TEST_F(About, OneThatWasHiddenStaysLoaded) {
    Window& window = shown().window();
    window.place(0, 0, window.Width(), window.Height());
    form->Hide();
    EXPECT_EQ(shown().window().Left(), 0);
}

TEST_F(About, TheFolderOfApplicationsMayBeOfAnyLength) {
    const String folder = u"C:\\" + String(3000, u'x');
    letApplicationsPath(folder);
    shown();
    click(Control::imgHelp);
    ASSERT_EQ(runtime.opened.size(), 1U);
    EXPECT_EQ(runtime.opened[0].folder, folder + u"\\LumtexHelp\\");
}

} // namespace
} // namespace lumtex::testing
