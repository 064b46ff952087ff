#pragma once

#include <boost/json/value.hpp>

#include <string>

#include <afxwin.h>

class Settings;

/// The persisted forms read once more, member by member and byte by byte, to be compared with what the library reads.
/// Each changes its description as far as it comes and says how it ended: "true", "false", or what was thrown.
namespace PlainReaders {

std::string readBrush(const boost::json::value& document, LOGBRUSH& brush);
std::string readFont(const boost::json::value& document, LOGFONTW& font);
/// "true" if the pen was read to its end.
std::string readPen(const Settings& settings, LOGPEN& pen);
std::string readFont(const Settings& settings, LOGFONTW& font);

} // namespace PlainReaders
