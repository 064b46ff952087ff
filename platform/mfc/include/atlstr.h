#pragma once

#include "cstringt.h"

using CStringW = CStringT<wchar_t>;
using CStringA = CStringT<char>;
using CString = CStringT<TCHAR>;
