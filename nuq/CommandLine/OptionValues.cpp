#include "CommandLine/OptionValues.h"

#include "CommandLine/UsageError.h"

#include <QCoreApplication>

#include <map>

namespace nuq {
namespace {

enum class Kind
{
    Switch,
    Valued,
    Either ///< one command has it as a switch, another one with a value
};

using Kinds = std::map<std::string, Kind>;

void Add(Kinds& kinds, const std::vector<OptionSpec>& options)
{
    for (const OptionSpec& spec : options) {
        const Kind kind = *spec.valueName == '\0' ? Kind::Switch : Kind::Valued;
        for (const char* name : {spec.name, spec.shortName}) {
            const auto [place, isNew] = kinds.emplace(name, kind);
            if (!isNew && place->second != kind)
                place->second = Kind::Either;
        }
    }
}

Kinds KindsOf(const Commands& commands)
{
    Kinds kinds;
    Add(kinds, GlobalOptionSpecs());
    for (const auto& command : commands)
        Add(kinds, command->Spec().options);
    kinds.erase(std::string());
    return kinds;
}

std::string NameIn(const std::string& argument)
{
    return argument.substr(0, argument.find('='));
}

[[noreturn]] void ComplainAboutSwitch(const std::string& name)
{
    throw UsageError(
        QCoreApplication::translate("CommandLine", "The option %1 takes no value.").arg(QString::fromStdString(name)));
}

[[noreturn]] void ComplainAboutMissingValue(const std::string& name, const std::string& next)
{
    const QString message = QCoreApplication::translate(
        "CommandLine", "The option %1 needs a value. If \"%2\" is the value, join them with an equals sign.");
    throw UsageError(message.arg(QString::fromStdString(name), QString::fromStdString(next)));
}

} // namespace

void CheckOptionValues(const Commands& commands, const std::vector<std::string>& arguments)
{
    const Kinds kinds = KindsOf(commands);
    for (std::size_t at = 0; at < arguments.size() && arguments[at] != "--"; ++at) {
        const std::string name = NameIn(arguments[at]);
        const bool hasValue = name.size() < arguments[at].size();
        const auto known = kinds.find(name);
        if (known == kinds.end() || known->second == Kind::Either)
            continue;
        if (known->second == Kind::Switch && hasValue)
            ComplainAboutSwitch(name);
        if (known->second == Kind::Switch || hasValue || at + 1 == arguments.size())
            continue;
        ++at;
        if (kinds.count(NameIn(arguments[at])) != 0)
            ComplainAboutMissingValue(name, arguments[at]);
    }
}

} // namespace nuq
