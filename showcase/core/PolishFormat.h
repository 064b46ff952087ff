#pragma once

#include <optional>
#include <string>

namespace Desk {

/// Numbers as a Polish reader expects them: decimal comma, thousands parted by a no-break space. No locale is asked.
std::wstring formatNumber(double value, int decimals);
/// Two decimals; small numbers get as many more as their first two digits take, up to ten, but no zeros at the end.
std::wstring formatFigure(double value);
/// 0.0175 is "1,75%".
std::wstring formatPercent(double fraction);
/// In millions ("mln"), thousands of them ("mld") or millions of them ("bln") with two decimals, smaller sums whole.
std::wstring formatLargeSum(double value);
/// One of three forms by the rules of Polish: 1 wiersz, 2 wiersze, 5 wierszy.
std::wstring formatCount(long long count, const wchar_t* one, const wchar_t* few, const wchar_t* many);

/// What stands in the place of an unknown value.
inline constexpr wchar_t Dash[] = L"–";

} // namespace Desk
