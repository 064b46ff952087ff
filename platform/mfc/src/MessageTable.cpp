#include "MessageTable.h"

#include <bit>

namespace {

bool isEnd(const AFX_MSGMAP_ENTRY& entry) {
    return entry.pfnMessage == nullptr && entry.pfnCommand == nullptr;
}

const AFX_MSGMAP* baseOf(const AFX_MSGMAP* map) {
    return map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr;
}

} // namespace

const AfxMessageTable& AfxMessageTable::of(const AFX_MSGMAP& map) {
    if (const AfxMessageTable* table = map.pTable.load(std::memory_order_acquire)) {
        return *table;
    }
    // Threads may build at the same time; the first one to finish wins. The table is as old as the static map.
    const auto* made = new AfxMessageTable(map);
    const AfxMessageTable* expected = nullptr;
    if (!map.pTable.compare_exchange_strong(expected, made, std::memory_order_acq_rel)) {
        delete made;
        return *expected;
    }
    return *made;
}

AfxMessageTable::AfxMessageTable(const AFX_MSGMAP& map) {
    std::vector<const AFX_MSGMAP_ENTRY*> plain;
    for (const AFX_MSGMAP* level = &map; level != nullptr; level = baseOf(level)) {
        for (const AFX_MSGMAP_ENTRY* entry = level->lpEntries; !isEnd(*entry); ++entry) {
            if (entry->pRegistered != nullptr) {
                m_registered.push_back(entry);
            } else if (entry->pfnMessage != nullptr) {
                plain.push_back(entry);
            }
        }
    }
    m_places.resize(std::bit_ceil(2 * plain.size() + 2));
    m_mask = m_places.size() - 1;
    for (const AFX_MSGMAP_ENTRY* entry : plain) {
        std::size_t place = placeOf(entry->nMessage);
        while (m_places[place] != nullptr && m_places[place]->nMessage != entry->nMessage) {
            place = (place + 1) & m_mask;
        }
        if (m_places[place] == nullptr) {
            m_places[place] = entry;
        }
    }
}

const AFX_MSGMAP_ENTRY* AfxMessageTable::findRegistered(UINT message) const {
    for (const AFX_MSGMAP_ENTRY* entry : m_registered) {
        if (entry->pRegistered() == message) {
            return entry;
        }
    }
    return nullptr;
}
