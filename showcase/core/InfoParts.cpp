#include "InfoParts.h"

#include "core/Commands.h"

namespace Desk {

namespace {

using Kind = InfoPart::Kind;

std::wstring keys(Command one) {
    return keysOf(one);
}

std::wstring keys(Command one, Command other) {
    return keys(one) + L", " + keysOf(other);
}

InfoPart heading(const wchar_t* text) {
    return {Kind::Heading, L"", text};
}

InfoPart entry(std::wstring name, const wchar_t* text) {
    return {Kind::Entry, std::move(name), text};
}

InfoPart sample(InfoColor color, const wchar_t* text) {
    return {Kind::Sample, L"", text, color};
}

} // namespace

std::vector<InfoPart> infoParts() {
    return {
        {Kind::Title, L"", L"OrtinDesk"},
        {Kind::Text, L"",
         L"Notowania i wykresy na kontrolkach OrtinControls. Tabela pokazuje instrumenty, wykres pod nią świece tego, "
         L"na którym stoi kursor tabeli. Układ kolumn, motyw, style wykresu i narysowane linie wracają przy następnym "
         L"uruchomieniu."},

        heading(L"Klawisze"),
        entry(keys(Command::Find), L"szukanie symbolu, nazwy albo sektora; wystarczy też zacząć pisać"),
        entry(keys(Command::FindNext, Command::FindPrevious), L"następny i poprzedni znaleziony wiersz"),
        entry(L"Esc", L"koniec szukania i zaznaczania"),
        entry(L"Tab", L"z szukania do wierszy, z nich do wykresu i znów do szukania; z Shift odwrotnie"),
        entry(keys(Command::CopyRows), L"kopiuje zaznaczone wiersze"),
        entry(keys(Command::CopyColumn), L"kopiuje z nich tylko jedną kolumnę"),
        entry(keys(Command::SelectAll), L"zaznacza wszystkie wiersze"),
        entry(keys(Command::Print, Command::Preview), L"drukuje; pokazuje przedtem strony"),
        entry(keys(Command::SwitchAutoscroll), L"autoprzewijanie wierszy"),
        entry(keys(Command::SwitchLockedColumns), L"stałe szerokości kolumn"),
        entry(keys(Command::SwitchTheme), L"motyw biały albo czarny"),
        entry(keys(Command::ShowInfo), L"to okno; zamyka je Esc"),

        heading(L"Tabela"),
        entry(L"kliknięcie nagłówka", L"sortuje według kolumny; drugie odwraca porządek"),
        entry(L"przeciągnięcie nagłówka", L"przestawia kolumnę"),
        entry(L"przeciągnięcie granicy", L"zmienia szerokość kolumny; dwukrotne kliknięcie dopasowuje ją do treści"),
        entry(L"prawy przycisk na nagłówku", L"wybór kolumn, które widać"),
        entry(L"Ctrl albo Shift + kliknięcie", L"zaznacza wiele wierszy; to samo strzałkami z Shift"),
        entry(L"prawy przycisk na wierszu", L"kopiowanie, szukanie, drukowanie i to okno"),

        heading(L"Wykres"),
        {Kind::Text, L"", L"Klawisze należą do wykresu, gdy się go kliknie."},
        entry(L"ruch myszy", L"krzyż z ceną i datą na osiach; nad nim kursy i wolumen wskazanej świecy"),
        entry(L"przeciągnięcie tła", L"przesuwa wykres w czasie; to samo strzałki, Home i End"),
        entry(L"kółko, Ctrl + kółko", L"przesuwa wykres; powiększa wokół myszy, tak jak klawisze + i −"),
        entry(L"kliknięcie", L"zaznacza świece, wolumen, średnią, siatkę, znacznik albo linię, żeby zmienić ich styl"),
        entry(L"L albo „Linia trendu”", L"potem przeciągnięcie rysuje linię"),
        entry(L"przeciągnięcie linii", L"przesuwa ją całą, a wzięte za koniec tylko ten koniec"),
        entry(L"Shift + przeciągnięcie", L"zaznacza zakres dni i pokazuje zmianę kursu w procentach"),
        entry(L"Delete", L"usuwa zaznaczoną linię albo zakres"),
        entry(L"Esc", L"przerywa rysowanie lub przeciąganie i cofa je; kończy zaznaczenie"),
        entry(L"pasek pod wykresem", L"środek przesuwa widoczny zakres, jego brzegi go zwężają i rozszerzają"),

        heading(L"Kolory"),
        sample(InfoColor::Risen, L"kurs właśnie wzrósł"),
        sample(InfoColor::Fallen, L"kurs właśnie spadł"),
        sample(InfoColor::SelectedRow, L"zaznaczony wiersz"),
        sample(InfoColor::FoundText, L"znaleziony fragment tekstu"),
        sample(InfoColor::RangeReached, L"zakres 52 tygodni: od najniższego kursu do obecnego"),
        sample(InfoColor::RangeMarker, L"obecny kurs w tym zakresie"),
        {Kind::Text, L"", L"Kolory, pióra i czcionki wykresu zmienia panel stylu po jego prawej stronie."},

        heading(L"Biblioteki i licencje"),
        entry(L"Boost.JSON", L"Boost Software License 1.0"),
        entry(L"Guidelines Support Library", L"licencja MIT"),
        entry(L"libstdc++ i libgcc", L"GPL 3 z wyjątkiem GCC Runtime Library Exception 3.1"),
        entry(L"mingw-w64, winpthreads", L"Zope Public License 2.1, licencja MIT i BSD"),
    };
}

} // namespace Desk
