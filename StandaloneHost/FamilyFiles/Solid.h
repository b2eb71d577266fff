#pragma once

#include <array>

namespace familyfiles {

/// A closed body made by a kernel; mm. Belongs to whoever asked for it.
class Solid
{
public:
    virtual ~Solid();
    Solid(const Solid&) = delete;
    Solid& operator=(const Solid&) = delete;

    /// mm³
    virtual double Volume() const = 0;
    /// mm²
    virtual double Area() const = 0;
    /// Least x, y, z, then greatest x, y, z.
    virtual std::array<double, 6> Box() const = 0;
    /// Whether the kernel's own check finds every part closed and sound.
    virtual bool IsValid() const = 0;

protected:
    Solid() = default;
};

} // namespace familyfiles
