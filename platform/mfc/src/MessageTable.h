#pragma once

#include "afxcmd.h"

#include <vector>

/// The handlers of a class and its bases for window messages, by number. What stands in the derived class, or first
/// in one class, hides the rest.
class AfxMessageTable {
public:
    /// The table of the map; made at the first call, then kept as long as the program runs.
    static const AfxMessageTable& of(const AFX_MSGMAP& map);

    /// Null if nobody handles the message.
    const AFX_MSGMAP_ENTRY* find(UINT message) const {
        if (message >= S_firstRegistered && !m_registered.empty()) {
            if (const AFX_MSGMAP_ENTRY* registered = findRegistered(message)) {
                return registered;
            }
        }
        for (std::size_t place = placeOf(message);; place = (place + 1) & m_mask) {
            const AFX_MSGMAP_ENTRY* entry = m_places[place];
            if (entry == nullptr || entry->nMessage == message) {
                return entry;
            }
        }
    }

private:
    static constexpr UINT S_firstRegistered = 0xC000;

    explicit AfxMessageTable(const AFX_MSGMAP& map);
    const AFX_MSGMAP_ENTRY* findRegistered(UINT message) const;
    std::size_t placeOf(UINT message) const { return (message * 0x9E3779B1U >> 16) & m_mask; }

    std::vector<const AFX_MSGMAP_ENTRY*> m_places; ///< open addressing, at most half full
    std::size_t m_mask = 0;
    std::vector<const AFX_MSGMAP_ENTRY*> m_registered;
};
