#include "worlds/win32/named_font.h"

#include "values/runtime_error.h"
#include "worlds/win32/module_lock.h"
#include "worlds/win32/property_sink.h"
#include "worlds/win32/variant_bridge.h"

#include <atomic>
#include <new>
#include <optional>
#include <utility>

namespace lumtex::win32 {

namespace {

/// Hands everything but its name on to the system's object, interfaces that it does not know included.
class NamedFont final : public IFont, public IFontDisp {
  public:
    NamedFont(ComRef<IFont> font, String name, NamedFontClient client)
        : font_(std::move(font)), dispatch_(queryFor<IFontDisp>(font_.get())), name_(std::move(name)),
          client_(std::move(client)),
          sink_(PropertySink::make([this](DISPID property) { changed(property); }, {})) {
        DWORD cookie = 0; // the sink is silenced instead
        sink_->listenTo(font_.get(), cookie);
    }
    NamedFont(const NamedFont&) = delete;
    NamedFont& operator=(const NamedFont&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** found) override {
        if (found == nullptr)
            return E_POINTER;
        if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IFont))
            *found = static_cast<IFont*>(this);
        else if (IsEqualIID(iid, IID_IDispatch) || IsEqualIID(iid, IID_IFontDisp))
            *found = static_cast<IFontDisp*>(this);
        else
            return font_->QueryInterface(iid, found);
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }

    STDMETHODIMP get_Name(BSTR* name) override {
        if (name == nullptr)
            return E_POINTER;
        if (!name_)
            return font_->get_Name(name);
        *name = SysAllocStringLen(wide(name_->data()), static_cast<UINT>(name_->size()));
        return *name != nullptr ? S_OK : E_OUTOFMEMORY;
    }
    STDMETHODIMP put_Name(BSTR name) override { return font_->put_Name(name); }
    STDMETHODIMP get_Size(CY* size) override { return font_->get_Size(size); }
    STDMETHODIMP put_Size(CY size) override { return font_->put_Size(size); }
    STDMETHODIMP get_Bold(BOOL* bold) override { return font_->get_Bold(bold); }
    STDMETHODIMP put_Bold(BOOL bold) override { return font_->put_Bold(bold); }
    STDMETHODIMP get_Italic(BOOL* italic) override { return font_->get_Italic(italic); }
    STDMETHODIMP put_Italic(BOOL italic) override { return font_->put_Italic(italic); }
    STDMETHODIMP get_Underline(BOOL* underline) override { return font_->get_Underline(underline); }
    STDMETHODIMP put_Underline(BOOL underline) override { return font_->put_Underline(underline); }
    STDMETHODIMP get_Strikethrough(BOOL* strike) override { return font_->get_Strikethrough(strike); }
    STDMETHODIMP put_Strikethrough(BOOL strike) override { return font_->put_Strikethrough(strike); }
    STDMETHODIMP get_Weight(SHORT* weight) override { return font_->get_Weight(weight); }
    STDMETHODIMP put_Weight(SHORT weight) override { return font_->put_Weight(weight); }
    STDMETHODIMP get_Charset(SHORT* charset) override { return font_->get_Charset(charset); }
    STDMETHODIMP put_Charset(SHORT charset) override { return font_->put_Charset(charset); }
    STDMETHODIMP get_hFont(HFONT* handle) override { return font_->get_hFont(handle); }
    STDMETHODIMP IsEqual(IFont* other) override { return font_->IsEqual(other); }
    STDMETHODIMP SetRatio(LONG logical, LONG himetric) override { return font_->SetRatio(logical, himetric); }
    STDMETHODIMP QueryTextMetrics(TEXTMETRICOLE* metrics) override {
        return font_->QueryTextMetrics(metrics);
    }
    STDMETHODIMP AddRefHfont(HFONT handle) override { return font_->AddRefHfont(handle); }
    STDMETHODIMP ReleaseHfont(HFONT handle) override { return font_->ReleaseHfont(handle); }
    STDMETHODIMP SetHdc(HDC device) override { return font_->SetHdc(device); }
    STDMETHODIMP Clone(IFont** clone) override {
        if (clone == nullptr)
            return E_POINTER;
        *clone = nullptr;
        ComRef<IFont> copy;
        const HRESULT result = font_->Clone(copy.out());
        if (FAILED(result))
            return result;
        if (!name_) {
            *clone = copy.detach();
            return result;
        }
        try {
            *clone = new NamedFont(std::move(copy), *name_, {});
        } catch (const std::bad_alloc&) {
            return E_OUTOFMEMORY; // nothing is thrown at callers of the component model
        }
        return result;
    }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override { return dispatch_->GetTypeInfoCount(count); }
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
        return dispatch_->GetTypeInfo(index, locale, info);
    }
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override {
        return dispatch_->GetIDsOfNames(iid, names, count, locale, ids);
    }
    STDMETHODIMP Invoke(DISPID id,
                        REFIID iid,
                        LCID locale,
                        WORD kind,
                        DISPPARAMS* parameters,
                        VARIANT* result,
                        EXCEPINFO* details,
                        UINT* wrongArgument) override {
        const HRESULT outcome =
            dispatch_->Invoke(id, iid, locale, kind, parameters, result, details, wrongArgument);
        // The system has checked the call; of its answer the name alone is another.
        const bool named = id == DISPID_FONT_NAME && (kind & DISPATCH_PROPERTYGET) != 0 && name_;
        if (FAILED(outcome) || result == nullptr || !named)
            return outcome;
        VariantClear(result);
        V_VT(result) = VT_BSTR;
        return get_Name(&V_BSTR(result));
    }

  private:
    ~NamedFont() {
        sink_->silence();
        if (client_.onGone)
            client_.onGone(static_cast<IFont*>(this));
    }
    void changed(DISPID property) {
        if (property == DISPID_FONT_NAME || property == DISPID_UNKNOWN)
            name_.reset();
        if (client_.onChanged)
            client_.onChanged(this, property);
    }

    ComRef<IFont> font_;
    ComRef<IFontDisp> dispatch_;
    std::optional<String> name_; ///< none once somebody has named another
    NamedFontClient client_;
    ComRef<PropertySink> sink_;
    std::atomic<ULONG> references_{1};
    ModuleLock lock_;
};

} // namespace

ComRef<IFontDisp> makeNamedFont(FONTDESC description, NamedFontClient client) {
    void* made = nullptr;
    if (FAILED(OleCreateFontIndirect(&description, IID_IFont, &made)))
        throw RuntimeError(ErrorNumber::outOfMemory);
    auto font = ComRef<IFont>::adopting(static_cast<IFont*>(made));
    String name(textOf(description.lpstrName));
    return ComRef<IFontDisp>::adopting(new NamedFont(std::move(font), std::move(name), std::move(client)));
}

} // namespace lumtex::win32
