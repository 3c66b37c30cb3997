#pragma once

#include <cstdint>

namespace engine {

/// Where an object of a document lies.
struct ObjectPlace
{
    enum class Kind { Free, Plain, Compressed };

    Kind kind = Kind::Free;
    std::int64_t position = 0; ///< Offset in the file, or number of the object stream.
    int detail = 0;            ///< Generation, or index in the object stream.
};

} // namespace engine
