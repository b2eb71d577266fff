#include "TarnNuqService/ResponseHandlers/MemoryFixture.h"

namespace testsupport {

void MemoryFixture::ExpectWarning(
    const std::string& handler, const std::wstring& message, const std::wstring& date) const
{
    ASSERT_EQ(host.debugMessages.Warnings().size(), 1u);
    const DebugWarning& warning = host.debugMessages.Warnings().front();
    EXPECT_EQ(warning.file, "ResponseHandlers/" + handler + ".cpp");
    EXPECT_GT(warning.line, 0);
    EXPECT_EQ(warning.function, "tarnnuq::" + handler + "::HandleData");
    EXPECT_EQ(warning.message, message);
    EXPECT_EQ(warning.author, L"tarnnuq");
    EXPECT_EQ(warning.date, date);
}

} // namespace testsupport
