/// Class information, connection points, quick activation.
#include "activex/class_faces.h"

#include "activex/com_guard.h"
#include "activex/guid.h"
#include "activex/list_control.h"
#include "activex/module.h"
#include "activex/snapshot_enum.h"

namespace lumtex::win32 {

namespace {

struct PointPolicy {
    static void copy(IConnectionPoint*& to, IConnectionPoint* from) {
        to = from;
        to->AddRef();
    }
    static void clear(IConnectionPoint*& item) { item->Release(); }
};

} // namespace

HRESULT ClassInfoFace::GetClassInfo(ITypeInfo** info) {
    if (info == nullptr)
        return E_POINTER;
    *info = nullptr;
    return guarded([&] {
        *info = typeInfoOf(guidOf("lmListView")).detach();
        return S_OK;
    });
}

HRESULT ClassInfoFace::GetGUID(DWORD kind, GUID* guid) {
    if (guid == nullptr)
        return E_POINTER;
    *guid = GUID_NULL;
    if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID)
        return E_INVALIDARG;
    *guid = guidOf("__lmListView");
    return S_OK;
}

HRESULT ConnectionsFace::EnumConnectionPoints(IEnumConnectionPoints** points) {
    if (points == nullptr)
        return E_POINTER;
    *points = nullptr;
    return control_.core().entered([&] {
        std::vector<IConnectionPoint*> items(2);
        PointPolicy::copy(items[0], &control_.core().eventPoint());
        PointPolicy::copy(items[1], &control_.core().notifyPoint());
        *points = new SnapshotEnum<IEnumConnectionPoints, IConnectionPoint*, PointPolicy>(std::move(items));
        return S_OK;
    });
}

HRESULT ConnectionsFace::FindConnectionPoint(REFIID iid, IConnectionPoint** point) {
    if (point == nullptr)
        return E_POINTER;
    *point = nullptr;
    for (ConnectionPoint* own : {&control_.core().eventPoint(), &control_.core().notifyPoint()})
        if (IsEqualIID(iid, own->interfaceId())) {
            *point = own;
            own->AddRef();
            return S_OK;
        }
    return CONNECT_E_NOCONNECTION;
}

HRESULT QuickFace::QuickActivate(QACONTAINER* container, QACONTROL* control) {
    if (container == nullptr || control == nullptr)
        return E_POINTER;
    if (container->cbSize < sizeof(QACONTAINER) || control->cbSize < sizeof(QACONTROL))
        return E_INVALIDARG;
    return control_.core().entered([&] {
        ControlCore& core = control_.core();
        const DWORD size = control->cbSize;
        *control = {};
        control->cbSize = size;
        if (container->pClientSite != nullptr)
            core.setSite(container->pClientSite);
        if (container->pAdviseSink != nullptr)
            control_.view().SetAdvise(DVASPECT_CONTENT, 0, container->pAdviseSink);
        if (container->pUnkEventSink != nullptr)
            core.eventPoint().Advise(container->pUnkEventSink, &control->dwEventCookie);
        if (container->pPropertyNotifySink != nullptr)
            core.notifyPoint().Advise(container->pPropertyNotifySink, &control->dwPropNotifyCookie);
        control->dwMiscStatus = controlMiscStatus;
        control->dwViewStatus = VIEWSTATUS_OPAQUE;
        return S_OK;
    });
}

HRESULT QuickFace::SetContentExtent(LPSIZEL extent) {
    return control_.object().SetExtent(DVASPECT_CONTENT, extent);
}

HRESULT QuickFace::GetContentExtent(LPSIZEL extent) {
    return control_.object().GetExtent(DVASPECT_CONTENT, extent);
}

} // namespace lumtex::win32
