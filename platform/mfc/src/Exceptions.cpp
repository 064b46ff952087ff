#include "afxwin_app.h"

#include <algorithm>
#include <cwchar>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)

CException::CException(BOOL bAutoDelete) : m_autoDelete(bAutoDelete) {}

void CException::Delete() {
    if (m_autoDelete) {
        delete this;
    }
}

BOOL CException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    if (pnHelpContext != nullptr) {
        *pnHelpContext = 0;
    }
    if (lpszError != nullptr && nMaxError > 0) {
        lpszError[0] = L'\0';
    }
    return FALSE;
}

int CException::ReportError(UINT nType, UINT nMessageID) {
    wchar_t text[512];
    if (!GetErrorMessage(text, ARRAYSIZE(text))) {
        AfxLoadString(nMessageID, text, ARRAYSIZE(text));
    }
    return AfxMessageBox(text, nType);
}

CSimpleException::CSimpleException(BOOL bAutoDelete, LPCWSTR lpszText) : CException(bAutoDelete), m_text(lpszText) {}

BOOL CSimpleException::GetErrorMessage(LPWSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const {
    CException::GetErrorMessage(lpszError, nMaxError, pnHelpContext);
    if (lpszError == nullptr || nMaxError == 0) {
        return FALSE;
    }
    const std::size_t length = std::min<std::size_t>(std::wcslen(m_text), nMaxError - 1);
    std::copy_n(m_text, length, lpszError);
    lpszError[length] = L'\0';
    return TRUE;
}

CMemoryException::CMemoryException() : CSimpleException(FALSE, L"Za mało pamięci.") {}

CResourceException::CResourceException() : CSimpleException(FALSE, L"Wymagany zasób był niedostępny.") {}

CNotSupportedException::CNotSupportedException() : CSimpleException(FALSE, L"Operacja nie jest obsługiwana.") {}

CInvalidArgException::CInvalidArgException() : CSimpleException(FALSE, L"Napotkano niewłaściwy argument.") {}

CUserException::CUserException() : CSimpleException(FALSE, L"Operacja przerwana przez użytkownika.") {}

int CUserException::ReportError(UINT, UINT) {
    return 0;
}

// These objects live as long as the program: throwing them must work when no memory is left.

void AfxThrowMemoryException() {
    static CMemoryException exception;
    throw &exception;
}

void AfxThrowResourceException() {
    static CResourceException exception;
    throw &exception;
}

void AfxThrowNotSupportedException() {
    static CNotSupportedException exception;
    throw &exception;
}

void AfxThrowInvalidArgException() {
    static CInvalidArgException exception;
    throw &exception;
}

void AfxThrowUserException() {
    static CUserException exception;
    throw &exception;
}
