// A reply body through the whole pipeline of one handler.
#include "Records/ICategory.h"
#include "Records/ICategoryMapping.h"
#include "Records/ICategoryProperty.h"
#include "Records/IDetailedProjectComponent.h"
#include "Records/ILegend.h"
#include "Records/ISpecification.h"
#include "Records/ProjectComponentExistingCheck.h"
#include "ResponseHandlers/ResponseHandlerRegistry.h"
#include "support/FuzzHost.h"
#include "support/MemoryReply.h"

#include <cstdint>
#include <cstdlib>

using namespace tarnnuq; // NOLINT(google-build-using-namespace): the result type comes from the command line

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::FuzzHost::Get();
    bench::MemoryReply reply(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    std::wstring error;
    const FUZZ_RESULT_TYPE first = ResponseHandlerRegistry::Get<FUZZ_RESULT_TYPE>()->Handle(&reply, error);
    // A second reply, an empty one, leaves no trace of the first.
    bench::MemoryReply empty{QByteArray()};
    ResponseHandlerRegistry::Get<FUZZ_RESULT_TYPE>()->Handle(&empty, error);
    if (error.empty()) {
        std::abort();
    }
    return 0;
}
