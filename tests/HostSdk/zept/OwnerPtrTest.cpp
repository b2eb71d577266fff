#include "zept/OwnerPtr.h"

#include <gtest/gtest.h>
#include <type_traits>
#include <utility>

using zept::OwnerPtr;

namespace {

class Base
{
public:
    explicit Base(int& alive) : m_alive(alive) { ++m_alive; }
    virtual ~Base() { --m_alive; }
    Base(const Base&) = delete;
    Base& operator=(const Base&) = delete;

    int value = 1;

private:
    int& m_alive;
};

class Derived final : public Base
{
public:
    using Base::Base;
};

class Unrelated
{
};

class AnOwnerPtr : public ::testing::Test
{
protected:
    int m_alive = 0;
};

} // namespace

TEST_F(AnOwnerPtr, OwnsNothingByDefault)
{
    const OwnerPtr<Base> owner;
    EXPECT_EQ(owner.get(), nullptr);
    EXPECT_FALSE(owner);
    EXPECT_TRUE(owner == nullptr);
    EXPECT_TRUE(nullptr == owner);
    EXPECT_FALSE(owner != nullptr);
    EXPECT_FALSE(nullptr != owner);
}

TEST_F(AnOwnerPtr, IsMadeFromNull)
{
    const OwnerPtr<Base> owner = nullptr;
    EXPECT_FALSE(owner);
}

TEST_F(AnOwnerPtr, GivesAccessToItsObject)
{
    auto* const object = new Base(m_alive);
    const OwnerPtr<Base> owner(object);
    EXPECT_EQ(owner.get(), object);
    EXPECT_EQ(&*owner, object);
    owner->value = 5;
    EXPECT_EQ(object->value, 5);
    EXPECT_TRUE(owner);
    EXPECT_TRUE(owner != nullptr);
    EXPECT_TRUE(nullptr != owner);
    EXPECT_FALSE(owner == nullptr);
}

TEST_F(AnOwnerPtr, DestroysItsObject)
{
    {
        const OwnerPtr<Base> owner(new Derived(m_alive));
        EXPECT_EQ(m_alive, 1);
    }
    EXPECT_EQ(m_alive, 0);
}

TEST_F(AnOwnerPtr, IsMoveOnly)
{
    EXPECT_FALSE(std::is_copy_constructible_v<OwnerPtr<Base>>);
    EXPECT_FALSE(std::is_copy_assignable_v<OwnerPtr<Base>>);
    EXPECT_TRUE(std::is_nothrow_move_constructible_v<OwnerPtr<Base>>);
    EXPECT_TRUE(std::is_nothrow_move_assignable_v<OwnerPtr<Base>>);
    EXPECT_FALSE((std::is_convertible_v<Base*, OwnerPtr<Base>>)) << "ownership must be taken over explicitly";
}

TEST_F(AnOwnerPtr, HandsItsObjectOnWhenMoved)
{
    OwnerPtr<Base> from(new Base(m_alive));
    const OwnerPtr<Base> to(std::move(from));
    EXPECT_EQ(from.get(), nullptr);
    EXPECT_TRUE(to);
    EXPECT_EQ(m_alive, 1);
}

TEST_F(AnOwnerPtr, DestroysWhatItHadWhenAssigned)
{
    OwnerPtr<Base> owner(new Base(m_alive));
    owner = OwnerPtr<Base>(new Base(m_alive));
    EXPECT_EQ(m_alive, 1);
    owner = nullptr;
    EXPECT_EQ(m_alive, 0);
}

TEST_F(AnOwnerPtr, TakesOverTheOwnerOfADerivedObject)
{
    OwnerPtr<Derived> derived(new Derived(m_alive));
    Derived* const object = derived.get();
    const OwnerPtr<Base> base(std::move(derived));
    EXPECT_EQ(base.get(), object);
    EXPECT_EQ(derived.get(), nullptr);
}

TEST_F(AnOwnerPtr, TakesOverNoUnrelatedOwner)
{
    EXPECT_FALSE((std::is_constructible_v<OwnerPtr<Base>, OwnerPtr<Unrelated>>));
    EXPECT_FALSE((std::is_constructible_v<OwnerPtr<Derived>, OwnerPtr<Base>>));
}

TEST_F(AnOwnerPtr, ResetDestroysAndTakesOver)
{
    OwnerPtr<Base> owner(new Base(m_alive));
    auto* const next = new Base(m_alive);
    owner.reset(next);
    EXPECT_EQ(owner.get(), next);
    EXPECT_EQ(m_alive, 1);
    owner.reset();
    EXPECT_EQ(m_alive, 0);
    EXPECT_FALSE(owner);
}

TEST_F(AnOwnerPtr, ReleaseHandsTheObjectToTheCaller)
{
    OwnerPtr<Base> owner(new Base(m_alive));
    Base* const object = owner.release();
    EXPECT_FALSE(owner);
    EXPECT_EQ(m_alive, 1);
    delete object;
    EXPECT_EQ(m_alive, 0);
    EXPECT_EQ(owner.release(), nullptr);
}
