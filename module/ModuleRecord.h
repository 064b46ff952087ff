#pragma once

#include <OrtinFoundation/DllData.h>

namespace ModuleRecord {

/// The record of this module, made on first use. It also gives the module handle through which resources are found.
DllData& get();

} // namespace ModuleRecord
