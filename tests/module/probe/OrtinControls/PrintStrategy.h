#pragma once

#include <mutex>

#include "OrderLog.h"

struct PrintStrategy {
    struct Prints {
        Prints() { logOrder(L"make prints"); }
        ~Prints() { logOrder(L"unmake prints"); }
    };
    static Prints Sm_currentPrints;
    static std::mutex PrintStrategyCurrentPrints;
};
