#pragma once

#include <optional>
#include <string>

#include "DeskDialog.h"
#include "core/PrintRange.h"

namespace Desk {

/// A dialog that asks for pages of a document: two fields for the ends of the range, behind them how many pages there
/// are, and one sentence about what is wrong.
class PageRangeDialog : public DeskDialog {
public:
    using DeskDialog::DeskDialog;

protected:
    static constexpr int FromId = 104;
    static constexpr int ToId = 105;

    void makeRange(const wchar_t* fromText);
    void showRange(const PrintRange& range);
    /// From `x` on in a row of controls at `top`; the answer is where the row goes on.
    int placeRange(int x, int top, int fieldWidth);
    bool hasFocusInRange() const;
    /// What the fields say. If that is no range: nothing, a sentence for the user, and the wrong field is chosen.
    std::optional<PrintRange> typedRange();

    void complain(const std::wstring& sentence);
    bool isComplaining() const { return !m_complaint.empty(); }
    void drawBackground(CDC& dc) override;
    /// One row.
    virtual CRect complaintArea() = 0;

    afx_msg void OnFieldFocus();
    DECLARE_MESSAGE_MAP()

    int m_pageCount = 0; ///< of the whole document

private:
    int widthOf(const CStatic& label);

    CStatic m_fromLabel;
    CEdit m_from;
    CStatic m_toLabel;
    CEdit m_to;
    std::wstring m_complaint;
};

} // namespace Desk
