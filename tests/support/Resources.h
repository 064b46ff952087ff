#pragma once

#include <cstddef>
#include <iosfwd>

namespace support {

/// Live handles of GDI objects of this process. GetGuiResources does not count them everywhere, so they are counted in
/// the process's own handle table.
std::size_t gdiHandleCount();

/// Windows of this process: top-level ones, message-only ones, and all their children; not the system's input method
/// windows, one of which comes with the first window of a thread.
std::size_t windowCount();

/// Bytes in use in all heaps of this process.
std::size_t heapBytes();

/// The three together, to be taken before and after what must not leak.
struct Resources {
    std::size_t gdiHandles;
    std::size_t windows;
    std::size_t heapBytes;

    static Resources inUse();
};

std::ostream& operator<<(std::ostream& out, const Resources& resources);

} // namespace support
