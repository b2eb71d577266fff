#include "CommandLine/CommandGroups.h"

#include <QtGlobal>

namespace nuq {
namespace {

const std::vector<CommandGroup>& Groups()
{
    // clang-format off
    static const std::vector<CommandGroup> groups = {
        {
            "family",
            QT_TRANSLATE_NOOP("CommandTable", "Work with family files: look, check, compute, draw, export, make"),
            QT_TRANSLATE_NOOP("CommandTable", "A family file holds the parameters, types and parametric geometry of components that differ in size alone. None of these commands changes a family file that it reads."),
        },
    };
    // clang-format on
    return groups;
}

} // namespace

const CommandGroup* FindGroup(const std::string& name)
{
    for (const CommandGroup& group : Groups()) {
        if (name == group.name)
            return &group;
    }
    return nullptr;
}

std::string GroupNameOf(const Command& command)
{
    const std::string name = command.Spec().name;
    const std::size_t blank = name.find(' ');
    return blank == std::string::npos ? std::string() : name.substr(0, blank);
}

std::string WordOf(const Command& command)
{
    const std::string name = command.Spec().name;
    return name.substr(name.find(' ') + 1);
}

std::vector<std::string> WordsOfGroup(const Commands& commands, const std::string& group)
{
    std::vector<std::string> words;
    for (const auto& command : commands) {
        if (GroupNameOf(*command) == group)
            words.push_back(WordOf(*command));
    }
    return words;
}

} // namespace nuq
