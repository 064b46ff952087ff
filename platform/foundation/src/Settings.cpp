#include "SettingsChild.h"

#include "OrtinFoundation/StringTools.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

template <typename Number>
std::optional<Number> numberOf(const std::string& text) {
    Number number{};
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end && !text.empty() ? std::optional<Number>(number) : std::nullopt;
}

template <typename Number>
std::string textOf(Number number) {
    std::array<char, 32> text;
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), number);
    return std::string(text.data(), end);
}

} // namespace

Settings::Settings() = default;
Settings::Settings(const Settings&) = default;
Settings::Settings(Settings&&) noexcept = default;
Settings::~Settings() = default;

Settings& Settings::operator=(Settings&& other) noexcept {
    // `other` may be a part of this tree, and end with the children that are replaced.
    Settings taken(std::move(other));
    Version = taken.Version;
    m_text.swap(taken.m_text);
    m_children.swap(taken.m_children);
    return *this;
}

Settings& Settings::operator=(const Settings& other) {
    return *this = Settings(other);
}

Settings& Settings::operator=(const wchar_t* text) {
    SetText(text != nullptr ? text : L"");
    return *this;
}

Settings& Settings::operator=(const std::string& utf8Text) {
    m_text = utf8Text;
    return *this;
}

const Settings::Child* Settings::find(std::string_view name) const {
    const auto found =
        std::find_if(m_children.begin(), m_children.end(), [name](const Child& child) { return child.name == name; });
    return found != m_children.end() ? &*found : nullptr;
}

Settings& Settings::operator[](std::string_view name) {
    if (const Child* child = find(name)) {
        return const_cast<Child*>(child)->node;
    }
    return m_children.emplace_back(Child{std::string(name), Settings()}).node;
}

const Settings& Settings::operator[](std::string_view name) const {
    static const Settings none;
    const Child* child = find(name);
    return child != nullptr ? child->node : none;
}

bool Settings::HasChild(std::string_view name) const {
    return find(name) != nullptr;
}

std::vector<std::string> Settings::GetChildNames() const {
    std::vector<std::string> names;
    for (const Child& child : m_children) {
        names.push_back(child.name);
    }
    return names;
}

bool Settings::RemoveChild(std::string_view name) {
    return std::erase_if(m_children, [name](const Child& child) { return child.name == name; }) > 0;
}

void Settings::Clear() {
    *this = Settings();
}

const std::string& Settings::asUtf8() const {
    static const std::string none;
    return m_text ? *m_text : none;
}

std::wstring Settings::GetText(std::wstring_view fallback) const {
    return m_text ? OrtinTools::String::Utf8ToWide(*m_text) : std::wstring(fallback);
}

int Settings::GetInt(int fallback) const {
    return numberOf<int>(asUtf8()).value_or(fallback);
}

double Settings::GetDouble(double fallback) const {
    return numberOf<double>(asUtf8()).value_or(fallback);
}

bool Settings::GetBool(bool fallback) const {
    const std::string& text = asUtf8();
    return text == "1" || (text != "0" && fallback);
}

void Settings::SetText(std::wstring_view text) {
    m_text = OrtinTools::String::WideToUtf8(text);
}

void Settings::SetInt(int value) {
    m_text = textOf(value);
}

void Settings::SetDouble(double value) {
    m_text = textOf(value);
}

void Settings::SetBool(bool value) {
    SetInt(value ? 1 : 0);
}

bool operator==(const Settings& left, const Settings& right) {
    return left.Version == right.Version && left.m_text == right.m_text && left.m_children == right.m_children;
}
