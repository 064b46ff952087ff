#include "support/ImportPatch.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>
#include <string>

namespace support {
namespace {

bool sameDll(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); });
}

template <typename Type>
Type* at(BYTE* base, std::size_t offset) {
    return reinterpret_cast<Type*>(base + offset);
}

/// The entry through which the image at `base` reaches `dll!name`, or null.
void** findEntry(BYTE* base, std::string_view dll, std::string_view name) {
    const auto* headers = at<IMAGE_NT_HEADERS>(base, static_cast<std::size_t>(at<IMAGE_DOS_HEADER>(base, 0)->e_lfanew));
    const IMAGE_DATA_DIRECTORY& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (directory.Size == 0) {
        return nullptr;
    }
    const auto* import = at<IMAGE_IMPORT_DESCRIPTOR>(base, directory.VirtualAddress);
    for (; import->Name != 0; ++import) {
        if (!sameDll(at<char>(base, import->Name), dll)) {
            continue;
        }
        const auto* names = at<IMAGE_THUNK_DATA>(base, import->OriginalFirstThunk);
        auto* entries = at<void*>(base, import->FirstThunk);
        for (; names->u1.AddressOfData != 0; ++names, ++entries) {
            if (!IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal) &&
                name == at<IMAGE_IMPORT_BY_NAME>(base, names->u1.AddressOfData)->Name) {
                return entries;
            }
        }
    }
    return nullptr;
}

/// Gives what stood in the entry before; null when the table cannot be written.
void* exchange(void** entry, void* value) noexcept {
    DWORD protection = 0;
    if (!::VirtualProtect(static_cast<void*>(entry), sizeof *entry, PAGE_READWRITE, &protection)) {
        return nullptr;
    }
    void* previous = ::InterlockedExchangePointer(entry, value);
    ::VirtualProtect(static_cast<void*>(entry), sizeof *entry, protection, &protection);
    return previous;
}

} // namespace

ImportPatch::ImportPatch(HMODULE module, std::string_view dll, std::string_view name, void* replacement)
    : m_entry(findEntry(reinterpret_cast<BYTE*>(module ? module : ::GetModuleHandleW(nullptr)), dll, name)) {
    if (m_entry == nullptr) {
        throw std::runtime_error("the module does not import " + std::string(dll) + "!" + std::string(name));
    }
    m_original = exchange(m_entry, replacement);
    if (m_original == nullptr) {
        throw std::runtime_error("the import table cannot be written");
    }
}

ImportPatch::~ImportPatch() {
    exchange(m_entry, m_original);
}

} // namespace support
