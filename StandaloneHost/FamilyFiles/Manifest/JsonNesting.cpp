#include "FamilyFiles/Manifest/JsonNesting.h"

namespace familyfiles {

bool IsNestedDeeperThan(std::string_view json, int limit)
{
    int depth = 0;
    bool isInText = false;
    for (std::size_t at = 0; at < json.size(); ++at) {
        const char character = json[at];
        if (isInText) {
            if (character == '\\') {
                ++at;
            } else if (character == '"') {
                isInText = false;
            }
        } else if (character == '"') {
            isInText = true;
        } else if (character == '{' || character == '[') {
            if (++depth > limit) {
                return true;
            }
        } else if (character == '}' || character == ']') {
            --depth;
        }
    }
    return false;
}

} // namespace familyfiles
