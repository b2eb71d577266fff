#pragma once

#include "HostSdkExport.h"

namespace zept {

class IDocument;

/// A document as it is shown in a window of the host. Implemented and owned by the host.
class HOSTSDK_EXPORT IUiDocument
{
public:
    virtual ~IUiDocument();
    IUiDocument(const IUiDocument&) = delete;
    IUiDocument& operator=(const IUiDocument&) = delete;

    /// The document that is shown. Owned by the host.
    virtual IDocument* GetDocument() const = 0;

protected:
    IUiDocument() = default;
};

} // namespace zept
