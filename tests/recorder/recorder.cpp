// A PDF library that does nothing but record the calls it receives. Tests steer and read it through the
// functions of RecorderControl.h.
#include "RecorderControl.h"

#include <charconv>
#include <cstring>
#include <deque>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr int recorderInstance = 4711;

struct Buffer
{
    int number;
    std::vector<char> bytes;
    std::size_t filled = 0;
    bool released = false;
};

struct State
{
    std::string log;
    std::map<std::string, int> callsUntilThrow;
    /// Released buffers stay, so that their addresses are not given out again.
    std::map<const void*, std::unique_ptr<Buffer>> buffers;
    int resultLength = 0;
};

State state;

/// What calls give back: set by a test, the last of several for good.
template <class Value>
std::map<std::string, std::deque<Value>> results;

std::string written(int number)
{
    return std::to_string(number);
}

std::string written(double number)
{
    char text[64];
    return std::string(text, std::to_chars(text, text + sizeof text, number).ptr);
}

std::string quoted(const char* bytes, std::size_t size)
{
    std::string text = "\"";
    for (const char byte : std::string_view(bytes, size)) {
        char escaped[8];
        std::snprintf(escaped, sizeof escaped, byte >= ' ' && byte <= '~' ? "%c" : "\\x%02x",
                      static_cast<unsigned char>(byte));
        text += escaped;
    }
    return text + '"';
}

Buffer* bufferAt(const void* address)
{
    const auto found = state.buffers.find(address);
    return found == state.buffers.end() ? nullptr : found->second.get();
}

std::string nameOf(const Buffer* buffer)
{
    if (buffer == nullptr)
        return "unknown buffer";
    return (buffer->released ? "released buffer " : "buffer ") + std::to_string(buffer->number);
}

/// A byte string: the caller's own characters, or a buffer.
std::string written(const char* text)
{
    if (const Buffer* buffer = bufferAt(text))
        return nameOf(buffer) + ' ' + quoted(buffer->bytes.data(), buffer->filled);
    return text == nullptr ? "null" : quoted(text, std::strlen(text));
}

/// A wide string: null or a buffer of 32-bit code units.
std::string written(const wchar_t* text)
{
    if (text == nullptr)
        return "null";
    const Buffer* buffer = bufferAt(text);
    std::string units;
    for (std::size_t at = 0; buffer != nullptr && at + 4 <= buffer->filled; at += 4) {
        std::uint32_t unit;
        std::memcpy(&unit, buffer->bytes.data() + at, sizeof unit);
        char escaped[16];
        std::snprintf(escaped, sizeof escaped, unit >= ' ' && unit <= '~' ? "%c" : "\\u{%x}", unit);
        units += escaped;
    }
    return nameOf(buffer) + " L\"" + units + '"';
}

/// The next of the values that a test has set; the last one stays.
template <class Value>
bool take(const std::string& key, Value& taken)
{
    const auto found = results<Value>.find(key);
    if (found == results<Value>.end())
        return false;
    taken = found->second.front();
    if (found->second.size() > 1)
        found->second.pop_front();
    return true;
}

void throwIfTold(const std::string& key)
{
    const auto found = state.callsUntilThrow.find(key);
    if (found != state.callsUntilThrow.end() && --found->second == 0)
        throw std::runtime_error("told to throw: " + key);
}

template <class Value>
Value resultOf(const std::string& name, const std::string& call)
{
    Value value{};
    if (!take(call, value))
        take(name, value);
    return value;
}

template <class Number>
void asResult(Number& result, const std::string& name, const std::string& call)
{
    result = static_cast<Number>(resultOf<double>(name, call));
}

template <class Character>
void asResult(const Character*& result, const std::string& name, const std::string& call)
{
    static std::basic_string<Character> text;
    text = resultOf<std::basic_string<Character>>(name, call);
    state.resultLength = static_cast<int>(text.size());
    result = text.c_str();
}

template <class... Arguments>
std::string callOf(const std::string& name, Arguments... arguments)
{
    std::string list;
    ((list += (list.empty() ? "" : ", ") + written(arguments)), ...);
    return name + '(' + list + ')';
}

/// Logs a call, then throws if a test wants that.
void log(const std::string& name, const std::string& call, int instance)
{
    state.log += call;
    if (instance != recorderInstance)
        state.log += " of instance " + std::to_string(instance);
    state.log += '\n';
    throwIfTold(name);
    throwIfTold(call);
}

template <class Result, class... Arguments>
Result recorded(const char* name, int instance, Arguments... arguments)
{
    const std::string call = callOf(name, arguments...);
    log(name, call, instance);
    Result result;
    asResult(result, name, call);
    return result;
}

/// The infrastructure's results are the true ones unless a test has set another.
int recordedInfrastructure(const std::string& name, const std::string& arguments, int instance, int truth = 0)
{
    log(name, name + '(' + arguments + ')', instance);
    double set = truth;
    take(name, set);
    return static_cast<int>(set);
}

} // namespace

#define RECORDER_EXPORT extern "C" __attribute__((visibility("default")))
#define RECORDER_ARGUMENTS(...) __VA_OPT__(, ) __VA_ARGS__
#define RECORDER_PARAMETERS(...) __VA_OPT__(, ) __VA_ARGS__

using I = int;
using D = double;
using W = const wchar_t*;
using B = const char*;

// int TPLSetPageLayout(int instance, int layout) { return recorded<int>("SetPageLayout", instance, layout); }
#define TPL_OP(Result, Name, Arguments, ...)                                                                 \
    RECORDER_EXPORT Result TPL##Name(int instance RECORDER_PARAMETERS(__VA_ARGS__))                          \
    {                                                                                                        \
        return recorded<Result>(#Name, instance RECORDER_ARGUMENTS Arguments);                               \
    }
#include "pdflibrary/operations.def"
#undef TPL_OP

RECORDER_EXPORT int TPLCreateLibrary()
{
    return recordedInfrastructure("CreateLibrary", "", recorderInstance, recorderInstance);
}

RECORDER_EXPORT void TPLReleaseLibrary(int instance)
{
    recordedInfrastructure("ReleaseLibrary", "", instance);
}

RECORDER_EXPORT char* TPLCreateBuffer(int instance, int size)
{
    recordedInfrastructure("CreateBuffer", written(size), instance);
    auto buffer = std::make_unique<Buffer>();
    buffer->number = static_cast<int>(state.buffers.size()) + 1;
    buffer->bytes.resize(static_cast<std::size_t>(size));
    char* address = buffer->bytes.data();
    state.buffers.emplace(address, std::move(buffer));
    return address;
}

RECORDER_EXPORT void TPLAddToBuffer(int instance, char* address, const char* source, int size)
{
    Buffer* buffer = bufferAt(address);
    recordedInfrastructure("AddToBuffer", nameOf(buffer) + ", " + written(size), instance);
    const std::size_t added = static_cast<std::size_t>(size);
    if (buffer == nullptr || buffer->bytes.size() - buffer->filled < added)
        return;
    std::memcpy(buffer->bytes.data() + buffer->filled, source, added);
    buffer->filled += added;
}

RECORDER_EXPORT void TPLReleaseBuffer(int instance, char* address)
{
    Buffer* buffer = bufferAt(address);
    recordedInfrastructure("ReleaseBuffer", nameOf(buffer), instance);
    if (buffer != nullptr)
        buffer->released = true;
}

RECORDER_EXPORT int TPLStringResultLength(int instance)
{
    return recordedInfrastructure("StringResultLength", "", instance, state.resultLength);
}

RECORDER_EXPORT int TPLAnsiStringResultLength(int instance)
{
    return recordedInfrastructure("AnsiStringResultLength", "", instance, state.resultLength);
}

RECORDER_EXPORT const char* TPLRecorderLog()
{
    return state.log.c_str();
}

RECORDER_EXPORT void TPLRecorderClearLog()
{
    state.log.clear();
}

RECORDER_EXPORT void TPLRecorderReset()
{
    state = State();
    results<double>.clear();
    results<std::wstring>.clear();
    results<std::string>.clear();
}

RECORDER_EXPORT void TPLRecorderReturnNumber(const char* call, double number)
{
    results<double>[call].push_back(number);
}

RECORDER_EXPORT void TPLRecorderReturnWide(const char* call, const wchar_t* characters, int length)
{
    results<std::wstring>[call].emplace_back(characters, static_cast<std::size_t>(length));
}

RECORDER_EXPORT void TPLRecorderReturnBytes(const char* call, const char* bytes, int length)
{
    results<std::string>[call].emplace_back(bytes, static_cast<std::size_t>(length));
}

RECORDER_EXPORT void TPLRecorderThrow(const char* call, int countdown)
{
    state.callsUntilThrow[call] = countdown;
}
