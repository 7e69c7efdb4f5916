/// The `About` of the control, its bars and its tips: one form, shown in three ways.
#include "model/list_view.h"
#include "scroll/scroll_bar.h"
#include "services/about_box.h"
#include "services/procedure.h"
#include "services/qi.h"

namespace lumtex {

// Whoever shows the form holds it, and the form itself is held while it is open: what it lets in may destroy
// the one who asked for it, so nothing of the caller is touched afterwards.

void lmListView::About() {
    Procedure p = procedure(u"About");
    p.step([&] {
        const auto form = LumtexAbout::of(world_);
        about_ = form;
        form->Show(LumtexAbout::Mode::modal);
    });
}

void ScrollBar::About() {
    Procedure p = procedure(u"About");
    p.step([&] {
        about_ = LumtexAbout::of(world_);
        about_->Show();
    });
}

void QI::About() {
    Procedure p = procedure(u"About");
    p.step([&] {
        const auto form = LumtexAbout::of(world_);
        about_ = form;
        form->Show();
        form->Hide();
        form->Show(LumtexAbout::Mode::modal);
    });
}

} // namespace lumtex
