/// Drawing on request.
#include "activex/view_faces.h"

#include "activex/snapshot_enum.h"
#include "values/runtime_error.h"
#include "worlds/win32/owned.h"

#include <algorithm>

namespace lumtex::win32 {

namespace {

/// The best one first.
constexpr FORMATETC offeredFormats[] = {
    {CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF},
    {CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT},
};

HRESULT fits(const FORMATETC& format) {
    const auto offered = std::ranges::find(offeredFormats, format.cfFormat, &FORMATETC::cfFormat);
    if (offered == std::end(offeredFormats))
        return DV_E_FORMATETC;
    if (format.dwAspect != offered->dwAspect)
        return DV_E_DVASPECT;
    return (format.tymed & offered->tymed) != 0 ? S_OK : DV_E_TYMED;
}

HENHMETAFILE drawEnhanced(ControlCore& core) {
    const SIZE size = core.size();
    const SIZEL extent = core.extent();
    const RECT frame{0, 0, extent.cx, extent.cy};
    const HDC dc = CreateEnhMetaFileW(nullptr, nullptr, &frame, nullptr);
    if (dc == nullptr)
        throw RuntimeError(ErrorNumber::outOfMemory);
    // The metafile has to be closed whatever happens.
    const HRESULT drawn = guarded([&] {
        core.draw(dc, {0, 0, size.cx, size.cy});
        return S_OK;
    });
    OwnedPicture file(CloseEnhMetaFile(dc));
    if (FAILED(drawn) || !file)
        throw RuntimeError(ErrorNumber::outOfMemory);
    return file.detach();
}

/// The old form, scaled by whoever plays it.
OwnedPlainPicture drawPlain(ControlCore& core) {
    const SIZE size = core.size();
    const HDC dc = CreateMetaFileW(nullptr);
    if (dc == nullptr)
        throw RuntimeError(ErrorNumber::outOfMemory);
    SetMapMode(dc, MM_ANISOTROPIC);
    SetWindowOrgEx(dc, 0, 0, nullptr);
    SetWindowExtEx(dc, size.cx, size.cy, nullptr);
    const HRESULT drawn = guarded([&] {
        core.draw(dc, {0, 0, size.cx, size.cy});
        return S_OK;
    });
    OwnedPlainPicture file(CloseMetaFile(dc));
    if (FAILED(drawn) || !file)
        throw RuntimeError(ErrorNumber::outOfMemory);
    return file;
}

HGLOBAL plainPicture(ControlCore& core) {
    OwnedMemory memory(GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(METAFILEPICT)));
    if (!memory)
        throw RuntimeError(ErrorNumber::outOfMemory);
    const SIZEL extent = core.extent();
    OwnedPlainPicture file = drawPlain(core);
    *static_cast<METAFILEPICT*>(LockedMemory(memory.get()).bytes()) = {
        MM_ANISOTROPIC, extent.cx, extent.cy, file.detach()};
    return memory.detach();
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
    return core_.entered([&] {
        const SIZE size = core_.size();
        const RECT whole{0, 0, size.cx, size.cy};
        core_.draw(target,
                   bounds != nullptr ? RECT{bounds->left, bounds->top, bounds->right, bounds->bottom}
                                     : whole);
        return S_OK;
    });
}

HRESULT ViewFace::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) {
    return core_.entered([&] {
        aspects_ = aspects;
        flags_ = flags;
        sink_ = ComRef<IAdviseSink>(sink);
        core_.onViewChange = sink != nullptr ? [this] { tellSink(); } : std::function<void()>();
        if ((flags & ADVF_PRIMEFIRST) != 0)
            tellSink();
        return S_OK;
    });
}

void ViewFace::tellSink() {
    const ComRef<IAdviseSink> told = sink_;
    if ((flags_ & ADVF_ONLYONCE) != 0)
        sink_ = {};
    if (told && (aspects_ & DVASPECT_CONTENT) != 0)
        told->OnViewChange(DVASPECT_CONTENT, -1);
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
    return core_.entered([&] {
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
    return core_.entered([&] {
        // Filled last, so that a failure leaves nothing in it.
        *medium = {};
        if (format->cfFormat == CF_ENHMETAFILE) {
            medium->hEnhMetaFile = drawEnhanced(core_);
            medium->tymed = TYMED_ENHMF;
        } else {
            medium->hMetaFilePict = plainPicture(core_);
            medium->tymed = TYMED_MFPICT;
        }
        return S_OK;
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
    return core_.entered([&] {
        *formats = new SnapshotEnum<IEnumFORMATETC, FORMATETC, FormatPolicy>(
            {std::begin(offeredFormats), std::end(offeredFormats)});
        return S_OK;
    });
}

HRESULT DataFace::DAdvise(FORMATETC* format, DWORD flags, IAdviseSink* sink, DWORD* cookie) {
    if (format == nullptr || sink == nullptr || cookie == nullptr)
        return E_POINTER;
    *cookie = 0;
    return core_.entered([&] {
        const auto self = queryFor<IDataObject>(&outer());
        return core_.dataAdviseHolder()->Advise(self.get(), format, flags, sink, cookie);
    });
}

HRESULT DataFace::DUnadvise(DWORD cookie) {
    return core_.entered([&] { return core_.dataAdviseHolder()->Unadvise(cookie); });
}

HRESULT DataFace::EnumDAdvise(IEnumSTATDATA** advises) {
    if (advises == nullptr)
        return E_POINTER;
    *advises = nullptr;
    return core_.entered([&] { return core_.dataAdviseHolder()->EnumAdvise(advises); });
}

} // namespace lumtex::win32
