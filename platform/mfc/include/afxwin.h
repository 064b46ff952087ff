#pragma once

#include "afx.h"
#include "afxwin_gdi.h"
#include "atltypes.h"
