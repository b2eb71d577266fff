#include "Sessions/Base64.h"

#include <limits>
#include <openssl/evp.h>
#include <stdexcept>

namespace nuqcloud {
namespace {

int CheckedLength(const std::string& text)
{
    if (text.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()) / 2) {
        throw std::invalid_argument("text too long for base64");
    }
    return static_cast<int>(text.size());
}

const unsigned char* Bytes(const std::string& text)
{
    return reinterpret_cast<const unsigned char*>(text.data());
}

} // namespace

std::string EncodeBase64(const std::string& bytes)
{
    const int length = CheckedLength(bytes);
    std::string out((bytes.size() + 2) / 3 * 4 + 1, '\0'); // OpenSSL ends its output with a NUL
    const int written = EVP_EncodeBlock(reinterpret_cast<unsigned char*>(out.data()), Bytes(bytes), length);
    out.resize(static_cast<std::size_t>(written));
    return out;
}

std::string DecodeBase64(const std::string& text)
{
    std::string out(text.size() / 4 * 3, '\0');
    const int written = EVP_DecodeBlock(reinterpret_cast<unsigned char*>(out.data()), Bytes(text), CheckedLength(text));
    if (text.size() % 4 != 0 || written < 0) {
        throw std::invalid_argument("not base64");
    }
    std::size_t padding = 0;
    while (padding < 2 && padding < text.size() && text[text.size() - 1 - padding] == '=') {
        ++padding;
    }
    out.resize(static_cast<std::size_t>(written) - padding);
    return out;
}

} // namespace nuqcloud
