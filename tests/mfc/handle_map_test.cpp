#include "test_windows.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

/// A window that no object knows, destroyed at the end.
class PlainWindow {
public:
    PlainWindow()
        : m_handle(CreateWindowExW(0, L"STATIC", L"plain", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                   GetModuleHandleW(nullptr), nullptr)) {}
    PlainWindow(const PlainWindow&) = delete;
    PlainWindow& operator=(const PlainWindow&) = delete;
    ~PlainWindow() { ::DestroyWindow(m_handle); }
    HWND get() const { return m_handle; }

private:
    HWND m_handle;
};

/// The owner of a temporary object is forgotten with the object.
void mark(HWND handle, CWnd& owner) {
    CWnd::FromHandle(handle)->SetOwner(&owner);
}
bool isMarked(HWND handle, const CWnd& owner) {
    return CWnd::FromHandle(handle)->GetOwner() == &owner;
}

void idle() {
    AfxGetThread()->OnIdle(0);
}

} // namespace

TEST(HandleMap, ANullHandleHasNoObject) {
    EXPECT_EQ(nullptr, CWnd::FromHandle(nullptr));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(nullptr));
}

TEST(HandleMap, AnUnknownHandleGetsOneTemporaryObject) {
    PlainWindow plain;
    CWnd* temporary = CWnd::FromHandle(plain.get());
    ASSERT_NE(nullptr, temporary);
    EXPECT_EQ(plain.get(), temporary->m_hWnd);
    EXPECT_EQ(temporary, CWnd::FromHandle(plain.get()));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(plain.get()));
}

TEST(HandleMap, TemporaryObjectsGoAtIdleAndLeaveTheirWindowsAlone) {
    PlainWindow plain;
    TestFrame owner;
    ASSERT_TRUE(owner.createHidden());
    mark(plain.get(), owner);
    ASSERT_TRUE(isMarked(plain.get(), owner));
    idle();
    EXPECT_FALSE(isMarked(plain.get(), owner));
    EXPECT_TRUE(IsWindow(plain.get()));
}

TEST(HandleMap, LockedMapsKeepTheirTemporaryObjectsAtIdle) {
    PlainWindow plain;
    TestFrame owner;
    ASSERT_TRUE(owner.createHidden());
    mark(plain.get(), owner);
    AfxLockTempMaps();
    AfxLockTempMaps();
    idle();
    EXPECT_TRUE(isMarked(plain.get(), owner));
    EXPECT_TRUE(AfxUnlockTempMaps());
    EXPECT_TRUE(isMarked(plain.get(), owner));
    EXPECT_FALSE(AfxUnlockTempMaps());
    EXPECT_FALSE(isMarked(plain.get(), owner));
}

TEST(HandleMap, PermanentObjectsStayAtIdle) {
    TestFrame frame;
    ASSERT_TRUE(frame.createHidden());
    idle();
    EXPECT_EQ(&frame, CWnd::FromHandlePermanent(frame.m_hWnd));
    EXPECT_EQ(&frame, CWnd::FromHandle(frame.m_hWnd));
}

TEST(HandleMap, AttachingHidesTheTemporaryObjectAndDetachingShowsItAgain) {
    PlainWindow plain;
    CWnd* temporary = CWnd::FromHandle(plain.get());
    CWnd attached;
    EXPECT_TRUE(attached.Attach(plain.get()));
    EXPECT_EQ(&attached, CWnd::FromHandle(plain.get()));
    EXPECT_EQ(plain.get(), attached.Detach());
    EXPECT_EQ(nullptr, attached.m_hWnd);
    EXPECT_EQ(temporary, CWnd::FromHandle(plain.get()));
}

TEST(HandleMap, ANullHandleCanNotBeAttached) {
    CWnd window;
    EXPECT_FALSE(window.Attach(nullptr));
    EXPECT_EQ(nullptr, window.Detach());
}

TEST(HandleMap, AnotherThreadDoesNotSeeTheObjectsOfThisOne) {
    TestFrame frame;
    ASSERT_TRUE(frame.createHidden());
    CWnd* permanentElsewhere = &frame;
    CWnd* elsewhere = &frame;
    HWND handleElsewhere = nullptr;
    std::thread([&] {
        permanentElsewhere = CWnd::FromHandlePermanent(frame.m_hWnd);
        elsewhere = CWnd::FromHandle(frame.m_hWnd);
        handleElsewhere = elsewhere->m_hWnd;
    }).join();
    EXPECT_EQ(nullptr, permanentElsewhere);
    EXPECT_NE(&frame, elsewhere);
    EXPECT_EQ(frame.m_hWnd, handleElsewhere);
    // The end of that thread freed its temporary object, not the window.
    EXPECT_TRUE(IsWindow(frame.m_hWnd));
}

TEST(HandleMap, EachThreadHasItsOwnThreadObject) {
    EXPECT_EQ(&TestApplication::get(), AfxGetThread());
    CWinThread* elsewhere = AfxGetThread();
    std::thread([&] { elsewhere = AfxGetThread(); }).join();
    EXPECT_EQ(nullptr, elsewhere);
}
