#include "win32/fonts.h"

#include "win32/units.h"

#include <vector>

namespace win32 {

namespace {

struct Cache_Entry {
    platform::Font font;
    Unique_Font handle;
    int line_height = 0;
};

struct Font_Cache {
    int dots = 0;
    std::vector<Cache_Entry> entries;
    Unique_Memory_Dc measuring;
};

Font_Cache &Cache() {
    static Font_Cache cache;
    return cache;
}

/// Returns the user's message-box font. Make_Font replaces its size and style.
LOGFONTW Message_Font() {
    NONCLIENTMETRICSW metrics = {};
    // Leave out the last member, because systems before Windows Vista refuse a structure that includes it.
    metrics.cbSize = offsetof(NONCLIENTMETRICSW, iPaddedBorderWidth);
    if (SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0))
        return metrics.lfMessageFont;
    LOGFONTW font = {};
    GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font);
    return font;
}

/// Returns ClearType quality if the user has turned ClearType on, else the system's default, smooth or not.
/// Windows 2000 has no smoothing types.
BYTE Font_Quality() {
    BOOL smooth = FALSE;
    UINT type = 0;
    SystemParametersInfoW(SPI_GETFONTSMOOTHING, 0, &smooth, 0);
    SystemParametersInfoW(SPI_GETFONTSMOOTHINGTYPE, 0, &type, 0);
    return smooth && type == FE_FONTSMOOTHINGCLEARTYPE ? CLEARTYPE_QUALITY : DEFAULT_QUALITY;
}

HDC Any_Measuring_Dc() {
    if (!Cache().measuring)
        Cache().measuring.reset(CreateCompatibleDC(nullptr));
    return Cache().measuring.get();
}

} // namespace

Unique_Font Make_Font(const platform::Font &font, int dots) {
    LOGFONTW description = Message_Font();
    description.lfHeight = -Scale_Nearest(font.tenth_points, dots, 720);
    description.lfWidth = 0;
    description.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
    description.lfItalic = FALSE;
    description.lfUnderline = FALSE;
    description.lfStrikeOut = FALSE;
    description.lfQuality = Font_Quality();
    return Unique_Font(CreateFontIndirectW(&description));
}

Cached_Font Find_Font(const platform::Font &font) {
    Font_Cache &cache = Cache();
    if (cache.dots != platform::Dots_Per_Inch()) {
        Clear_Font_Cache();
        cache.dots = platform::Dots_Per_Inch();
    }
    for (const Cache_Entry &entry : cache.entries) {
        if (entry.font == font)
            return {entry.handle.get(), entry.line_height};
    }
    Cache_Entry entry{font, Make_Font(font, cache.dots), 0};
    TEXTMETRICW metrics = {};
    const Selected_Object selected(Any_Measuring_Dc(), entry.handle.get());
    GetTextMetricsW(Any_Measuring_Dc(), &metrics);
    entry.line_height = metrics.tmHeight;
    cache.entries.push_back(std::move(entry));
    return {cache.entries.back().handle.get(), cache.entries.back().line_height};
}

void Clear_Font_Cache() {
    // The system cannot delete a selected font, so deselect it first.
    if (Cache().measuring)
        SelectObject(Cache().measuring.get(), GetStockObject(SYSTEM_FONT));
    Cache().entries.clear();
}

HDC Measuring_Dc(const platform::Font &font) {
    const Cached_Font kept = Find_Font(font);
    const HDC dc = Any_Measuring_Dc();
    SelectObject(dc, kept.handle);
    return dc;
}

} // namespace win32
