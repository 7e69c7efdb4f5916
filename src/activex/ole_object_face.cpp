/// Site, verbs and size.
#include "activex/ole_object_face.h"

#include "activex/designer_faces.h"
#include "activex/guid.h"
#include "activex/list_control.h"
#include "activex/snapshot_enum.h"
#include "activex/task_memory.h"

namespace lumtex::win32 {

namespace {

struct VerbPolicy {
    static void copy(OLEVERB& to, const OLEVERB& from) { to = from; }
    static void clear(OLEVERB& /*item*/) {}
};

} // namespace

HRESULT OleObjectFace::SetClientSite(IOleClientSite* site) {
    return control_.core().entered([&] {
        control_.core().setSite(site);
        return S_OK;
    });
}

HRESULT OleObjectFace::GetClientSite(IOleClientSite** site) {
    if (site == nullptr)
        return E_POINTER;
    *site = ComRef<IOleClientSite>(control_.core().host().site()).detach();
    return S_OK;
}

HRESULT OleObjectFace::Close(DWORD saveOption) {
    const ComRef<IUnknown> alive(&outer());
    return control_.core().entered([&] {
        ControlCore& core = control_.core();
        core.deactivate();
        if (saveOption != OLECLOSE_NOSAVE && core.dirty() && core.host().site() != nullptr)
            core.host().site()->SaveObject();
        core.adviseHolder()->SendOnClose();
        return S_OK;
    });
}

HRESULT OleObjectFace::GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) {
    if (moniker == nullptr)
        return E_POINTER;
    *moniker = nullptr;
    IOleClientSite* const site = control_.core().host().site();
    return site != nullptr ? site->GetMoniker(assign, which, moniker) : E_FAIL;
}

HRESULT OleObjectFace::GetClipboardData(DWORD /*reserved*/, IDataObject** data) {
    if (data == nullptr)
        return E_POINTER;
    return outer().QueryInterface(IID_IDataObject, reinterpret_cast<void**>(data));
}

HRESULT OleObjectFace::DoVerb(
    LONG verb, LPMSG /*message*/, IOleClientSite* /*site*/, LONG /*index*/, HWND parent, LPCRECT /*place*/) {
    const ComRef<IUnknown> alive(&outer());
    return control_.core().entered([&]() -> HRESULT {
        ControlCore& core = control_.core();
        switch (verb) {
        case OLEIVERB_INPLACEACTIVATE:
        case OLEIVERB_SHOW:
            return core.activate(false);
        case OLEIVERB_PRIMARY:
        case OLEIVERB_UIACTIVATE:
            return core.activate(true);
        case OLEIVERB_HIDE:
            core.deactivateUI();
            core.list().window().letVisible(false);
            return S_OK;
        case OLEIVERB_PROPERTIES:
            return showProperties(core, parent);
        case OLEIVERB_OPEN:
        case OLEIVERB_DISCARDUNDOSTATE:
            return E_NOTIMPL;
        default:
            break;
        }
        if (verb < 0)
            return E_NOTIMPL;
        // A verb that nobody knows is the primary one.
        const HRESULT done = core.activate(true);
        return SUCCEEDED(done) ? OLEOBJ_S_INVALIDVERB : done;
    });
}

HRESULT OleObjectFace::EnumVerbs(IEnumOLEVERB** verbs) {
    if (verbs == nullptr)
        return E_POINTER;
    *verbs = nullptr;
    return control_.core().entered([&] {
        std::vector<OLEVERB> items;
        for (const LONG verb : {OLEIVERB_PRIMARY,
                                OLEIVERB_SHOW,
                                OLEIVERB_HIDE,
                                OLEIVERB_UIACTIVATE,
                                OLEIVERB_INPLACEACTIVATE,
                                OLEIVERB_PROPERTIES})
            items.push_back({verb, nullptr, 0, 0});
        *verbs = new SnapshotEnum<IEnumOLEVERB, OLEVERB, VerbPolicy>(std::move(items));
        return S_OK;
    });
}

HRESULT OleObjectFace::GetUserClassID(CLSID* id) {
    if (id == nullptr)
        return E_POINTER;
    *id = guidOf("lmListView");
    return S_OK;
}

HRESULT OleObjectFace::GetUserType(DWORD /*form*/, LPOLESTR* type) {
    if (type == nullptr)
        return E_POINTER;
    *type = nullptr;
    return guarded([&] {
        *type = newTaskText(u"LumtexListView.lmListView").release();
        return S_OK;
    });
}

HRESULT OleObjectFace::SetExtent(DWORD aspect, SIZEL* extent) {
    if (extent == nullptr)
        return E_POINTER;
    if (aspect != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    return control_.core().entered([&] {
        // In a window the container's rectangles decide; some containers give other units here.
        if (!control_.core().inPlaceActive())
            control_.core().letExtent(*extent);
        return S_OK;
    });
}

HRESULT OleObjectFace::GetExtent(DWORD aspect, SIZEL* extent) {
    if (extent == nullptr)
        return E_POINTER;
    if (aspect != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    return control_.core().entered([&] {
        *extent = control_.core().extent();
        return S_OK;
    });
}

HRESULT OleObjectFace::Advise(IAdviseSink* sink, DWORD* cookie) {
    if (sink == nullptr || cookie == nullptr)
        return E_POINTER;
    *cookie = 0;
    return control_.core().entered([&] { return control_.core().adviseHolder()->Advise(sink, cookie); });
}

HRESULT OleObjectFace::Unadvise(DWORD cookie) {
    return control_.core().entered([&] { return control_.core().adviseHolder()->Unadvise(cookie); });
}

HRESULT OleObjectFace::EnumAdvise(IEnumSTATDATA** advises) {
    if (advises == nullptr)
        return E_POINTER;
    *advises = nullptr;
    return control_.core().entered([&] { return control_.core().adviseHolder()->EnumAdvise(advises); });
}

HRESULT OleObjectFace::GetMiscStatus(DWORD aspect, DWORD* status) {
    if (status == nullptr)
        return E_POINTER;
    *status = aspect == DVASPECT_CONTENT ? controlMiscStatus : 0;
    return aspect == DVASPECT_CONTENT ? S_OK : DV_E_DVASPECT;
}

} // namespace lumtex::win32
