#pragma once

#include "OrtinFoundation/Settings.h"

struct Settings::Child {
    std::string name;
    Settings node;

    friend bool operator==(const Child&, const Child&) = default;
};
