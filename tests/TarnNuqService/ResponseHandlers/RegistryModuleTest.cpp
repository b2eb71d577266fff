#include "TarnNuqService/ResponseHandlers/RegistryModule.h"
#include "ResponseHandlers/ResponseHandlerRegistry.h"

#include <QLibrary>
#include <gtest/gtest.h>
#include <set>

namespace {

using namespace testsupport;
using namespace tarnnuq;

/// What this program gets from the registry.
RegistryAnswers OwnAnswers()
{
    RegistryAnswers answers;
    int index = 0;
#define TARNNUQTEST_ASK(T) answers.known[index++] = ResponseHandlerRegistry::Get<T>();
    TARNNUQSERVICE_FOR_EACH_RESULT_TYPE(TARNNUQTEST_ASK)
#undef TARNNUQTEST_ASK
    return answers;
}

/// What a module that is loaded now gets.
RegistryAnswers ModuleAnswers()
{
    QLibrary module(QStringLiteral(TARNNUQTEST_REGISTRY_MODULE));
    RegistryAnswers answers;
    const auto ask = reinterpret_cast<RegistryHandlersFunction>(module.resolve("RegistryHandlers"));
    EXPECT_NE(ask, nullptr) << module.errorString().toStdString();
    if (ask) {
        ask(answers);
    }
    return answers;
}

void ExpectSameHandlers(const RegistryAnswers& left, const RegistryAnswers& right)
{
    for (int index = 0; index < RegistryAnswers::KnownCount; ++index) {
        EXPECT_NE(left.known[index], nullptr) << index;
        EXPECT_EQ(left.known[index], right.known[index]) << index;
    }
}

TEST(RegistryModuleTest, ModuleLoadedLaterGetsTheSameHandlers)
{
    const RegistryAnswers own = OwnAnswers();
    ExpectSameHandlers(own, ModuleAnswers());
}

TEST(RegistryModuleTest, HandlersMadeForAModuleServeTheProgramToo)
{
    const RegistryAnswers module = ModuleAnswers();
    ExpectSameHandlers(module, OwnAnswers());
}

TEST(RegistryModuleTest, ModuleGetsNothingForATypeWithoutHandler)
{
    EXPECT_EQ(ModuleAnswers().unknown, nullptr);
}

TEST(RegistryModuleTest, EveryResultTypeHasAHandlerOfItsOwn)
{
    const RegistryAnswers own = OwnAnswers();
    EXPECT_EQ(std::set<const void*>(std::begin(own.known), std::end(own.known)).size(), 12u);
}

} // namespace
