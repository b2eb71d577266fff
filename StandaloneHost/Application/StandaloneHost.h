#pragma once

#include "Application/HostDiagnosis.h"
#include "Application/StandaloneHostOptions.h"

#include <memory>

namespace componentdatabase {
class LocalDatabase;
}

namespace familyfiles {
class FamilyFileFactory;
}

namespace standalone {

class AccountService;
class HostLogger;
class SettingsStore;
class UrlCache;

/// A real host for running the library outside a modeller: logger, debug warnings, application service, user
/// service, thumbnail paths, the environment managers, the component database and family files, put into the slot table
/// of the process.
///
/// Owns all of them. The constructor installs them; the destructor takes them out again (unless another host has
/// been installed since) and flushes the log. The library's services keep no pointers to host objects, but they
/// copy what they need at first use: make the host before the first of them and keep it until the event loop has
/// ended.
///
/// REQUIRES: a QCoreApplication, unless the options give the program's folder. Construct and destroy on the main
/// thread; the installed objects may then be used from every thread.
///
/// Nothing on disk stops the construction: faults are logged and told by Diagnose.
class StandaloneHost
{
public:
    explicit StandaloneHost(const StandaloneHostOptions& options);
    ~StandaloneHost();
    StandaloneHost(const StandaloneHost&) = delete;
    StandaloneHost& operator=(const StandaloneHost&) = delete;

    SettingsStore& Settings();
    const AccountService& Accounts() const;
    HostLogger& Logger();
    /// Opens family files, and tells why one was refused.
    const familyfiles::FamilyFileFactory& FamilyFiles() const;

    /// The component database, which is opened when it is first asked for.
    const componentdatabase::LocalDatabase& Database() const;

    /// Where family files that came from URLs are kept; cleaning up among the thumbnails never reaches it.
    const UrlCache& FamilyFileCache() const;

    /// What this host found and where, as it stands now; reads the token sources anew.
    HostDiagnosis Diagnose() const;

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace standalone
