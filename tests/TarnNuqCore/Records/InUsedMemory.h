#pragma once

#include <cstddef>
#include <new>

/// A default-constructed record in memory that was full of something else: a member without a default is found out
/// instead of being zero by luck.
template <typename Record>
class InUsedMemory
{
public:
    InUsedMemory() : m_record(new (Filled(m_memory)) Record) {}
    ~InUsedMemory() { m_record->~Record(); }
    InUsedMemory(const InUsedMemory&) = delete;
    InUsedMemory& operator=(const InUsedMemory&) = delete;

    const Record& operator*() const { return *m_record; }

private:
    static void* Filled(std::byte (&memory)[sizeof(Record)])
    {
        // Volatile: what was there before an object may otherwise count as dead and not be written at all.
        for (volatile std::byte& cell : memory) {
            cell = std::byte{0xA5};
        }
        return memory;
    }

    alignas(Record) std::byte m_memory[sizeof(Record)];
    Record* m_record;
};
