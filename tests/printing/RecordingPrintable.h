#pragma once

#include <functional>
#include <string>

#include <OrtinControls/IPrintable.h>
#include <OrtinControls/PrintInfo.h>

/// A document of so many pages that writes what is asked of it: "begin prepare:1 print:1 end". Hooks run after that.
/// Of what is only read of it, the hooks alone tell.
class RecordingPrintable : public IPrintable {
public:
    using Hook = std::function<void(CDC&, PrintInfo&)>;
    using ReadHook = std::function<void()>;

    std::wstring title = L"Notowania";
    int pages = 1;
    bool isAborted = false;
    CWnd* window = nullptr;
    Hook onBegin;
    Hook onPrepare;
    Hook onPrint;
    Hook onEnd;
    ReadHook onTitle;
    ReadHook onWindow;
    ReadHook onAborted; ///< before `isAborted` is looked at
    /// Where the calls go; it may be shared with others, so that one order is seen.
    std::string* calls = &m_calls;

    std::string takeCalls() { return std::exchange(*calls, {}); }

    // IPrintable
    const std::wstring& PrintTitle() const override {
        run(onTitle);
        return title;
    }
    int OnPreparePrinting(PrintInfo*) override {
        write("choices");
        return 1;
    }
    void OnPrepareDC(CDC* dc, PrintInfo* info) override {
        write("prepare:" + std::to_string(info->CurrentPage()));
        run(onPrepare, dc, info);
    }
    void OnBeginPrinting(CDC* dc, PrintInfo* info) override {
        write("begin");
        info->Update(pages);
        run(onBegin, dc, info);
    }
    void OnPrint(CDC* dc, PrintInfo* info) override {
        write("print:" + std::to_string(info->CurrentPage()));
        run(onPrint, dc, info);
    }
    void OnEndPrinting(CDC* dc, PrintInfo* info) override {
        write("end");
        run(onEnd, dc, info);
    }
    void OnPrintingFinished() override { write("finished"); }
    bool IsPrintAborted() const override {
        run(onAborted);
        return isAborted;
    }
    CWnd* AssociatedWindow() const override {
        run(onWindow);
        return window;
    }

private:
    void write(const std::string& call) { *calls += (calls->empty() ? "" : " ") + call; }
    static void run(const ReadHook& hook) {
        if (hook) {
            hook();
        }
    }
    static void run(const Hook& hook, CDC* dc, PrintInfo* info) {
        if (hook) {
            hook(*dc, *info);
        }
    }

    std::string m_calls;
};
