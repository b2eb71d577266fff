#pragma once

#include <cstddef>
#include <memory>
#include <type_traits>

namespace zept {

/**
 * The host's owning pointer: the one owner of an object that a host operation hands out.
 *
 * Move-only. The object is destroyed through its virtual destructor, hence inside the module that made it. Like a
 * plain pointer it does not pass its own constness on to the object.
 */
template <typename T>
class OwnerPtr
{
public:
    /// Owns nothing.
    constexpr OwnerPtr() noexcept = default;
    /// Owns nothing.
    constexpr OwnerPtr(std::nullptr_t) noexcept {}
    /// Takes the object over; null is allowed.
    explicit OwnerPtr(T* object) noexcept : m_object(object) {}
    /// Takes the object over from the owner of the same or a derived type, which then owns nothing.
    template <typename U, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    OwnerPtr(OwnerPtr<U>&& other) noexcept : m_object(other.release())
    {
    }

    /// The object, or null. It stays owned.
    T* get() const noexcept { return m_object.get(); }
    /// REQUIRES: an object is owned.
    T* operator->() const noexcept { return m_object.get(); }
    /// REQUIRES: an object is owned.
    T& operator*() const noexcept { return *m_object; }
    /// True when an object is owned.
    explicit operator bool() const noexcept { return m_object != nullptr; }

    /// Destroys the owned object, if any, and takes over another one, if given.
    void reset(T* object = nullptr) noexcept { m_object.reset(object); }
    /// Hands the object, or null, to the caller, who has to delete it; then nothing is owned.
    T* release() noexcept { return m_object.release(); }

private:
    std::unique_ptr<T> m_object;
};

/// True when nothing is owned.
template <typename T>
bool operator==(const OwnerPtr<T>& owner, std::nullptr_t) noexcept
{
    return owner.get() == nullptr;
}

template <typename T>
bool operator==(std::nullptr_t, const OwnerPtr<T>& owner) noexcept
{
    return owner.get() == nullptr;
}

/// True when an object is owned.
template <typename T>
bool operator!=(const OwnerPtr<T>& owner, std::nullptr_t) noexcept
{
    return owner.get() != nullptr;
}

template <typename T>
bool operator!=(std::nullptr_t, const OwnerPtr<T>& owner) noexcept
{
    return owner.get() != nullptr;
}

} // namespace zept
