/// Which interface is which.
#include "activex/list_control.h"

#include "activex/guid.h"

namespace lumtex::win32 {

ListControl::ListControl(IUnknown* outer)
    : inner_(*this), outer_(outer != nullptr ? *outer : inner_), connections_(outer_, *this),
      core_(outer_, connections_), automation_(outer_, core_), object_(outer_, *this),
      control_(outer_, core_), inPlace_(outer_, core_), active_(outer_, core_), view_(outer_, core_),
      data_(outer_, core_), bag_(outer_, core_), stream_(outer_, core_), storage_(outer_, core_),
      classInfo_(outer_), quick_(outer_, *this), errorInfo_(outer_, guidOf("_lmListView")), pages_(outer_),
      browsing_(outer_, core_), categories_(outer_) {}

HRESULT ListControl::Inner::QueryInterface(REFIID iid, void** found) {
    if (found == nullptr)
        return E_POINTER;
    *found = nullptr;
    if (IsEqualIID(iid, IID_IUnknown)) {
        AddRef();
        *found = static_cast<IUnknown*>(this);
        return S_OK;
    }
    IUnknown* const face = control_.face(iid);
    if (face == nullptr)
        return E_NOINTERFACE;
    face->AddRef();
    *found = face;
    return S_OK;
}

ULONG ListControl::Inner::Release() {
    const ULONG left = --references_;
    if (left == 0) {
        // What is let go at the end may ask for the control once more.
        references_ = 1;
        if (control_.core_.onOwnThread())
            end(&control_);
        else
            // Where that thread has gone, with its windows and its counts, nobody may take the rest apart.
            control_.core_.postToOwnThread(&ListControl::end, &control_);
    }
    return left;
}

void ListControl::end(void* control) {
    auto* const self = static_cast<ListControl*>(control);
    self->core_.deactivate();
    delete self;
}

/// Each face derives from one interface alone, so that all of its pointers are one.
IUnknown* ListControl::face(REFIID iid) {
    struct Entry {
        const GUID& iid;
        IUnknown& face;
    };
    static constexpr GUID ownInterface = guidOf("_lmListView");
    const Entry entries[] = {
        {IID_IDispatch, automation_},
        {ownInterface, automation_},
        {IID_IOleObject, object_},
        {IID_IOleControl, control_},
        {IID_IOleWindow, inPlace_},
        {IID_IOleInPlaceObject, inPlace_},
        {IID_IOleInPlaceActiveObject, active_},
        {IID_IViewObject, view_},
        {IID_IViewObject2, view_},
        {IID_IDataObject, data_},
        {IID_IPersist, stream_},
        {IID_IPersistPropertyBag, bag_},
        {IID_IPersistStreamInit, stream_},
        {IID_IPersistStorage, storage_},
        {IID_IProvideClassInfo, classInfo_},
        {IID_IProvideClassInfo2, classInfo_},
        {IID_IConnectionPointContainer, connections_},
        {IID_IQuickActivate, quick_},
        {IID_ISupportErrorInfo, errorInfo_},
        {IID_ISpecifyPropertyPages, pages_},
        {IID_IPerPropertyBrowsing, browsing_},
        {ICategorizeProperties::interfaceId, categories_},
    };
    for (const Entry& entry : entries)
        if (IsEqualIID(iid, entry.iid))
            return &entry.face;
    return nullptr;
}

} // namespace lumtex::win32
