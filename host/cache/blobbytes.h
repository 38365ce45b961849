#pragma once
// Numbers and byte runs in the cache's blobs: in the machine's own order, since the cache
// never leaves the user's machine; a run is its 32-bit length, then its bytes.
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace blobbytes {

template <typename T>
void Put(std::string& out, T value)
{
    char bytes[sizeof(T)];
    std::memcpy(bytes, &value, sizeof(T));
    out.append(bytes, sizeof(T));
}

inline void PutRun(std::string& out, std::string_view run)
{
    Put(out, uint32_t(run.size()));
    out += run;
}

// Each Get takes from the front of `in`; false when too little is left.
template <typename T>
bool Get(std::string_view& in, T& value)
{
    if (in.size() < sizeof(T))
        return false;
    std::memcpy(&value, in.data(), sizeof(T));
    in.remove_prefix(sizeof(T));
    return true;
}

inline bool GetRun(std::string_view& in, std::string_view& run)
{
    uint32_t size = 0;
    if (!Get(in, size) || in.size() < size)
        return false;
    run = in.substr(0, size);
    in.remove_prefix(size);
    return true;
}

}  // namespace blobbytes
