#include "CanvasFixture.h"

using VectorCanvas::VectorCanvasCtrl;

TEST_F(Canvases, AreNotMadeWithoutAPainter) {
    VectorCanvasCtrl none(nullptr);
    EXPECT_EQ(0, none.Create(L"", WS_CHILD, CRect(0, 0, 10, 10), &host, 1));
    EXPECT_EQ(nullptr, none.m_hWnd);
}

TEST_F(Canvases, AreNotMadeWhereThereIsNoWindowToBeHad) {
    CWnd parentWithoutWindow;
    EXPECT_EQ(0, canvas.Create(L"", WS_CHILD, CRect(0, 0, 10, 10), &parentWithoutWindow, 1));
    EXPECT_EQ(CSize(0, 0), painter.GetViewport());
}

TEST_F(Canvases, TellThePainterOfTheirWindowAndClientSize) {
    ASSERT_EQ(1, canvas.Create(L"canvas", WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(0, 0, 60, 40), &host, 5));
    EXPECT_EQ(CSize(58, 38), painter.GetViewport());
    CString name;
    canvas.GetWindowText(name);
    EXPECT_STREQ(L"canvas", name);
    EXPECT_EQ(5, canvas.GetDlgCtrlID());
    canvas.log = &log;
    support::pumpUntilIdle();
    log.clear();
    begin(58, 38);
    painter.EndRender(true);
    EXPECT_EQ("draw 0,0; ", log);
}

TEST_F(Canvases, AreKnownByTheirClass) {
    EXPECT_STREQ("VectorCanvasCtrl", canvas.GetRuntimeClass()->m_lpszClassName);
    EXPECT_TRUE(canvas.IsKindOf(RUNTIME_CLASS(VectorCanvasCtrl)));
    EXPECT_TRUE(canvas.IsKindOf(RUNTIME_CLASS(CWnd)));
}

TEST_F(Canvases, HaveOneMessageForTheSession) {
    const unsigned int message = VectorCanvasCtrl::GetUpdatePaintingMessage();
    EXPECT_EQ(::RegisterWindowMessageW(L"CVectorCanvasCtrl_UpdatePainting_Message"), message);
    EXPECT_EQ(message, VectorCanvasCtrl::GetUpdatePaintingMessage());
}

TEST_F(Canvases, ShowThePictureWhenThePainterIsThrough) {
    create(CSize(60, 40));
    render(60, 40);
    EXPECT_TRUE(support::samePixels(shown(), picture()));
    EXPECT_EQ(kBlue, shown().at(5, 5));
}

TEST_F(Canvases, ShowAPostedPictureLater) {
    create(CSize(60, 40));
    canvas.log = &log;
    render(60, 40, false);
    EXPECT_EQ("", log);
    support::pumpUntilIdle();
    EXPECT_EQ("draw 0,0; ", log);
    EXPECT_TRUE(support::samePixels(shown(), picture()));
}

TEST_F(Canvases, AnswerTheMessageWithoutAResult) {
    create(CSize(60, 40));
    LRESULT result = 77;
    EXPECT_EQ(1, canvas.OnWndMsg(VectorCanvasCtrl::GetUpdatePaintingMessage(), 0, 0, &result));
    EXPECT_EQ(77, result);
}

TEST_F(Canvases, LeaveTheMessageWithoutAPainterToOthers) {
    Canvas none(nullptr);
    LRESULT result = 77;
    EXPECT_EQ(0, none.OnWndMsg(VectorCanvasCtrl::GetUpdatePaintingMessage(), 0, 0, &result));
}

TEST_F(Canvases, RepaintForTheSystemByTheSameMessage) {
    create(CSize(60, 40));
    render(60, 40);
    const support::Pixels before = shown();
    {
        CClientDC dc(&canvas);
        dc.FillSolidRect(0, 0, 60, 40, kGreen);
    }
    canvas.log = &log;
    canvas.Invalidate();
    canvas.UpdateWindow();
    EXPECT_EQ("", log) << "nothing is drawn in the paint itself";
    EXPECT_FALSE(::GetUpdateRect(canvas, nullptr, FALSE)) << "but it is through";
    EXPECT_EQ(kGreen, shown().at(30, 30));
    support::pumpUntilIdle();
    EXPECT_EQ("draw 0,0; ", log);
    EXPECT_TRUE(support::samePixels(shown(), before));
}

TEST_F(Canvases, EraseNothing) {
    create(CSize(60, 40));
    render(60, 40);
    const support::Pixels before = shown();
    const support::MemoryDevice device(60, 40, kGreen);
    EXPECT_EQ(1, canvas.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(device.dc())));
    EXPECT_EQ(kGreen, device.pixels().onlyColour({0, 0, 60, 40}));
    EXPECT_EQ(before, shown());
}

TEST_F(Canvases, WithoutAFrameKeepWhatIsOnTheScreen) {
    create(CSize(60, 40));
    {
        CClientDC dc(&canvas);
        dc.FillSolidRect(0, 0, 60, 40, kGreen);
    }
    canvas.Invalidate();
    canvas.UpdateWindow();
    support::pumpUntilIdle();
    EXPECT_EQ(kGreen, shown().onlyColour({0, 0, 60, 40}));
}

TEST_F(Canvases, AsLargeAsThePictureHaveNoMargins) {
    create(CSize(60, 40));
    render(60, 40);
    EXPECT_EQ(0U, shown().count(kMargin));
}

TEST_F(Canvases, LargerThanThePictureFillTheirMargins) {
    create(CSize(100, 90));
    {
        CClientDC dc(&canvas);
        dc.FillSolidRect(0, 0, 100, 90, kGreen);
    }
    render(60, 50);
    const support::Pixels pixels = shown();
    EXPECT_EQ(kWhite, pixels.at(59, 49));
    EXPECT_EQ(kMargin, pixels.onlyColour({0, 50, 60, 90})) << "below, as wide as the picture";
    // To the right 100 - 60 high instead of wide, and 50, the picture's height, wide: all that is to the right of it.
    EXPECT_EQ(kMargin, pixels.onlyColour({60, 0, 100, 40}));
    EXPECT_EQ(kGreen, pixels.onlyColour({60, 40, 100, 90})) << "what is beyond both strips";
}

TEST_F(Canvases, SmallerThanThePictureShowItsCorner) {
    create(CSize(30, 20));
    render(60, 40);
    EXPECT_TRUE(support::samePixels(shown(), picture().part({0, 0, 30, 20})));
}

TEST_F(Canvases, DrawAtAnOriginWithoutMovingTheMargins) {
    create(CSize(60, 40));
    render(20, 15);
    support::MemoryDevice device(60, 40, kGreen);
    CDC dc;
    dc.Attach(device.dc());
    canvas.Draw(&dc, CPoint(5, 3));
    canvas.Draw(nullptr, CPoint(0, 0));
    dc.Detach();
    const support::Pixels pixels = device.pixels();
    EXPECT_EQ(kGreen, pixels.at(4, 3));
    EXPECT_EQ(kBlue, pixels.at(5 + 5, 3 + 5));
    EXPECT_EQ(kMargin, pixels.at(20, 0)) << "not at 25";
    EXPECT_EQ(kMargin, pixels.at(0, 15)) << "over the picture";
}

TEST_F(Canvases, LetThePaintersSurfacesGoAtTheirEnd) {
    create(CSize(60, 40));
    render(60, 40);
    canvas.DestroyWindow();
    EXPECT_EQ(nullptr, painter.GetSource());
    render(60, 40); // into no window any more
    EXPECT_NE(nullptr, painter.GetSource());
}

TEST_F(Canvases, DestroyedWithAMessageOnItsWayAreNotDrawnOn) {
    create(CSize(60, 40));
    canvas.log = &log;
    render(60, 40, false);
    canvas.DestroyWindow();
    support::pumpUntilIdle();
    EXPECT_EQ("", log);
}

TEST_F(Canvases, MayEndWhileTheyAreDrawn) {
    class Suicidal : public VectorCanvasCtrl {
    public:
        using VectorCanvasCtrl::VectorCanvasCtrl;

    protected:
        void Draw(CDC* dc, const CPoint& origin) override {
            DestroyWindow();
            VectorCanvasCtrl::Draw(dc, origin);
        }
    };
    Suicidal passing(&painter);
    ASSERT_TRUE(passing.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 60, 40), &host, 6));
    render(60, 40);
    EXPECT_EQ(nullptr, passing.m_hWnd);
    EXPECT_EQ(nullptr, painter.GetSource());
}
