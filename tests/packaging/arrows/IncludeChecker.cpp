#include "IncludeChecker.h"

#include <algorithm>
#include <fstream>
#include <regex>
#include <utility>

namespace fs = std::filesystem;

namespace arrows {

namespace {

bool IsSource(const fs::path& path)
{
    static const std::set<std::string> suffixes{".h", ".hpp", ".cpp", ".cc", ".c", ".inl"};
    return suffixes.count(path.extension().string()) != 0;
}

std::vector<fs::path> SourcesBelow(const fs::path& folder)
{
    std::vector<fs::path> sources;
    if (!fs::is_directory(folder)) {
        return sources;
    }
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file() && IsSource(entry.path())) {
            sources.push_back(entry.path());
        }
    }
    return sources;
}

bool IsBuildOrHidden(const fs::path& folder)
{
    const std::string name = folder.filename().string();
    return name.front() == '.' || name == "build";
}

bool IsStandardHeader(const std::string& name)
{
    static const std::regex standard("[a-z_0-9]+");
    return std::regex_match(name, standard);
}

bool LooksLikeQt(const std::string& name)
{
    static const std::regex qt("Q[A-Z].*|Qt[A-Z].*|q[a-z]+[.]h");
    return std::regex_match(name, qt);
}

bool EndsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

} // namespace

IncludeChecker::IncludeChecker(ArrowRules rules, fs::path root, fs::path qtHeaders)
    : m_rules(std::move(rules)), m_root(std::move(root)), m_qtHeaders(std::move(qtHeaders))
{
}

std::vector<std::string> IncludeChecker::Faults() const
{
    std::vector<std::string> faults = RoomsWithoutRule();
    for (const std::string& room : m_rules.Rooms()) {
        for (const fs::path& file : SourcesBelow(m_root / room)) {
            for (const Include& include : IncludesOf(file)) {
                if (!IsAllowed(room, include)) {
                    faults.push_back(fs::relative(file, m_root).string() + ':' + std::to_string(include.line) + ": " +
                                     room + " may not include " + include.name);
                }
            }
        }
    }
    std::sort(faults.begin(), faults.end());
    return faults;
}

std::size_t IncludeChecker::CountFiles() const
{
    std::size_t count = 0;
    for (const std::string& room : m_rules.Rooms()) {
        count += SourcesBelow(m_root / room).size();
    }
    return count;
}

std::vector<std::string> IncludeChecker::RoomsWithoutRule() const
{
    std::vector<std::string> faults;
    for (const auto& entry : fs::directory_iterator(m_root)) {
        const std::string name = entry.path().filename().string();
        if (entry.is_directory() && !IsBuildOrHidden(entry.path()) && !m_rules.Knows(name) &&
            !SourcesBelow(entry.path()).empty()) {
            faults.push_back(name + ": the table of arrows has no line for this room");
        }
    }
    return faults;
}

std::vector<IncludeChecker::Include> IncludeChecker::IncludesOf(const fs::path& file) const
{
    static const std::regex pattern("\\s*#\\s*include\\s*[<\"]([^>\"]+)[>\"].*");
    std::vector<Include> includes;
    std::ifstream stream(file);
    std::string text;
    for (std::size_t line = 1; std::getline(stream, text); ++line) {
        std::smatch match;
        // The search for '#' keeps the slow pattern away from nearly every line.
        if (text.find('#') != std::string::npos && std::regex_match(text, match, pattern)) {
            includes.push_back({match[1].str(), file, line});
        }
    }
    return includes;
}

bool IncludeChecker::IsAllowed(const std::string& room, const Include& include) const
{
    const auto owners = OwnersOf(room, include);
    if (owners.empty()) {
        return m_rules.Allows(room, KindOf(include.name));
    }
    return std::any_of(owners.begin(), owners.end(),
        [&](const std::string& owner) { return IsAllowedRoomHeader(room, owner, include.name); });
}

bool IncludeChecker::IsAllowedRoomHeader(
    const std::string& room, const std::string& owner, const std::string& path) const
{
    if (owner == room) {
        return true;
    }
    if (EndsWith(path, "_p.h")) {
        return m_rules.Allows(room, "private headers");
    }
    return m_rules.Allows(room, owner, path);
}

// The compiler looks beside the including file first, then in its own room, then in those that it links.
std::vector<std::string> IncludeChecker::OwnersOf(const std::string& room, const Include& include) const
{
    const bool isGenerated = EndsWith(include.name, ".moc") || include.name == room + "Export.h";
    if (isGenerated || fs::exists(m_root / room / include.name)) {
        return {room};
    }
    const fs::path beside = fs::relative(include.file.parent_path() / include.name, m_root);
    if (fs::exists(m_root / beside)) {
        return {beside.begin()->string()};
    }
    std::vector<std::string> owners;
    for (const std::string& other : m_rules.Rooms()) {
        if (fs::exists(m_root / other / include.name) || include.name == other + "Export.h") {
            owners.push_back(other);
        }
    }
    return owners;
}

std::string IncludeChecker::KindOf(const std::string& name) const
{
    if (IsStandardHeader(name)) {
        return "std";
    }
    return LooksLikeQt(name) ? QtModuleOf(name) : "libraries";
}

std::string IncludeChecker::QtModuleOf(const std::string& name) const
{
    const std::string first = fs::path(name).begin()->string();
    if (first != name) {
        return first;
    }
    for (const auto& module : fs::directory_iterator(m_qtHeaders)) {
        if (fs::exists(module.path() / name)) {
            return module.path().filename().string();
        }
    }
    return "a header that Qt does not have";
}

} // namespace arrows
