#include "zept/DebugMessageMgr.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

using testsupport::RecordingHost;
using zept::DebugMessageMgr;

namespace {

void Warn()
{
    DebugMessageMgr::GetDebugMessageMgr()->ShowDebugWarn(
        "Folder/File.cpp", 12, "tarnnuq::Class::Operation", L"pReply为空", L"tarnnuq", L"2022-01-25");
}

} // namespace

TEST(DebugWarnings, ReachTheHostWithAllTheirWords)
{
    const RecordingHost host;
    ASSERT_EQ(DebugMessageMgr::GetDebugMessageMgr(), &host.debugMessages);
    Warn();
    ASSERT_EQ(host.debugMessages.Warnings().size(), 1U);
    const testsupport::DebugWarning& warning = host.debugMessages.Warnings().front();
    EXPECT_EQ(warning.file, "Folder/File.cpp");
    EXPECT_EQ(warning.line, 12);
    EXPECT_EQ(warning.function, "tarnnuq::Class::Operation");
    EXPECT_EQ(warning.message, L"pReply为空");
    EXPECT_EQ(warning.author, L"tarnnuq");
    EXPECT_EQ(warning.date, L"2022-01-25");
}

TEST(DebugWarnings, AreDroppedWithoutAHost)
{
    ASSERT_NE(DebugMessageMgr::GetDebugMessageMgr(), nullptr);
    EXPECT_NO_THROW(Warn());
}

TEST(DebugWarnings, AreDroppedWhenTheHostShowsNone)
{
    RecordingHost host;
    host.Remove(&hostsdk::HostServices::debugMessages);
    ASSERT_NE(DebugMessageMgr::GetDebugMessageMgr(), nullptr);
    Warn();
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}
