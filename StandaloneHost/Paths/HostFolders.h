#pragma once

#include <QString>

namespace standalone {

/// The folders below which the stand-alone host keeps its files, one for each kind of data.
///
/// All paths are absolute and end without a slash. Nothing is made on disk here; whoever writes makes its
/// folder with MakePrivateFolder.
struct HostFolders
{
    QString config; ///< Settings and stored tokens.
    QString cache;  ///< What can be fetched again: thumbnails, family files as they came.
    QString data;   ///< What the user keeps: downloaded families, documents.
    QString state;  ///< Logs and view state.

    /// The folders "tarnnuq" in the places that the platform reserves for the user.
    ///
    /// On Unix these are the XDG base folders: XDG_CONFIG_HOME, XDG_CACHE_HOME, XDG_DATA_HOME and
    /// XDG_STATE_HOME, or .config, .cache, .local/share and .local/state in the home folder. A variable that
    /// is empty or holds a relative path is ignored. Elsewhere they are the folders of QStandardPaths.
    static HostFolders OfThePlatform();
};

} // namespace standalone
