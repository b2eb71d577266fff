#pragma once

#include "HostSdkExport.h"

namespace zept {

class IUiDocument;

/**
 * Knows which document the user is working on.
 *
 * Implemented by the host and put into hostsdk::HostServices::documentViews; the host owns it.
 */
class HOSTSDK_EXPORT IUiDocumentViewManager
{
public:
    virtual ~IUiDocumentViewManager();
    IUiDocumentViewManager(const IUiDocumentViewManager&) = delete;
    IUiDocumentViewManager& operator=(const IUiDocumentViewManager&) = delete;

    /// The installed manager, or null when the host has none.
    static IUiDocumentViewManager* Get();

    /// The document in the active window, or null when none is open. Owned by the host.
    virtual IUiDocument* GetCurrentUiDocument() const = 0;

protected:
    IUiDocumentViewManager() = default;
};

} // namespace zept
