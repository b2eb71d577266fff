#include "Program/TokenSource.h"

#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string_view>

namespace nuqcloud {
namespace {

constexpr std::size_t kLongestToken = 4096;

/// A header value: printable ASCII without blanks at its ends.
bool IsToken(std::string_view token)
{
    if (token.empty() || token.size() > kLongestToken || token.front() == ' ' || token.back() == ' ') {
        return false;
    }
    for (const char c : token) {
        if (c < 0x20 || c > 0x7E) {
            return false;
        }
    }
    return true;
}

void Take(std::string& target, std::string_view token, const std::string& origin)
{
    if (!IsToken(token)) {
        throw std::runtime_error(
            origin + " does not hold a usable token (1 to 4096 printable ASCII characters, no blank at either end).");
    }
    target = token;
}

void TakeLine(Tokens& tokens, std::string line, const std::string& origin)
{
    if (!line.empty() && line.back() == '\r') {
        line.pop_back();
    }
    if (line.empty() || line.front() == '#') {
        return;
    }
    const std::string_view text = line;
    if (text.substr(0, 5) == "prod=") {
        Take(tokens.production, text.substr(5), origin);
    } else if (text.substr(0, 3) == "qa=") {
        Take(tokens.qa, text.substr(3), origin);
    } else {
        throw std::runtime_error(origin + " is neither \"prod=TOKEN\" nor \"qa=TOKEN\".");
    }
}

Tokens ReadFile(const std::string& path)
{
    std::ifstream file(path);
    if (!file) {
        throw std::runtime_error("Cannot read the token file \"" + path + "\".");
    }
    Tokens tokens;
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        TakeLine(tokens, line, "Line " + std::to_string(number) + " of the token file \"" + path + '"');
    }
    return tokens;
}

void TakeVariable(std::string& target, const char* name)
{
    const char* const value = std::getenv(name);
    if (value != nullptr && *value != '\0') {
        Take(target, value, std::string("The environment variable ") + name);
    }
}

} // namespace

Tokens ReadTokens(const std::string& file)
{
    if (!file.empty()) {
        return ReadFile(file);
    }
    Tokens tokens;
    TakeVariable(tokens.production, "NUQ_CLOUD_TOKEN");
    TakeVariable(tokens.qa, "NUQ_CLOUD_TOKEN_QA");
    return tokens;
}

} // namespace nuqcloud
