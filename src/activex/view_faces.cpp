/// Drawing on request.
#include "activex/view_faces.h"

#include "activex/com_guard.h"
#include "activex/snapshot_enum.h"

namespace lumtex {

namespace {

FORMATETC metafileFormat() {
    return {CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
}

HRESULT fits(const FORMATETC& format) {
    if (format.cfFormat != CF_ENHMETAFILE)
        return DV_E_FORMATETC;
    if (format.dwAspect != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    return (format.tymed & TYMED_ENHMF) != 0 ? S_OK : DV_E_TYMED;
}

struct FormatPolicy {
    static void copy(FORMATETC& to, const FORMATETC& from) { to = from; }
    static void clear(FORMATETC& /*item*/) {}
};

} // namespace

HRESULT ViewFace::Draw(DWORD aspect,
                       LONG /*index*/,
                       void* /*aspectInfo*/,
                       DVTARGETDEVICE* /*device*/,
                       HDC /*deviceDc*/,
                       HDC target,
                       LPCRECTL bounds,
                       LPCRECTL /*metafileBounds*/,
                       BOOL(STDMETHODCALLTYPE* /*goOn*/)(ULONG_PTR),
                       ULONG_PTR /*goOnArgument*/) {
    if (aspect != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    if (target == nullptr)
        return E_INVALIDARG;
    return guarded([&] {
        const SIZE size = core_.size();
        const RECT whole{0, 0, size.cx, size.cy};
        core_.draw(target,
                   bounds != nullptr ? RECT{bounds->left, bounds->top, bounds->right, bounds->bottom}
                                     : whole);
        return S_OK;
    });
}

HRESULT ViewFace::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) {
    aspects_ = aspects;
    flags_ = flags;
    sink_ = ComRef<IAdviseSink>(sink);
    core_.viewSink = sink;
    if ((flags & ADVF_PRIMEFIRST) != 0 && sink != nullptr)
        sink->OnViewChange(DVASPECT_CONTENT, -1);
    return S_OK;
}

HRESULT ViewFace::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) {
    if (aspects != nullptr)
        *aspects = aspects_;
    if (flags != nullptr)
        *flags = flags_;
    if (sink != nullptr)
        *sink = ComRef<IAdviseSink>(sink_).detach();
    return S_OK;
}

HRESULT ViewFace::GetExtent(DWORD aspect, LONG /*index*/, DVTARGETDEVICE* /*device*/, SIZEL* extent) {
    if (extent == nullptr)
        return E_POINTER;
    if (aspect != DVASPECT_CONTENT)
        return DV_E_DVASPECT;
    return guarded([&] {
        *extent = core_.extent();
        return S_OK;
    });
}

HRESULT DataFace::GetData(FORMATETC* format, STGMEDIUM* medium) {
    if (format == nullptr || medium == nullptr)
        return E_POINTER;
    const HRESULT fit = fits(*format);
    if (FAILED(fit))
        return fit;
    return guarded([&]() -> HRESULT {
        const SIZE size = core_.size();
        const SIZEL extent = core_.extent();
        const RECT frame{0, 0, extent.cx, extent.cy};
        const HDC dc = CreateEnhMetaFileW(nullptr, nullptr, &frame, nullptr);
        if (dc == nullptr)
            return E_OUTOFMEMORY;
        const HRESULT drawn = guarded([&] {
            core_.draw(dc, {0, 0, size.cx, size.cy});
            return S_OK;
        });
        *medium = {};
        medium->tymed = TYMED_ENHMF;
        medium->hEnhMetaFile = CloseEnhMetaFile(dc);
        return drawn;
    });
}

HRESULT DataFace::QueryGetData(FORMATETC* format) {
    return format == nullptr ? E_POINTER : fits(*format);
}

HRESULT DataFace::GetCanonicalFormatEtc(FORMATETC* in, FORMATETC* out) {
    if (in == nullptr || out == nullptr)
        return E_POINTER;
    *out = *in;
    out->ptd = nullptr;
    return DATA_S_SAMEFORMATETC;
}

HRESULT DataFace::EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) {
    if (formats == nullptr)
        return E_POINTER;
    *formats = nullptr;
    if (direction != DATADIR_GET)
        return E_NOTIMPL;
    return guarded([&] {
        *formats = new SnapshotEnum<IEnumFORMATETC, FORMATETC, FormatPolicy>({metafileFormat()});
        return S_OK;
    });
}

HRESULT DataFace::DAdvise(FORMATETC* format, DWORD flags, IAdviseSink* sink, DWORD* cookie) {
    return guarded([&] {
        const auto self = queryFor<IDataObject>(&outer());
        return core_.dataAdviseHolder()->Advise(self.get(), format, flags, sink, cookie);
    });
}

HRESULT DataFace::DUnadvise(DWORD cookie) {
    return guarded([&] { return core_.dataAdviseHolder()->Unadvise(cookie); });
}

HRESULT DataFace::EnumDAdvise(IEnumSTATDATA** advises) {
    if (advises == nullptr)
        return E_POINTER;
    return guarded([&] { return core_.dataAdviseHolder()->EnumAdvise(advises); });
}

} // namespace lumtex
