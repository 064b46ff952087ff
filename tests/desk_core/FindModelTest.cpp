#include "core/FindModel.h"

#include <gtest/gtest.h>

using namespace Desk;

namespace {

std::string describe(const std::vector<FoundPiece>& pieces) {
    std::string text;
    for (const FoundPiece& piece : pieces)
        text += '[' + std::to_string(piece.begin) + '+' + std::to_string(piece.length) + ']';
    return text;
}

struct PhraseCase {
    const wchar_t* text;
    const wchar_t* phrase;
    const char* pieces;
};

class FindAmongRows : public testing::Test {
protected:
    void search(const wchar_t* phrase) {
        m_model.search(phrase, static_cast<int>(m_rows.size()), [&](int row) {
            return containsPhrase(m_rows[static_cast<std::size_t>(row)], m_model.phrase());
        });
    }

    FindModel m_model;
    std::vector<std::wstring> m_rows{L"Żuraw", L"Łabędź", L"żubr", L"dzik", L"Zuzanna"};
};

} // namespace

TEST(FindPieces, KnowPolishLetters) {
    for (const PhraseCase& phrase : {
             PhraseCase{L"Łódź Fabryczna", L"łódź", "[0+4]"},
             PhraseCase{L"ŁÓDŹ", L"łódź", "[0+4]"},
             PhraseCase{L"Łódź Fabryczna", L"lodz", "[0+4]"},
             PhraseCase{L"Lodz", L"łódź", ""},
             PhraseCase{L"zażółć gęślą jaźń", L"ZAŻÓŁĆ", "[0+6]"},
             PhraseCase{L"zażółć gęślą jaźń", L"a", "[1+1][11+1][14+1]"},
             PhraseCase{L"zażółć gęślą jaźń", L"ą", "[11+1]"},
             PhraseCase{L"aaaa", L"aa", "[0+2][2+2]"},
             PhraseCase{L"aaa", L"aa", "[0+2]"},
             PhraseCase{L"1\u00A0234,50", L"1 234", "[0+5]"},
             PhraseCase{L"Citroën", L"citroen", "[0+7]"},
             PhraseCase{L"abc", L"", ""},
             PhraseCase{L"", L"a", ""},
             PhraseCase{L"ab", L"abc", ""},
             PhraseCase{L"[x]*", L"]*", "[2+2]"},
         }) {
        EXPECT_EQ(describe(findPieces(phrase.text, phrase.phrase)), phrase.pieces);
        EXPECT_EQ(containsPhrase(phrase.text, phrase.phrase), *phrase.pieces != '\0');
    }
}

TEST_F(FindAmongRows, CountsThemAndKnowsTheirOrdinals) {
    search(L"zu");
    EXPECT_EQ(m_model.count(), 3);
    EXPECT_EQ(m_model.ordinalOf(0), 1);
    EXPECT_EQ(m_model.ordinalOf(2), 2);
    EXPECT_EQ(m_model.ordinalOf(4), 3);
    EXPECT_EQ(m_model.ordinalOf(1), 0);
}

TEST_F(FindAmongRows, GoesRoundTheEndsInBothDirections) {
    search(L"zu");
    EXPECT_EQ(m_model.firstFrom(0), 0);
    EXPECT_EQ(m_model.firstFrom(1), 2);
    EXPECT_EQ(m_model.nextAfter(0), 2);
    EXPECT_EQ(m_model.nextAfter(4), 0);
    EXPECT_EQ(m_model.previousBefore(4), 2);
    EXPECT_EQ(m_model.previousBefore(0), 4);
    EXPECT_EQ(m_model.previousBefore(1), 0);
}

TEST_F(FindAmongRows, FindsNoneOfAStrangePhrase) {
    search(L"wieloryb");
    EXPECT_EQ(m_model.count(), 0);
    EXPECT_FALSE(m_model.firstFrom(0));
    EXPECT_FALSE(m_model.previousBefore(3));
    EXPECT_TRUE(m_model.isActive());
}

TEST_F(FindAmongRows, AnEmptyPhraseIsNoSearch) {
    search(L"");
    EXPECT_EQ(m_model.count(), 0);
    EXPECT_FALSE(m_model.isActive());
}

TEST_F(FindAmongRows, KeepsThePhraseWhileNotActive) {
    search(L"zu");
    m_model.setActive(false);
    EXPECT_FALSE(m_model.isActive());
    EXPECT_EQ(m_model.phrase(), L"zu");
    EXPECT_EQ(m_model.nextAfter(0), 2);
}
