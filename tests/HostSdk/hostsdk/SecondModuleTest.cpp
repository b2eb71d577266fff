#include "hostsdk/HostServices.h"
#include "support/FakeGeometry.h"
#include "support/RecordingHost.h"
#include "zept/IGeometry.h"
#include "zept/OwnerPtr.h"

#include <QLibrary>
#include <gtest/gtest.h>
#include <typeinfo>

using testsupport::LogRecord;
using testsupport::RecordingHost;

namespace {

class ASecondModule : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(m_library.load()) << m_library.errorString().toStdString(); }
    void TearDown() override { hostsdk::Install({}); }

    template <typename Function>
    Function* Resolve(const char* name)
    {
        return reinterpret_cast<Function*>(m_library.resolve(name));
    }

    QLibrary m_library{QString::fromUtf8(TARNNUQ_SECOND_MODULE)};
};

} // namespace

TEST_F(ASecondModule, SeesTheSameTableObject)
{
    EXPECT_EQ(Resolve<const hostsdk::HostServices*()>("SecondModuleTable")(), &hostsdk::Installed());
}

TEST_F(ASecondModule, SeesTheLoggerThatTheProgramInstalled)
{
    const RecordingHost host;
    EXPECT_EQ(Resolve<tarnnuq::INuqLogger*()>("SecondModuleLogger")(), &host.logger);
}

TEST_F(ASecondModule, SharesTheDefaultLoggerWhenThereIsNoHost)
{
    EXPECT_EQ(Resolve<tarnnuq::INuqLogger*()>("SecondModuleLogger")(), tarnnuq::INuqLogger::Get());
}

TEST_F(ASecondModule, LogsThroughTheProgramsLogger)
{
    const RecordingHost host;
    Resolve<void(const char*)>("SecondModuleLog")("hello");
    const LogRecord expected{LogRecord::Operation::Warn, {QStringLiteral("second module: "), QStringLiteral("hello")}};
    ASSERT_EQ(host.logger.Records().size(), 1U);
    EXPECT_EQ(host.logger.Records().front(), expected);
}

TEST_F(ASecondModule, CanInstallTheHostForTheProgram)
{
    testsupport::RecordingLogger logger;
    Resolve<void(tarnnuq::INuqLogger*)>("SecondModuleInstall")(&logger);
    EXPECT_EQ(hostsdk::Installed().logger, &logger);
}

TEST_F(ASecondModule, SharesTheTypeInformation)
{
    const auto* const type = Resolve<const std::type_info*()>("SecondModuleLoggerType")();
    EXPECT_EQ(type->name(), typeid(tarnnuq::INuqLogger).name()) << "each module has type information of its own";
}

TEST_F(ASecondModule, CanTellItsOwnObjectsFromThoseOfTheProgram)
{
    int alive = 0;
    zept::OwnerPtr<zept::IGeometry> made;
    Resolve<void(zept::OwnerPtr<zept::IGeometry>*, int*)>("SecondModuleMakeGeometry")(&made, &alive);
    testsupport::FakeGeometry other;
    auto* const asGeometry = Resolve<void*(zept::IGeometry*)>("SecondModuleAsGeometry");
    EXPECT_NE(asGeometry(made.get()), nullptr);
    EXPECT_EQ(asGeometry(&other), nullptr);
}

TEST_F(ASecondModule, HandsOutObjectsThatTheProgramDestroys)
{
    int alive = 0;
    zept::OwnerPtr<zept::IGeometry> made;
    Resolve<void(zept::OwnerPtr<zept::IGeometry>*, int*)>("SecondModuleMakeGeometry")(&made, &alive);
    ASSERT_EQ(alive, 1);
    made.reset();
    EXPECT_EQ(alive, 0);
}
