/// Settings, copied and shown.
#include "activex/settings_preview.h"

#include "activex/list_control.h"

namespace lumtex::win32 {

namespace {

void copySettings(IUnknown* from, const ComRef<IUnknown>& to) {
    const auto saved = queryFor<IPersistStreamInit>(from);
    const auto loading = to.as<IPersistStreamInit>();
    ComRef<IStream> stream;
    if (!saved || FAILED(CreateStreamOnHGlobal(nullptr, TRUE, stream.out())) ||
        FAILED(saved->Save(stream.get(), FALSE)) || FAILED(stream->Seek({}, STREAM_SEEK_SET, nullptr)) ||
        FAILED(loading->Load(stream.get())))
        loading->InitNew();
}

void appendSamples(lmListView& list) {
    list.ColumnsAdd(u"City", nullptr, nullptr, nullptr, cColumnLeft, 1200);
    list.ColumnsAdd(u"Country", nullptr, nullptr, nullptr, cColumnLeft, 1500);
    for (const char16_t* row : {u"Lisbon,Portugal", u"Oslo,Norway", u"Quito,Ecuador"})
        list.RowsAdd(-1, u",", row);
    list.letColumnCheckBoxes(1, true);
    list.letListIndex(1);
}

} // namespace

SettingsPreview::SettingsPreview() : list_(*new ListControl(nullptr)) {
    control_ = ComRef<IUnknown>::adopting(&list_.inner());
}

void SettingsPreview::fill(IUnknown* edited, SIZE size) {
    copySettings(edited, control_);
    lmListView& list = list_.core().list();
    list.window().place(0, 0, static_cast<Single>(size.cx), static_cast<Single>(size.cy));
    // Whatever was saved: what is shown follows each change.
    list.letAutoRedraw(true);
    list.letAutoCheckScroll(true);
    appendSamples(list);
}

void SettingsPreview::let(const automation::Member& property, const Variant& value) {
    list_.core().byName().let(property, {}, value);
}

void SettingsPreview::draw(HDC target, const RECT& bounds) {
    list_.core().draw(target, bounds);
}

} // namespace lumtex::win32
