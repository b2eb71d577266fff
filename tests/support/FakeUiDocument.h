#pragma once

#include "zept/IUiDocument.h"

namespace testsupport {

/// A shown document with an answer to set.
class FakeUiDocument final : public zept::IUiDocument
{
public:
    zept::IDocument* GetDocument() const override { return document; }

    zept::IDocument* document = nullptr;
};

} // namespace testsupport
