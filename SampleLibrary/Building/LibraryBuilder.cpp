#include "Building/LibraryBuilder.h"

#include "Building/CatalogueWriter.h"
#include "Building/ComponentsWriter.h"
#include "Building/LibraryFolder.h"
#include "Building/PictureWriter.h"
#include "Reading/SourceReader.h"

#include <QCryptographicHash>
#include <nlohmann/json.hpp>
#include <string>

namespace samplelibrary {

namespace {

/// Digest of everything that decides about the library's bytes.
std::string LibraryDigest(const SourceFiles& files, const BuildOptions& options)
{
    const std::string text =
        files.Digest() + '/' + std::to_string(options.Components) + '/' + std::to_string(options.EndCategories);
    return QCryptographicHash::hash(QByteArray::fromStdString(text), QCryptographicHash::Sha256).toHex().toStdString();
}

std::string Description(const BuildResult& result, const std::string& digest)
{
    const nlohmann::ordered_json description{
        {"schema", 1}, {"components", result.Components}, {"categories", result.Categories}, {"sourceDigest", digest}};
    return description.dump() + '\n';
}

} // namespace

LibraryBuilder::LibraryBuilder(const SourceFiles& files, const std::atomic<bool>& isStopped)
    : m_files(files), m_isStopped(isStopped)
{
}

BuildResult LibraryBuilder::Build(const BuildOptions& options, const Progress& progress) const
{
    LibraryFolder folder(options.Folder);
    const std::string digest = LibraryDigest(m_files, options);
    if (!options.IsForced && folder.IsUpToDate(digest)) {
        return {true, 0, 0};
    }
    const QString growing = folder.Begin();
    const ProductSource source = ReadSource(m_files);
    WritePictures(m_files, source, growing, options.Jobs, m_isStopped);
    const BuildResult result = CatalogueWriter(m_files, source, m_isStopped).Write(growing, options, progress);
    WriteComponents(growing, m_isStopped);
    folder.Publish(Description(result, digest));
    return result;
}

} // namespace samplelibrary
