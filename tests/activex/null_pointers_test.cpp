/// Hosts that pass no place for what they ask for.
#include "placed_control.h"

#include <functional>

namespace lumtex::testing {
namespace {

/// A call with nothing where the control would store something, or read something that it needs.
struct BadCall {
    const char* what;
    std::function<HRESULT(IUnknown* control)> call;
};

template <class Interface, class Call>
BadCall on(const char* what, Call call) {
    return {what, [call](IUnknown* control) {
                const auto face = win32::queryFor<Interface>(control);
                return face ? call(*face.get()) : E_NOINTERFACE;
            }};
}

const std::vector<BadCall>& automationCalls() {
    static const std::vector<BadCall> calls{
        {"IUnknown::QueryInterface",
         [](IUnknown* control) { return control->QueryInterface(IID_IUnknown, nullptr); }},
        on<IDispatch>("IDispatch::QueryInterface",
                      [](auto& face) { return face.QueryInterface(IID_IUnknown, nullptr); }),
        on<IDispatch>("IDispatch::GetTypeInfoCount",
                      [](auto& face) { return face.GetTypeInfoCount(nullptr); }),
        on<IDispatch>("IDispatch::GetTypeInfo", [](auto& face) { return face.GetTypeInfo(0, 0, nullptr); }),
        on<IProvideClassInfo2>("IProvideClassInfo::GetClassInfo",
                               [](auto& face) { return face.GetClassInfo(nullptr); }),
        on<IProvideClassInfo2>(
            "IProvideClassInfo2::GetGUID",
            [](auto& face) { return face.GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, nullptr); }),
        on<IConnectionPointContainer>("EnumConnectionPoints",
                                      [](auto& face) { return face.EnumConnectionPoints(nullptr); }),
        on<IConnectionPointContainer>(
            "FindConnectionPoint",
            [](auto& face) { return face.FindConnectionPoint(IID_IPropertyNotifySink, nullptr); }),
    };
    return calls;
}

template <class Call>
BadCall onPoint(const char* what, Call call) {
    return on<IConnectionPointContainer>(what, [call](auto& face) {
        win32::ComRef<IConnectionPoint> point;
        face.FindConnectionPoint(IID_IPropertyNotifySink, point.out());
        return call(*point.get());
    });
}

const std::vector<BadCall>& connectionCalls() {
    static const std::vector<BadCall> calls{
        onPoint("QueryInterface", [](auto& point) { return point.QueryInterface(IID_IUnknown, nullptr); }),
        onPoint("GetConnectionInterface", [](auto& point) { return point.GetConnectionInterface(nullptr); }),
        onPoint("GetConnectionPointContainer",
                [](auto& point) { return point.GetConnectionPointContainer(nullptr); }),
        onPoint("Advise without a sink",
                [](auto& point) {
                    DWORD cookie = 0;
                    return point.Advise(nullptr, &cookie);
                }),
        onPoint("Advise without a cookie", [](auto& point) { return point.Advise(&point, nullptr); }),
        onPoint("EnumConnections", [](auto& point) { return point.EnumConnections(nullptr); }),
        onPoint("IEnumConnections::Next",
                [](auto& point) {
                    win32::ComRef<IEnumConnections> all;
                    point.EnumConnections(all.out());
                    return all->Next(1, nullptr, nullptr);
                }),
        onPoint("IEnumConnections::Clone",
                [](auto& point) {
                    win32::ComRef<IEnumConnections> all;
                    point.EnumConnections(all.out());
                    return all->Clone(nullptr);
                }),
    };
    return calls;
}

const std::vector<BadCall>& embeddingCalls() {
    static const std::vector<BadCall> calls{
        on<IOleObject>("GetClientSite", [](auto& face) { return face.GetClientSite(nullptr); }),
        on<IOleObject>("GetMoniker", [](auto& face) { return face.GetMoniker(1, 1, nullptr); }),
        on<IOleObject>("GetClipboardData", [](auto& face) { return face.GetClipboardData(0, nullptr); }),
        on<IOleObject>("EnumVerbs", [](auto& face) { return face.EnumVerbs(nullptr); }),
        on<IOleObject>("GetUserClassID", [](auto& face) { return face.GetUserClassID(nullptr); }),
        on<IOleObject>("GetUserType", [](auto& face) { return face.GetUserType(1, nullptr); }),
        on<IOleObject>("SetExtent", [](auto& face) { return face.SetExtent(DVASPECT_CONTENT, nullptr); }),
        on<IOleObject>("GetExtent", [](auto& face) { return face.GetExtent(DVASPECT_CONTENT, nullptr); }),
        on<IOleObject>("Advise", [](auto& face) { return face.Advise(nullptr, nullptr); }),
        on<IOleObject>("Advise without a sink",
                       [](auto& face) {
                           DWORD cookie = 0;
                           return face.Advise(nullptr, &cookie);
                       }),
        on<IOleObject>("EnumAdvise", [](auto& face) { return face.EnumAdvise(nullptr); }),
        on<IOleObject>("GetMiscStatus",
                       [](auto& face) { return face.GetMiscStatus(DVASPECT_CONTENT, nullptr); }),
        on<IOleControl>("GetControlInfo", [](auto& face) { return face.GetControlInfo(nullptr); }),
        on<IOleInPlaceObject>("IOleInPlaceObject::GetWindow",
                              [](auto& face) { return face.GetWindow(nullptr); }),
        on<IOleInPlaceObject>("SetObjectRects",
                              [](auto& face) { return face.SetObjectRects(nullptr, nullptr); }),
        on<IOleInPlaceActiveObject>("IOleInPlaceActiveObject::GetWindow",
                                    [](auto& face) { return face.GetWindow(nullptr); }),
        on<IOleInPlaceActiveObject>("TranslateAccelerator",
                                    [](auto& face) { return face.TranslateAccelerator(nullptr); }),
        on<IQuickActivate>("QuickActivate", [](auto& face) { return face.QuickActivate(nullptr, nullptr); }),
        on<IQuickActivate>("SetContentExtent", [](auto& face) { return face.SetContentExtent(nullptr); }),
        on<IQuickActivate>("GetContentExtent", [](auto& face) { return face.GetContentExtent(nullptr); }),
    };
    return calls;
}

FORMATETC picture{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};

const std::vector<BadCall>& viewCalls() {
    static const std::vector<BadCall> calls{
        on<IViewObject2>("IViewObject2::GetExtent",
                         [](auto& face) { return face.GetExtent(DVASPECT_CONTENT, -1, nullptr, nullptr); }),
        on<IDataObject>("GetData", [](auto& face) { return face.GetData(&picture, nullptr); }),
        on<IDataObject>("GetData without a format",
                        [](auto& face) {
                            STGMEDIUM medium{};
                            return face.GetData(nullptr, &medium);
                        }),
        on<IDataObject>("QueryGetData", [](auto& face) { return face.QueryGetData(nullptr); }),
        on<IDataObject>("GetCanonicalFormatEtc",
                        [](auto& face) { return face.GetCanonicalFormatEtc(&picture, nullptr); }),
        on<IDataObject>("EnumFormatEtc", [](auto& face) { return face.EnumFormatEtc(DATADIR_GET, nullptr); }),
        on<IDataObject>("IEnumFORMATETC::Next",
                        [](auto& face) {
                            win32::ComRef<IEnumFORMATETC> formats;
                            face.EnumFormatEtc(DATADIR_GET, formats.out());
                            return formats->Next(2, &picture, nullptr);
                        }),
        on<IDataObject>("DAdvise",
                        [](auto& face) {
                            DWORD cookie = 0;
                            return face.DAdvise(&picture, 0, nullptr, &cookie);
                        }),
        on<IDataObject>("EnumDAdvise", [](auto& face) { return face.EnumDAdvise(nullptr); }),
    };
    return calls;
}

const std::vector<BadCall>& savingCalls() {
    static const std::vector<BadCall> calls{
        on<IPersist>("IPersist::GetClassID", [](auto& face) { return face.GetClassID(nullptr); }),
        on<IPersistPropertyBag>("IPersistPropertyBag::GetClassID",
                                [](auto& face) { return face.GetClassID(nullptr); }),
        on<IPersistPropertyBag>("IPersistPropertyBag::Load",
                                [](auto& face) { return face.Load(nullptr, nullptr); }),
        on<IPersistPropertyBag>("IPersistPropertyBag::Save",
                                [](auto& face) { return face.Save(nullptr, TRUE, TRUE); }),
        on<IPersistStreamInit>("IPersistStreamInit::GetClassID",
                               [](auto& face) { return face.GetClassID(nullptr); }),
        on<IPersistStreamInit>("IPersistStreamInit::Load", [](auto& face) { return face.Load(nullptr); }),
        on<IPersistStreamInit>("IPersistStreamInit::Save",
                               [](auto& face) { return face.Save(nullptr, TRUE); }),
        on<IPersistStorage>("IPersistStorage::GetClassID",
                            [](auto& face) { return face.GetClassID(nullptr); }),
        on<IPersistStorage>("IPersistStorage::InitNew", [](auto& face) { return face.InitNew(nullptr); }),
        on<IPersistStorage>("IPersistStorage::Load", [](auto& face) { return face.Load(nullptr); }),
        on<IPersistStorage>("IPersistStorage::Save", [](auto& face) { return face.Save(nullptr, TRUE); }),
    };
    return calls;
}

class NullPointers : public PlacedControl {
  protected:
    void walk() {
        for (const auto* calls :
             {&automationCalls(), &connectionCalls(), &embeddingCalls(), &viewCalls(), &savingCalls()})
            for (const BadCall& bad : *calls)
                EXPECT_EQ(bad.call(control.get()), E_POINTER) << bad.what;
    }
};

TEST_F(NullPointers, AreRefusedBeforeTheSettings) {
    walk();
    EXPECT_EQ(control.as<IPersistStreamInit>()->InitNew(), S_OK) << "nothing was begun by them";
}

TEST_F(NullPointers, AreRefusedInAContainer) {
    place(OLEIVERB_UIACTIVATE);
    walk();
    EXPECT_EQ(get(L"RowsCount"), Variant(Long{0}));
}

TEST_F(NullPointers, MayStandWhereNothingIsAskedFor) {
    place();
    EXPECT_EQ(control.as<IViewObject2>()->GetAdvise(nullptr, nullptr, nullptr), S_OK);
    EXPECT_EQ(object->SetHostNames(nullptr, nullptr), S_OK);
    EXPECT_EQ(control.as<IOleControl>()->OnMnemonic(nullptr), S_OK);
    EXPECT_EQ(control.as<IOleInPlaceActiveObject>()->ResizeBorder(nullptr, nullptr, FALSE), S_OK);
    EXPECT_EQ(control.as<IPersistStorage>()->SaveCompleted(nullptr), S_OK);
    EXPECT_EQ(object->DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, nullptr, nullptr), S_OK);
}

TEST_F(NullPointers, AViewNeedsSomethingToDrawOn) {
    EXPECT_EQ(control.as<IViewObject>()->Draw(
                  DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, 0),
              E_INVALIDARG);
}

} // namespace
} // namespace lumtex::testing
