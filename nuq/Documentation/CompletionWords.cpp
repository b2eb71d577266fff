#include "Documentation/CompletionWords.h"

#include "CommandLine/CommandGroups.h"

#include <algorithm>

namespace nuq {
namespace {

bool Contains(const std::vector<std::string>& words, const std::string& word)
{
    return std::find(words.begin(), words.end(), word) != words.end();
}

} // namespace

std::string OptionWords(const std::vector<OptionSpec>& options)
{
    std::string words;
    for (const OptionSpec& spec : options)
        words += (words.empty() ? "" : " ") + std::string(spec.name);
    return words;
}

std::vector<std::string> FirstWords(const Commands& commands)
{
    std::vector<std::string> words;
    for (const auto& command : commands) {
        const std::string group = GroupNameOf(*command);
        const std::string word = group.empty() ? command->Spec().name : group;
        if (!Contains(words, word))
            words.push_back(word);
    }
    return words;
}

std::string Joined(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : " ") + word;
    return text;
}

bool IsPath(const char* name)
{
    const std::string text = name;
    return text == "FILE" || text == "FOLDER" || text == "PATH";
}

bool TakesPath(const CommandSpec& spec)
{
    return std::any_of(spec.arguments.begin(), spec.arguments.end(),
        [](const ArgumentSpec& argument) { return IsPath(argument.name); });
}

std::string ChoiceWords(const OptionSpec& spec)
{
    std::string words;
    for (const char* choice : spec.choices)
        words += (words.empty() ? "" : " ") + std::string(choice);
    return words;
}

/// Single quotes end a quoted text in every shell here; the tables may hold them.
std::string ShellQuoted(const std::string& text)
{
    std::string quoted = "'";
    for (const char character : text)
        quoted += character == '\'' ? "'\\''" : std::string(1, character);
    return quoted + "'";
}

} // namespace nuq
