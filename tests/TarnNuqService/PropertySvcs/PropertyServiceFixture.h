#pragma once

#include "TarnNuqService/PropertySvcs/HostLibrary.h"
#include "TarnNuqService/PropertySvcs/PropertyServiceAccess.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>
#include <memory>

namespace testsupport {

/// A host whose category library a test fills, and a property service over it.
class PropertyServiceFixture : public ::testing::Test
{
protected:
    /// The service, made from what the host has when it is first asked for.
    tarnnuq::PropertyService& Service() { return Access().Service(); }

    tarnnuq::PropertyServiceAccess& Access()
    {
        if (!m_access) {
            m_access = std::make_unique<tarnnuq::PropertyServiceAccess>();
        }
        return *m_access;
    }

    /// The codes of the tree in its order.
    std::vector<std::wstring> Codes()
    {
        std::vector<std::wstring> codes;
        for (const auto& spCategory : Service().GetCategories()) {
            codes.push_back(spCategory->Code);
        }
        return codes;
    }

    std::shared_ptr<tarnnuq::ICategory> Category(const std::wstring& code)
    {
        auto spCategory = Service().GetCategoryByCode(code);
        EXPECT_TRUE(spCategory) << "no category " << QString::fromStdWString(code).toStdString();
        return spCategory ? spCategory : std::make_shared<tarnnuq::ICategory>();
    }

    RecordingHost host;
    HostLibrary library{host.categoryInfo};

private:
    std::unique_ptr<tarnnuq::PropertyServiceAccess> m_access;
};

/// A debug warning of the property service as it is expected, whole but for its line.
inline DebugWarning WarningOf(const char* file, const char* function, const wchar_t* message)
{
    return {file, 0, function, message, L"tarnnuq", L"2022-01-25"};
}

/// A warning raised in the name of an operation of the service's own class.
inline DebugWarning ServiceWarning(const char* operation, const wchar_t* message)
{
    const std::string function = std::string("tarnnuq::PropertyService::") + operation;
    return WarningOf("PropertySvcs/PropertyService.cpp", function.c_str(), message);
}

/// That exactly these warnings were raised, in this order, and each names a line.
inline void ExpectWarnings(const RecordingHost& host, const std::vector<DebugWarning>& expected)
{
    const std::vector<DebugWarning>& raised = host.debugMessages.Warnings();
    ASSERT_EQ(host.debugMessages.Messages().size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(raised[i].file, expected[i].file) << i;
        EXPECT_GT(raised[i].line, 0) << i;
        EXPECT_EQ(raised[i].function, expected[i].function) << i;
        EXPECT_EQ(raised[i].message, expected[i].message) << i;
        EXPECT_EQ(raised[i].author, expected[i].author) << i;
        EXPECT_EQ(raised[i].date, expected[i].date) << i;
    }
}

} // namespace testsupport
