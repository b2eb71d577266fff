#pragma once

#include "zept/IDocument.h"

namespace testsupport {

/// A document that is merely there.
class FakeDocument final : public zept::IDocument
{
};

} // namespace testsupport
