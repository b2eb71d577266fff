#include "CommandLine/CommandLineParser.h"

#include "CommandLine/CommandGroups.h"
#include "CommandLine/Suggestion.h"
#include "CommandLine/UsageError.h"
#include "Commands/CommandList.h"

#include <gtest/gtest.h>
#include <iterator>
#include <sstream>

namespace nuq {
namespace {

/// The complaint about a command line; "" when there is none.
std::string Complaint(const std::vector<std::string>& arguments)
{
    try {
        ParseCommandLine(MakeCommands(), arguments);
        return "";
    } catch (const UsageError& error) {
        return error.what();
    }
}

std::vector<std::string> WordsOf(const std::string& name)
{
    std::istringstream stream(name);
    return {std::istream_iterator<std::string>(stream), std::istream_iterator<std::string>()};
}

TEST(CommandLine, SaysWhatIsWrong)
{
    const std::vector<std::pair<std::vector<std::string>, const char*>> rows = {
        {{"catgories"}, "There is no command \"catgories\". Did you mean \"categories\"?"},
        {{"comp"}, "There is no command \"comp\". Did you mean \"components\"?"},
        {{"xyzzy"}, "There is no command \"xyzzy\"."},
        {{"xyzzy", "--foo"}, "There is no command \"xyzzy\"."},
        {{""}, "There is no command \"\"."},
        {{"famly"}, "There is no command \"famly\". Did you mean \"family\"?"},
        {{"family"}, "The command \"family\" needs one of these words behind it: show, check, update, draw, render, "
                     "export, new, validate, sheet."},
        {{"family", "--json"}, "The command \"family\" needs one of these words behind it: show, check, update, draw, "
                               "render, export, new, validate, sheet."},
        {{"family", "chek"}, "There is no command \"family chek\". Did you mean \"family check\"?"},
        {{"family", "doctor"}, "There is no command \"family doctor\"."},
        {{"family", "show"}, "The command \"family show\" needs FILE."},
        {{"family", "show", ""}, "FILE must not be empty."},
        {{"family", "show", "a", "b"}, "The command \"family show\" takes no further argument \"b\"."},
        {{"family", "show", "a", "--tpe"}, "There is no option \"--tpe\". Did you mean \"--type\"?"},
        {{"family", "--type", "x"}, "There is no command \"family x\"."},
        {{"show", "a"}, "There is no command \"show\"."},
        {{"family", "draw", "a"}, "The command \"family draw\" needs --output with a file that ends in .svg or .png."},
        {{"family", "draw", "a", "-o", "a.jpg"},
            "The command \"family draw\" needs --output with a file that ends in .svg or .png."},
        {{"family", "draw", "a", "-o", "a.svg", "--view", "top"},
            "The value of --view has to be one of plan, elevation, profile, but it is \"top\"."},
        {{"family", "draw", "a", "-o", "a.png", "--size", "4097"},
            "The value of --size has to be a whole number from 16 to 4096, but it is \"4097\"."},
        {{"family", "render", "a", "-o", "a.svg"},
            "The command \"family render\" needs --output with a file that ends in .png."},
        {{"family", "export", "a"}, "The command \"family export\" needs --step, --gltf or --stl."},
        {{"family", "new", "a.json"}, "The command \"family new\" needs --output with a file that ends in .nuqfamily."},
        {{"family", "sheet", "a"}, "The command \"family sheet\" needs --output with a file that ends in .png."},
        {{"family", "sheet", "a", "-o", "a.png", "--files", "1.png", "--content", "drawings"},
            "--files and --content cannot be used together."},
        {{"--jsn"}, "There is no option \"--jsn\". Did you mean \"--json\"?"},
        {{"components", "--keywrd=x"}, "There is no option \"--keywrd\". Did you mean \"--keyword\"?"},
        {{"env", "-z"}, "There is no option \"-z\"."},
        {{"env", "x"}, "The command \"env\" takes no further argument \"x\"."},
        {{"component", "1", "2"}, "The command \"component\" takes no further argument \"2\"."},
        {{"component"}, "The command \"component\" needs ID."},
        {{"component", ""}, "ID must not be empty."},
        {{"components", "--category"}, "The option --category needs a value."},
        {{"categories", "--keyword", "--json"},
            "The option --keyword needs a value. If \"--json\" is the value, join them with an equals sign."},
        {{"components", "-k", "--page=2"},
            "The option -k needs a value. If \"--page=2\" is the value, join them with an equals sign."},
        {{"--environment", "-q", "env"},
            "The option --environment needs a value. If \"-q\" is the value, join them with an equals sign."},
        {{"categories", "--tree=3"}, "The option --tree takes no value."},
        {{"--json=false", "env"}, "The option --json takes no value."},
        {{"env", "--environment", ""}, "--environment must not be empty."},
        {{"env", "--app-dir", ""}, "--app-dir must not be empty."},
        {{"components", "--project", ""}, "--project must not be empty."},
        {{"component", "--", "-5", "--json"}, "The command \"component\" takes no further argument \"--json\"."},
        {{"components", "--page", "0"},
            "The value of --page has to be a whole number from 1 to 10000000, but it is \"0\"."},
        {{"components", "--page", "-1"},
            "The value of --page has to be a whole number from 1 to 10000000, but it is \"-1\"."},
        {{"components", "--page-size", "201"},
            "The value of --page-size has to be a whole number from 1 to 200, but it is \"201\"."},
        {{"components", "--page", "2x"},
            "The value of --page has to be a whole number from 1 to 10000000, but it is \"2x\"."},
        {{"components", "--all", "--page", "2"}, "--all and --page cannot be used together."},
        {{"components", "--stream"}, "--stream needs --all."},
        {{"categories", "--tree", "--service"}, "--tree and --service cannot be used together."},
        {{"env", "--timeout", "0"}, "The value of --timeout has to be a whole number from 1 to 3600, but it is \"0\"."},
        {{"env", "--lang", "fr"}, "The value of --lang has to be one of en, zh, but it is \"fr\"."},
        {{"env", "--color=maybe"}, "The value of --color has to be one of auto, always, never, but it is \"maybe\"."},
        {{"components", "--keyword", "\xff"}, "The value of --keyword is not valid UTF-8."},
        {{"component", "\xc3"}, "The value of ID is not valid UTF-8."},
    };
    for (const auto& [arguments, complaint] : rows)
        EXPECT_EQ(Complaint(arguments), complaint);
}

TEST(CommandLine, TakesGlobalOptionsBeforeAndBehindTheCommand)
{
    const Commands commands = MakeCommands();
    const auto before = ParseCommandLine(commands, {"--json", "-q", "-vv", "--timeout", "5", "env"});
    EXPECT_TRUE(before.global.json);
    EXPECT_TRUE(before.global.quiet);
    EXPECT_EQ(before.global.verbosity, 2);
    EXPECT_EQ(before.global.timeout, 5);
    EXPECT_STREQ(before.command->Spec().name, "env");
    const auto behind = ParseCommandLine(MakeCommands(),
        {"env", "--offline", "--no-input", "--color", "never", "--app-dir=/x", "--environment", "qa", "--lang", "zh"});
    EXPECT_TRUE(behind.global.offline);
    EXPECT_TRUE(behind.global.noInput);
    EXPECT_EQ(behind.global.colour, ColourMode::Never);
    EXPECT_EQ(behind.global.applicationFolder, QStringLiteral("/x"));
    EXPECT_EQ(behind.global.environment, QStringLiteral("qa"));
    EXPECT_EQ(behind.global.language, QStringLiteral("zh"));
}

TEST(CommandLine, LetsArgumentsAndValuesBeNamedLikeCommandsAndOptions)
{
    EXPECT_EQ(Complaint({"component", "env"}), "");
    EXPECT_EQ(Complaint({"components", "--keyword", "doctor"}), "");
    EXPECT_EQ(Complaint({"components", "--keyword=--json"}), "");
    EXPECT_EQ(Complaint({"components", "--keyword", "-5"}), "");
    EXPECT_EQ(Complaint({"components", "--keyword", ""}), "") << "an empty search is none";
    EXPECT_EQ(Complaint({"component", "--", "-5"}), "");
    EXPECT_EQ(Complaint({"component", "--", "--tree=3"}), "");
}

TEST(CommandLine, TakesTheLastOfSeveralValues)
{
    EXPECT_EQ(Complaint({"components", "--page", "2", "--page", "3"}), "");
}

TEST(CommandLine, NeedsNothingForHelp)
{
    EXPECT_EQ(Complaint({"component", "--help"}), "");
    EXPECT_EQ(Complaint({"components", "--stream", "-h"}), "");
}

TEST(CommandLine, BindsEveryOptionOfEveryTable)
{
    // ParseCommandLine throws std::logic_error for a table entry without a field.
    for (const auto& command : MakeCommands()) {
        std::vector<std::string> words = WordsOf(command->Spec().name);
        words.emplace_back("--help");
        EXPECT_NO_THROW(ParseCommandLine(MakeCommands(), words)) << command->Spec().name;
        EXPECT_FALSE(command->Spec().examples.empty()) << command->Spec().name;
    }
}

TEST(CommandLine, FindsCommandsOfTwoWords)
{
    const Commands commands = MakeCommands();
    const auto called = [&commands](const std::vector<std::string>& arguments) {
        const ParsedCommandLine parsed = ParseCommandLine(commands, arguments);
        return parsed.command == nullptr ? "group " + parsed.group : std::string(parsed.command->Spec().name);
    };
    EXPECT_EQ(called({"family", "show", "a.nuqfamily"}), "family show");
    EXPECT_EQ(called({"--json", "family", "--quiet", "show", "a.nuqfamily", "--lang", "zh"}), "family show");
    // A word that is a command elsewhere is an argument here.
    EXPECT_EQ(called({"family", "show", "doctor"}), "family show");
    EXPECT_EQ(called({"family", "show", "check"}), "family show");
    EXPECT_EQ(called({"family", "--help"}), "group family");
    EXPECT_EQ(called({"--help", "family"}), "group family");
    EXPECT_EQ(called({"family", "show", "--help"}), "family show");
}

TEST(CommandLine, TakesGlobalOptionsAnywhereInACommandOfTwoWords)
{
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"--json", "family", "show", "f"},
             {"family", "--json", "show", "f"}, {"family", "show", "--json", "f"}, {"family", "show", "f", "--json"}}) {
        EXPECT_TRUE(ParseCommandLine(MakeCommands(), arguments).global.json);
    }
}

TEST(CommandLine, EveryGroupIsDescribed)
{
    for (const auto& command : MakeCommands()) {
        const std::string group = GroupNameOf(*command);
        EXPECT_TRUE(group.empty() || FindGroup(group) != nullptr) << group;
    }
}

TEST(CommandLine, FindsLanguageAndFormInABrokenLine)
{
    const GlobalOptions options = PeekGlobalOptions({"--nonsense", "--lang=zh", "--json", "--color", "never"});
    EXPECT_TRUE(options.json);
    EXPECT_EQ(options.language, QStringLiteral("zh"));
    EXPECT_EQ(options.colour, ColourMode::Never);
    EXPECT_EQ(PeekGlobalOptions({"--lang"}).language, QString());
}

TEST(Suggestion, FindsTheNearestWordAndNothingForAStranger)
{
    const QStringList known = {QStringLiteral("categories"), QStringLiteral("components"), QStringLiteral("component")};
    const auto suggested = [&known](
                               const char* word) { return Suggestion(QString::fromLatin1(word), known).toStdString(); };
    EXPECT_EQ(suggested("categroies"), "categories");
    EXPECT_EQ(suggested("COMPONENT"), "component");
    EXPECT_EQ(suggested("compnents"), "components");
    EXPECT_EQ(suggested("cat"), "categories");
    EXPECT_EQ(suggested("q"), "");
    EXPECT_EQ(suggested("wholly-different"), "");
    EXPECT_EQ(suggested(std::string(10000, 'c').c_str()), "");
}

} // namespace
} // namespace nuq
