#pragma once

#include <windows.h>

/// Looks at the spooler's job after a page that failed, and logs what speaks against going on. True if the spooler is
/// restarting the job, so that the page is forgiven.
bool isJobRestarting(const wchar_t* printerName, int job);
