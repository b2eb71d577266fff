#include "Language/Translations.h"

#include "Errors/ErrorTexts.h"

#include <gtest/gtest.h>

namespace componentlibrary {
namespace {

std::string Sentence()
{
    ErrorInfo error;
    error.code = ErrorCode::AuthForbidden;
    error.operation = Operation::LoadComponents;
    return ErrorSentence(error).toStdString();
}

const char* const kEnglish = "The components could not be loaded. You are signed in but not allowed to do this.";

TEST(Translations, HoldAsLongAsTheObject)
{
    EXPECT_EQ(Sentence(), kEnglish);
    {
        const Translations chinese(QStringLiteral("zh"));
        EXPECT_EQ(Sentence(), "无法加载构件列表。您已登录，但无权进行此操作。");
    }
    EXPECT_EQ(Sentence(), kEnglish);
}

TEST(Translations, TakeAnyOtherLanguageForEnglish)
{
    const Translations french(QStringLiteral("fr"), {QStringLiteral(":/translations/None")});
    EXPECT_EQ(Sentence(), kEnglish);
}

TEST(Translations, AskTheVariablesInTheirOrder)
{
    const auto language = [](const char* all, const char* messages, const char* lang) {
        qputenv("LC_ALL", all);
        qputenv("LC_MESSAGES", messages);
        qputenv("LANG", lang);
        return Translations::LanguageOfEnvironment().toStdString();
    };
    EXPECT_EQ(language("", "", ""), "en");
    EXPECT_EQ(language("", "", "zh_CN.UTF-8"), "zh");
    EXPECT_EQ(language("", "en_US.UTF-8", "zh_CN.UTF-8"), "en");
    EXPECT_EQ(language("zh_TW", "en_US.UTF-8", "en_US"), "zh");
    EXPECT_EQ(language("C.UTF-8", "zh_CN", "zh_CN"), "en");
}

} // namespace
} // namespace componentlibrary
