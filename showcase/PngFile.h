#pragma once

#include <string>

#include <afxwin.h>

namespace Desk {

/// Writes the bitmap as PNG. False if the file cannot be written. GDI+ has to be started.
bool writePng(CBitmap& bitmap, const std::wstring& file);

} // namespace Desk
