/// \file
/// What a program drags.
#pragma once

#include "worlds/win32/com_ref.h"

#include <cstring>
#include <map>
#include <vector>

#include <shlobj.h>

namespace lumtex::testing {

/// Blocks of memory and a bitmap, by format. Counts itself, yet lives as long as the test holds it.
class DraggedData final : public IDataObject {
  public:
    DraggedData() = default;
    DraggedData(const DraggedData&) = delete;
    DraggedData& operator=(const DraggedData&) = delete;
    ~DraggedData() { DeleteObject(bitmap); }

    /// With the closing zero.
    template <class Unit, std::size_t size>
    void letText(CLIPFORMAT format, const Unit (&text)[size]) {
        blocks[format] = bytesOf(text, sizeof(text));
    }
    void letFiles(const std::vector<String>& names) {
        DROPFILES header{};
        header.pFiles = sizeof(header);
        header.fWide = TRUE;
        std::vector<char> block = bytesOf(&header, sizeof(header));
        for (const String& name : names)
            append(block, name.c_str(), (name.size() + 1) * sizeof(char16_t));
        append(block, u"", sizeof(char16_t));
        blocks[CF_HDROP] = block;
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override {
        *found = nullptr;
        if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, IID_IDataObject))
            return E_NOINTERFACE;
        *found = static_cast<IDataObject*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override { return --references; }

    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override {
        if (QueryGetData(format) != S_OK)
            return DV_E_FORMATETC;
        *medium = {};
        medium->tymed = format->tymed;
        if (format->cfFormat == CF_BITMAP) {
            medium->hBitmap =
                static_cast<HBITMAP>(CopyImage(bitmap, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
            return S_OK;
        }
        const std::vector<char>& block = blocks[format->cfFormat];
        medium->hGlobal = GlobalAlloc(GMEM_MOVEABLE, block.size());
        std::memcpy(GlobalLock(medium->hGlobal), block.data(), block.size());
        GlobalUnlock(medium->hGlobal);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC* /*format*/, STGMEDIUM* /*medium*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override {
        const bool known = format->cfFormat == CF_BITMAP
                               ? bitmap != nullptr && format->tymed == TYMED_GDI
                               : blocks.contains(format->cfFormat) && format->tymed == TYMED_HGLOBAL;
        return known ? S_OK : DV_E_FORMATETC;
    }
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC* /*in*/, FORMATETC* /*out*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC* /*format*/, STGMEDIUM* /*medium*/, BOOL /*own*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD /*direction*/, IEnumFORMATETC** /*formats*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC* /*format*/,
                                      DWORD /*flags*/,
                                      IAdviseSink* /*sink*/,
                                      DWORD* /*cookie*/) override {
        return OLE_E_ADVISENOTSUPPORTED;
    }
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD /*cookie*/) override { return OLE_E_ADVISENOTSUPPORTED; }
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA** /*advises*/) override {
        return OLE_E_ADVISENOTSUPPORTED;
    }

    ULONG references = 1;
    std::map<CLIPFORMAT, std::vector<char>> blocks;
    HBITMAP bitmap = nullptr;

  private:
    static std::vector<char> bytesOf(const void* start, std::size_t size) {
        std::vector<char> bytes;
        append(bytes, start, size);
        return bytes;
    }
    static void append(std::vector<char>& block, const void* start, std::size_t size) {
        const auto* bytes = static_cast<const char*>(start);
        block.insert(block.end(), bytes, bytes + size);
    }
};

/// What the system would call when something is dragged over the window; none for one that takes no drops.
inline win32::ComRef<IDropTarget> dropTargetOf(HWND window) {
    return win32::ComRef<IDropTarget>(static_cast<IDropTarget*>(GetPropW(window, L"OleDropTargetInterface")));
}

} // namespace lumtex::testing
