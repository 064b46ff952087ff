#pragma once

#include <string>
#include <vector>

#include <OrtinControls/PrintInfoEx.h>

namespace Desk {

/// The state of a print run that also keeps the choices which the printable adds, to show them to the user.
class OfferedPrintInfo : public PrintInfoEx {
public:
    struct AddedChoice {
        unsigned int id = 0;
        std::wstring text;
    };

    using PrintInfoEx::PrintInfoEx;

    void AddPrintOption(unsigned int id, CString text) override { m_added.push_back({id, text.GetString()}); }

    const std::vector<AddedChoice>& added() const { return m_added; }
    bool offers(EPrintOption option) const { return (GetFlags() & option) != 0; }

private:
    std::vector<AddedChoice> m_added;
};

} // namespace Desk
