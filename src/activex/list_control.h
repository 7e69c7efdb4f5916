/// \file
/// The control as one object with many interfaces.
#pragma once

#include "activex/categories_face.h"
#include "activex/class_faces.h"
#include "activex/designer_faces.h"
#include "activex/in_place_faces.h"
#include "activex/list_view_face.h"
#include "activex/ole_object_face.h"
#include "activex/persistence_faces.h"
#include "activex/view_faces.h"

#include <atomic>

namespace lumtex::win32 {

/// Starts with one reference, the caller's, to its own identity (`inner`). Inside the object of a host
/// (`outer`) all other interfaces have the identity and the lifetime of that one.
class ListControl {
  public:
    /// `outer` is null for a control that stands alone; it is not counted. Throws RuntimeError 7.
    explicit ListControl(IUnknown* outer);
    ListControl(const ListControl&) = delete;
    ListControl& operator=(const ListControl&) = delete;

    IUnknown& inner() { return inner_; }
    ControlCore& core() { return core_; }
    OleObjectFace& object() { return object_; }
    ViewFace& view() { return view_; }

  private:
    /// The identity of the control alone.
    class Inner final : public IUnknown {
      public:
        explicit Inner(ListControl& control) : control_(control) {}
        Inner(const Inner&) = delete;
        Inner& operator=(const Inner&) = delete;
        ~Inner() = default;

        HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override;
        ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
        ULONG STDMETHODCALLTYPE Release() override;

      private:
        ListControl& control_;
        std::atomic<ULONG> references_{1};
    };

    ~ListControl() = default;
    /// On its own thread, to which windows, timers and the counts of styles belong.
    static void end(void* control);
    /// Null for an interface that the control does not have.
    IUnknown* face(REFIID iid);

    Inner inner_;
    IUnknown& outer_;
    ConnectionsFace connections_;
    ControlCore core_;
    ListViewFace automation_;
    OleObjectFace object_;
    OleControlFace control_;
    InPlaceObjectFace inPlace_;
    ActiveObjectFace active_;
    ViewFace view_;
    DataFace data_;
    BagFace bag_;
    StreamFace stream_;
    StorageFace storage_;
    ClassInfoFace classInfo_;
    QuickFace quick_;
    ErrorInfoFace errorInfo_;
    PagesFace pages_;
    BrowsingFace browsing_;
    CategoriesFace categories_;
};

} // namespace lumtex::win32
