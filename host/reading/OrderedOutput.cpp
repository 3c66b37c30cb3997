#include "OrderedOutput.h"

#include "host/terminal/StandardError.h"
#include "host/terminal/StandardOutput.h"

#include <cerrno>

namespace host {

namespace {

void print(const std::string& out, const std::string& error)
{
    if (!out.empty())
        printResult(out);
    if (!error.empty())
        printError(error);
}

} // namespace

void OrderedOutput::add(std::size_t place, std::string out, std::string error)
{
    if (place != m_next)
        return keep(place, out, error);
    print(out, error);
    ++m_next;
    while (!m_waiting.empty() && m_waiting.begin()->first == m_next)
        printNext();
}

void OrderedOutput::finish()
{
    while (!m_waiting.empty())
        printNext();
}

void OrderedOutput::keep(std::size_t place, const std::string& out, const std::string& error)
{
    Waiting waiting{out + error, -1, out.size(), out.size() + error.size()};
    // Without a file there is only the memory.
    if (m_inMemory + waiting.size <= mostInMemory || !keepInFile(waiting))
        m_inMemory += waiting.size;
    m_waiting.insert_or_assign(place, std::move(waiting));
}

bool OrderedOutput::keepInFile(Waiting& waiting)
{
    if (m_file == nullptr)
        m_file.reset(std::tmpfile());
    if (m_file == nullptr || std::fseek(m_file.get(), 0, SEEK_END) != 0)
        return false;
    const long offset = std::ftell(m_file.get());
    if (offset < 0 || std::fwrite(waiting.bytes.data(), 1, waiting.size, m_file.get()) != waiting.size ||
        std::fflush(m_file.get()) != 0)
        return false;
    waiting.offset = offset;
    waiting.bytes = {};
    return true;
}

void OrderedOutput::printNext()
{
    const auto first = m_waiting.begin();
    Waiting waiting = std::move(first->second);
    m_next = first->first + 1;
    m_waiting.erase(first);
    if (waiting.offset >= 0)
        readBack(waiting);
    else
        m_inMemory -= waiting.size;
    print(waiting.bytes.substr(0, waiting.outSize), waiting.bytes.substr(waiting.outSize));
}

void OrderedOutput::readBack(Waiting& waiting)
{
    waiting.bytes.resize(waiting.size);
    if (std::fseek(m_file.get(), waiting.offset, SEEK_SET) != 0 ||
        std::fread(waiting.bytes.data(), 1, waiting.size, m_file.get()) != waiting.size)
        throw OutputError(errno);
}

} // namespace host
