#include "WideFromUtf8.h"

namespace bench {

namespace {

std::size_t SequenceLength(unsigned char lead)
{
    return lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

char32_t Decode(const unsigned char* bytes, std::size_t length)
{
    static const unsigned char leadMask[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    char32_t character = bytes[0] & leadMask[length];
    for (std::size_t i = 1; i < length; ++i) {
        character = (character << 6) | (bytes[i] & 0x3F);
    }
    return character;
}

} // namespace

std::wstring WideFromUtf8(std::string_view utf8)
{
    std::wstring wide;
    wide.reserve(utf8.size());
    const auto* bytes = reinterpret_cast<const unsigned char*>(utf8.data());
    for (std::size_t i = 0; i < utf8.size();) {
        const std::size_t length = SequenceLength(bytes[i]);
        wide.push_back(static_cast<wchar_t>(Decode(bytes + i, length)));
        i += length;
    }
    return wide;
}

} // namespace bench
