#include "tarn/ITarnCategoryInfo.h"
#include "tarn/ITarnCategoryInfoUtils.h"
#include "tarn/ITarnDisciplineInfo.h"
#include "tarnnuq/INuqLogger.h"
#include "zept/IDocumentEventArgs.h"
#include "zept/IFamilyFile.h"
#include "zept/IFamilyParameter.h"
#include "zept/IGeometry.h"

#include <cstddef>
#include <cstring>
#include <gtest/gtest.h>
#include <type_traits>

#if !defined(_MSC_VER)

namespace {

/// The place of a virtual operation among the class's virtual functions, by the Itanium C++ ABI: a pointer to a virtual
/// member function is its offset in the table plus one.
template <typename Operation>
std::size_t SlotOf(Operation operation)
{
    std::ptrdiff_t offsetPlusOne = 0;
    static_assert(std::is_member_function_pointer_v<Operation>);
    std::memcpy(&offsetPlusOne, &operation, sizeof(offsetPlusOne));
    return static_cast<std::size_t>(offsetPlusOne - 1) / sizeof(void*);
}

/// The destructor comes first and takes two places.
constexpr std::size_t FirstSlot = 2;

} // namespace

TEST(VirtualOrder, OfTheLoggerIsInfoErrorWarnDebug)
{
    using tarnnuq::INuqLogger;
    EXPECT_EQ(SlotOf(&INuqLogger::Info), FirstSlot);
    EXPECT_EQ(SlotOf(&INuqLogger::Error), FirstSlot + 1);
    EXPECT_EQ(SlotOf(&INuqLogger::Warn), FirstSlot + 2);
    EXPECT_EQ(SlotOf(&INuqLogger::Debug), FirstSlot + 3);
}

TEST(VirtualOrder, OfAFamilyFileIsTypesRegenerateCurrentCompute)
{
    using zept::IFamilyFile;
    EXPECT_EQ(SlotOf(&IFamilyFile::GetTypeInfo), FirstSlot);
    EXPECT_EQ(SlotOf(&IFamilyFile::RegenerateGeometry), FirstSlot + 1);
    EXPECT_EQ(SlotOf(&IFamilyFile::GetCurrentGeometry), FirstSlot + 2);
    EXPECT_EQ(SlotOf(&IFamilyFile::ComputeDrivenParameters), FirstSlot + 3);
}

TEST(VirtualOrder, OfAFamilyParameterIsIdentityValuesClone)
{
    using zept::IFamilyParameter;
    EXPECT_EQ(SlotOf(&IFamilyParameter::GetIdentity), FirstSlot);
    EXPECT_EQ(SlotOf(&IFamilyParameter::GetText), FirstSlot + 1);
    EXPECT_EQ(SlotOf(&IFamilyParameter::SetText), FirstSlot + 2);
    EXPECT_EQ(SlotOf(&IFamilyParameter::GetBool), FirstSlot + 3);
    EXPECT_EQ(SlotOf(&IFamilyParameter::SetBool), FirstSlot + 4);
    EXPECT_EQ(SlotOf(&IFamilyParameter::GetDouble), FirstSlot + 5);
    EXPECT_EQ(SlotOf(&IFamilyParameter::SetDouble), FirstSlot + 6);
    EXPECT_EQ(SlotOf(&IFamilyParameter::GetInt), FirstSlot + 7);
    EXPECT_EQ(SlotOf(&IFamilyParameter::SetInt), FirstSlot + 8);
    EXPECT_EQ(SlotOf(&IFamilyParameter::Clone), FirstSlot + 9);
}

TEST(VirtualOrder, OfADocumentEventIsTypeDocument)
{
    EXPECT_EQ(SlotOf(&zept::IDocumentEventArgs::GetEventType), FirstSlot);
    EXPECT_EQ(SlotOf(&zept::IDocumentEventArgs::GetDocument), FirstSlot + 1);
}

#endif

TEST(HostInterfaces, HaveVirtualDestructors)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<tarnnuq::INuqLogger>);
    EXPECT_TRUE(std::has_virtual_destructor_v<zept::IFamilyFile>);
    EXPECT_TRUE(std::has_virtual_destructor_v<zept::IFamilyParameter>);
    EXPECT_TRUE(std::has_virtual_destructor_v<zept::IGeometry>);
    EXPECT_TRUE(std::has_virtual_destructor_v<tarn::ITarnCategoryInfo>);
    EXPECT_TRUE(std::has_virtual_destructor_v<tarn::ITarnDisciplineInfo>);
}

TEST(HostInterfaces, ThatAreServicesCannotBeCopied)
{
    EXPECT_FALSE(std::is_copy_constructible_v<tarnnuq::INuqLogger>);
    EXPECT_FALSE(std::is_copy_assignable_v<tarnnuq::INuqLogger>);
    EXPECT_FALSE(std::is_copy_assignable_v<tarn::ITarnCategoryInfoUtils>);
    EXPECT_FALSE(std::is_copy_assignable_v<zept::IFamilyFile>);
}
