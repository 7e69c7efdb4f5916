/// \file
/// One element of the list as an object of Microsoft Active Accessibility.
#pragma once

#include "activex/com_guard.h"
#include "activex/spoken_list.h"
#include "worlds/win32/module_lock.h"

#include <atomic>

#include <oleacc.h>

namespace lumtex::win32 {

/// Starts with one reference, the caller's. A child is named by its number below the element, and below the
/// list by the numbers of events as well. What is there no more, and all of a list that has ended, is
/// CO_E_OBJNOTCONNECTED; calls from a wrong thread are refused. Enumerates its children as objects.
class SpokenElement final : public IAccessible, public IEnumVARIANT {
  public:
    SpokenElement(std::shared_ptr<SpokenList> spoken, const accessibility::Element& element, LONG next = 1)
        : spoken_(std::move(spoken)), element_(element), next_(next) {}
    SpokenElement(const SpokenElement&) = delete;
    SpokenElement& operator=(const SpokenElement&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override;

    // IDispatch: whoever asks knows the interface itself

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE
    Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }

    // IAccessible

    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override;
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override;
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT id, IDispatch** child) override;
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT id, BSTR* name) override;
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT id, BSTR* value) override;
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT id, BSTR* description) override;
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT id, VARIANT* role) override;
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT id, VARIANT* state) override;
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT id, BSTR* help) override;
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT id, LONG* topic) override;
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT id, BSTR* keys) override;
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* focus) override;
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* selection) override;
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT id, BSTR* action) override;
    HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT id) override;
    HRESULT STDMETHODCALLTYPE
    accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT id) override;
    HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) override;
    HRESULT STDMETHODCALLTYPE accHitTest(LONG x, LONG y, VARIANT* hit) override;
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT id) override;
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT id, BSTR value) override;

    // IEnumVARIANT

    HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* to, ULONG* fetched) override;
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override;
    HRESULT STDMETHODCALLTYPE Reset() override;
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) override;

  private:
    ~SpokenElement() = default;

    /// Runs `body` with the element that `id` names, if it is there.
    template <class Body>
    HRESULT about(const VARIANT& id, Body&& body) noexcept;
    /// The same for this element itself.
    template <class Body>
    HRESULT aboutSelf(Body&& body) noexcept;
    /// A text of an element; S_FALSE for an empty one.
    template <class Text>
    HRESULT text(const VARIANT& id, BSTR* to, Text&& words) noexcept;
    accessibility::Element elementOf(const VARIANT& id) const;
    IDispatch* object(const accessibility::Element& element) const;
    /// VT_EMPTY for nothing.
    HRESULT give(const accessibility::Element& element, VARIANT* to) const;

    std::atomic<ULONG> references_{1};
    ModuleLock lock_;
    std::shared_ptr<SpokenList> spoken_;
    accessibility::Element element_;
    LONG next_; ///< the child that is enumerated next, from 1
};

} // namespace lumtex::win32
