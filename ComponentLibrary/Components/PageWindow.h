#pragma once

#include <deque>
#include <string>
#include <unordered_set>

namespace componentlibrary {

/**
 * Remembers the ids of the last few pages, so that a component that moves to a later page while the pages are being
 * listed is shown once.
 *
 * A component moves by as many places as others were added before it, so it reappears on the next page or on the one
 * after it; remembering more than that would make the memory grow with the catalogue.
 */
class PageWindow
{
public:
    /** Begin a page; the oldest of the remembered pages is forgotten. */
    void BeginPage();

    /** Whether this id is new on this page and the remembered ones; it is remembered. REQUIRES: BeginPage was called.
     */
    bool Add(const std::wstring& id);

private:
    using Page = std::unordered_set<std::wstring>;
    std::deque<Page> m_pages;
};

} // namespace componentlibrary
