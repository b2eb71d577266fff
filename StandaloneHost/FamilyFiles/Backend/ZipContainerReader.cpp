#include "FamilyFiles/Backend/ZipContainerReader.h"

#include "FamilyFiles/Container/ContainerReasons.h"
#include "FamilyFiles/Container/EntryName.h"
#include "FamilyFiles/FamilyFileReader.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace familyfiles {

namespace {

/// What every archive with an entry begins with.
constexpr std::string_view Signature("PK\3\4", 4);

struct FileCloser
{
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};

std::string ErrorText(zip_t* archive)
{
    return zip_error_strerror(zip_get_error(archive));
}

} // namespace

std::unique_ptr<ContainerReader> ZipContainerReader::Open(std::string bytes, Reason& reason)
{
    std::unique_ptr<ZipContainerReader> reader(new ZipContainerReader(std::move(bytes)));
    if (!reader->OpenArchive(reason) || !reader->ReadNames(reason)) {
        return nullptr;
    }
    return reader;
}

bool ZipContainerReader::OpenArchive(Reason& reason)
{
    // An empty file is an archive without entries to the library.
    if (m_bytes.empty()) {
        reason = NotAContainer();
        return false;
    }
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* const source = zip_source_buffer_create(m_bytes.data(), m_bytes.size(), 0, &error);
    if (source != nullptr) {
        m_archive.reset(zip_open_from_source(source, ZIP_RDONLY | ZIP_CHECKCONS, &error));
        if (!m_archive) {
            zip_source_free(source);
        }
    }
    if (!m_archive) {
        const bool isArchive = std::string_view(m_bytes).substr(0, Signature.size()) == Signature;
        reason = isArchive ? DamagedContainer(zip_error_strerror(&error)) : NotAContainer();
    }
    zip_error_fini(&error);
    return m_archive != nullptr;
}

bool ZipContainerReader::ReadNames(Reason& reason)
{
    const auto count = static_cast<std::size_t>(std::max<zip_int64_t>(zip_get_num_entries(m_archive.get(), 0), 0));
    if (count > FamilyFileReader::MaximalEntries) {
        reason = TooManyEntries(FamilyFileReader::MaximalEntries);
        return false;
    }
    for (std::size_t index = 0; index < count; ++index) {
        if (!ReadName(index, reason)) {
            return false;
        }
    }
    std::unordered_set<std::string_view> names;
    for (const std::string& name : m_names) {
        if (!names.insert(name).second) {
            reason = DuplicateEntry(name);
            return false;
        }
    }
    return true;
}

bool ZipContainerReader::ReadName(std::size_t index, Reason& reason)
{
    zip_stat_t entry;
    zip_stat_init(&entry);
    const char* const name = zip_get_name(m_archive.get(), index, ZIP_FL_ENC_RAW);
    if (name == nullptr || zip_stat_index(m_archive.get(), index, 0, &entry) != 0) {
        reason = DamagedContainer(ErrorText(m_archive.get()));
        return false;
    }
    m_names.emplace_back(name);
    if (!IsGoodEntryName(m_names.back())) {
        reason = BadEntryName(m_names.back());
        return false;
    }
    if ((entry.valid & ZIP_STAT_ENCRYPTION_METHOD) != 0 && entry.encryption_method != ZIP_EM_NONE) {
        reason = EncryptedEntry(m_names.back());
        return false;
    }
    return true;
}

std::optional<std::string> ZipContainerReader::Read(
    std::string_view name, std::size_t maximalSize, Reason& reason) const
{
    const auto found = std::find(m_names.begin(), m_names.end(), name);
    if (found == m_names.end()) {
        reason = MissingEntry(std::string(name));
        return std::nullopt;
    }
    const auto index = static_cast<zip_uint64_t>(found - m_names.begin());
    zip_stat_t entry;
    zip_stat_init(&entry);
    zip_stat_index(m_archive.get(), index, 0, &entry);
    const std::unique_ptr<zip_file_t, FileCloser> file(zip_fopen_index(m_archive.get(), index, 0));
    if (!file) {
        reason = DamagedEntry(*found, ErrorText(m_archive.get()));
        return std::nullopt;
    }
    // The declared size is only where to begin: what is read decides.
    std::string bytes(std::min<std::size_t>(entry.size, maximalSize) + 1, '\0');
    std::size_t size = 0;
    zip_int64_t count = 0;
    while ((count = zip_fread(file.get(), bytes.data() + size, bytes.size() - size)) > 0) {
        size += static_cast<std::size_t>(count);
        if (size > maximalSize) {
            reason = EntryTooLarge(*found, maximalSize);
            return std::nullopt;
        }
        if (size == bytes.size()) {
            bytes.resize(std::min(bytes.size() * 2, maximalSize + 1));
        }
    }
    if (count < 0 || size != entry.size) {
        reason = DamagedEntry(*found, count < 0 ? zip_error_strerror(zip_file_get_error(file.get())) : "wrong size");
        return std::nullopt;
    }
    bytes.resize(size);
    return bytes;
}

} // namespace familyfiles
