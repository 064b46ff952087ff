#pragma once

#include "afx.h"
#include "afxcmd.h"
#include "afxmsg_.h"
#include "afxres.h"
#include "afxstat.h"
#include "afxwin_app.h"
#include "afxwin_ctl.h"
#include "afxwin_dlg.h"
#include "afxwin_gdi.h"
#include "afxwin_wnd.h"
#include "atltypes.h"
