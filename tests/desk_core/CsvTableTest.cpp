#include "core/CsvTable.h"

#include <sstream>

#include <gtest/gtest.h>

#include "CsvFaults.h"

using namespace Desk;

namespace {

/// A reader of a word, a number, and a number that may be missing, which stand among others.
void readThings(const std::string& bytes) {
    std::istringstream input(bytes);
    CsvTable table(input, "t.csv");
    const std::size_t word = table.columnOf("Word");
    const std::size_t number = table.columnOf("Number");
    const std::size_t maybe = table.columnOf("Maybe");
    while (table.next()) {
        table.text(word);
        table.requiredNumber(number);
        table.number(maybe);
    }
}

const std::string Header = "Word,Note,Number,Maybe\n";

class CsvTableFault : public testing::TestWithParam<FaultCase> {};

} // namespace

TEST_P(CsvTableFault, IsToldWithPlaceFaultAndAdvice) {
    EXPECT_EQ(messageOf(readThings, GetParam().bytes), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    CsvTables, CsvTableFault,
    testing::Values(
        FaultCase{"none", Header + "żuraw,rubbish \xB3,-1.5e3,\nb,,0,7\n", "no error"},
        FaultCase{"noRows", Header, "no error"},
        FaultCase{"emptyFile", "",
                  "t.csv, wiersz 1, kolumna 1: plik jest pusty; zacznij go od nagłówka z nazwami kolumn"},
        FaultCase{"emptyLinesOnly", "\n\n",
                  "t.csv, wiersz 1, kolumna 1: plik jest pusty; zacznij go od nagłówka z nazwami kolumn"},
        FaultCase{"missingColumn", "\nWord,Number\na,1\n",
                  "t.csv, wiersz 2, kolumna 3: brak kolumny „Maybe”; dopisz ją do nagłówka"},
        FaultCase{"columnInOtherLetters", "Word,number,Maybe\n",
                  "t.csv, wiersz 1, kolumna 4: brak kolumny „Number”; dopisz ją do nagłówka"},
        FaultCase{
            "columnTwice", "Word,Number,Maybe,Number\n",
            "t.csv, wiersz 1, kolumna 4: kolumna „Number” występuje drugi raz; zostaw jedną kolumnę o tej nazwie"},
        FaultCase{"tooFewFields", Header + "a,b\n",
                  "t.csv, wiersz 2, kolumna 3: pól jest 2, a w nagłówku 4; uzupełnij wiersz albo ujmij pola z "
                  "przecinkami w cudzysłów"},
        FaultCase{"tooManyFields", Header + "\"a\n\nb\",b,1,2\na,b,1,2,3\n",
                  "t.csv, wiersz 5, kolumna 5: pól jest 5, a w nagłówku 4; uzupełnij wiersz albo ujmij pola z "
                  "przecinkami w cudzysłów"},
        FaultCase{"otherEncoding", Header + "\xB3,b,1,2\n",
                  "t.csv, wiersz 2, kolumna 1: tekst nie jest w UTF-8; zapisz plik w UTF-8"},
        FaultCase{"malformedNumber", Header + "a,b,1,12a\n",
                  "t.csv, wiersz 2, kolumna 4: „12a” nie jest liczbą; wpisz liczbę z kropką dziesiętną albo zostaw "
                  "pole puste"},
        FaultCase{"malformedRequiredNumber", Header + "a,b,1,2\na,b,2x,2\n",
                  "t.csv, wiersz 3, kolumna 3: „2x” nie jest liczbą; wpisz liczbę z kropką dziesiętną"},
        FaultCase{"missingRequiredNumber", Header + "a,b,,2\n",
                  "t.csv, wiersz 2, kolumna 3: brak liczby; wpisz liczbę z kropką dziesiętną"},
        FaultCase{"blankBeforeANumber", Header + "a,b, 1,2\n",
                  "t.csv, wiersz 2, kolumna 3: „ 1” nie jest liczbą; wpisz liczbę z kropką dziesiętną"},
        FaultCase{"decimalComma", Header + "a,b,\"1,5\",2\n",
                  "t.csv, wiersz 2, kolumna 3: „1,5” nie jest liczbą; wpisz liczbę z kropką dziesiętną"},
        FaultCase{"notANumber", Header + "a,b,nan,2\n",
                  "t.csv, wiersz 2, kolumna 3: „nan” nie jest liczbą; wpisz liczbę z kropką dziesiętną"},
        FaultCase{"infinity", Header + "a,b,-inf,2\n",
                  "t.csv, wiersz 2, kolumna 3: „-inf” nie jest liczbą; wpisz liczbę z kropką dziesiętną"},
        FaultCase{"overflow", Header + "a,b,1e999,2\n",
                  "t.csv, wiersz 2, kolumna 3: „1e999” nie jest liczbą; wpisz liczbę z kropką dziesiętną"},
        FaultCase{"numberInOtherEncoding", Header + "a,b,\xB3,2\n",
                  "t.csv, wiersz 2, kolumna 3: pole nie jest liczbą; wpisz liczbę z kropką dziesiętną"},
        FaultCase{"greatestNumbers", Header + "a,b,1e18,-1e18\n", "no error"},
        FaultCase{"tooGreatANumber", Header + "a,b,1.001e18,2\n",
                  "t.csv, wiersz 2, kolumna 3: liczba „1.001e18” jest poza zakresem; podaj liczbę od -1e18 do 1e18"},
        FaultCase{"tooGreatANumberBelowZero", Header + "a,b,1,-1e300\n",
                  "t.csv, wiersz 2, kolumna 4: liczba „-1e300” jest poza zakresem; podaj liczbę od -1e18 do 1e18"}),
    nameOfFault);
