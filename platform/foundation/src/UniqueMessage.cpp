#include "OrtinFoundation/UniqueMessage.h"

UniqueMessage::UniqueMessage(const std::wstring& text) : m_number(RegisterWindowMessageW(text.c_str())) {}
