#pragma once

#include <string_view>

#include <windows.h>

namespace support {

/// Replaces one entry of a loaded module's import table for the length of a scope: what the module calls as `dll!name`
/// goes to `replacement`, other modules are not touched. So a system call, or the C++ runtime's operator new, fails for
/// the product without a seam in it. A function that is running keeps what it has read from the table before.
class ImportPatch {
public:
    /// `module` is a module's handle, null for the program itself; `dll` as the import table names it, in any case,
    /// with its extension; `name` as exported (decorated where it is). Throws std::runtime_error when the module does
    /// not import it: a patch that changes nothing proves nothing.
    ImportPatch(HMODULE module, std::string_view dll, std::string_view name, void* replacement);
    template <typename Function>
    ImportPatch(HMODULE module, std::string_view dll, std::string_view name, Function* replacement)
        : ImportPatch(module, dll, name, reinterpret_cast<void*>(replacement)) {}
    ~ImportPatch();
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;

    /// What stood in the entry before: call it to do what the module asked for.
    template <typename Function>
    Function* original() const {
        return reinterpret_cast<Function*>(m_original);
    }

private:
    void** m_entry;
    void* m_original = nullptr;
};

} // namespace support
