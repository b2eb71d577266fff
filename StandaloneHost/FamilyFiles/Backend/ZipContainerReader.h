#pragma once

#include "FamilyFiles/Container/ContainerReader.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>
#include <zip.h>

namespace familyfiles {

/// A family file's archive, read by libzip with its check for consistency.
class ZipContainerReader final : public ContainerReader
{
public:
    /// As ContainerReader::Open.
    static std::unique_ptr<ContainerReader> Open(std::string bytes, Reason& reason);

    const std::vector<std::string>& Names() const override { return m_names; }
    std::optional<std::string> Read(std::string_view name, std::size_t maximalSize, Reason& reason) const override;

private:
    struct Closer
    {
        void operator()(zip_t* archive) const { zip_discard(archive); }
    };

    explicit ZipContainerReader(std::string bytes) : m_bytes(std::move(bytes)) {}
    bool OpenArchive(Reason& reason);
    bool ReadNames(Reason& reason);
    bool ReadName(std::size_t index, Reason& reason);

    /// The archive refers to them.
    std::string m_bytes;
    std::unique_ptr<zip_t, Closer> m_archive;
    std::vector<std::string> m_names;
};

} // namespace familyfiles
