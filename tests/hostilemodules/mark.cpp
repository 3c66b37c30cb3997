#include <cstdio>
#include <cstdlib>

/// Makes the file that the environment names.
__attribute__((constructor)) static void leaveMark()
{
    const char* const name = std::getenv("HOSTILE_MARK");
    std::FILE* const mark = name != nullptr ? std::fopen(name, "w") : nullptr;
    if (mark != nullptr)
        std::fclose(mark);
}
