#pragma once

#include <windows.h>

/// To be called while an exception is being handled: hands it to the thread object as the framework's exceptions
/// are handed to it, and gives the result of the message during which it was thrown. Throws nothing.
LRESULT answerToException(const MSG& message) noexcept;
