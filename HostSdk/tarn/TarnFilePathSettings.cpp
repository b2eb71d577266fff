#include "tarn/TarnFilePathSettings.h"

#include "hostsdk/HostServices.h"

namespace tarn {

TarnFilePathSettings::~TarnFilePathSettings() = default;

std::wstring TarnFilePathSettings::GetCurrentProductDBFilePath()
{
    const TarnFilePathSettings* const installed = hostsdk::Installed().filePaths;
    return installed != nullptr ? installed->DoGetCurrentProductDBFilePath() : std::wstring();
}

std::wstring TarnFilePathSettings::GetCurrentProduct2DFolderPath()
{
    const TarnFilePathSettings* const installed = hostsdk::Installed().filePaths;
    return installed != nullptr ? installed->DoGetCurrentProduct2DFolderPath() : std::wstring();
}

} // namespace tarn
