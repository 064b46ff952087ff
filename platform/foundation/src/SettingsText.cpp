#include "SettingsChild.h"

#include "OrtinFoundation/StringTools.h"

#include <charconv>
#include <set>

namespace {

constexpr std::string_view S_header = "OrtinSettings 1";
constexpr int S_deepestLevel = 1000; // the tree is walked by recursion
constexpr std::string_view S_byteOrderMark = "\xEF\xBB\xBF";

/// What is wrong with a line; caught where the number of the line is known.
struct LineError {
    const wchar_t* what;
};

void appendEscaped(std::string& target, std::string_view text, bool isName) {
    for (const char character : text) {
        switch (character) {
        case '\\':
            target += "\\\\";
            break;
        case '\n':
            target += "\\n";
            break;
        case '\r':
            target += "\\r";
            break;
        case '\0':
            target += "\\0";
            break;
        case '/':
        case '#':
        case '=':
            if (isName) {
                target += '\\';
            }
            [[fallthrough]];
        default:
            target += character;
        }
    }
}

char unescaped(char escape) {
    switch (escape) {
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case '0':
        return '\0';
    case '\\':
    case '/':
    case '#':
    case '=':
        return escape;
    default:
        throw LineError{L"nieznany znak po ukośniku wstecznym"};
    }
}

/// Takes characters from the front of `line` until one of `ends` stands there bare.
std::string takeUntil(std::string_view& line, std::string_view ends) {
    std::string taken;
    while (!line.empty() && ends.find(line.front()) == ends.npos) {
        if (line.front() == '\\') {
            line.remove_prefix(1);
            if (line.empty()) {
                throw LineError{L"wiersz kończy się ukośnikiem wstecznym"};
            }
            taken += unescaped(line.front());
        } else {
            taken += line.front();
        }
        line.remove_prefix(1);
    }
    return taken;
}

std::uint32_t takeVersion(std::string_view& line) {
    std::uint32_t version = 0;
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), version);
    line.remove_prefix(static_cast<size_t>(end - line.data()));
    if (error != std::errc() || (!line.empty() && line.front() != '=')) {
        throw LineError{L"po znaku # powinien stać numer wersji"};
    }
    return version;
}

bool isWellFormedUtf8(std::string_view text) {
    while (!text.empty()) {
        const auto lead = static_cast<unsigned char>(text.front());
        const size_t length = lead < 0x80   ? 1
                              : lead < 0xC2 ? 0
                              : lead < 0xE0 ? 2
                              : lead < 0xF0 ? 3
                              : lead < 0xF5 ? 4
                                            : 0;
        if (length == 0 || length > text.size()) {
            return false;
        }
        for (size_t index = 1; index < length; ++index) {
            if ((static_cast<unsigned char>(text[index]) & 0xC0) != 0x80) {
                return false;
            }
        }
        const auto second = length > 1 ? static_cast<unsigned char>(text[1]) : 0;
        const bool isOverlong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
        const bool isOutside = (lead == 0xED && second > 0x9F) || (lead == 0xF4 && second > 0x8F);
        if (isOverlong || isOutside) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

std::string_view takeLine(std::string_view& content) {
    const size_t end = content.find('\n');
    std::string_view line = content.substr(0, end);
    content.remove_prefix(end == content.npos ? content.size() : end + 1);
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

} // namespace

struct SettingsTextForm {
    static void write(const Settings& node, const std::string& path, std::string& target) {
        const bool isEmptyLeaf = node.m_children.empty() && !path.empty();
        if (node.m_text || node.Version != 0 || isEmptyLeaf) {
            target += path;
            if (node.Version != 0) {
                target += '#' + std::to_string(node.Version);
            }
            if (node.m_text) {
                target += '=';
                appendEscaped(target, *node.m_text, false);
            }
            target += '\n';
        }
        for (const Settings::Child& child : node.m_children) {
            std::string childPath = path + '/';
            appendEscaped(childPath, child.name, true);
            write(child.node, childPath, target);
        }
    }

    static void readLine(std::string_view line, Settings& root, std::set<const Settings*>& read) {
        if (line.find('\0') != line.npos) {
            throw LineError{L"niedozwolony znak o kodzie 0"};
        }
        if (!isWellFormedUtf8(line)) {
            throw LineError{L"tekst nie jest zapisany w UTF-8"};
        }
        Settings* node = &root;
        for (int level = 1; line.starts_with('/'); ++level) {
            if (level > S_deepestLevel) {
                throw LineError{L"ścieżka ma zbyt wiele poziomów"};
            }
            line.remove_prefix(1);
            node = &(*node)[takeUntil(line, "/#=")];
        }
        if (!line.empty() && line.front() != '#' && line.front() != '=') {
            throw LineError{L"ścieżka powinna zaczynać się ukośnikiem"};
        }
        if (!read.insert(node).second) {
            throw LineError{L"ta ścieżka już wystąpiła"};
        }
        if (line.starts_with('#')) {
            line.remove_prefix(1);
            node->Version = takeVersion(line);
        }
        if (line.starts_with('=')) {
            line.remove_prefix(1);
            node->m_text = takeUntil(line, "");
        }
    }
};

std::string Settings::ToFileText() const {
    std::string content(S_header);
    content += '\n';
    SettingsTextForm::write(*this, std::string(), content);
    return content;
}

ParameterStatus Settings::LoadFromFileText(std::string_view content, const std::wstring& name) {
    Settings root;
    std::set<const Settings*> read;
    int lineNumber = 1;
    try {
        if (content.starts_with(S_byteOrderMark)) {
            content.remove_prefix(S_byteOrderMark.size());
        }
        if (takeLine(content) != S_header) {
            throw LineError{L"brak nagłówka OrtinSettings 1"};
        }
        while (!content.empty()) {
            ++lineNumber;
            const std::string_view line = takeLine(content);
            if (!line.empty() && line.front() != ';') {
                SettingsTextForm::readLine(line, root, read);
            }
        }
    } catch (const LineError& error) {
        return {FileMalformed,
                L"Plik ustawień " + name + L", wiersz " + std::to_wstring(lineNumber) + L": " + error.what};
    }
    *this = std::move(root);
    return {};
}
