#pragma once

#include "ObjectIndex.h"
#include "WorkBudget.h"
#include "engine/syntax/ObjectReader.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace engine {

/// Objects out of object streams, each of which is decoded no further than was needed so far.
class ObjectStreamCache
{
public:
    /// All three must outlive the cache.
    ObjectStreamCache(FileWindows& file, ObjectIndex& index, WorkBudget& budget)
        : m_objects(file), m_index(index), m_budget(budget)
    {}

    /// The value of object `number`, which is the one at `place` in the stream object `stream`; good until
    /// the next call. \returns nothing at the first oddity.
    std::optional<std::string_view> object(int stream, int place, int number);

private:
    struct Decoded
    {
        std::string text;
        std::size_t bodies = 0; // where the objects begin in it
        bool complete = false;
        std::vector<std::pair<int, std::size_t>> objects; // number, start in the text

        std::size_t bodySize() const { return text.size() - bodies; }
        bool holds(int place, int number) const;
        std::size_t endOf(std::size_t start) const;
        std::size_t memory() const { return text.size() + objects.size() * sizeof objects[0]; }
    };

    std::size_t nextSize(const Decoded* known, std::size_t start) const;
    const Decoded* decoded(int number, std::size_t size);
    bool decode(int number, std::size_t size, Decoded& stream);
    const Decoded* keep(int number, Decoded stream);
    static bool readHeader(std::string_view text, std::int64_t count, Decoded& stream);

    ObjectReader m_objects;
    ObjectIndex& m_index;
    WorkBudget& m_budget;
    std::map<int, Decoded> m_streams;
    std::size_t m_memory = 0;
    std::size_t m_expected =
        2048; // bytes of a stream's objects to decode at first: as many as the last one took
};

} // namespace engine
