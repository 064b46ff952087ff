#pragma once

#include "afx.h"
#include "atltypes.h"
