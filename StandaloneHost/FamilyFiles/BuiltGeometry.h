#pragma once

#include "FamilyFiles/Solid.h"
#include "zept/IGeometry.h"

#include <memory>
#include <utility>

namespace familyfiles {

/// The geometry that the library gets of a family file: a body, shared with the file.
class BuiltGeometry final : public zept::IGeometry
{
public:
    explicit BuiltGeometry(std::shared_ptr<const Solid> body) : m_spBody(std::move(body)) {}

    const Solid& Body() const { return *m_spBody; }

private:
    std::shared_ptr<const Solid> m_spBody;
};

} // namespace familyfiles
