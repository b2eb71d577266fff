#pragma once

#include "Building/BuildOptions.h"
#include "Building/BuildResult.h"
#include "Reading/SourceFiles.h"

#include <atomic>
#include <cstddef>
#include <functional>

namespace samplelibrary {

/// Builds the sample library: the catalogue's database and its pictures.
///
/// The same source and options give the same bytes, whatever the machine's locale, time zone and number of threads.
class LibraryBuilder
{
public:
    /// Told how many of how many components are written.
    using Progress = std::function<void(std::size_t done, std::size_t total)>;

    /// @param files  the source, must live longer
    /// @param isStopped looked at often; when it becomes true the build ends
    LibraryBuilder(const SourceFiles& files, const std::atomic<bool>& isStopped);

    /// Builds, unless the library that stands there is the one that would come out. Throws BuildInterrupted,
    /// BuildError, SourceError or another std::exception whose what() says what went wrong; the old library then stays.
    BuildResult Build(const BuildOptions& options, const Progress& progress) const;

private:
    const SourceFiles& m_files;
    const std::atomic<bool>& m_isStopped;
};

} // namespace samplelibrary
