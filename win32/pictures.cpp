// Reads JPEG pictures with the system's decoder.
#include "platform/pictures.h"

#include "base/joined.h"
#include "base/jpeg.h"
#include "platform/files.h"
#include "win32/components.h"

#include <olectl.h>

#include <cstring>
#include <new>
#include <ocidl.h>

namespace platform {

namespace {

using win32::Unique_Interface;

/// Returns a stream over a copy of the bytes, null on failure.
Unique_Interface<IStream> Stream_Of(const std::string &bytes) {
    static const auto create =
        win32::Look_Up<HRESULT WINAPI(HGLOBAL, BOOL, IStream **)>(L"ole32.dll", "CreateStreamOnHGlobal");
    const HGLOBAL copy = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
    void *memory = copy == nullptr ? nullptr : GlobalLock(copy);
    IStream *stream = nullptr;
    if (memory != nullptr) {
        std::memcpy(memory, bytes.data(), bytes.size());
        GlobalUnlock(copy);
        if (create == nullptr || FAILED(create(copy, TRUE, &stream)))
            stream = nullptr;
    }
    if (stream == nullptr && copy != nullptr)
        GlobalFree(copy);
    return Unique_Interface<IStream>(stream);
}

Unique_Interface<IPicture> Read_Picture(const std::string &bytes) {
    static const auto load = win32::Look_Up<HRESULT WINAPI(IStream *, LONG, BOOL, const IID &, void **)>(
        L"oleaut32.dll", "OleLoadPicture");
    const Unique_Interface<IStream> stream = Stream_Of(bytes);
    void *picture = nullptr;
    if (!stream || load == nullptr ||
        FAILED(load(stream.get(), static_cast<LONG>(bytes.size()), FALSE, IID_IPicture, &picture)))
        picture = nullptr;
    return Unique_Interface<IPicture>(static_cast<IPicture *>(picture));
}

/// Returns the bitmap's pixels without padding between the rows. Returns nothing on failure, or if the bitmap
/// has another size.
std::vector<std::uint8_t> Pixels_Of(HBITMAP bitmap, Size size) {
    BITMAP description = {};
    if (GetObjectW(bitmap, sizeof description, &description) == 0 || description.bmWidth != size.width ||
        description.bmHeight != size.height)
        return {};
    BITMAPINFO wanted = {};
    wanted.bmiHeader.biSize = sizeof wanted.bmiHeader;
    wanted.bmiHeader.biWidth = size.width;
    wanted.bmiHeader.biHeight = -size.height;
    wanted.bmiHeader.biPlanes = 1;
    wanted.bmiHeader.biBitCount = 24;
    wanted.bmiHeader.biCompression = BI_RGB;
    const auto rows = static_cast<std::size_t>(size.height);
    const std::size_t row = static_cast<std::size_t>(size.width) * 3;
    const std::size_t padded_row = (row + 3) / 4 * 4;
    std::vector<std::uint8_t> pixels(padded_row * rows);
    const win32::Window_Dc screen(nullptr);
    if (GetDIBits(screen.Get(), bitmap, 0, static_cast<UINT>(size.height), pixels.data(), &wanted,
                  DIB_RGB_COLORS) != size.height)
        return {};
    for (std::size_t y = 1; y < rows && row != padded_row; ++y)
        std::memmove(&pixels[y * row], &pixels[y * padded_row], row);
    pixels.resize(row * rows);
    return pixels;
}

std::vector<std::uint8_t> Decode(const std::string &bytes, Size size) {
    const win32::Component_Session session;
    const Unique_Interface<IPicture> picture = Read_Picture(bytes);
    SHORT type = 0;
    OLE_HANDLE handle = 0;
    if (!picture || FAILED(picture->get_Type(&type)) || type != PICTYPE_BITMAP ||
        FAILED(picture->get_Handle(&handle)))
        return {};
    return Pixels_Of(static_cast<HBITMAP>(LongToHandle(static_cast<LONG>(handle))), size);
}

} // namespace

Picture Load_Picture(const std::string &path) {
    std::string bytes;
    try {
        bytes = Read_File(path);
    } catch (const File_Error &error) {
        throw Picture_Error(error.what());
    }
    const std::optional<Size> size = Jpeg_Size(bytes);
    if (!size)
        throw Picture_Error(Joined({path, ": This is not a JPEG picture, or it is incomplete."}));
    if (static_cast<std::int64_t>(size->width) * size->height > most_picture_pixels)
        throw Picture_Error(Joined({path, ": This picture is too large."}));
    try {
        auto pixels = std::make_shared<const std::vector<std::uint8_t>>(Decode(bytes, *size));
        if (!pixels->empty())
            return {size->width, size->height, std::move(pixels)};
    } catch (const std::bad_alloc &) {
        throw Picture_Error(Joined({path, ": There is not enough memory for this picture."}));
    }
    throw Picture_Error(Joined({path, ": This picture is damaged, or its format is not supported."}));
}

} // namespace platform
