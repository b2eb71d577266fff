#include "support/NuqFixture.h"

namespace nuqtest {
namespace {

class UsageTest : public NuqFixture
{
};

TEST_F(UsageTest, EndsWithTwoAndOneHelpfulLine)
{
    const NuqResult english = Run({"catgories"});
    EXPECT_EQ(english.code, 2);
    EXPECT_EQ(english.out, "");
    EXPECT_EQ(english.err, "nuq: There is no command \"catgories\". Did you mean \"categories\"? \"nuq --help\" shows "
                           "what is possible.\n");
    const NuqResult chinese = Run({"components", "--stream", "--lang", "zh"});
    EXPECT_EQ(chinese.code, 2);
    EXPECT_EQ(chinese.err, "nuq: --stream 需要 --all。“nuq --help”显示可用的命令。\n");
}

TEST_F(UsageTest, IsADocumentToo)
{
    const NuqResult result = Run({"--json", "component"});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.out, "{\"code\":\"usage\",\"details\":{\"hint\":\"\\\"nuq --help\\\" shows what is possible.\"},"
                          "\"message\":\"The command \\\"component\\\" needs ID.\",\"schema\":1}\n");
    EXPECT_EQ(result.err, "nuq: The command \"component\" needs ID. \"nuq --help\" shows what is possible.\n");
}

TEST_F(UsageTest, NeedsACommand)
{
    const NuqResult result = Run({});
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "nuq: A command is missing. \"nuq --help\" shows what is possible.\n");
}

TEST_F(UsageTest, TakesNoTokenAsAnArgument)
{
    const NuqResult result = Run({"categories", "--token", "x"});
    EXPECT_EQ(result.code, 2);
    EXPECT_TRUE(server.Requests().empty());
}

TEST_F(UsageTest, ShowsTheHelpWithExamplesFirst)
{
    for (const QStringList& arguments : {QStringList{"--help"}, QStringList{"categories", "--help"},
             QStringList{"component", "-h"}, QStringList{"--help", "--lang", "zh"}}) {
        const NuqResult result = Run(arguments);
        EXPECT_EQ(result.code, 0);
        EXPECT_EQ(result.err, "");
        const bool isChinese = arguments.contains(QStringLiteral("zh"));
        const std::size_t examples = result.out.find(isChinese ? "示例\n" : "Examples\n");
        const std::size_t options = result.out.find(isChinese ? "所有命令的选项\n" : "Options of all commands\n");
        EXPECT_LT(examples, options);
        EXPECT_NE(options, std::string::npos);
        EXPECT_EQ(result.out.find('\033'), std::string::npos);
    }
}

TEST_F(UsageTest, UnderstandsHelpAsAWord)
{
    EXPECT_EQ(Run({"help"}).out, Run({"--help"}).out);
    EXPECT_EQ(Run({"help", "components"}).out, Run({"components", "--help"}).out);
    EXPECT_EQ(Run({"help", "componets"}).code, 2);
}

TEST_F(UsageTest, NeedsNoServerForHelpAndVersion)
{
    Run({"--help"});
    Run({"--version"});
    Run({"version"});
    EXPECT_EQ(server.ConnectionCount(), 0);
}

} // namespace
} // namespace nuqtest
