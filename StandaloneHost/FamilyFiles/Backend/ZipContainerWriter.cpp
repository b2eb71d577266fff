#include "FamilyFiles/Backend/ZipContainerWriter.h"

#include "FamilyFiles/Container/ContainerReasons.h"
#include "FamilyFiles/Container/EntryName.h"
#include "FamilyFiles/FamilyFileReader.h"

#include <memory>
#include <string_view>
#include <unordered_set>
#include <zip.h>

namespace familyfiles {

namespace {

/// 1 February 2022, midnight, as the archive writes dates: a fixed time in no time zone.
constexpr zip_uint16_t FixedTime = 0;
constexpr zip_uint16_t FixedDate = (42U << 9U) | (2U << 5U) | 1U;
constexpr zip_uint32_t CompressionLevel = 6;

struct ArchiveCloser
{
    void operator()(zip_t* archive) const { zip_discard(archive); }
};

struct SourceCloser
{
    void operator()(zip_source_t* source) const { zip_source_free(source); }
};

using Archive = std::unique_ptr<zip_t, ArchiveCloser>;
using Source = std::unique_ptr<zip_source_t, SourceCloser>;

/// Pictures are compressed already.
zip_int32_t MethodFor(std::string_view name)
{
    constexpr std::string_view Picture = ".png";
    const bool isPicture = name.size() > Picture.size() && name.substr(name.size() - Picture.size()) == Picture;
    return isPicture ? ZIP_CM_STORE : ZIP_CM_DEFLATE;
}

bool AreGood(const std::vector<ContainerEntry>& entries, Reason& reason)
{
    if (entries.size() > FamilyFileReader::MaximalEntries) {
        reason = TooManyEntries(FamilyFileReader::MaximalEntries);
        return false;
    }
    std::unordered_set<std::string_view> names;
    for (const ContainerEntry& entry : entries) {
        if (!IsGoodEntryName(entry.name)) {
            reason = BadEntryName(entry.name);
            return false;
        }
        if (!names.insert(entry.name).second) {
            reason = DuplicateEntry(entry.name);
            return false;
        }
        if (entry.bytes.size() > FamilyFileReader::MaximalEntrySize) {
            reason = EntryTooLarge(entry.name, FamilyFileReader::MaximalEntrySize);
            return false;
        }
    }
    return true;
}

bool Add(zip_t* archive, const ContainerEntry& entry)
{
    zip_source_t* const source = zip_source_buffer(archive, entry.bytes.data(), entry.bytes.size(), 0);
    const zip_int64_t index =
        source != nullptr ? zip_file_add(archive, entry.name.c_str(), source, ZIP_FL_ENC_UTF_8) : -1;
    if (index < 0) {
        zip_source_free(source);
        return false;
    }
    const auto added = static_cast<zip_uint64_t>(index);
    return zip_set_file_compression(archive, added, MethodFor(entry.name), CompressionLevel) == 0 &&
           zip_file_set_dostime(archive, added, FixedTime, FixedDate, 0) == 0 &&
           zip_file_set_external_attributes(archive, added, 0, ZIP_OPSYS_UNIX, 0100644U << 16U) == 0;
}

std::optional<std::string> BytesOf(zip_source_t* source)
{
    zip_stat_t stat;
    zip_stat_init(&stat);
    if (zip_source_stat(source, &stat) != 0 || zip_source_open(source) != 0) {
        return std::nullopt;
    }
    std::string bytes(stat.size, '\0');
    const zip_int64_t count = zip_source_read(source, bytes.data(), bytes.size());
    zip_source_close(source);
    return count == static_cast<zip_int64_t>(bytes.size()) ? std::optional<std::string>(std::move(bytes))
                                                           : std::nullopt;
}

std::optional<std::string> Pack(const std::vector<ContainerEntry>& entries, zip_error_t* error)
{
    const Source source(zip_source_buffer_create(nullptr, 0, 0, error));
    if (!source) {
        return std::nullopt;
    }
    Archive archive(zip_open_from_source(source.get(), ZIP_TRUNCATE, error));
    if (!archive) {
        return std::nullopt;
    }
    // The archive owns the source from here on and lets go of it when it is closed; its bytes are read afterwards.
    zip_source_keep(source.get());
    for (const ContainerEntry& entry : entries) {
        if (!Add(archive.get(), entry)) {
            zip_error_set(error, zip_error_code_zip(zip_get_error(archive.get())), 0);
            return std::nullopt;
        }
    }
    if (zip_close(archive.get()) != 0) {
        zip_error_set(error, zip_error_code_zip(zip_get_error(archive.get())), 0);
        return std::nullopt;
    }
    static_cast<void>(archive.release());
    return BytesOf(source.get());
}

} // namespace

std::optional<std::string> WriteZipContainer(const std::vector<ContainerEntry>& entries, Reason& reason)
{
    if (!AreGood(entries, reason)) {
        return std::nullopt;
    }
    zip_error_t error;
    zip_error_init(&error);
    std::optional<std::string> bytes = Pack(entries, &error);
    if (!bytes) {
        reason = DamagedContainer(zip_error_strerror(&error));
    }
    zip_error_fini(&error);
    return bytes;
}

} // namespace familyfiles
