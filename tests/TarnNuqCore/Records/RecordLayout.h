#pragma once

#include <cstddef>
#include <gtest/gtest.h>

/**
 * Walks through a record's members in the order in which hosts were built against them.
 *
 * Every member must lie directly behind the one before (alignment apart), so that a swapped, widened or added member
 * is found by its address. The records are polymorphic: what is not a member of theirs is the pointer at their start.
 */
template <typename Record>
class RecordLayout
{
public:
    /// @param inherited the size of what stands before the record's own members
    explicit RecordLayout(const Record& record, std::size_t inherited = sizeof(void*))
        : m_record(record), m_end(inherited)
    {
    }

    /// Expects the next member to be this one.
    template <typename Member>
    RecordLayout& Next(const char* name, const Member& member)
    {
        const std::size_t offset = Offset(&member);
        EXPECT_EQ(offset, AlignedEnd(alignof(Member))) << name;
        m_end = offset + sizeof(Member);
        return *this;
    }

    /// Expects no further member.
    void End() const { EXPECT_EQ(sizeof(Record), AlignedEnd(alignof(Record))); }

private:
    std::size_t Offset(const void* member) const
    {
        return static_cast<std::size_t>(
            static_cast<const std::byte*>(member) - static_cast<const std::byte*>(static_cast<const void*>(&m_record)));
    }

    std::size_t AlignedEnd(std::size_t alignment) const { return (m_end + alignment - 1) / alignment * alignment; }

    const Record& m_record;
    std::size_t m_end;
};
