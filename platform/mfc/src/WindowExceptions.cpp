#include "WindowExceptions.h"

#include "afxwin_app.h"

#include <cstdio>
#include <exception>
#include <string>

namespace {

/// An exception of the language seen as one of the framework's.
class ForeignException final : public CException {
public:
    explicit ForeignException(const char* text) : CException(FALSE) {
        const int length = MultiByteToWideChar(CP_UTF8, 0, text, -1, m_text, ARRAYSIZE(m_text));
        m_text[length > 0 ? ARRAYSIZE(m_text) - 1 : 0] = L'\0';
    }

    BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const override {
        CException::GetErrorMessage(lpszError, nMaxError, pnHelpContext);
        if (lpszError == nullptr || nMaxError == 0 || m_text[0] == L'\0') {
            return FALSE;
        }
        lstrcpynW(lpszError, m_text, static_cast<int>(nMaxError));
        return TRUE;
    }

private:
    wchar_t m_text[512] = {};
};

void writeToLog(const CException& exception, const MSG& message) {
    wchar_t text[512] = {};
    exception.GetErrorMessage(text, ARRAYSIZE(text));
    char utf8[3 * ARRAYSIZE(text)] = {};
    WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8, sizeof(utf8) - 1, nullptr, nullptr);
    std::fprintf(stderr, "Wyjątek w procedurze okna, komunikat 0x%04X: %s\n", message.message, utf8);
    TRACE(L"Wyjątek w procedurze okna, komunikat 0x%04X: %ls\n", message.message, text);
}

LRESULT answer(CException& exception, const MSG& message) {
    writeToLog(exception, message);
    CWinThread* thread = AfxGetThread();
    return thread != nullptr ? thread->ProcessWndProcException(&exception, &message)
                             : AfxProcessWndProcException(&exception, &message);
}

LRESULT answerToCurrent(const MSG& message) {
    try {
        throw;
    } catch (CException* exception) {
        const LRESULT result = answer(*exception, message);
        exception->Delete();
        return result;
    } catch (const std::exception& exception) {
        ForeignException foreign(exception.what());
        return answer(foreign, message);
    } catch (...) {
        ForeignException foreign("Nieznany wyjątek.");
        return answer(foreign, message);
    }
}

} // namespace

LRESULT AfxProcessWndProcException(CException* e, const MSG* pMsg) {
    if (pMsg->message == WM_CREATE) {
        return -1;
    }
    if (pMsg->message == WM_PAINT) {
        // Without this the window would be asked to paint again at once, and would throw for ever.
        ValidateRect(pMsg->hwnd, nullptr);
        return 0;
    }
    e->ReportError(MB_ICONEXCLAMATION);
    return 0;
}

LRESULT answerToException(const MSG& message) noexcept {
    try {
        return answerToCurrent(message);
    } catch (...) {
        std::fputs("Wyjątek podczas zgłaszania wyjątku w procedurze okna\n", stderr);
        return 0;
    }
}
