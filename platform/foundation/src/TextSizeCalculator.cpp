#include "OrtinFoundation/TextSizeCalculator.h"

namespace {

CSize sizeIn(HDC device, std::wstring_view text, bool multiline) {
    const int length = static_cast<int>(text.size());
    if (!multiline) {
        CSize size;
        ::GetTextExtentPoint32W(device, text.data(), length, &size);
        return size;
    }
    CRect room;
    ::DrawTextW(device, text.data(), length, room, DT_CALCRECT | DT_NOPREFIX | DT_NOCLIP);
    return room.Size();
}

} // namespace

CSize TextSizeCalculator::GetTextSize(std::optional<std::pair<HDC, HFONT>> where, std::wstring_view text,
                                      bool multiline) {
    if (text.empty()) {
        return {};
    }
    auto [device, font] = where.value_or(std::pair(nullptr, static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT))));
    CDC own;
    if (device == nullptr) {
        own.CreateCompatibleDC(nullptr);
        device = own;
    }
    const HGDIOBJ previous = font != nullptr ? ::SelectObject(device, font) : nullptr;
    const CSize size = sizeIn(device, text, multiline);
    if (previous != nullptr) {
        ::SelectObject(device, previous);
    }
    return size;
}
