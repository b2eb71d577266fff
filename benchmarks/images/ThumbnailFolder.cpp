#include "images/ThumbnailFolder.h"

#include "hostsdk/HostServices.h"

namespace bench {

namespace {

void InstallPaths(tarnnuq::PathUtils* paths)
{
    hostsdk::HostServices services = hostsdk::Installed();
    services.paths = paths;
    hostsdk::Install(services);
}

} // namespace

ThumbnailFolder::ThumbnailFolder() : m_paths(m_folder.path())
{
    InstallPaths(&m_paths);
}

ThumbnailFolder::~ThumbnailFolder()
{
    InstallPaths(nullptr);
}

} // namespace bench
