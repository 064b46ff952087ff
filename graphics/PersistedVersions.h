#pragma once

#include <cstdint>

/// What the version of a settings node says about the text of a value object.
namespace PersistedVersions {

/// Bytes of the description as BinaryStringSerializer writes them; read and never written.
constexpr std::uint32_t Legacy = 0;
constexpr std::uint32_t Text = 1;

} // namespace PersistedVersions
