#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "DeskWindow.h"

namespace Desk {

/// Walks through the scenes and writes a picture of each into a folder. Each scene has a desk of its own and is brought
/// about by the clicks, drags and letters of a user, as messages: the same pixels each time.
class Scenes {
public:
    using MakeDesk = std::function<std::unique_ptr<DeskWindow>()>;

    /// `makeDesk` gives a visible desk in its first state, or null. GDI+ has to be started. Without a printer the
    /// scenes that need one are left out.
    Scenes(MakeDesk makeDesk, std::wstring folder, std::optional<Printer> printer = {});

    /// One scene, or all. False if one cannot be shown or written; what went wrong is on standard error.
    bool write(const std::optional<std::wstring>& only);

private:
    bool writeScene(const std::wstring& name);
    bool writePicture(CWnd& shown, const std::wstring& name);
    bool writeInfo(const std::wstring& name);
    bool writePreview(const std::wstring& name);
    bool writePrinterDialog(const std::wstring& name);
    bool writePrintStatus(const std::wstring& name);
    QuotesHandler& quotes();

    std::wstring fileOf(const std::wstring& name) const;
    bool tellWritten(bool written, const std::wstring& name) const;
    void showChart(const std::wstring& name);
    void showSorted();
    void showFound();
    void clickHeader(int position);
    void takeColumn(int from, int to);
    CPoint headerCentre(int position);
    static void settle(CWnd& window);

    MakeDesk m_makeDesk;
    std::wstring m_folder;
    std::optional<Printer> m_printer;
    std::unique_ptr<DeskWindow> m_desk; ///< of the scene that is shown
};

} // namespace Desk
