#pragma once

#include <string>
#include <utility>

/// The outcome of a check: success, or a code other than 0 and a message for the user.
class ParameterStatus {
public:
    static constexpr int Success = 0;

    ParameterStatus() = default;
    ParameterStatus(int code, std::wstring message) : m_code(code), m_message(std::move(message)) {}

    bool IsSuccess() const { return m_code == Success; }
    int GetCode() const { return m_code; }
    /// Empty on success.
    const std::wstring& GetMessageText() const { return m_message; }

    friend bool operator==(const ParameterStatus&, const ParameterStatus&) = default;

private:
    int m_code = Success;
    std::wstring m_message;
};
