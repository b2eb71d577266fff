#include "Pictures/SymbolReader.h"

#include "Reading/SourceError.h"
#include "Reading/Texts.h"

#include <optional>

namespace samplelibrary {

namespace {

const std::map<std::string, ShapeStyle>& Styles()
{
    static const std::map<std::string, ShapeStyle> styles{{"line", ShapeStyle::Line}, {"thin", ShapeStyle::Thin},
        {"dash", ShapeStyle::Dashed}, {"soft", ShapeStyle::Soft}, {"solid", ShapeStyle::Solid}};
    return styles;
}

/// Numbers that a command takes; nothing for an unknown command.
std::optional<std::size_t> NumberCount(const std::string& command)
{
    static const std::map<std::string, std::size_t> counts{{"M", 2}, {"L", 2}, {"C", 6}, {"Z", 0}, {"O", 3}, {"R", 4}};
    const auto found = counts.find(command);
    return found == counts.end() ? std::nullopt : std::optional<std::size_t>(found->second);
}

void AddNumber(SymbolShape& shape, const std::string& word, const std::string& where)
{
    const std::optional<double> number = ParsedNumber(word);
    if (!number || shape.Steps.empty()) {
        throw SourceError(where, "\"" + word + "\" is neither a command nor a number after one");
    }
    shape.Steps.back().Numbers.push_back(*number);
}

void CheckSteps(const SymbolShape& shape, const std::string& where)
{
    for (const PathStep& step : shape.Steps) {
        if (step.Numbers.size() != *NumberCount(std::string(1, step.Command))) {
            throw SourceError(where, std::string("wrong count of numbers after ") + step.Command);
        }
    }
}

SymbolShape ReadShape(const std::string& line, const std::string& where)
{
    const std::vector<std::string> words = Split(line, ' ');
    const auto style = Styles().find(words.front());
    if (style == Styles().end()) {
        throw SourceError(where, "there is no style \"" + words.front() + '"');
    }
    SymbolShape shape{style->second, {}};
    for (std::size_t at = 1; at < words.size(); ++at) {
        if (NumberCount(words[at])) {
            shape.Steps.push_back({words[at].front(), {}});
        } else {
            AddNumber(shape, words[at], where);
        }
    }
    CheckSteps(shape, where);
    return shape;
}

} // namespace

std::map<std::string, Symbol> ReadSymbols(const SourceFiles& files)
{
    std::map<std::string, Symbol> symbols;
    Symbol* current = nullptr;
    int number = 0;
    for (const std::string& raw : Split(files.Text("symbols.txt"), '\n')) {
        const std::string line = Trimmed(raw);
        const std::string where = "symbols.txt:" + std::to_string(++number);
        if (line.empty() || line.front() == '#') {
            continue;
        }
        if (line.front() == '[') {
            current = &symbols[line.substr(1, line.size() - 2)];
        } else if (current == nullptr) {
            throw SourceError(where, "a shape stands before the first name");
        } else {
            current->push_back(ReadShape(line, where));
        }
    }
    return symbols;
}

} // namespace samplelibrary
