#include "test_windows.h"

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>

namespace {

class CreationLog : public CWnd {
public:
    CallLog log;
    int createAnswer = 0;
    bool refuse = false;

    BOOL PreCreateWindow(CREATESTRUCT& cs) override {
        log.add("precreate");
        return !refuse && CWnd::PreCreateWindow(cs);
    }
    void PreSubclassWindow() override { log.add(m_hWnd != nullptr ? "presubclass" : "presubclass-early"); }
    void PostNcDestroy() override { log.add(m_hWnd == nullptr ? "postncdestroy" : "postncdestroy-early"); }

protected:
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override {
        switch (message) {
        case WM_NCCREATE:
            log.add("nccreate");
            break;
        case WM_CREATE:
            log.add("create");
            *pResult = createAnswer;
            return TRUE;
        case WM_DESTROY:
            log.add("destroy");
            break;
        case WM_NCDESTROY:
            log.add("ncdestroy");
            break;
        default:
            break;
        }
        return CWnd::OnWndMsg(message, wParam, lParam, pResult);
    }
};

BOOL createIn(CWnd& window, CWnd* parent = nullptr) {
    return parent != nullptr
               ? window.Create(nullptr, L"child", WS_CHILD, CRect(5, 6, 25, 36), parent, 42)
               : window.CreateEx(0, nullptr, L"top", WS_OVERLAPPEDWINDOW, CRect(0, 0, 100, 100), nullptr, 0);
}

} // namespace

TEST(WindowLife, TheFirstMessagesReachTheObject) {
    CreationLog window;
    ASSERT_TRUE(createIn(window));
    EXPECT_EQ("precreate presubclass nccreate create", window.log.take());
    EXPECT_EQ(&window, CWnd::FromHandlePermanent(window.m_hWnd));
    const HWND handle = window.m_hWnd;
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ("destroy ncdestroy postncdestroy", window.log.take());
    EXPECT_EQ(nullptr, window.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(handle));
    EXPECT_FALSE(window.DestroyWindow());
}

TEST(WindowLife, AnObjectCanBeCreatedAgain) {
    CreationLog window;
    for (int round = 0; round < 3; ++round) {
        ASSERT_TRUE(createIn(window));
        EXPECT_TRUE(window.DestroyWindow());
    }
}

TEST(WindowLife, ARefusalBeforeTheCreationMakesNoWindow) {
    CreationLog window;
    window.refuse = true;
    EXPECT_FALSE(createIn(window));
    EXPECT_EQ("precreate postncdestroy", window.log.take());
}

TEST(WindowLife, ARefusalInTheCreationLeavesTheObjectWithoutAWindow) {
    CreationLog window;
    window.createAnswer = -1;
    EXPECT_FALSE(createIn(window));
    EXPECT_EQ(nullptr, window.m_hWnd);
    const std::string log = window.log.take();
    EXPECT_NE(std::string::npos, log.find("postncdestroy")) << log;
}

TEST(WindowLife, AnUnknownClassMakesNoWindowAndTheNextOneIsNotAttachedByMistake) {
    CreationLog window;
    EXPECT_FALSE(window.CreateEx(0, L"no such class of ours", L"", 0, CRect(0, 0, 1, 1), nullptr, 0));
    EXPECT_EQ("precreate postncdestroy", window.log.take());
    const HWND plain =
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(plain));
    EXPECT_EQ(nullptr, window.m_hWnd);
    ::DestroyWindow(plain);
}

TEST(WindowLife, TheDestructorDestroysTheWindow) {
    HWND handle = nullptr;
    {
        CreationLog window;
        ASSERT_TRUE(createIn(window));
        handle = window.m_hWnd;
    }
    EXPECT_FALSE(IsWindow(handle));
}

TEST(WindowLife, ChildObjectsOutliveTheWindowOfTheirParent) {
    CreationLog child;
    {
        CreationLog parent;
        ASSERT_TRUE(createIn(parent));
        ASSERT_TRUE(createIn(child, &parent));
        EXPECT_EQ(42, child.GetDlgCtrlID());
        EXPECT_EQ(&child, parent.GetDlgItem(42));
        child.log.take();
    }
    EXPECT_EQ(nullptr, child.m_hWnd);
    EXPECT_EQ("destroy ncdestroy postncdestroy", child.log.take());
}

TEST(WindowLife, AWindowCreatedInsideTheCreationOfAnotherHasItsOwnObject) {
    TestFrame outer;
    TestFrame inner;
    outer.handler = [&](UINT message, WPARAM, LPARAM, LRESULT&) {
        if (message == WM_CREATE) {
            EXPECT_TRUE(inner.createHidden());
        }
        return false;
    };
    ASSERT_TRUE(outer.createHidden());
    EXPECT_EQ(&outer, CWnd::FromHandlePermanent(outer.m_hWnd));
    EXPECT_EQ(&inner, CWnd::FromHandlePermanent(inner.m_hWnd));
    EXPECT_NE(outer.m_hWnd, inner.m_hWnd);
}

namespace {

class SelfDestroying : public CWnd {
public:
    CallLog log;

protected:
    LRESULT onTest(WPARAM, LPARAM) {
        DestroyWindow();
        log.add(m_hWnd == nullptr ? "gone" : "still there");
        Invalidate();
        // The message outlives the window: the original procedure gets a null handle.
        return Default() == 0 ? 77 : 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SelfDestroying, CWnd)
    ON_MESSAGE(testMessage, &SelfDestroying::onTest)
END_MESSAGE_MAP()

class SelfDeleting : public CWnd {
public:
    explicit SelfDeleting(bool& deleted) : m_deleted(deleted) {}
    ~SelfDeleting() override { m_deleted = true; }
    void PostNcDestroy() override { delete this; }

protected:
    LRESULT onTest(WPARAM, LPARAM) {
        DestroyWindow();
        return 78;
    }
    DECLARE_MESSAGE_MAP()

private:
    bool& m_deleted;
};

BEGIN_MESSAGE_MAP(SelfDeleting, CWnd)
    ON_MESSAGE(testMessage, &SelfDeleting::onTest)
END_MESSAGE_MAP()

} // namespace

TEST(WindowLife, AnObjectSurvivesTheDestructionOfItsWindowInsideItsOwnHandler) {
    SelfDestroying window;
    ASSERT_TRUE(createIn(window));
    EXPECT_EQ(77, window.SendMessage(testMessage));
    EXPECT_EQ("gone", window.log.take());
    EXPECT_EQ(nullptr, window.m_hWnd);
}

TEST(WindowLife, AnObjectMayDeleteItselfInsideItsOwnHandler) {
    bool deleted = false;
    auto* window = new SelfDeleting(deleted);
    ASSERT_TRUE(createIn(*window));
    EXPECT_EQ(78, ::SendMessageW(window->m_hWnd, testMessage, 0, 0));
    EXPECT_TRUE(deleted);
}

TEST(WindowLife, AnObjectMayDeleteItselfWhenItsCreationFails) {
    bool deleted = false;
    auto* window = new SelfDeleting(deleted);
    EXPECT_FALSE(window->CreateEx(0, L"no such class of ours", L"", 0, CRect(0, 0, 1, 1), nullptr, 0));
    EXPECT_TRUE(deleted);
}

TEST(WindowLife, TheHostMayDestroyTheWindowOfAnAttachedObject) {
    const HWND plain =
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    CWnd window;
    ASSERT_TRUE(window.Attach(plain));
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ(nullptr, window.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(plain));
}

TEST(WindowLife, AHandlerThatKeepsTheEndFromItsBaseLeavesNoHandleBehind) {
    TestFrame window;
    ASSERT_TRUE(window.createHidden());
    const HWND handle = window.m_hWnd;
    window.handler = [](UINT message, WPARAM, LPARAM, LRESULT&) { return message == WM_NCDESTROY; };
    EXPECT_TRUE(::DestroyWindow(handle));
    EXPECT_EQ(nullptr, window.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(handle));
}

TEST(WindowLife, TenThousandWindowsLeaveNoHandleBehind) {
    TestFrame parent;
    ASSERT_TRUE(parent.createHidden());
    std::set<WORD> slots;
    for (int round = 0; round < 10000; ++round) {
        TestFrame child;
        ASSERT_TRUE(child.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 5, 5), &parent, 1)) << round;
        slots.insert(LOWORD(child.m_hWnd));
    }
    EXPECT_EQ(nullptr, ::GetTopWindow(parent.m_hWnd));
    // Windows and hooks of all programs share one table of handles, whose slots are used again: a leak takes a new slot
    // each round, while programs beside this one take or free a few.
    EXPECT_LT(slots.size(), 1000u);
}

// Subclassing

namespace {

class Subclass : public CWnd {
public:
    CallLog log;

protected:
    LRESULT onGetText(WPARAM, LPARAM) {
        log.add("gettext");
        return Default();
    }
    LRESULT onTest(WPARAM, LPARAM) {
        log.add("test");
        return 3;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Subclass, CWnd)
    ON_MESSAGE(WM_GETTEXT, &Subclass::onGetText)
    ON_MESSAGE(testMessage, &Subclass::onTest)
END_MESSAGE_MAP()

HWND makeEdit(HWND parent, int id) {
    return CreateWindowExW(0, L"EDIT", L"text", WS_CHILD, 0, 0, 50, 20, parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
}

} // namespace

TEST(Subclassing, TheObjectSeesTheMessagesAndTheControlKeepsItsBehaviour) {
    TestFrame frame;
    ASSERT_TRUE(frame.createHidden());
    const HWND edit = makeEdit(frame.m_hWnd, 4);
    const LONG_PTR original = GetWindowLongPtrW(edit, GWLP_WNDPROC);
    Subclass subclass;
    ASSERT_TRUE(subclass.SubclassWindow(edit));
    EXPECT_EQ(3, ::SendMessageW(edit, testMessage, 0, 0));
    wchar_t text[10] = {};
    ::SendMessageW(edit, WM_GETTEXT, 10, reinterpret_cast<LPARAM>(text));
    EXPECT_STREQ(L"text", text);
    EXPECT_EQ("test gettext", subclass.log.take());

    EXPECT_EQ(edit, subclass.UnsubclassWindow());
    EXPECT_EQ(nullptr, subclass.m_hWnd);
    EXPECT_EQ(original, GetWindowLongPtrW(edit, GWLP_WNDPROC));
    EXPECT_EQ(0, ::SendMessageW(edit, testMessage, 0, 0));
    EXPECT_EQ("", subclass.log.take());
}

TEST(Subclassing, AnItemOfADialogIsFoundByItsIdentifier) {
    TestFrame frame;
    ASSERT_TRUE(frame.createHidden());
    const HWND edit = makeEdit(frame.m_hWnd, 4);
    Subclass subclass;
    EXPECT_FALSE(subclass.SubclassDlgItem(5, &frame));
    EXPECT_FALSE(subclass.SubclassDlgItem(4, nullptr));
    EXPECT_TRUE(subclass.SubclassDlgItem(4, &frame));
    EXPECT_EQ(edit, subclass.m_hWnd);
}

TEST(Subclassing, AWindowHasOneObjectAtATime) {
    TestFrame frame;
    ASSERT_TRUE(frame.createHidden());
    const HWND edit = makeEdit(frame.m_hWnd, 4);
    Subclass first;
    Subclass second;
    ASSERT_TRUE(first.SubclassWindow(edit));
    EXPECT_FALSE(second.SubclassWindow(edit));
    EXPECT_FALSE(second.SubclassWindow(nullptr));
    EXPECT_EQ(&first, CWnd::FromHandlePermanent(edit));
}

TEST(Subclassing, TheEndOfTheWindowGivesTheOriginalProcedureBack) {
    TestFrame frame;
    ASSERT_TRUE(frame.createHidden());
    const HWND edit = makeEdit(frame.m_hWnd, 4);
    Subclass subclass;
    ASSERT_TRUE(subclass.SubclassWindow(edit));
    ::DestroyWindow(edit);
    EXPECT_EQ(nullptr, subclass.m_hWnd);
}

// The current message

TEST(CurrentMessage, DefaultRunsTheMessageOfTheHandlerAlsoAfterNestedOnes) {
    TestFrame window;
    ASSERT_TRUE(window.createHidden());
    class Access : public TestFrame {
    public:
        using CWnd::Default;
    };
    std::vector<UINT> seen;
    window.handler = [&](UINT message, WPARAM, LPARAM, LRESULT& result) {
        if (message == WM_SETTEXT) {
            window.SendMessage(testMessage);
            seen.push_back(CWnd::GetCurrentMessage()->message);
            result = static_cast<Access&>(static_cast<CWnd&>(window)).Default();
            return true;
        }
        if (message == testMessage) {
            seen.push_back(CWnd::GetCurrentMessage()->message);
        }
        return false;
    };
    window.SetWindowText(L"after nested");
    EXPECT_EQ((std::vector<UINT>{testMessage, WM_SETTEXT}), seen);
    CString text;
    window.GetWindowText(text);
    EXPECT_STREQ(L"after nested", text);
}

TEST(CurrentMessage, OnWndMsgDecidesWhetherTheMapIsAsked) {
    TestFrame window;
    ASSERT_TRUE(window.createHidden());
    window.handler = [](UINT message, WPARAM wParam, LPARAM, LRESULT& result) {
        result = static_cast<LRESULT>(wParam) * 2;
        return message == testMessage;
    };
    EXPECT_EQ(8, window.SendMessage(testMessage, 4));
    EXPECT_EQ(0, window.SendMessage(otherTestMessage, 4));
}

// Exceptions

namespace {

class ThrowingApplicationLog {
public:
    ThrowingApplicationLog() { TestApplication::get().log.take(); }
    std::string take() { return TestApplication::get().log.take(); }
};

} // namespace

TEST(WindowExceptions, NoExceptionLeavesTheWindowProcedureAndTheTextIsShown) {
    ThrowingApplicationLog log;
    TestFrame window;
    ASSERT_TRUE(window.createHidden());
    const struct {
        std::function<void()> doThrow;
        const char* expected;
    } cases[] = {
        {[] { throw std::runtime_error("from the handler"); }, "box:from the handler"},
        {[] { throw 5; }, "box:Nieznany wyj\x05tek."},
        {[] { throw new CSimpleException(TRUE, L"a framework's own"); }, "box:a framework's own"},
        {[] { AfxThrowUserException(); }, ""},
    };
    for (const auto& one : cases) {
        window.handler = [&](UINT message, WPARAM, LPARAM, LRESULT&) {
            if (message == testMessage) {
                one.doThrow();
            }
            return false;
        };
        EXPECT_EQ(0, window.SendMessage(testMessage));
        EXPECT_EQ(one.expected, log.take());
    }
    window.handler = [](UINT message, WPARAM, LPARAM, LRESULT& result) {
        result = 9;
        return message == testMessage;
    };
    EXPECT_EQ(9, window.SendMessage(testMessage));
}

TEST(WindowExceptions, TheMessageOutsideStaysCurrentAfterAnExceptionInside) {
    TestFrame window;
    ASSERT_TRUE(window.createHidden());
    UINT current = 0;
    window.handler = [&](UINT message, WPARAM, LPARAM, LRESULT&) {
        if (message == testMessage) {
            window.SendMessage(otherTestMessage);
            current = CWnd::GetCurrentMessage()->message;
        } else if (message == otherTestMessage) {
            throw std::runtime_error("inside");
        }
        return false;
    };
    window.SendMessage(testMessage);
    EXPECT_EQ(testMessage, current);
    TestApplication::get().log.take();
}

TEST(WindowExceptions, AnExceptionInTheCreationFailsIt) {
    ThrowingApplicationLog log;
    TestFrame window;
    window.handler = [](UINT message, WPARAM, LPARAM, LRESULT&) {
        if (message == WM_CREATE) {
            AfxThrowResourceException();
        }
        return false;
    };
    EXPECT_FALSE(window.createHidden());
    EXPECT_EQ(nullptr, window.m_hWnd);
    EXPECT_EQ("", log.take());
}

TEST(WindowExceptions, AnExceptionInPaintingValidatesTheWindow) {
    ThrowingApplicationLog log;
    TestFrame window;
    ASSERT_TRUE(window.createHidden(WS_POPUP, CRect(0, 0, 20, 20)));
    window.ShowWindow(SW_SHOWNOACTIVATE);
    int paints = 0;
    window.handler = [&](UINT message, WPARAM, LPARAM, LRESULT&) {
        if (message == WM_PAINT) {
            ++paints;
            throw std::runtime_error("no paint");
        }
        return false;
    };
    window.Invalidate();
    window.UpdateWindow();
    EXPECT_EQ(1, paints);
    EXPECT_FALSE(window.GetUpdateRect(nullptr));
    EXPECT_EQ("", log.take());
}
