#include "screenshot.h"

#include "worlds/win32/com_ref.h"

#include <stdexcept>

#include <wincodec.h>

namespace lumtex::testing {

namespace {

void demandWritten(HRESULT result) {
    if (FAILED(result))
        throw std::runtime_error("the picture cannot be written");
}

} // namespace

void writePng(const Bitmap& picture, const std::filesystem::path& file) {
    std::filesystem::create_directories(file.parent_path());
    win32::ComRef<IWICImagingFactory> factory;
    demandWritten(CoCreateInstance(CLSID_WICImagingFactory,
                                   nullptr,
                                   CLSCTX_INPROC_SERVER,
                                   IID_IWICImagingFactory,
                                   reinterpret_cast<void**>(factory.out())));
    win32::ComRef<IWICStream> stream;
    demandWritten(factory->CreateStream(stream.out()));
    demandWritten(stream->InitializeFromFilename(file.c_str(), GENERIC_WRITE));
    win32::ComRef<IWICBitmapEncoder> encoder;
    demandWritten(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.out()));
    demandWritten(encoder->Initialize(stream.get(), WICBitmapEncoderNoCache));
    win32::ComRef<IWICBitmapFrameEncode> frame;
    demandWritten(encoder->CreateNewFrame(frame.out(), nullptr));
    demandWritten(frame->Initialize(nullptr));
    const auto width = static_cast<UINT>(picture.width);
    const auto height = static_cast<UINT>(picture.height);
    demandWritten(frame->SetSize(width, height));
    WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
    demandWritten(frame->SetPixelFormat(&format));
    std::vector<BYTE> bytes;
    bytes.reserve(picture.pixels.size() * 3);
    for (const std::uint32_t pixel : picture.pixels)
        for (unsigned shift = 0; shift < 24; shift += 8)
            bytes.push_back(static_cast<BYTE>(pixel >> shift));
    demandWritten(frame->WritePixels(height, width * 3, static_cast<UINT>(bytes.size()), bytes.data()));
    demandWritten(frame->Commit());
    demandWritten(encoder->Commit());
}

} // namespace lumtex::testing
