#include "docmgr/tools/tokens.h"

#include <limits>

namespace tokens {

unsigned short Count(std::string_view text, char separator)
{
    if (text.empty())
        return 0;
    size_t count = 1;
    for (char c : text)
        count += c == separator;
    return static_cast<unsigned short>(count);
}

std::string Get(std::string_view text, unsigned short index, char separator)
{
    size_t start = 0;
    for (unsigned short i = 0; i < index; ++i) {
        const size_t next = text.find(separator, start);
        if (next == std::string_view::npos)
            return {};
        start = next + 1;
    }
    const size_t end = text.find(separator, start);
    return std::string(text.substr(start, end == std::string_view::npos ? std::string_view::npos : end - start));
}

std::vector<std::string> Split(std::string_view text, char separator)
{
    std::vector<std::string> parts;
    if (text.empty())
        return parts;
    size_t start = 0;
    for (;;) {
        const size_t end = text.find(separator, start);
        parts.emplace_back(text.substr(start, end == std::string_view::npos ? std::string_view::npos : end - start));
        if (end == std::string_view::npos)
            return parts;
        start = end + 1;
    }
}

unsigned long long ToNumber(std::string_view text)
{
    unsigned long long value = 0;
    for (char c : text) {
        if (c < '0' || c > '9')
            break;
        const unsigned digit = unsigned(c - '0');
        if (value > (std::numeric_limits<unsigned long long>::max() - digit) / 10)
            return std::numeric_limits<unsigned long long>::max();
        value = value * 10 + digit;
    }
    return value;
}

long long ToSigned(std::string_view text)
{
    const bool negative = !text.empty() && text.front() == '-';
    const unsigned long long magnitude = ToNumber(negative ? text.substr(1) : text);
    const unsigned long long limit = (unsigned long long)std::numeric_limits<long long>::max();
    const long long value = magnitude > limit ? std::numeric_limits<long long>::max() : (long long)magnitude;
    return negative ? -value : value;
}

}  // namespace tokens
