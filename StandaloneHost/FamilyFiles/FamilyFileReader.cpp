#include "FamilyFiles/FamilyFileReader.h"

#include "FamilyFiles/Container/ContainerReader.h"
#include "FamilyFiles/Container/ContainerReasons.h"
#include "FamilyFiles/Manifest/ManifestReader.h"

#include <QFile>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

namespace familyfiles {

namespace {

/// More than the limit is read of a file that grows: the size asked for beforehand proves nothing.
std::optional<std::string> FileBytes(const std::string& path, Reason& reason)
{
    std::error_code fault;
    const std::filesystem::file_status status = std::filesystem::status(std::filesystem::u8path(path), fault);
    if (status.type() == std::filesystem::file_type::not_found) {
        reason = FileNotFound(path);
        return std::nullopt;
    }
    // Opening a pipe would wait for a writer.
    if (status.type() != std::filesystem::file_type::regular) {
        reason = FileUnreadable(path, fault ? fault.message() : "it is no file");
        return std::nullopt;
    }
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly)) {
        reason = FileUnreadable(path, file.errorString().toStdString());
        return std::nullopt;
    }
    std::string bytes;
    if (static_cast<std::size_t>(file.size()) <= FamilyFileReader::MaximalFileSize) {
        bytes.resize(static_cast<std::size_t>(file.size()) + 1);
        const qint64 count = file.read(bytes.data(), static_cast<qint64>(bytes.size()));
        if (count < 0) {
            reason = FileUnreadable(path, file.errorString().toStdString());
            return std::nullopt;
        }
        bytes.resize(static_cast<std::size_t>(count));
        return bytes;
    }
    reason = FileTooLarge(path, FamilyFileReader::MaximalFileSize);
    return std::nullopt;
}

std::unique_ptr<ContainerReader> OpenContainer(const std::string& path, Reason& reason)
{
    std::optional<std::string> bytes = FileBytes(path, reason);
    return bytes ? ContainerReader::Open(std::move(*bytes), reason) : nullptr;
}

std::optional<FamilyManifest> ManifestIn(const ContainerReader& container, Reason& reason)
{
    const std::optional<std::string> json =
        container.Read(ContainerReader::ManifestName, FamilyFileReader::MaximalManifestSize, reason);
    return json ? ReadManifest(*json, reason) : std::nullopt;
}

bool ReadEntries(const ContainerReader& container, std::vector<ContainerEntry>& entries, Reason& reason)
{
    std::size_t size = 0;
    for (const std::string& name : container.Names()) {
        if (name == ContainerReader::ManifestName) {
            continue;
        }
        std::optional<std::string> bytes = container.Read(name, FamilyFileReader::MaximalEntrySize, reason);
        if (!bytes) {
            return false;
        }
        size += bytes->size();
        if (size > FamilyFileReader::MaximalTotalSize) {
            reason = EntriesTooLarge(FamilyFileReader::MaximalTotalSize);
            return false;
        }
        entries.push_back({name, std::move(*bytes)});
    }
    return true;
}

} // namespace

std::optional<FamilyManifest> FamilyFileReader::ReadManifest(const std::string& path, Reason& reason)
{
    const std::unique_ptr<ContainerReader> container = OpenContainer(path, reason);
    return container ? ManifestIn(*container, reason) : std::nullopt;
}

std::optional<FamilyFileContent> FamilyFileReader::Read(const std::string& path, Reason& reason)
{
    const std::unique_ptr<ContainerReader> container = OpenContainer(path, reason);
    if (!container) {
        return std::nullopt;
    }
    std::optional<FamilyManifest> manifest = ManifestIn(*container, reason);
    FamilyFileContent content;
    if (!manifest || !ReadEntries(*container, content.entries, reason)) {
        return std::nullopt;
    }
    content.manifest = std::move(*manifest);
    return content;
}

std::optional<std::string> FamilyFileReader::ReadEntry(
    const std::string& path, const std::string& entry, Reason& reason)
{
    const std::unique_ptr<ContainerReader> container = OpenContainer(path, reason);
    return container ? container->Read(entry, MaximalEntrySize, reason) : std::nullopt;
}

std::optional<std::vector<std::string>> FamilyFileReader::ReadEntryNames(const std::string& path, Reason& reason)
{
    const std::unique_ptr<ContainerReader> container = OpenContainer(path, reason);
    return container ? std::optional<std::vector<std::string>>(container->Names()) : std::nullopt;
}

} // namespace familyfiles
