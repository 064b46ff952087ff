#pragma once

#include "OrderLog.h"

struct CXTPDpi {
    int ScaleX(int value, int fromDpi) const {
        logOrder(L"scale " + std::to_wstring(value) + L" from " + std::to_wstring(fromDpi));
        return value;
    }
};

inline CXTPDpi& XTPDpiHelper() {
    static CXTPDpi helper;
    return helper;
}
