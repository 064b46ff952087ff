#include "test_windows.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

class Creatable : public CObject {
    DECLARE_DYNCREATE(Creatable)
public:
    int value = 5;
};

class Special : public Creatable {
    DECLARE_DYNAMIC(Special)
};

IMPLEMENT_DYNCREATE(Creatable, CObject)
IMPLEMENT_DYNAMIC(Special, Creatable)

} // namespace

TEST(RuntimeClass, KnowsItsNameSizeAndBases) {
    const CRuntimeClass* special = RUNTIME_CLASS(Special);
    EXPECT_STREQ("Special", special->m_lpszClassName);
    EXPECT_EQ(static_cast<int>(sizeof(Special)), special->m_nObjectSize);
    EXPECT_TRUE(special->IsDerivedFrom(RUNTIME_CLASS(Special)));
    EXPECT_TRUE(special->IsDerivedFrom(RUNTIME_CLASS(Creatable)));
    EXPECT_TRUE(special->IsDerivedFrom(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(special->IsDerivedFrom(RUNTIME_CLASS(CWnd)));
}

TEST(RuntimeClass, IsThatOfTheObjectAndNotOfThePointer) {
    Special special;
    const CObject& object = special;
    EXPECT_EQ(RUNTIME_CLASS(Special), object.GetRuntimeClass());
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(Creatable)));
    CScrollBar bar;
    EXPECT_TRUE(bar.IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_TRUE(bar.IsKindOf(RUNTIME_CLASS(CCmdTarget)));
    EXPECT_FALSE(bar.IsKindOf(RUNTIME_CLASS(CEdit)));
}

TEST(RuntimeClass, MakesObjectsOnlyOfClassesThatAllowIt) {
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(Creatable)->CreateObject());
    ASSERT_NE(nullptr, made);
    EXPECT_EQ(5, static_cast<Creatable&>(*made).value);
    EXPECT_EQ(nullptr, RUNTIME_CLASS(Special)->CreateObject());
}

TEST(RuntimeClass, ADownCastToAnotherClassIsNull) {
    Special special;
    CObject* object = &special;
    EXPECT_EQ(&special, DYNAMIC_DOWNCAST(Creatable, object));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CWnd, object));
    object = nullptr;
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(Creatable, object));
}

TEST(Exceptions, CarryTheirTextAndKind) {
    const struct {
        void (*doThrow)();
        const CRuntimeClass* kind;
    } cases[] = {
        {&AfxThrowMemoryException, RUNTIME_CLASS(CMemoryException)},
        {&AfxThrowResourceException, RUNTIME_CLASS(CResourceException)},
        {&AfxThrowNotSupportedException, RUNTIME_CLASS(CNotSupportedException)},
        {&AfxThrowInvalidArgException, RUNTIME_CLASS(CInvalidArgException)},
        {&AfxThrowUserException, RUNTIME_CLASS(CUserException)},
    };
    for (const auto& one : cases) {
        try {
            one.doThrow();
        } catch (CException* exception) {
            EXPECT_EQ(one.kind, exception->GetRuntimeClass());
            wchar_t text[100] = {};
            EXPECT_TRUE(exception->GetErrorMessage(text, 100)) << one.kind->m_lpszClassName;
            EXPECT_GT(wcslen(text), 5U);
            exception->Delete();
        }
    }
}

TEST(Exceptions, AShortBufferGetsTheBeginningOfTheText) {
    const CSimpleException exception(FALSE, L"dziesięć znaków");
    wchar_t text[5] = {};
    EXPECT_TRUE(exception.GetErrorMessage(text, 5));
    EXPECT_STREQ(L"dzie", text);
    EXPECT_FALSE(exception.GetErrorMessage(nullptr, 5));
    EXPECT_FALSE(exception.GetErrorMessage(text, 0));
}

TEST(Exceptions, AnArgumentThatIsNotAsAskedThrows) {
    const auto need = [](bool condition) { ENSURE(condition); };
    EXPECT_NO_THROW(need(true));
    EXPECT_THROW(need(false), CInvalidArgException*);
}

TEST(Exceptions, AReportIsShownWithTheTextOrThatOfTheResource) {
    TestApplication::get().log.take();
    CSimpleException exception(FALSE, L"tekst");
    EXPECT_EQ(IDOK, exception.ReportError());
    EXPECT_EQ("box:tekst", TestApplication::get().log.take());
}
