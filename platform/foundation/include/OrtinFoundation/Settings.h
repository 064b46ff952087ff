#pragma once

#include "OrtinFoundation/FoundationApi.h"
#include "OrtinFoundation/ParameterStatus.h"

#include <cstdint>
#include <list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A tree of settings: each node has an optional text, a version of that text, and named child nodes in the order in
/// which they were first named. Names and texts are UTF-8 inside and hold any characters.
///
/// Numbers are written with a decimal point in every locale; a text that is no number of the asked kind, whole and in
/// range, gives the fallback. References to child nodes stay valid until the child or its parent ends or is assigned.
///
/// The file form is UTF-8 text, one node a line, parents before children:
///
///     OrtinSettings 1
///     ; a comment
///     /table/columns=8
///     /table/columns/0#2=120.5
///
/// that is, the path from the root (each name after a slash; the root's own path is empty), `#` and the version if that
/// is not 0, `=` and the text if there is one. A backslash begins an escape: \\ \/ \# \= for these characters, \n \r
/// \0 for a line feed, a carriage return and a NUL. Blanks count. Lines end with a line feed, or both characters.
/// A path has at most 1000 names.
class ORTIN_FOUNDATION_API Settings {
public:
    /// What the text means to those who wrote it: 0 is a legacy value, 1 the current text form.
    std::uint32_t Version = 0;

    /// Codes of the status that reading and writing give.
    enum FileError { FileNotFound = 1, FileNotReadable = 2, FileMalformed = 3, FileNotWritable = 4 };

    Settings();
    Settings(const Settings&);
    Settings(Settings&&) noexcept;
    ~Settings();
    Settings& operator=(const Settings&);
    Settings& operator=(Settings&&) noexcept;

    Settings& operator=(const wchar_t* text);
    Settings& operator=(const std::string& utf8Text);
    /// The node's text in UTF-8, empty if there is none.
    operator const char*() const { return asUtf8().c_str(); }
    operator const std::string&() const { return asUtf8(); }
    operator std::wstring() const { return GetText(); }

    /// The child of that name, made if there is none.
    Settings& operator[](std::string_view name);
    /// The child of that name; if there is none, a node without text and children.
    const Settings& operator[](std::string_view name) const;
    bool HasChild(std::string_view name) const;
    std::vector<std::string> GetChildNames() const;
    /// False if there is none.
    bool RemoveChild(std::string_view name);
    /// Takes text, version and children away.
    void Clear();

    bool HasText() const { return m_text.has_value(); }
    std::wstring GetText(std::wstring_view fallback = {}) const;
    int GetInt(int fallback = 0) const;
    double GetDouble(double fallback = 0.0) const;
    /// The texts are "1" and "0".
    bool GetBool(bool fallback = false) const;
    void SetText(std::wstring_view text);
    void SetInt(int value);
    /// The shortest text that reads back as the same number.
    void SetDouble(double value);
    void SetBool(bool value);

    /// Writes the tree to a file beside the target and then puts it in the target's place, so that at each moment the
    /// target is whole, old or new. On failure the old file stays and the status says what went wrong.
    ParameterStatus SaveToFile(const std::wstring& path) const;
    /// Replaces the tree by that of the file. On failure the tree and the file stay as they are, and the message names
    /// the file and, if malformed, the line and what is wrong there.
    ParameterStatus LoadFromFile(const std::wstring& path);

    /// The file form as text.
    std::string ToFileText() const;
    /// As LoadFromFile, with the file's content; `name` stands for the file in the message.
    ParameterStatus LoadFromFileText(std::string_view content, const std::wstring& name);

    friend ORTIN_FOUNDATION_API bool operator==(const Settings& left, const Settings& right);

private:
    struct Child;
    friend struct SettingsTextForm;

    const std::string& asUtf8() const;
    const Child* find(std::string_view name) const;

    std::optional<std::string> m_text;
    std::list<Child> m_children;
};
