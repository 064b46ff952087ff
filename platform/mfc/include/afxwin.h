#pragma once

#include "afx.h"
