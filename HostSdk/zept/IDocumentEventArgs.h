#pragma once

#include "HostSdkExport.h"

namespace zept {

class IDocument;

/// What happened to which document. Made by the host for one event and valid during the call that passes it on.
class HOSTSDK_EXPORT IDocumentEventArgs
{
public:
    virtual ~IDocumentEventArgs();
    IDocumentEventArgs(const IDocumentEventArgs&) = delete;
    IDocumentEventArgs& operator=(const IDocumentEventArgs&) = delete;

    /// The kind of event: 0 created, 1 opened, 5 closed; the library ignores all others.
    virtual int GetEventType() const = 0;
    /// The document concerned, which may be null. Owned by the host.
    virtual IDocument* GetDocument() const = 0;

protected:
    IDocumentEventArgs() = default;
};

} // namespace zept
