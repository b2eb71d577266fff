#pragma once

#include <cstdlib>
#include <unistd.h>

namespace testsupport {

/// While it lives, a process of the superuser has the rights of nobody, so that file modes count for it, too.
class UnprivilegedUser
{
public:
    UnprivilegedUser() : m_before(geteuid()) { m_changed = m_before == 0 && seteuid(Nobody) == 0; }
    ~UnprivilegedUser()
    {
        if (m_changed && seteuid(m_before) != 0) {
            std::abort();
        }
    }
    UnprivilegedUser(const UnprivilegedUser&) = delete;
    UnprivilegedUser& operator=(const UnprivilegedUser&) = delete;

private:
    static constexpr uid_t Nobody = 65534;

    uid_t m_before;
    bool m_changed = false;
};

} // namespace testsupport
