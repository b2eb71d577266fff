#pragma once

#include "zept/IGeometry.h"

namespace testsupport {

/// A geometry that is merely there.
class FakeGeometry final : public zept::IGeometry
{
};

} // namespace testsupport
