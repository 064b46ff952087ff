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
///   static std::unique_ptr<Object> make(Handle);      a new object of the handle's sort, which has no handle yet
///   static Handle handleOf(const Object&);
///   static void setHandle(Object&, Handle) noexcept;  null makes it leave the handle alone when it ends
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
        auto found = m_temporary.find(handle);
        if (found == m_temporary.end()) {
            std::unique_ptr<Object> made = Traits::make(handle);
            found = m_temporary.emplace(handle, std::move(made)).first;
        }
        Object& temporary = *found->second;
        // One that was detached or ended is still in the map when the system gives its handle out again.
        if (Traits::handleOf(temporary) != handle) {
            Traits::setHandle(temporary, handle);
        }
        return &temporary;
    }

    Object* fromHandlePermanent(Handle handle) const {
        const auto found = m_permanent.find(handle);
        return found != m_permanent.end() ? found->second : nullptr;
    }

    /// The object, which must have no handle, stands for this one from now on; false for a null handle.
    bool attach(Object& object, Handle handle) {
        ASSERT(Traits::handleOf(object) == nullptr);
        if (handle == nullptr) {
            return false;
        }
        if (m_spare) {
            m_spare.key() = handle;
            m_spare.mapped() = &object;
            const auto inserted = m_permanent.insert(std::move(m_spare));
            inserted.position->second = &object;
        } else {
            m_permanent[handle] = &object;
        }
        Traits::setHandle(object, handle);
        return true;
    }

    /// Parts them and gives back the handle. A temporary object of it stays until idle, for those who still look at it.
    Handle detach(Object& object) {
        const Handle handle = Traits::handleOf(object);
        forget(object);
        Traits::setHandle(object, nullptr);
        return handle;
    }

    /// The object's handle is nobody's any more; if it is another object's, it stays that one's.
    void forget(const Object& object) {
        const auto found = m_permanent.find(Traits::handleOf(object));
        if (found != m_permanent.end() && found->second == &object) {
            m_spare = m_permanent.extract(found);
        }
    }

    void deleteTemporaries() override { clearTemporaries(); }

    std::size_t temporaryCount() const override { return m_temporary.size(); }
    std::size_t permanentCount() const override { return m_permanent.size(); }

private:
    // Destructors may come back to the map, so it is emptied first.
    void clearTemporaries() {
        std::unordered_map<Handle, std::unique_ptr<Object>> dying;
        dying.swap(m_temporary);
        for (auto& [handle, object] : dying) {
            Traits::setHandle(*object, nullptr);
        }
    }

    using Permanent = std::unordered_map<Handle, Object*>;
    Permanent m_permanent;
    typename Permanent::node_type m_spare; ///< of the last one parted, so that attaching in turns takes no memory
    std::unordered_map<Handle, std::unique_ptr<Object>> m_temporary;
};
