#pragma once

#include "zept/IDocumentEventArgs.h"

namespace testsupport {

/// A document event with answers to set; counts how often its document was asked for.
class FakeDocumentEventArgs final : public zept::IDocumentEventArgs
{
public:
    int GetEventType() const override { return eventType; }
    zept::IDocument* GetDocument() const override
    {
        ++documentQuestions;
        return document;
    }

    int eventType = 0;
    zept::IDocument* document = nullptr;
    mutable int documentQuestions = 0;
};

} // namespace testsupport
