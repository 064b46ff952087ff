#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include <OrtinControls/PrintInfoEx.h>

/// What comes out of the printer with which scripts/printer.sh has started the program: it makes of each document a PDF
/// and a file with its text. Throws std::runtime_error where there is no such printer.
class PrinterOutput {
public:
    static constexpr const wchar_t* kPrinter = L"PDF";

    PrinterOutput();

    /// A context of the printer, which the caller deletes.
    static HDC makeContext();
    /// Makes the dialog's choice this printer.
    static void choose(PrintDialogContext& dialog);

    /// The text of each page of the document with this title, as soon as it is printed. Throws when it is not printed
    /// within the time.
    std::vector<std::wstring> pagesOf(const std::wstring& title,
                                      std::chrono::seconds limit = std::chrono::seconds(60)) const;
    std::filesystem::path pdfOf(const std::wstring& title) const { return m_folder / (title + L".pdf"); }
    /// Whether it was printed by now.
    bool has(const std::wstring& title) const;
    /// A title of its own for each call and each run.
    static std::wstring newTitle(const std::wstring& name);

private:
    std::filesystem::path textOf(const std::wstring& title) const { return m_folder / (title + L".txt"); }

    std::filesystem::path m_folder;
};
