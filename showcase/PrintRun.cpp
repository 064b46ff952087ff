#include "PrintRun.h"

#include <OrtinControls/PrintStrategy.h>
#include <OrtinFoundation/Log.h>
#include <OrtinFoundation/StringTools.h>

namespace Desk {

namespace {

/// Listens to the log for the line of a document that came to its good end.
class GoodEnd {
public:
    GoodEnd() {
        OrtinTools::Log::Instance().SetSink(
            [this](std::string_view, int, std::string_view text) { m_isReached = m_isReached || text == m_line; });
    }
    ~GoodEnd() { OrtinTools::Log::Instance().SetSink({}); }
    GoodEnd(const GoodEnd&) = delete;
    GoodEnd& operator=(const GoodEnd&) = delete;

    bool isReached() const { return m_isReached; }

private:
    const std::string m_line =
        OrtinTools::String::WideToAnsi(L"Wszystkie dane zostały przesłane do drukarki, zamykamy dokument.");
    bool m_isReached = false;
};

} // namespace

int countPages(IPrintable& printable, const PrintDialogContext& context) {
    PrintInfoEx info(&context);
    CDC dc;
    if (!dc.Attach(context.PrinterDC()))
        return 0;
    printable.OnBeginPrinting(&dc, &info);
    printable.OnEndPrinting(&dc, &info);
    dc.Detach();
    return info.TotalPageCount();
}

PrintOutcome runPrintJob(const std::shared_ptr<PrintInfoEx>& info, IPrintable& printable) {
    const GoodEnd end;
    PrintStrategy().PrintObject(info, &printable);
    return end.isReached() ? PrintOutcome::Sent : PrintOutcome::Failed;
}

} // namespace Desk
