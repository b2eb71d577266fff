#include "Records/ICategory.h"
#include "ResponseHandlers/ResponseHandlerRegistry.h"
#include "hostsdk/HostServices.h"
#include "tarnnuq/INuqLogger.h"

#include <iostream>
#include <memory>
#include <string>
#include <vector>

namespace {

/// A host that only counts what the library logs.
class CountingLogger : public tarnnuq::INuqLogger
{
public:
    void Info(const tarnnuq::NuqLogObject&) override { ++m_records; }
    void Error(const tarnnuq::NuqLogObject&) override { ++m_records; }
    void Warn(const tarnnuq::NuqLogObject&) override { ++m_records; }
    void Debug(const tarnnuq::NuqLogObject&) override { ++m_records; }

    int Records() const { return m_records; }

private:
    int m_records = 0;
};

} // namespace

int main()
{
    CountingLogger logger;
    hostsdk::HostServices services;
    services.logger = &logger;
    hostsdk::Install(services);

    tarnnuq::ICategory category;
    category.SetIsLeaf(true);

    using Categories = std::vector<std::shared_ptr<tarnnuq::ICategory>>;
    auto* handler = tarnnuq::ResponseHandlerRegistry::Get<Categories>();
    std::wstring error;
    if (handler) {
        handler->Handle(nullptr, error);
    }
    hostsdk::Install({});

    std::cout << "leaf " << category.IsLeaf << ", handler " << (handler != nullptr) << ", error "
              << std::string(error.begin(), error.end()) << ", logged " << (logger.Records() > 0) << '\n';
}
