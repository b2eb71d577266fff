#pragma once

#include "Reading/ProductSource.h"
#include "Reading/SourceFiles.h"

#include <QString>
#include <atomic>
#include <cstddef>

namespace samplelibrary {

/// Draws the thumbnails and legends of all kinds into the folder "static" of @p folder, on @p jobs threads. Throws
/// BuildInterrupted when @p isStopped becomes true, BuildError when a file cannot be written, SourceError for a symbol
/// that is missing.
void WritePictures(const SourceFiles& files, const ProductSource& source, const QString& folder, std::size_t jobs,
    const std::atomic<bool>& isStopped);

} // namespace samplelibrary
