#include "FamilyFiles/ShortText.h"

#include "FamilyFiles/Utf8.h"

namespace familyfiles {

std::string ShortText(std::string_view text, std::size_t maximum)
{
    std::string shortened;
    std::size_t count = 0;
    for (std::size_t position = 0; position < text.size(); ++count) {
        if (count == maximum) {
            return shortened + "…";
        }
        const Utf8Character character = Utf8At(text, position);
        if (!character.isValid) {
            shortened += '?';
        } else if (character.code < 0x20 || (character.code >= 0x7F && character.code < 0xA0)) {
            shortened += ' ';
        } else {
            shortened.append(text.substr(position, character.size));
        }
        position += character.size;
    }
    return shortened;
}

} // namespace familyfiles
