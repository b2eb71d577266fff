#include <QCoreApplication>
#include <QEvent>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

/// Programs under test must never read or write the developer's own settings, caches or logs.
void UseHomeFolder(const QString& home)
{
    qputenv("HOME", home.toUtf8());
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"}) {
        qputenv(variable, (home + QLatin1Char('/') + QLatin1String(variable)).toUtf8());
    }
}

/// Deletes after each test what was left to the event loop, so that nothing outlives its test.
class DeferredDeletion : public ::testing::EmptyTestEventListener
{
    void OnTestEnd(const ::testing::TestInfo&) override
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

int RunTests()
{
    ::testing::UnitTest::GetInstance()->listeners().Append(new DeferredDeletion);
    return RUN_ALL_TESTS();
}

} // namespace

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    if (::testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS();
    }
    const QTemporaryDir home;
    UseHomeFolder(home.path());
    const QCoreApplication application(argc, argv);
    return RunTests();
}
