#pragma once

#include "HostSdkExport.h"

namespace zept {

/// A document of the host. The library passes pointers to it on and never looks inside; the host owns it.
class HOSTSDK_EXPORT IDocument
{
public:
    virtual ~IDocument();
    IDocument(const IDocument&) = delete;
    IDocument& operator=(const IDocument&) = delete;

protected:
    IDocument() = default;
};

} // namespace zept
