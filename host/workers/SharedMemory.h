#pragma once

#include <sys/mman.h>

#include <new>

namespace host {

/// An object in memory that this process shares with those it forks later.
///
/// Throws std::bad_alloc when there is no such memory.
template <class Object>
class SharedMemory
{
public:
    SharedMemory()
        : m_memory(mmap(nullptr, sizeof(Object), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0))
    {
        if (m_memory == MAP_FAILED)
            throw std::bad_alloc();
        m_object = new (m_memory) Object;
    }
    ~SharedMemory() { munmap(m_memory, sizeof(Object)); }
    SharedMemory(const SharedMemory&) = delete;
    SharedMemory& operator=(const SharedMemory&) = delete;

    Object* operator->() const { return m_object; }
    Object& operator*() const { return *m_object; }

private:
    void* m_memory;
    Object* m_object;
};

} // namespace host
