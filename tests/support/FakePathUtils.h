#pragma once

#include "tarnnuq/PathUtils.h"

#include <string>
#include <utility>
#include <vector>

namespace testsupport {

/// Places thumbnails below a folder of the test's choice; keeps the (URL, extension) pairs that were asked for.
class FakePathUtils final : public tarnnuq::PathUtils
{
public:
    /// With its separator at the end; the files are named after the URL with every "/", ":" and "?" replaced.
    std::wstring folder = L"/nowhere/";
    mutable std::vector<std::pair<std::wstring, std::wstring>> questions;

protected:
    std::wstring DoGetThumbnailDownloadFilePath(std::wstring url, std::wstring extension) const override;
};

} // namespace testsupport
