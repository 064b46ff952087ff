#include "test_windows.h"

#include <gtest/gtest.h>

namespace {

CallLog S_log;

class Translating : public CWnd {
public:
    explicit Translating(std::string name) : m_name(std::move(name)) {}
    bool eats = false;
    bool destroysItself = false;
    std::function<void()> whenAsked;

    BOOL PreTranslateMessage(MSG* pMsg) override {
        if (pMsg->message == testMessage) {
            S_log.add(m_name);
            if (destroysItself) {
                DestroyWindow();
            }
            if (whenAsked) {
                whenAsked();
            }
            return eats;
        }
        return CWnd::PreTranslateMessage(pMsg);
    }

protected:
    LRESULT onTest(WPARAM, LPARAM) {
        S_log.add(m_name + ":dispatched");
        return 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    std::string m_name;
};

BEGIN_MESSAGE_MAP(Translating, CWnd)
    ON_MESSAGE(testMessage, &Translating::onTest)
END_MESSAGE_MAP()

class PreTranslate : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(main.CreateEx(0, nullptr, L"", WS_OVERLAPPEDWINDOW, CRect(0, 0, 50, 50), nullptr, 0));
        ASSERT_TRUE(panel.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 50, 50), &main, 1));
        ASSERT_TRUE(leaf.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 50, 50), &panel, 1));
        TestApplication::get().m_pMainWnd = &main;
        S_log.take();
    }
    void TearDown() override { TestApplication::get().m_pMainWnd = nullptr; }

    std::string post(CWnd& window) {
        window.PostMessage(testMessage);
        pumpWaiting();
        return S_log.take();
    }

    Translating main{"main"};
    Translating panel{"panel"};
    Translating leaf{"leaf"};
};

} // namespace

TEST_F(PreTranslate, TheMessageIsOfferedFromItsWindowUpToTheMainWindowThenDispatched) {
    EXPECT_EQ("leaf panel main leaf:dispatched", post(leaf));
}

TEST_F(PreTranslate, WhoEatsTheMessageIsTheLastToSeeIt) {
    panel.eats = true;
    EXPECT_EQ("leaf panel", post(leaf));
}

TEST_F(PreTranslate, AMessageOfAWindowWithoutAnObjectIsOfferedToItsParents) {
    const HWND plain = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 5, 5, panel.m_hWnd, nullptr,
                                       GetModuleHandleW(nullptr), nullptr);
    ::PostMessageW(plain, testMessage, 0, 0);
    pumpWaiting();
    EXPECT_EQ("panel main", S_log.take());
}

TEST_F(PreTranslate, AWindowMayDestroyItselfWhileItIsAsked) {
    leaf.destroysItself = true;
    leaf.eats = true;
    EXPECT_EQ("leaf", post(leaf));
    EXPECT_EQ(nullptr, leaf.m_hWnd);
}

TEST_F(PreTranslate, TheMainWindowSeesTheMessagesOfFloatingWindowsLast) {
    Translating floating{"floating"};
    ASSERT_TRUE(floating.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    EXPECT_EQ("floating main floating:dispatched", post(floating));
    main.eats = true;
    EXPECT_EQ("floating main", post(floating));
}

TEST_F(PreTranslate, AMainWindowThatEndsWhileOthersAreAskedIsNotAskedAnyMore) {
    auto* doomed = new Translating("doomed");
    ASSERT_TRUE(doomed->CreateEx(0, nullptr, L"", WS_OVERLAPPEDWINDOW, CRect(0, 0, 5, 5), nullptr, 0));
    TestApplication::get().m_pMainWnd = doomed;
    Translating floating{"floating"};
    ASSERT_TRUE(floating.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    floating.whenAsked = [doomed] {
        delete doomed;
        // Its end is told to the loop, which goes on in this test.
        MSG quit{};
        EXPECT_TRUE(PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    };
    EXPECT_EQ("floating floating:dispatched", post(floating));
}

TEST_F(PreTranslate, TheMainWindowIsNotAskedForAWindowThatEndedWhileItWasAsked) {
    Translating floating{"floating"};
    ASSERT_TRUE(floating.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
    floating.destroysItself = true;
    EXPECT_EQ("floating", post(floating));
}

TEST_F(PreTranslate, TheWalkStopsAtTheWindowThatIsNamed) {
    MSG message{leaf.m_hWnd, testMessage, 0, 0, 0, {}};
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(panel.m_hWnd, &message));
    EXPECT_EQ("leaf panel", S_log.take());
}

TEST(MessageLoop, TheEndOfTheMainWindowEndsTheLoop) {
    TestFrame main;
    ASSERT_TRUE(main.createHidden());
    TestApplication& application = TestApplication::get();
    application.m_pMainWnd = &main;
    application.idleCalls = 0;
    main.PostMessage(WM_CLOSE);
    EXPECT_EQ(0, application.Run());
    EXPECT_EQ(nullptr, main.m_hWnd);
    EXPECT_EQ(nullptr, application.m_pMainWnd);
}

TEST(MessageLoop, TheExitCodeIsTheOneThatWasPosted) {
    TestFrame main;
    ASSERT_TRUE(main.createHidden());
    TestApplication::get().m_pMainWnd = &main;
    AfxPostQuitMessage(17);
    EXPECT_EQ(17, TestApplication::get().Run());
    TestApplication::get().m_pMainWnd = nullptr;
}

TEST(MessageLoop, AMainWindowThatKeepsItsEndFromItsBaseEndsTheLoopAllTheSame) {
    TestFrame main;
    ASSERT_TRUE(main.createHidden());
    TestApplication& application = TestApplication::get();
    application.m_pMainWnd = &main;
    main.handler = [](UINT message, WPARAM, LPARAM, LRESULT&) { return message == WM_NCDESTROY; };
    main.PostMessage(WM_CLOSE);
    EXPECT_EQ(0, application.Run());
    EXPECT_EQ(nullptr, application.m_pMainWnd);
}

namespace {

/// What the program does instead of a loop, and what it says at its end.
class ProgramCourse {
public:
    ProgramCourse(std::function<BOOL()> initialise, std::function<int(int)> exit) {
        TestApplication::get().initialise = std::move(initialise);
        TestApplication::get().exit = std::move(exit);
    }
    ProgramCourse(const ProgramCourse&) = delete;
    ProgramCourse& operator=(const ProgramCourse&) = delete;
    ~ProgramCourse() {
        TestApplication::get().initialise = nullptr;
        TestApplication::get().exit = nullptr;
    }
    static int run() { return AfxWinMain(GetModuleHandleW(nullptr), nullptr, GetCommandLineW(), SW_SHOWNOACTIVATE); }
};

/// Dispatches one message with this number in its wParam, as a modal dialog would.
BOOL pumpOneWith(WPARAM number) {
    ::PostMessageW(nullptr, testMessage, number, 0);
    return AfxPumpMessage();
}

} // namespace

TEST(ProgramEnd, AProgramThatIsOneDialogEndsWithZeroWhateverItPumpedLast) {
    const ProgramCourse course(
        [] {
            EXPECT_TRUE(pumpOneWith(77));
            return FALSE;
        },
        nullptr);
    EXPECT_EQ(0, ProgramCourse::run());
}

TEST(ProgramEnd, TheCodeIsThatOfExitInstanceAlsoWithoutALoop) {
    const ProgramCourse course([] { return FALSE; }, [](int) { return 7; });
    EXPECT_EQ(7, ProgramCourse::run());
}

TEST(ProgramEnd, AQuitThatEndedTheDialogOfAProgramGivesTheCode) {
    const ProgramCourse course(
        [] {
            PostQuitMessage(5);
            EXPECT_FALSE(AfxPumpMessage());
            return FALSE;
        },
        nullptr);
    EXPECT_EQ(5, ProgramCourse::run());
}

TEST(ProgramEnd, WhatIsPumpedOnTheWayOutDoesNotChangeTheCode) {
    TestFrame main;
    ASSERT_TRUE(main.createHidden());
    const ProgramCourse course(
        [&main] {
            TestApplication::get().m_pMainWnd = &main;
            PostQuitMessage(17);
            return TRUE;
        },
        [](int) {
            EXPECT_TRUE(pumpOneWith(78));
            return TestApplication::get().CWinApp::ExitInstance();
        });
    EXPECT_EQ(17, ProgramCourse::run());
    TestApplication::get().m_pMainWnd = nullptr;
}

TEST(MessageLoop, TemporaryObjectsGoWhenTheLoopIsIdle) {
    TestFrame main;
    ASSERT_TRUE(main.createHidden());
    TestApplication& application = TestApplication::get();
    application.m_pMainWnd = &main;
    const HWND plain =
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    CWnd::FromHandle(plain)->SetOwner(&main);
    bool keptInHandler = false;
    bool keptAfterIdle = true;
    main.handler = [&](UINT message, WPARAM, LPARAM, LRESULT&) {
        if (message == testMessage) {
            keptInHandler = CWnd::FromHandle(plain)->GetOwner() == &main;
            main.SetTimer(1, 10);
        } else if (message == WM_TIMER) {
            keptAfterIdle = CWnd::FromHandle(plain)->GetOwner() == &main;
            main.DestroyWindow();
        }
        return false;
    };
    main.PostMessage(testMessage);
    application.idleCalls = 0;
    application.Run();
    EXPECT_TRUE(keptInHandler);
    EXPECT_FALSE(keptAfterIdle);
    EXPECT_GE(application.idleCalls, 1);
    ::DestroyWindow(plain);
}

TEST(MessageLoop, AnApplicationWithoutAMainWindowEndsAtOnce) {
    ASSERT_EQ(nullptr, TestApplication::get().m_pMainWnd);
    EXPECT_EQ(0, TestApplication::get().Run());
}

TEST(MessageLoop, MouseMovesOnTheSpotAreNoReasonToIdleAgain) {
    CWinThread& thread = TestApplication::get();
    MSG move{nullptr, WM_MOUSEMOVE, 0, 0, 0, {5, 6}};
    EXPECT_TRUE(thread.IsIdleMessage(&move));
    EXPECT_FALSE(thread.IsIdleMessage(&move));
    move.pt.x = 7;
    EXPECT_TRUE(thread.IsIdleMessage(&move));
    MSG paint{nullptr, WM_PAINT, 0, 0, 0, {}};
    EXPECT_FALSE(thread.IsIdleMessage(&paint));
    MSG key{nullptr, WM_KEYDOWN, 0, 0, 0, {}};
    EXPECT_TRUE(thread.IsIdleMessage(&key));
}
