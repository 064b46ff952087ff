#pragma once

#include "OrderLog.h"

class UniqueMessage {
public:
    explicit UniqueMessage(const std::wstring& text) : m_text(text) { logOrder(L"make " + m_text); }
    ~UniqueMessage() { logOrder(L"unmake " + m_text); }

private:
    std::wstring m_text;
};

struct TableCtrl {
    static UniqueMessage Sm_tableViewDataChangedMessage;
};

extern const int kMinColumnWidth;
