#pragma once

#include "afxwin_dc.h"
#include "afxwin_gdiobject.h"
#include "afxwin_menu.h"
