#pragma once

#include "ThreadState.h"

#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

/// The objects of one thread that stand for system handles of one kind.
///
/// A permanent entry is an object that somebody made and attached; the map does not own it. A temporary one is made
/// by the map for a handle that nobody attached, belongs to the map and lives until the thread is idle.
///
/// `Traits` says of which kind:
///   using Object, using Handle;
///   static std::unique_ptr<Object> makeTemporary(Handle);   a new object that stands for the handle
///   static void release(Object&) noexcept;                   makes it forget the handle, so that its destructor
///                                                            leaves the handle alone
template <class Traits>
class HandleMap final : public HandleMapBase {
public:
    using Object = typename Traits::Object;
    using Handle = typename Traits::Handle;

    /// The map of the calling thread.
    static HandleMap& ofThread() {
        static const std::size_t slot = ThreadState::reserveMapSlot();
        std::unique_ptr<HandleMapBase>& map = ThreadState::current().mapAt(slot);
        if (!map) {
            map = std::make_unique<HandleMap>();
        }
        return static_cast<HandleMap&>(*map);
    }

    ~HandleMap() override { clearTemporaries(); }

    /// Null only for a null handle.
    Object* fromHandle(Handle handle) {
        if (handle == nullptr) {
            return nullptr;
        }
        if (Object* permanent = fromHandlePermanent(handle)) {
            return permanent;
        }
        const auto found = m_temporary.find(handle);
        if (found != m_temporary.end()) {
            return found->second.get();
        }
        std::unique_ptr<Object> made = Traits::makeTemporary(handle);
        return m_temporary.emplace(handle, std::move(made)).first->second.get();
    }

    Object* fromHandlePermanent(Handle handle) const {
        const auto found = m_permanent.find(handle);
        return found != m_permanent.end() ? found->second : nullptr;
    }

    void setPermanent(Handle handle, Object* object) { m_permanent[handle] = object; }

    /// The handle is nobody's any more. A temporary object of it stays until idle, for those who still look at it.
    void removePermanent(Handle handle) { m_permanent.erase(handle); }

    void deleteTemporaries() override { clearTemporaries(); }

    std::size_t temporaryCount() const override { return m_temporary.size(); }
    std::size_t permanentCount() const override { return m_permanent.size(); }

private:
    // Destructors may come back to the map, so it is emptied first.
    void clearTemporaries() {
        std::unordered_map<Handle, std::unique_ptr<Object>> dying;
        dying.swap(m_temporary);
        for (auto& [handle, object] : dying) {
            Traits::release(*object);
        }
    }

    std::unordered_map<Handle, Object*> m_permanent;
    std::unordered_map<Handle, std::unique_ptr<Object>> m_temporary;
};
