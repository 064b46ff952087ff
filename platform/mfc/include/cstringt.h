#pragma once

#include "OrtinMfcApi.h"

#include <windows.h>

#include <tchar.h>

#include <algorithm>
#include <cctype>
#include <compare>
#include <cstdarg>
#include <cstdio>
#include <cwchar>
#include <cwctype>
#include <string>
#include <string_view>

/// What a string of one character type needs of Windows and of the C runtime. Private to CStringT.
template <typename CharT>
struct CStringPlatform;

/// The text resource `id` of the first module that has it, in the order of AfxFindResourceHandle; false and an empty
/// text if none has.
ORTIN_MFC_API BOOL OrtinLoadStringResource(UINT id, std::wstring& text);
ORTIN_MFC_API BOOL OrtinLoadStringResource(UINT id, std::string& text);

template <>
struct CStringPlatform<wchar_t> {
    using Other = char;

    static int formattedLength(const wchar_t* format, va_list arguments) { return _vscwprintf(format, arguments); }
    static void format(wchar_t* target, size_t capacity, const wchar_t* format, va_list arguments) {
        _vsnwprintf(target, capacity, format, arguments);
    }
    static void makeUpper(wchar_t* text, int length) { CharUpperBuffW(text, static_cast<DWORD>(length)); }
    static void makeLower(wchar_t* text, int length) { CharLowerBuffW(text, static_cast<DWORD>(length)); }
    static bool isSpace(wchar_t character) { return std::iswspace(static_cast<wint_t>(character)) != 0; }
    static std::wstring convert(std::string_view text) {
        const int count = static_cast<int>(text.size());
        std::wstring converted(static_cast<size_t>(MultiByteToWideChar(CP_ACP, 0, text.data(), count, nullptr, 0)),
                               L'\0');
        MultiByteToWideChar(CP_ACP, 0, text.data(), count, converted.data(), static_cast<int>(converted.size()));
        return converted;
    }
    /// Of one module; empty if it has none. Lives as long as the module is loaded.
    static std::wstring_view resource(HINSTANCE module, UINT id) {
        const wchar_t* text = nullptr;
        // A zero capacity makes LoadStringW give the address of the text, which has no terminator.
        const int length = ::LoadStringW(module, id, reinterpret_cast<LPWSTR>(&text), 0);
        return length > 0 ? std::wstring_view(text, static_cast<size_t>(length)) : std::wstring_view();
    }
};

template <>
struct CStringPlatform<char> {
    using Other = wchar_t;

    static int formattedLength(const char* format, va_list arguments) { return _vscprintf(format, arguments); }
    static void format(char* target, size_t capacity, const char* format, va_list arguments) {
        _vsnprintf(target, capacity, format, arguments);
    }
    static void makeUpper(char* text, int length) { CharUpperBuffA(text, static_cast<DWORD>(length)); }
    static void makeLower(char* text, int length) { CharLowerBuffA(text, static_cast<DWORD>(length)); }
    static bool isSpace(char character) { return std::isspace(static_cast<unsigned char>(character)) != 0; }
    static std::string convert(std::wstring_view text) {
        const int count = static_cast<int>(text.size());
        std::string converted(
            static_cast<size_t>(WideCharToMultiByte(CP_ACP, 0, text.data(), count, nullptr, 0, nullptr, nullptr)),
            '\0');
        WideCharToMultiByte(CP_ACP, 0, text.data(), count, converted.data(), static_cast<int>(converted.size()),
                            nullptr, nullptr);
        return converted;
    }
    static std::string resource(HINSTANCE module, UINT id) {
        return convert(CStringPlatform<wchar_t>::resource(module, id));
    }
};

/// A text that owns its characters, always ends with a terminator and may hold terminators inside.
///
/// Indexes and lengths count characters (code units) from 0; an index or a count that reaches outside is clamped,
/// and -1 stands for "not found". A null pointer given as a text is the empty text. Case and comparison without case
/// follow the operating system's tables, so Polish letters have their pairs in every locale.
template <typename CharT>
class CStringT {
public:
    using XCHAR = CharT;
    using PXSTR = CharT*;
    using PCXSTR = const CharT*;
    using YCHAR = typename CStringPlatform<CharT>::Other;
    using PCYSTR = const YCHAR*;

    CStringT() = default;
    CStringT(const CStringT&) = default;
    CStringT(CStringT&&) noexcept = default;
    ~CStringT() = default;

    /// The text, or with MAKEINTRESOURCE(id) the text resource of that id (empty if there is none).
    CStringT(PCXSTR text) {
        if (isResourceId(text)) {
            LoadString(LOWORD(reinterpret_cast<ULONG_PTR>(text)));
        } else {
            SetString(text);
        }
    }
    /// Converts between the wide form and the system's code page.
    CStringT(PCYSTR text) {
        if (isResourceId(text)) {
            LoadString(LOWORD(reinterpret_cast<ULONG_PTR>(text)));
        } else {
            *this = text;
        }
    }
    CStringT(PCXSTR text, int length) { SetString(text, length); }
    CStringT(PCYSTR text, int length) : m_text(CStringPlatform<CharT>::convert(otherView(text, length))) {}
    explicit CStringT(CharT character, int repeat = 1) : m_text(static_cast<size_t>(std::max(repeat, 0)), character) {}

    CStringT& operator=(const CStringT&) = default;
    CStringT& operator=(CStringT&&) noexcept = default;
    CStringT& operator=(PCXSTR text) {
        SetString(text);
        return *this;
    }
    CStringT& operator=(PCYSTR text) {
        m_text = CStringPlatform<CharT>::convert(text ? std::basic_string_view<YCHAR>(text)
                                                      : std::basic_string_view<YCHAR>());
        return *this;
    }
    CStringT& operator=(CharT character) {
        m_text.assign(1, character);
        return *this;
    }

    int GetLength() const noexcept { return static_cast<int>(m_text.size()); }
    int GetAllocLength() const noexcept { return static_cast<int>(m_text.capacity()); }
    bool IsEmpty() const noexcept { return m_text.empty(); }
    void Empty() noexcept { m_text.clear(); }
    CharT GetAt(int index) const { return m_text[static_cast<size_t>(index)]; }
    void SetAt(int index, CharT character) { m_text[static_cast<size_t>(index)] = character; }
    CharT operator[](int index) const { return GetAt(index); }
    PCXSTR GetString() const noexcept { return m_text.c_str(); }
    operator PCXSTR() const noexcept { return m_text.c_str(); }
    void SetString(PCXSTR text) { m_text.assign(viewOf(text)); }
    /// The first `length` characters; terminators among them are kept.
    void SetString(PCXSTR text, int length) {
        m_text.assign(text ? text : emptyText(), text ? static_cast<size_t>(std::max(length, 0)) : 0);
    }

    /// The characters to write to, with room for `minimumLength` and a terminator. Until ReleaseBuffer nothing else
    /// of the string may be used.
    PXSTR GetBuffer(int minimumLength = 0) {
        m_text.resize(std::max(m_text.size(), static_cast<size_t>(std::max(minimumLength, 0))));
        return m_text.data();
    }
    PXSTR GetBufferSetLength(int length) {
        m_text.resize(static_cast<size_t>(std::max(length, 0)));
        return m_text.data();
    }
    /// Ends writing: the text is `length` characters, or with -1 reaches to the first terminator.
    void ReleaseBuffer(int length = -1) {
        m_text.resize(length < 0 ? viewOf(m_text.c_str()).size() : static_cast<size_t>(length));
    }
    void ReleaseBufferSetLength(int length) { ReleaseBuffer(std::max(length, 0)); }
    void Preallocate(int length) { m_text.reserve(static_cast<size_t>(std::max(length, 0))); }
    void Truncate(int length) { m_text.resize(std::min(m_text.size(), static_cast<size_t>(std::max(length, 0)))); }
    void FreeExtra() { m_text.shrink_to_fit(); }

    CStringT& operator+=(const CStringT& text) {
        m_text += text.m_text;
        return *this;
    }
    CStringT& operator+=(PCXSTR text) {
        m_text += viewOf(text);
        return *this;
    }
    CStringT& operator+=(CharT character) {
        m_text += character;
        return *this;
    }
    void Append(PCXSTR text) { *this += text; }
    void Append(PCXSTR text, int length) { m_text.append(text, static_cast<size_t>(std::max(length, 0))); }
    void Append(const CStringT& text) { *this += text; }
    void AppendChar(CharT character) { m_text += character; }

    friend CStringT operator+(const CStringT& left, const CStringT& right) { return joined(left, right.m_text); }
    friend CStringT operator+(const CStringT& left, PCXSTR right) { return joined(left, viewOf(right)); }
    friend CStringT operator+(PCXSTR left, const CStringT& right) { return joined(left, right.m_text); }
    friend CStringT operator+(const CStringT& left, CharT right) { return joined(left, {&right, 1}); }
    friend CStringT operator+(CharT left, const CStringT& right) { return joined(CStringT(left), right.m_text); }

    friend bool operator==(const CStringT& left, const CStringT& right) { return left.m_text == right.m_text; }
    friend bool operator==(const CStringT& left, PCXSTR right) { return left.m_text == viewOf(right); }
    friend auto operator<=>(const CStringT& left, const CStringT& right) { return left.m_text <=> right.m_text; }
    friend auto operator<=>(const CStringT& left, PCXSTR right) {
        return std::basic_string_view<CharT>(left.m_text) <=> viewOf(right);
    }

    /// Negative, 0 or positive, by character codes.
    int Compare(PCXSTR text) const { return m_text.compare(viewOf(text)); }
    int CompareNoCase(PCXSTR text) const {
        CStringT left(*this);
        CStringT right;
        right.SetString(text);
        return left.MakeUpper().Compare(right.MakeUpper());
    }

    CStringT Mid(int first) const { return Mid(first, GetLength()); }
    CStringT Mid(int first, int count) const {
        const size_t start = std::min(m_text.size(), static_cast<size_t>(std::max(first, 0)));
        return fromText(m_text.substr(start, static_cast<size_t>(std::max(count, 0))));
    }
    CStringT Left(int count) const { return Mid(0, count); }
    CStringT Right(int count) const { return Mid(GetLength() - std::clamp(count, 0, GetLength())); }
    /// The longest beginning that consists only of `characters`.
    CStringT SpanIncluding(PCXSTR characters) const {
        return fromText(m_text.substr(0, m_text.find_first_not_of(viewOf(characters))));
    }
    /// The longest beginning that has none of `characters`.
    CStringT SpanExcluding(PCXSTR characters) const {
        return fromText(m_text.substr(0, m_text.find_first_of(viewOf(characters))));
    }

    int Find(PCXSTR text, int start = 0) const {
        return isInside(start) ? toIndex(m_text.find(viewOf(text), static_cast<size_t>(start))) : -1;
    }
    int Find(CharT character, int start = 0) const {
        return isInside(start) ? toIndex(m_text.find(character, static_cast<size_t>(start))) : -1;
    }
    int ReverseFind(CharT character) const { return toIndex(m_text.rfind(character)); }
    int FindOneOf(PCXSTR characters) const { return toIndex(m_text.find_first_of(viewOf(characters))); }

    CStringT& Trim() { return TrimRight().TrimLeft(); }
    CStringT& Trim(CharT character) { return TrimRight(character).TrimLeft(character); }
    CStringT& Trim(PCXSTR characters) { return TrimRight(characters).TrimLeft(characters); }
    CStringT& TrimLeft() { return trimLeftWhile(CStringPlatform<CharT>::isSpace); }
    CStringT& TrimLeft(CharT character) {
        return trimLeftWhile([character](CharT other) { return other == character; });
    }
    CStringT& TrimLeft(PCXSTR characters) {
        return trimLeftWhile([set = viewOf(characters)](CharT other) { return set.find(other) != set.npos; });
    }
    CStringT& TrimRight() { return trimRightWhile(CStringPlatform<CharT>::isSpace); }
    CStringT& TrimRight(CharT character) {
        return trimRightWhile([character](CharT other) { return other == character; });
    }
    CStringT& TrimRight(PCXSTR characters) {
        return trimRightWhile([set = viewOf(characters)](CharT other) { return set.find(other) != set.npos; });
    }

    CStringT& MakeUpper() {
        CStringPlatform<CharT>::makeUpper(m_text.data(), GetLength());
        return *this;
    }
    CStringT& MakeLower() {
        CStringPlatform<CharT>::makeLower(m_text.data(), GetLength());
        return *this;
    }
    CStringT& MakeReverse() {
        std::reverse(m_text.begin(), m_text.end());
        return *this;
    }

    /// Replaces every occurrence, from the left and never inside what was put in; gives their number.
    int Replace(PCXSTR oldText, PCXSTR newText) {
        const std::basic_string<CharT> old(viewOf(oldText));
        const std::basic_string<CharT> replacement(viewOf(newText));
        if (old.empty()) {
            return 0;
        }
        int count = 0;
        std::basic_string<CharT> result;
        size_t copied = 0;
        for (size_t found = m_text.find(old); found != m_text.npos; found = m_text.find(old, copied)) {
            result.append(m_text, copied, found - copied).append(replacement);
            copied = found + old.size();
            ++count;
        }
        if (count > 0) {
            m_text = result.append(m_text, copied);
        }
        return count;
    }
    int Replace(CharT oldCharacter, CharT newCharacter) {
        int count = 0;
        for (CharT& character : m_text) {
            if (character == oldCharacter && oldCharacter != newCharacter) {
                character = newCharacter;
                ++count;
            }
        }
        return count;
    }
    /// Removes every occurrence and gives their number.
    int Remove(CharT character) { return static_cast<int>(std::erase(m_text, character)); }
    /// Inserts before `index` and gives the new length.
    int Insert(int index, PCXSTR text) {
        m_text.insert(clampedIndex(index), std::basic_string<CharT>(viewOf(text)));
        return GetLength();
    }
    int Insert(int index, CharT character) {
        m_text.insert(clampedIndex(index), 1, character);
        return GetLength();
    }
    /// Removes `count` characters from `index` on and gives the new length.
    int Delete(int index, int count = 1) {
        m_text.erase(clampedIndex(index), static_cast<size_t>(std::max(count, 0)));
        return GetLength();
    }

    /// The next part between `delimiters` at or after `start`, which moves behind it. Delimiters in a row count as
    /// one. When nothing is left the result is empty and `start` becomes -1.
    CStringT Tokenize(PCXSTR delimiters, int& start) const {
        const std::basic_string_view<CharT> set = viewOf(delimiters);
        const size_t first = start < 0 ? m_text.npos : m_text.find_first_not_of(set, static_cast<size_t>(start));
        if (first == m_text.npos) {
            start = -1;
            return {};
        }
        const size_t end = std::min(m_text.find_first_of(set, first), m_text.size());
        start = static_cast<int>(std::min(end + 1, m_text.size()));
        return fromText(m_text.substr(first, end - first));
    }

    /// Replaces the text; the format is the C runtime's, where %s takes text of this character width.
    /// Strings are passed as pointers (GetString()).
    void Format(PCXSTR format, ...) {
        va_list arguments;
        va_start(arguments, format);
        FormatV(format, arguments);
        va_end(arguments);
    }
    /// The format is the text resource `formatId`.
    void Format(UINT formatId, ...) {
        CStringT format;
        format.LoadString(formatId);
        va_list arguments;
        va_start(arguments, formatId);
        FormatV(format, arguments);
        va_end(arguments);
    }
    void AppendFormat(PCXSTR format, ...) {
        va_list arguments;
        va_start(arguments, format);
        CStringT appended;
        appended.FormatV(format, arguments);
        va_end(arguments);
        *this += appended;
    }
    /// A format that the C runtime refuses gives the empty text.
    void FormatV(PCXSTR format, va_list arguments) {
        va_list measured;
        va_copy(measured, arguments);
        const int length = CStringPlatform<CharT>::formattedLength(format, measured);
        va_end(measured);
        std::basic_string<CharT> formatted(static_cast<size_t>(std::max(length, 0)), CharT());
        if (length > 0) {
            CStringPlatform<CharT>::format(formatted.data(), formatted.size() + 1, format, arguments);
        }
        m_text = std::move(formatted);
    }

    /// Loads the text resource `id` from the first module that has it; false and empty if none has.
    BOOL LoadString(UINT id) { return OrtinLoadStringResource(id, m_text); }
    BOOL LoadString(HINSTANCE module, UINT id) {
        m_text = CStringPlatform<CharT>::resource(module, id);
        return !m_text.empty();
    }

private:
    static constexpr CharT S_empty[1] = {};

    static PCXSTR emptyText() { return S_empty; }
    static std::basic_string_view<CharT> viewOf(PCXSTR text) { return text ? text : emptyText(); }
    static std::basic_string_view<YCHAR> otherView(PCYSTR text, int length) {
        return text && length > 0 ? std::basic_string_view<YCHAR>(text, static_cast<size_t>(length))
                                  : std::basic_string_view<YCHAR>();
    }
    template <typename AnyChar>
    static bool isResourceId(const AnyChar* text) {
        return text && IS_INTRESOURCE(text);
    }
    static CStringT fromText(std::basic_string<CharT> text) {
        CStringT result;
        result.m_text = std::move(text);
        return result;
    }
    static CStringT joined(const CStringT& left, std::basic_string_view<CharT> right) {
        CStringT result(left);
        result.m_text += right;
        return result;
    }
    static int toIndex(size_t found) { return found == std::basic_string<CharT>::npos ? -1 : static_cast<int>(found); }
    bool isInside(int index) const { return index >= 0 && index <= GetLength(); }
    size_t clampedIndex(int index) const { return static_cast<size_t>(std::clamp(index, 0, GetLength())); }

    template <typename Predicate>
    CStringT& trimLeftWhile(Predicate matches) {
        m_text.erase(m_text.begin(), std::find_if_not(m_text.begin(), m_text.end(), matches));
        return *this;
    }
    template <typename Predicate>
    CStringT& trimRightWhile(Predicate matches) {
        m_text.erase(std::find_if_not(m_text.rbegin(), m_text.rend(), matches).base(), m_text.end());
        return *this;
    }

    std::basic_string<CharT> m_text;
};
