#include "Records/ICategory.h"
#include "Records/ICategoryMapping.h"
#include "Records/ICategoryProperty.h"
#include "Records/IDetailedProjectComponent.h"
#include "Records/ILegend.h"
#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"
#include "Records/ISpecification.h"
#include "Records/ProjectComponentExistingCheck.h"

#include <gtest/gtest.h>
#include <memory>
#include <type_traits>

namespace {

using namespace tarnnuq;

/// A record that tells when its own destructor ran.
template <typename Record>
class Probe : public Record
{
public:
    explicit Probe(bool& destroyed) : m_destroyed(destroyed) {}
    Probe(const Probe&) = delete;
    Probe& operator=(const Probe&) = delete;
    ~Probe() override { m_destroyed = true; }

private:
    bool& m_destroyed;
};

template <typename Record>
class RecordTraitsTest : public testing::Test
{
};

using Records = testing::Types<ICategory, ICategoryMapping, ICategoryProperty, IComponent, IDetailedProjectComponent,
    ILegend, IParameter, IParameterDefinition, IProjectComponent, ISpecification, ProjectComponentExistingCheck>;
TYPED_TEST_SUITE(RecordTraitsTest, Records);

TYPED_TEST(RecordTraitsTest, IsPolymorphicWithAVirtualDestructor)
{
    EXPECT_TRUE(std::is_polymorphic_v<TypeParam>);
    EXPECT_TRUE(std::has_virtual_destructor_v<TypeParam>);
}

TYPED_TEST(RecordTraitsTest, IsDefaultConstructibleAndCopyable)
{
    EXPECT_TRUE(std::is_default_constructible_v<TypeParam>);
    EXPECT_TRUE(std::is_copy_constructible_v<TypeParam>);
    EXPECT_TRUE(std::is_copy_assignable_v<TypeParam>);
}

TYPED_TEST(RecordTraitsTest, DeletingThroughTheRecordRunsTheDestructorOfADerivedOne)
{
    bool destroyed = false;
    std::unique_ptr<TypeParam> record = std::make_unique<Probe<TypeParam>>(destroyed);
    record.reset();
    EXPECT_TRUE(destroyed);
}

TYPED_TEST(RecordTraitsTest, KnowsItsRunTimeTypeAcrossTheLibraryBorder)
{
    bool destroyed = false;
    const Probe<TypeParam> probe(destroyed);
    const TypeParam& record = probe;
    EXPECT_EQ(typeid(record), typeid(Probe<TypeParam>));
    EXPECT_EQ(typeid(TypeParam(record)), typeid(TypeParam));
}

} // namespace
