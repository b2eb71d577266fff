#include "Server/ContentDigests.h"

#include <algorithm>
#include <memory>
#include <openssl/evp.h>
#include <stdexcept>

namespace nuqcloud {
namespace {

constexpr std::size_t kPiece = 1U << 18U;
// More names than a library has come from a folder that changes all the time.
constexpr std::size_t kMostEntries = 100000;

std::string Sha256(const ServedFile& file)
{
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context(EVP_MD_CTX_new(), &EVP_MD_CTX_free);
    bool good = context && EVP_DigestInit_ex(context.get(), EVP_sha256(), nullptr) == 1;
    for (std::size_t offset = 0; good && offset < file.Size();) {
        const std::string piece = file.Read(offset, std::min(kPiece, file.Size() - offset));
        good = !piece.empty() && EVP_DigestUpdate(context.get(), piece.data(), piece.size()) == 1;
        offset += piece.size();
    }
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int size = 0;
    if (!good || EVP_DigestFinal_ex(context.get(), digest, &size) != 1) {
        throw std::runtime_error("a file changed while it was read");
    }
    return std::string(reinterpret_cast<const char*>(digest), size);
}

} // namespace

std::string ContentDigests::Of(const std::string& name, const ServedFile& file)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto found = m_entries.find(name);
        if (found != m_entries.end() && found->second.identity == file.WhichOne()) {
            return found->second.digest;
        }
    }
    std::string digest = Sha256(file);
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_entries.size() >= kMostEntries) {
        m_entries.clear();
    }
    m_entries[name] = {file.WhichOne(), digest};
    return digest;
}

} // namespace nuqcloud
