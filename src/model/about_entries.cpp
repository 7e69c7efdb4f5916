/// The `About` of the control, its bars and its tips: one form, shown in three ways.
#include "about/about_box.h"
#include "bars/scroll_bar.h"
#include "guards/procedure.h"
#include "model/list_view.h"
#include "tips/qi.h"

namespace lumtex {

// Whoever shows the form holds it, and the form itself is held while it is open: what it lets in may destroy
// the one who asked for it, so nothing of the caller is touched afterwards.

void lmListView::About() {
    Procedure p = procedure(u"About");
    p.step([&] {
        const auto form = about::LumtexAbout::of(world());
        about_ = form;
        form->Show(about::LumtexAbout::Mode::modal);
    });
}

void bars::ScrollBar::About() {
    Procedure p = procedure(u"About");
    p.step([&] {
        about_ = about::LumtexAbout::of(world_);
        about_->Show();
    });
}

void tips::QI::About() {
    Procedure p = procedure(u"About");
    p.step([&] {
        const auto form = about::LumtexAbout::of(world_);
        about_ = form;
        form->Show();
        form->Hide();
        form->Show(about::LumtexAbout::Mode::modal);
    });
}

} // namespace lumtex
