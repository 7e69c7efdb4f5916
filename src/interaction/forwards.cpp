/// Platform events that only go on to the host.
#include "model/list_view.h"

namespace lumtex {

void lmListView::UserControl_Click() {
    events_.Click();
}

} // namespace lumtex
