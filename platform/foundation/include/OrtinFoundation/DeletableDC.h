#pragma once

#include "OrtinFoundation/FoundationApi.h"

#include <afxwin.h>

/// A memory context made like another one and deleted when it ends. What was selected into it is set free before, so
/// that it may end in any order. Without memory it has no handle (GetSafeHdc()).
class ORTIN_FOUNDATION_API DeletableDC : public CDC {
public:
    /// Like the screen for a null `like`. `printing` is what IsPrinting() answers.
    explicit DeletableDC(CDC* like, bool printing = false);
    ~DeletableDC() override;

private:
    int m_initialState = 0;
};
