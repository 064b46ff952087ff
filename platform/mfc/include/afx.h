#pragma once

#include "OrtinMfcApi.h"
#include "atlstr.h"

#include <cstddef>

#include <tchar.h>
#include <windows.h>

#define afx_msg
#define AFX_MSG_CALL
#define AFXAPI __stdcall

class CObject;
struct CRuntimeClass;

/// What a class knows of itself at run time: its name, its size, how to make an object of it, and its base.
/// One constant object a class, made by the DECLARE_ and IMPLEMENT_ macros below; nobody else makes one.
struct ORTIN_MFC_API CRuntimeClass {
    LPCSTR m_lpszClassName;
    int m_nObjectSize; ///< bytes
    UINT m_wSchema;    ///< 0xFFFF for a class that is not serialised
    CObject* (*m_pfnCreateObject)();
    CRuntimeClass* (*m_pfnGetBaseClass)();

    /// A new object owned by the caller; null if the class is not declared with DYNCREATE or memory is short.
    CObject* CreateObject() const;
    /// True for the class itself too.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;
};

/// Root of the framework's classes. Objects are not copied.
class ORTIN_MFC_API CObject {
public:
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject() = default;
    /// Asserts that the object's own state is sound; ASSERT_VALID calls it.
    virtual void AssertValid() const;

    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    BOOL IsKindOf(const CRuntimeClass* pClass) const;

    static CRuntimeClass* GetThisClass();
    static const CRuntimeClass classCObject;

protected:
    CObject() = default;
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DECLARE_DYNAMIC(class_name)                                                                                    \
public:                                                                                                                \
    static const CRuntimeClass class##class_name;                                                                      \
    static CRuntimeClass* GetThisClass();                                                                              \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                                                  \
    DECLARE_DYNAMIC(class_name)                                                                                        \
    static CObject* CreateObject();

#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, schema, create_function)                                   \
    const CRuntimeClass class_name::class##class_name = {#class_name, static_cast<int>(sizeof(class_name)), schema,    \
                                                         create_function, &base_class_name::GetThisClass};             \
    CRuntimeClass* class_name::GetThisClass() {                                                                        \
        return const_cast<CRuntimeClass*>(&class_name::class##class_name);                                             \
    }                                                                                                                  \
    CRuntimeClass* class_name::GetRuntimeClass() const {                                                               \
        return class_name::GetThisClass();                                                                             \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                                 \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                               \
    CObject* class_name::CreateObject() {                                                                              \
        return new class_name;                                                                                         \
    }                                                                                                                  \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)

/// The object seen as class_name, or null if it is null or not of that class.
#define DYNAMIC_DOWNCAST(class_name, object)                                                                           \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))

ORTIN_MFC_API CObject* AfxDynamicDownCast(const CRuntimeClass* pClass, CObject* pObject);

// Diagnostics. A build without NDEBUG checks: a failed assertion is written to standard error and to the debugger,
// and ends the program. In a build with NDEBUG the condition of ASSERT is not evaluated, that of VERIFY is.

[[noreturn]] ORTIN_MFC_API void AfxAssertFailedLine(LPCSTR lpszFileName, int nLine);
ORTIN_MFC_API void AfxAssertValidObject(const CObject* pObject, LPCSTR lpszFileName, int nLine);
/// Formats as CString::Format does (%s is a text of the format's own width) and writes to the debugger's output, at
/// most 1023 characters.
ORTIN_MFC_API void AfxTrace(LPCWSTR lpszFormat, ...);
ORTIN_MFC_API void AfxTrace(LPCSTR lpszFormat, ...);

#ifndef NDEBUG
#define ASSERT(condition) ((condition) ? static_cast<void>(0) : AfxAssertFailedLine(__FILE__, __LINE__))
#define VERIFY(condition) ASSERT(condition)
#define ASSERT_VALID(object) (AfxAssertValidObject(object, __FILE__, __LINE__))
#define TRACE(...) AfxTrace(__VA_ARGS__)
#else
#define ASSERT(condition) static_cast<void>(0)
#define VERIFY(condition) static_cast<void>(condition)
#define ASSERT_VALID(object) static_cast<void>(0)
#define TRACE(...) static_cast<void>(0)
#endif

#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))
#define ASSERT_POINTER(pointer, type) ASSERT((pointer) != nullptr)
#define ENSURE(condition)                                                                                              \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            AfxThrowInvalidArgException();                                                                             \
        }                                                                                                              \
    } while (false)
#define ENSURE_ARG(condition) ENSURE(condition)

/// Base of the framework's exceptions. They are thrown by pointer and freed by Delete(), which the catcher calls.
class ORTIN_MFC_API CException : public CObject {
    DECLARE_DYNAMIC(CException)
public:
    CException() = default;
    /// bAutoDelete: whether Delete() frees the object; false for the ones that live as long as the program.
    explicit CException(BOOL bAutoDelete);

    void Delete();
    /// Copies the text into lpszError (room for nMaxError characters, always ended); false if there is none.
    virtual BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const;
    /// Shows the text, or that of nMessageID if there is none, in a message box and gives back its answer.
    virtual int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);

private:
    BOOL m_autoDelete = TRUE;
};

/// An exception with a fixed text.
class ORTIN_MFC_API CSimpleException : public CException {
    DECLARE_DYNAMIC(CSimpleException)
public:
    CSimpleException(BOOL bAutoDelete, LPCWSTR lpszText);
    BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;

private:
    LPCWSTR m_text;
};

class ORTIN_MFC_API CMemoryException : public CSimpleException {
    DECLARE_DYNAMIC(CMemoryException)
public:
    CMemoryException();
};

class ORTIN_MFC_API CResourceException : public CSimpleException {
    DECLARE_DYNAMIC(CResourceException)
public:
    CResourceException();
};

class ORTIN_MFC_API CNotSupportedException : public CSimpleException {
    DECLARE_DYNAMIC(CNotSupportedException)
public:
    CNotSupportedException();
};

class ORTIN_MFC_API CInvalidArgException : public CSimpleException {
    DECLARE_DYNAMIC(CInvalidArgException)
public:
    CInvalidArgException();
};

/// What a user abandoned; its report is silent.
class ORTIN_MFC_API CUserException : public CSimpleException {
    DECLARE_DYNAMIC(CUserException)
public:
    CUserException();
    int ReportError(UINT nType = MB_OK, UINT nMessageID = 0) override;
};

[[noreturn]] ORTIN_MFC_API void AfxThrowMemoryException();
[[noreturn]] ORTIN_MFC_API void AfxThrowResourceException();
[[noreturn]] ORTIN_MFC_API void AfxThrowNotSupportedException();
[[noreturn]] ORTIN_MFC_API void AfxThrowInvalidArgException();
[[noreturn]] ORTIN_MFC_API void AfxThrowUserException();
