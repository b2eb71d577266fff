// Two replies, cut at the first NUL, through the public category service, and every walk to a root after each.
#include "CategorySvcs/PublicCategoryService.h"
#include "support/FuzzHost.h"
#include "support/MemoryReply.h"

#include <cstdint>
#include <cstdlib>

namespace tarnnuq {

/// Reaches the reply handler and makes services that end with the input.
class PublicCategoryServiceAccess
{
public:
    void Handle(const QByteArray& body)
    {
        // The service gives a reply to the event loop to delete: there is none here.
        auto reply = std::make_unique<bench::MemoryReply>(body);
        m_service.HandleReply(*reply);
    }

    void WalkAll()
    {
        for (const ICategory& category : m_service.m_categories) {
            Walk(std::to_wstring(category.Id));
        }
    }

private:
    void Walk(const std::wstring& id)
    {
        const QList<ICategory*> chain = m_service.GetFullCategories(id);
        if (chain.isEmpty() || chain.size() > m_service.m_categories.size() ||
            chain.last() != m_service.GetCategoryById(id)) {
            std::abort();
        }
    }

    PublicCategoryService m_service;
};

} // namespace tarnnuq

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::FuzzHost::Get();
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const int cut = input.indexOf('\0');
    tarnnuq::PublicCategoryServiceAccess access;
    access.Handle(cut < 0 ? input : input.left(cut));
    access.WalkAll();
    access.Handle(cut < 0 ? QByteArray() : input.mid(cut + 1));
    access.WalkAll();
    return 0;
}
