#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

/// A target: takes any bytes, and ends the process where the project does not do as it promises.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// What targets judge by.
namespace fuzz {

inline std::string_view textOf(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

/// Ends the process with words for what is wrong, unless it is as it should be.
inline void require(bool holds, const std::string& what)
{
    if (holds)
        return;
    std::fprintf(stderr, "FOUND: %s\n", what.c_str());
    std::abort();
}

/// The same for two things that should be one.
inline void requireSame(const std::string& one, const std::string& other, const std::string& what)
{
    require(one == other, what + "\n--- " + one + "\n+++ " + other);
}

/// What a target decides without being told: an input always leads to the same decisions, and each further
/// variant to others.
class Choices
{
public:
    explicit Choices(std::string_view input, unsigned variant = 0)
    {
        std::uint32_t hash = 2166136261U + variant;
        for (const char byte : input)
            hash = (hash ^ static_cast<unsigned char>(byte)) * 16777619U;
        m_random.seed(hash);
    }

    /// From 0 to `count` - 1.
    int below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    bool oneIn(int count) { return below(count) == 0; }

private:
    std::mt19937 m_random;
};

/// A folder in memory, where there is one, that goes with the process.
class Folder
{
public:
    Folder()
    {
        const bool isInMemory = std::filesystem::is_directory("/dev/shm");
        m_path = (isInMemory ? "/dev/shm" : std::filesystem::temp_directory_path().string()) + "/fuzz-XXXXXX";
        require(mkdtemp(m_path.data()) != nullptr, "no folder can be made");
    }
    ~Folder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::string file(const std::string& name) const { return m_path + "/" + name; }
    std::string put(const std::string& name, std::string_view bytes) const
    {
        std::ofstream(file(name), std::ios::binary) << bytes;
        return file(name);
    }
    std::string take(const std::string& name) const
    {
        std::ifstream stream(file(name), std::ios::binary);
        std::string bytes{std::istreambuf_iterator<char>(stream), {}};
        std::filesystem::remove(file(name));
        return bytes;
    }

private:
    std::string m_path;
};

inline const Folder& workFolder()
{
    static const Folder folder;
    return folder;
}

} // namespace fuzz
