#pragma once

#include <filesystem>
#include <fstream>
#include <string>

namespace Desk {

/// A file of the user, opened to be read.
struct InputFile {
    /// Throws `InputError` if it cannot be opened.
    explicit InputFile(const std::filesystem::path& file);

    std::string name; ///< as messages show it
    std::ifstream stream;
};

} // namespace Desk
