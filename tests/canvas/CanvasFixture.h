#pragma once

#include <string>

#include "PainterFixture.h"
#include "support/Pump.h"
#include "support/TopLevelWindow.h"

inline constexpr COLORREF kMargin = RGB(10, 20, 30);

/// Its margins have a colour of their own; it notes where it is drawn.
class Canvas : public VectorCanvas::VectorCanvasCtrl {
public:
    explicit Canvas(VectorCanvas::IVectorPainter* painter) : VectorCanvasCtrl(painter) { m_marginColor = kMargin; }

    using VectorCanvasCtrl::OnWndMsg;

    std::string* log = nullptr;

    void Draw(CDC* dc, const CPoint& origin) override {
        if (log != nullptr) {
            *log += "draw " + std::to_string(origin.x) + ',' + std::to_string(origin.y) + "; ";
        }
        VectorCanvasCtrl::Draw(dc, origin);
    }
};

/// A painter and a window that shows its pictures.
class Canvases : public PainterFixture {
protected:
    /// The window stands in a host of the same size.
    void create(const CSize& size) {
        ASSERT_TRUE(canvas.Create(L"canvas", WS_CHILD | WS_VISIBLE, CRect(CPoint(0, 0), size), &host, 5));
        support::pumpUntilIdle();
    }
    void render(int width, int height, bool synchronous = true) {
        begin(width, height);
        painter.DrawRect({2, 2, 10, 10}, kRed, kBlue, kId);
        painter.EndRender(synchronous);
    }
    support::Pixels shown() const { return support::Pixels::ofClient(canvas); }

    std::string log;
    support::ScopedTopLevelWindow host{CSize(120, 100)};
    Canvas canvas{&painter};
};
