#include "FamilyFiles/FamilyFileWriter.h"

#include "FamilyFiles/Backend/FamilyBackend.h"
#include "FamilyFiles/Container/ContainerReader.h"
#include "FamilyFiles/Container/ContainerReasons.h"
#include "FamilyFiles/FamilyFileReader.h"
#include "FamilyFiles/Manifest/ManifestReader.h"
#include "FamilyFiles/Manifest/ManifestWriter.h"
#include "Paths/ReplaceFile.h"

#include <QByteArray>
#include <QString>
#include <vector>

namespace familyfiles {

std::optional<std::string> FamilyFileWriter::Bytes(const FamilyFileContent& content, Reason& reason)
{
    std::vector<ContainerEntry> entries;
    entries.reserve(content.entries.size() + 1);
    entries.push_back({ContainerReader::ManifestName, WriteManifest(content.manifest)});
    // What this program would refuse to read is not written.
    if (!ReadManifest(entries.front().bytes, reason)) {
        return std::nullopt;
    }
    entries.insert(entries.end(), content.entries.begin(), content.entries.end());
    const FamilyBackend* const backend = FamilyBackend::Get(reason);
    return backend != nullptr ? backend->WriteContainer(entries, reason) : std::nullopt;
}

bool FamilyFileWriter::Write(const std::string& path, const FamilyFileContent& content, Reason& reason)
{
    const std::optional<std::string> bytes = Bytes(content, reason);
    if (!bytes) {
        return false;
    }
    if (bytes->size() > FamilyFileReader::MaximalFileSize) {
        reason = FileTooLarge(path, FamilyFileReader::MaximalFileSize);
        return false;
    }
    const QString fault = standalone::ReplaceFile(
        QString::fromStdString(path), QByteArray::fromRawData(bytes->data(), static_cast<int>(bytes->size())));
    if (!fault.isEmpty()) {
        reason = FileNotWritten(path, fault.toStdString());
        return false;
    }
    return true;
}

} // namespace familyfiles
