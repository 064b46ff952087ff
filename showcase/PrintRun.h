#pragma once

#include <memory>

#include <OrtinControls/IPrintable.h>
#include <OrtinControls/PrintInfoEx.h>

namespace Desk {

/// What became of a print job.
enum class PrintOutcome {
    Sent,
    Nothing, ///< the document has no pages; the printer was not asked
    Failed,  ///< the printer refused, or the user cancelled
};

/// How many pages the document has on the context's printer with what is chosen there.
int countPages(IPrintable& printable, const PrintDialogContext& context);

/// Prints, and tells what became of it: the job driver reports to the log alone, so this reads it there.
PrintOutcome runPrintJob(const std::shared_ptr<PrintInfoEx>& info, IPrintable& printable);

} // namespace Desk
