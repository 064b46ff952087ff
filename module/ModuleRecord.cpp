#include "ModuleRecord.h"

DllData& ModuleRecord::get() {
    static DllData record;
    return record;
}
