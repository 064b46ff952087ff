#include "support/ImportPatch.h"

#include <afxwin.h>

#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

namespace support {
namespace {

int __stdcall noSuchMetric(int) {
    return -42;
}

DWORD __stdcall tickOfStart() {
    return 0;
}

HWND __stdcall theDesktopHasTheFocus() {
    return ::GetDesktopWindow();
}

bool memoryIsShort = false;
void* (*allocate)(std::size_t) = nullptr;

void* allocateUnlessShort(std::size_t size) {
    if (memoryIsShort) {
        throw std::bad_alloc();
    }
    return allocate(size);
}

// The compiler takes import entries for constants and reads each once a function, so the calls have functions of their
// own.
[[gnu::noinline]] int screenWidth() {
    return ::GetSystemMetrics(SM_CXSCREEN);
}

[[gnu::noinline]] HWND focus() {
    return ::GetFocus();
}

[[gnu::noinline]] DWORD tick() {
    return ::GetTickCount();
}

TEST(ImportPatch, TheProgramCallsTheReplacementWithinTheScopeOnly) {
    const int width = screenWidth();
    {
        const ImportPatch patch(nullptr, "USER32.dll", "GetSystemMetrics", noSuchMetric);
        EXPECT_EQ(-42, screenWidth());
    }
    EXPECT_EQ(width, screenWidth());
}

TEST(ImportPatch, TheOriginalCanStillBeCalled) {
    const int width = screenWidth();
    const ImportPatch patch(nullptr, "user32.dll", "GetSystemMetrics", noSuchMetric);
    EXPECT_EQ(width, patch.original<int __stdcall(int)>()(SM_CXSCREEN));
}

TEST(ImportPatch, NestedScopesEndInOrder) {
    const ImportPatch outer(nullptr, "kernel32.dll", "GetTickCount", tickOfStart);
    {
        const ImportPatch inner(nullptr, "kernel32.dll", "GetTickCount", outer.original<DWORD __stdcall()>());
        EXPECT_NE(0U, tick());
    }
    EXPECT_EQ(0U, tick());
}

TEST(ImportPatch, OtherModulesAreNotTouched) {
    const HMODULE framework = ::GetModuleHandleW(L"OrtinMfc.dll");
    ASSERT_NE(nullptr, framework);
    const HWND focused = focus();
    const ImportPatch patch(framework, "user32.dll", "GetFocus", theDesktopHasTheFocus);
    EXPECT_EQ(focused, focus());
    EXPECT_EQ(::GetDesktopWindow(), CWnd::GetFocus()->GetSafeHwnd());
}

TEST(ImportPatch, TheRuntimeLibraryCanRunShortOfMemory) {
    const ImportPatch patch(nullptr, "libstdc++-6.dll", "_Znwy", allocateUnlessShort);
    allocate = patch.original<void*(std::size_t)>();
    memoryIsShort = true;
    bool refused = false;
    try {
        ::operator delete(::operator new(16));
    } catch (const std::bad_alloc&) {
        refused = true;
    }
    memoryIsShort = false;
    EXPECT_TRUE(refused);
    ::operator delete(::operator new(16));
}

TEST(ImportPatch, WhatIsNotImportedCannotBePatched) {
    EXPECT_THROW(ImportPatch(nullptr, "user32.dll", "NoSuchFunction", noSuchMetric), std::runtime_error);
    EXPECT_THROW(ImportPatch(nullptr, "absent.dll", "GetSystemMetrics", noSuchMetric), std::runtime_error);
}

} // namespace
} // namespace support
