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

// The same rules for every kind of handle.

namespace {

struct WindowKind {
    using Object = CWnd;
    static HWND make() {
        return CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, GetModuleHandleW(nullptr),
                               nullptr);
    }
    static void end(HWND handle) { ::DestroyWindow(handle); }
};

struct DeviceKind {
    using Object = CDC;
    static HDC make() { return ::CreateCompatibleDC(nullptr); }
    static void end(HDC handle) { ::DeleteDC(handle); }
};

struct DrawingKind {
    using Object = CGdiObject;
    static HGDIOBJ make() { return ::CreateSolidBrush(RGB(1, 2, 3)); }
    static void end(HGDIOBJ handle) { ::DeleteObject(handle); }
};

struct MenuKind {
    using Object = CMenu;
    static HMENU make() { return ::CreateMenu(); }
    static void end(HMENU handle) { ::DestroyMenu(handle); }
};

template <class Kind>
class EachHandleMap : public testing::Test {
protected:
    ~EachHandleMap() override { Kind::end(handle); }

    decltype(Kind::make()) handle = Kind::make();
};

using Kinds = testing::Types<WindowKind, DeviceKind, DrawingKind, MenuKind>;
TYPED_TEST_SUITE(EachHandleMap, Kinds);

} // namespace

TYPED_TEST(EachHandleMap, ATemporaryObjectThatWasDetachedStandsForItsHandleAgainWhenItIsAskedFor) {
    using Object = typename TypeParam::Object;
    Object* temporary = Object::FromHandle(this->handle);
    EXPECT_EQ(this->handle, temporary->Detach());
    EXPECT_EQ(this->handle, static_cast<decltype(this->handle)>(*Object::FromHandle(this->handle)));
}

TYPED_TEST(EachHandleMap, DetachingATemporaryObjectLeavesTheAttachedOneInItsPlace) {
    using Object = typename TypeParam::Object;
    Object* temporary = Object::FromHandle(this->handle);
    Object attached;
    ASSERT_TRUE(attached.Attach(this->handle));
    EXPECT_EQ(this->handle, temporary->Detach());
    EXPECT_EQ(&attached, Object::FromHandle(this->handle));
    EXPECT_EQ(this->handle, attached.Detach());
}

TYPED_TEST(EachHandleMap, WhoAttachedLastIsFoundAndWhoAttachedFirstDoesNotTakeItAway) {
    using Object = typename TypeParam::Object;
    Object first;
    Object second;
    ASSERT_TRUE(first.Attach(this->handle));
    ASSERT_TRUE(second.Attach(this->handle));
    EXPECT_EQ(this->handle, first.Detach());
    EXPECT_EQ(&second, Object::FromHandle(this->handle));
    EXPECT_EQ(this->handle, second.Detach());
    EXPECT_NE(&second, Object::FromHandle(this->handle));
}

TYPED_TEST(EachHandleMap, ANullHandleIsNeitherAttachedNorDetached) {
    typename TypeParam::Object object;
    EXPECT_FALSE(object.Attach(nullptr));
    EXPECT_EQ(nullptr, object.Detach());
}
