#pragma once

#include "TarnNuqService/PropertySvcs/HostLibrary.h"
#include "TarnNuqService/PropertySvcs/PropertyServiceAccess.h"
#include "support/FakeCategoryInfoUtils.h"

#include <cstddef>
#include <memory>

namespace bench {

/// A host's category library of so many disciplines, categories and end categories.
class HostTree
{
public:
    explicit HostTree(int records);

    /// Asks each of the library's objects for everything that the tree is made from, once, and keeps nothing.
    /// @return how much text there was
    std::size_t AskForEverything() const;

    /// A service that was made without any library; it builds the tree as soon as it is told to.
    std::unique_ptr<tarnnuq::PropertyServiceAccess> EmptyService() const;

private:
    testsupport::FakeCategoryInfoUtils m_utils;
    testsupport::HostLibrary m_library;
};

/// A host's category with so many properties of types: one in eight has four values to choose from.
class PropertyHost
{
public:
    static constexpr const wchar_t* Code = L"category";

    explicit PropertyHost(int properties);

    /// Calls each getter of each property once and keeps nothing.
    /// @return how much text there was
    std::size_t AskForEverything() const;

    /// A service over this host.
    std::unique_ptr<tarnnuq::PropertyServiceAccess> Service() const;

private:
    testsupport::FakeCategoryInfoUtils m_utils;
    testsupport::HostLibrary m_library;
};

} // namespace bench
