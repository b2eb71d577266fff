#pragma once

#include "HostSdkExport.h"

#include <string>

namespace tarn {

/**
 * Where the data of the host's current product lies.
 *
 * Implemented by the host and put into hostsdk::HostServices::filePaths; the host owns it. Without an installed
 * object both paths are empty.
 */
class HOSTSDK_EXPORT TarnFilePathSettings
{
public:
    virtual ~TarnFilePathSettings();
    TarnFilePathSettings(const TarnFilePathSettings&) = delete;
    TarnFilePathSettings& operator=(const TarnFilePathSettings&) = delete;

    /// The full path of the product's component database.
    static std::wstring GetCurrentProductDBFilePath();
    /// The folder that holds the product's 2D legend images, without a separator at its end.
    static std::wstring GetCurrentProduct2DFolderPath();

protected:
    TarnFilePathSettings() = default;

    /// Answers GetCurrentProductDBFilePath().
    virtual std::wstring DoGetCurrentProductDBFilePath() const = 0;
    /// Answers GetCurrentProduct2DFolderPath().
    virtual std::wstring DoGetCurrentProduct2DFolderPath() const = 0;
};

} // namespace tarn
