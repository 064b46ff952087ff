#include <gtest/gtest.h>

#include <atomic>
#include <new>
#include <set>
#include <thread>
#include <vector>

#include <OrtinControls/FontsObjManager.h>

#include "GdiDescriptions.h"
#include "support/ImportPatch.h"
#include "support/Resources.h"

namespace {

LOGFONTW descriptionOf(const CFont& font) {
    LOGFONTW description{};
    EXPECT_NE(0, font.GetLogFont(&description));
    return description;
}

int createdFonts = 0;

HFONT WINAPI countFont(const LOGFONTW* description) {
    ++createdFonts;
    return ::CreateFontIndirectW(description);
}

HFONT WINAPI refuseFont(const LOGFONTW*) {
    ++createdFonts;
    return nullptr;
}

/// So slow that other threads come to ask for the same font meanwhile.
HFONT WINAPI makeFontSlowly(const LOGFONTW* description) {
    ::Sleep(1);
    return ::CreateFontIndirectW(description);
}

std::size_t allocationsLeft = 0;

void* runOutOfMemory(std::size_t size) {
    if (allocationsLeft == 0) {
        throw std::bad_alloc();
    }
    --allocationsLeft;
    return ::operator new(size);
}

class FontCache : public testing::Test {
protected:
    FontsObjManager cache;
};

} // namespace

TEST_F(FontCache, GivesOneFontForOneDescription) {
    const auto first = cache.AddFont(tahoma());
    const auto second = cache.AddFont(tahoma());
    EXPECT_EQ(first, second);
    EXPECT_NE(nullptr, first->GetSafeHandle());
    EXPECT_EQ(-11, descriptionOf(*first).lfHeight);
    EXPECT_STREQ(L"Tahoma", descriptionOf(*first).lfFaceName);
}

TEST_F(FontCache, MakesNoFontForAKnownDescription) {
    createdFonts = 0;
    const support::ImportPatch patch(::GetModuleHandleW(L"OrtinControls.dll"), "gdi32.dll", "CreateFontIndirectW",
                                     &countFont);
    for (int time = 0; time < 100; ++time) {
        cache.AddFont(tahoma(-11 - time % 4));
    }
    EXPECT_EQ(4, createdFonts);
}

TEST_F(FontCache, TellsFontsApartByTheSevenFieldsOfTheKey) {
    std::vector<LOGFONTW> descriptions(8, tahoma());
    lstrcpyW(descriptions[1].lfFaceName, L"tahoma"); // letter by letter
    descriptions[2].lfHeight = 11;
    descriptions[3].lfItalic = TRUE;
    descriptions[4].lfOrientation = 450;
    descriptions[5].lfUnderline = TRUE;
    descriptions[6].lfWeight = FW_BOLD;
    descriptions[7].lfCharSet = EASTEUROPE_CHARSET;
    std::set<CFont*> fonts;
    for (const LOGFONTW& description : descriptions) {
        fonts.insert(cache.AddFont(description).get());
    }
    EXPECT_EQ(descriptions.size(), fonts.size());
}

TEST_F(FontCache, SharesTheFirstFontWhereOnlyOtherFieldsDiffer) {
    LOGFONTW first = tahoma();
    first.lfQuality = NONANTIALIASED_QUALITY;
    const auto font = cache.AddFont(first);
    std::vector<LOGFONTW> descriptions(7, tahoma());
    descriptions[0].lfWidth = 20;
    descriptions[1].lfEscapement = 450;
    descriptions[2].lfStrikeOut = TRUE;
    descriptions[3].lfOutPrecision = OUT_TT_PRECIS;
    descriptions[4].lfClipPrecision = CLIP_LH_ANGLES;
    descriptions[5].lfQuality = CLEARTYPE_QUALITY;
    descriptions[6].lfPitchAndFamily = FIXED_PITCH;
    for (const LOGFONTW& description : descriptions) {
        EXPECT_EQ(font, cache.AddFont(description));
    }
    EXPECT_EQ(NONANTIALIASED_QUALITY, descriptionOf(*font).lfQuality) << "the first one's quality wins";
    EXPECT_EQ(0, descriptionOf(*font).lfEscapement) << "and its angle";
}

TEST_F(FontCache, ReadsNoFaceNamePastItsField) {
    LOGFONTW unended = tahoma();
    std::fill(std::begin(unended.lfFaceName), std::end(unended.lfFaceName), L'x');
    LOGFONTW ended = unended;
    ended.lfFaceName[LF_FACESIZE - 1] = L'\0';
    EXPECT_EQ(cache.AddFont(unended), cache.AddFont(unended));
    EXPECT_NE(cache.AddFont(unended), cache.AddFont(ended));
}

TEST_F(FontCache, KeepsAFontThatNobodyUses) {
    const HGDIOBJ handle = cache.AddFont(tahoma())->GetSafeHandle();
    EXPECT_EQ(static_cast<DWORD>(OBJ_FONT), ::GetObjectType(handle));
    EXPECT_EQ(handle, cache.AddFont(tahoma())->GetSafeHandle());
}

TEST_F(FontCache, LeavesAFontToThoseWhoOutliveIt) {
    const std::size_t before = support::gdiHandleCount();
    std::shared_ptr<CFont> kept;
    {
        FontsObjManager ending;
        kept = ending.AddFont(tahoma(-77));
        ending.AddFont(tahoma(-78));
    }
    EXPECT_EQ(before + 1, support::gdiHandleCount());
    EXPECT_EQ(-77, descriptionOf(*kept).lfHeight);
    kept.reset();
    EXPECT_EQ(before, support::gdiHandleCount());
}

TEST_F(FontCache, OnlyReadsAFontThatItIsGiven) {
    CFont own;
    const LOGFONTW description = tahoma(-33);
    own.CreateFontIndirect(&description);
    const auto font = cache.AddFont(own);
    EXPECT_NE(own.GetSafeHandle(), font->GetSafeHandle());
    own.DeleteObject();
    EXPECT_EQ(-33, descriptionOf(*font).lfHeight);
    EXPECT_EQ(font, cache.AddFont(description)) << "one cache for both ways";
}

TEST_F(FontCache, TakesAnEmptyFontForAnAllZeroDescription) {
    CFont empty;
    const auto font = cache.AddFont(empty);
    EXPECT_EQ(font, cache.AddFont(LOGFONTW{}));
    EXPECT_EQ(nullptr, empty.GetSafeHandle());
}

TEST_F(FontCache, KeepsWhatTheSystemRefused) {
    createdFonts = 0;
    const support::ImportPatch patch(::GetModuleHandleW(L"OrtinControls.dll"), "gdi32.dll", "CreateFontIndirectW",
                                     &refuseFont);
    const auto refused = cache.AddFont(tahoma());
    ASSERT_NE(nullptr, refused);
    EXPECT_EQ(nullptr, refused->GetSafeHandle());
    EXPECT_EQ(refused, cache.AddFont(tahoma()));
    EXPECT_EQ(1, createdFonts);
}

TEST_F(FontCache, StaysUsableWhereMemoryRunsOut) {
    const std::size_t before = support::gdiHandleCount();
    const LOGFONTW description = tahoma();
    int failures = 0;
    for (std::size_t allowed = 0; support::gdiHandleCount() == before; ++allowed) {
        ASSERT_LT(allowed, 20U);
        const support::ImportPatch patch(::GetModuleHandleW(L"OrtinControls.dll"), "libstdc++-6.dll", "_Znwy",
                                         &runOutOfMemory);
        allocationsLeft = allowed;
        try {
            cache.AddFont(description);
        } catch (const std::bad_alloc&) {
            ++failures;
            ASSERT_EQ(before, support::gdiHandleCount()) << "a font that could not be kept is gone";
        }
    }
    EXPECT_GE(failures, 3) << "key, font and entry";
    EXPECT_EQ(before + 1, support::gdiHandleCount());
    EXPECT_EQ(cache.AddFont(description), cache.AddFont(description));
    EXPECT_EQ(before + 1, support::gdiHandleCount());
}

TEST_F(FontCache, HasOneInstance) {
    EXPECT_EQ(FontsObjManager::Instance(), FontsObjManager::Instance());
    EXPECT_EQ(FontsObjManager::Instance()->AddFont(tahoma()), FontsObjManager::Instance()->AddFont(tahoma()));
}

TEST_F(FontCache, GivesOneFontForOneDescriptionToManyThreads) {
    constexpr int kThreads = 8;
    constexpr int kHeights = 50;
    constexpr int kRounds = 100;
    const support::ImportPatch patch(::GetModuleHandleW(L"OrtinControls.dll"), "gdi32.dll", "CreateFontIndirectW",
                                     &makeFontSlowly);
    const std::size_t before = support::gdiHandleCount();
    std::vector<std::vector<CFont*>> seen(kThreads, std::vector<CFont*>(kHeights));
    std::atomic<int> mistakes = 0;
    std::atomic<bool> start = false;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([&, thread] {
            while (!start) {
                std::this_thread::yield();
            }
            CFont own;
            for (int round = 0; round < kRounds; ++round) {
                for (int index = 0; index < kHeights; ++index) {
                    const LOGFONTW description = tahoma(-1 - index);
                    CFont*& first = seen[static_cast<std::size_t>(thread)][static_cast<std::size_t>(index)];
                    CFont* font = nullptr;
                    if (round % 5 == 4) {
                        own.DeleteObject();
                        own.CreateFontIndirect(&description);
                        font = cache.AddFont(own).get();
                    } else {
                        font = cache.AddFont(description).get();
                    }
                    mistakes += first != nullptr && first != font ? 1 : 0;
                    first = font;
                }
            }
        });
    }
    start = true;
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(0, mistakes);
    for (const auto& fonts : seen) {
        EXPECT_EQ(seen.front(), fonts);
    }
    EXPECT_EQ(before + kHeights, support::gdiHandleCount());
}
