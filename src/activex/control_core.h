/// \file
/// What the interfaces of one control share: the list, its world, its container.
#pragma once

#include "activex/automation_target.h"
#include "activex/com_guard.h"
#include "activex/connection_point.h"
#include "activex/container_host.h"
#include "activex/event_source.h"
#include "activex/spoken_list.h"
#include "worlds/win32/module_lock.h"
#include "worlds/win32/win32_world.h"

namespace lumtex::win32 {

/// A control that nobody initialises becomes a new instance at its first use.
class ControlCore final : public AutomationTarget {
  public:
    ControlCore(IUnknown& outer, IConnectionPointContainer& points);
    ~ControlCore() override;

    const automation::ClassDescription& description() const override { return automation::listViewClass(); }
    automation::CallByName byName() override { return automation::CallByName(list()); }

    /// Runs the body of a call of an interface, which gives an HRESULT. Calls from a wrong thread are
    /// refused.
    template <class Body>
    HRESULT entered(Body&& body) noexcept {
        return onOwnThread() ? guarded(std::forward<Body>(body)) : RPC_E_WRONG_THREAD;
    }

    /// See Win32World::post.
    bool postToOwnThread(void (*work)(void*), void* argument) const { return world_.post(work, argument); }

    /// The list, initialised.
    lmListView& list();
    /// Null once the container has destroyed it.
    HWND window() { return toHWND(list_->hwnd()); }
    ContainerHost& host() { return host_; }
    /// Leaves the container's window before it lets the container go. Null for no container.
    void setSite(IOleClientSite* site);
    /// `ambient` is the number of one property, or DISPID_UNKNOWN for any.
    void ambientChanged(DISPID ambient);
    EventSource& events() { return events_; }
    ConnectionPoint& eventPoint() { return eventPoint_; }
    ConnectionPoint& notifyPoint() { return notifyPoint_; }
    IOleAdviseHolder* adviseHolder();
    IDataAdviseHolder* dataAdviseHolder();

    // Settings

    /// False if the control was initialised before: a container does it once.
    bool initNew();
    bool load(const PropertyBag& bag);
    void save(PropertyBag& bag) { list().UserControl_WriteProperties(bag); }
    bool dirty() const { return dirty_; }
    /// The settings lie safe in the container's document: nothing is dirty any more, and advised sinks hear.
    void noteSaved();

    // Place and size

    /// Pixels of the control's window once it is initialised.
    SIZE size();
    /// The same in HIMETRIC units.
    SIZEL extent();
    /// Before the settings come it is kept for then.
    void letExtent(SIZEL extent);

    bool inPlaceActive() const { return inPlaceActive_; }
    /// Shows the control in its container's window. `withFocus`: it also takes keys and the container's
    /// menus.
    HRESULT activate(bool withFocus);
    HRESULT deactivateUI();
    HRESULT deactivate();
    /// Pixels of the container's window.
    void letRects(const RECT& place, const RECT& clip);
    /// A key for the control itself, before the container makes something else of it.
    HRESULT translateKey(MSG& message);

    // Drawing

    /// Paints what the control shows into `bounds`.
    void draw(HDC target, const RECT& bounds);
    /// Gets each new picture while the control has no place in the container's window. Null for nobody.
    std::function<void()> onViewChange;

    IUnknown& outer() const { return outer_; }

  private:
    void finishInit();
    void propertyChanged(StringView name);
    void viewChanged();
    HRESULT activateInPlace(IOleInPlaceSite& site);
    HRESULT enterContainer(IOleInPlaceSite& site);
    HRESULT activateUI(IOleInPlaceSite& site);
    /// The container's own windows wait while a form or box of the control is open.
    void showModality(bool open);
    /// Whether the window is the control's, or lies in it.
    bool holds(HWND other);
    bool hasFocus();
    std::optional<LRESULT> seeMessage(const WindowMessage& message);
    void focusChanged(bool got);
    /// A key from the queue, while the container's own loop waits for the control. True: dealt with.
    bool offerKey(MSG& message);

    IUnknown& outer_;
    ModuleLock lock_;
    ConnectionPoint eventPoint_;
    ConnectionPoint notifyPoint_;
    EventSource events_;
    ContainerHost host_;
    Win32World world_;
    std::unique_ptr<lmListView> list_;
    std::unique_ptr<ListSpeaker> speaker_;
    bool initialised_ = false;
    bool painted_ = false;
    bool drawing_ = false;             ///< for the container, which knows
    std::optional<SIZEL> firstExtent_; ///< given before the settings
    bool dirty_ = false;
    bool inPlaceActive_ = false;
    bool uiActive_ = false;
    ComRef<IOleInPlaceFrame> frame_;
    ComRef<IOleInPlaceUIWindow> uiWindow_;
    OLEINPLACEFRAMEINFO frameInfo_{};
    int modalDepth_ = 0; ///< forms and boxes that are open
    ComRef<IOleAdviseHolder> adviseHolder_;
    ComRef<IDataAdviseHolder> dataAdviseHolder_;
};

} // namespace lumtex::win32
