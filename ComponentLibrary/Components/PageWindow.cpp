#include "Components/PageWindow.h"

#include <algorithm>

namespace componentlibrary {
namespace {

constexpr std::size_t kPages = 3;

}

void PageWindow::BeginPage()
{
    m_pages.emplace_back();
    if (m_pages.size() > kPages)
        m_pages.pop_front();
}

bool PageWindow::Add(const std::wstring& id)
{
    const auto knows = [&id](const Page& page) { return page.count(id) != 0; };
    if (std::any_of(m_pages.begin(), m_pages.end(), knows))
        return false;
    m_pages.back().insert(id);
    return true;
}

} // namespace componentlibrary
