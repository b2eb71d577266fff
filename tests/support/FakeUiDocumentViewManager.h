#pragma once

#include "zept/IUiDocumentViewManager.h"

namespace testsupport {

/// A view manager with an answer to set.
class FakeUiDocumentViewManager final : public zept::IUiDocumentViewManager
{
public:
    zept::IUiDocument* GetCurrentUiDocument() const override { return current; }

    zept::IUiDocument* current = nullptr;
};

} // namespace testsupport
