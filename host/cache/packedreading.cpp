#include "host/cache/packedreading.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace {

// A blob starts with this byte: a blob of another form reads as a miss, never as fields.
constexpr char kForm = 1;

template <typename T>
void Put(std::string& out, T value)
{
    char bytes[sizeof(T)];
    std::memcpy(bytes, &value, sizeof(T));
    out.append(bytes, sizeof(T));
}

void PutText(std::string& out, const std::string& text)
{
    Put(out, uint32_t(text.size()));
    out += text;
}

// The texts in the order they are kept.
template <typename Info>
auto TextsOf(Info& info)
{
    return std::array{&info.title,    &info.topic,   &info.author,  &info.modifiedBy, &info.printedBy, &info.comment,
                      &info.keywords, &info.info[0], &info.info[1], &info.info[2],    &info.info[3]};
}

class Reader {
public:
    explicit Reader(std::string_view bytes) : rest_(bytes) {}
    template <typename T>
    bool Get(T& value)
    {
        if (rest_.size() < sizeof(T))
            return false;
        std::memcpy(&value, rest_.data(), sizeof(T));
        rest_.remove_prefix(sizeof(T));
        return true;
    }
    bool GetText(std::string& text)
    {
        uint32_t size = 0;
        if (!Get(size) || rest_.size() < size)
            return false;
        text.assign(rest_.data(), size);
        rest_.remove_prefix(size);
        return true;
    }
    bool AtEnd() const { return rest_.empty(); }

private:
    std::string_view rest_;
};

}  // namespace

std::string PackReading(const DocReading& reading)
{
    std::string out;
    out += kForm;
    out += char(reading.problem);
    const DocInfo* info = reading.info.get();
    out += char(info ? 1 : 0);
    if (!info)
        return out;
    Put(out, info->size);
    for (uint32_t date : {info->createdDate.GetDate(), info->modifiedDate.GetDate(), info->printedDate.GetDate()})
        Put(out, date);
    for (int32_t time : {info->createdTime.GetTime(), info->modifiedTime.GetTime(), info->printedTime.GetTime()})
        Put(out, time);
    for (const std::string* text : TextsOf(*info))
        PutText(out, *text);
    return out;
}

bool UnpackReading(std::string_view packed, DocReading& reading)
{
    Reader in(packed);
    char form = 0, problem = 0, isDoc = 0;
    if (!in.Get(form) || form != kForm || !in.Get(problem) || !in.Get(isDoc))
        return false;
    reading.problem = ReadProblem(problem);
    reading.info.reset();
    if (!isDoc)
        return in.AtEnd();
    auto info = std::make_unique<DocInfo>();
    uint32_t dates[3] = {};
    int32_t times[3] = {};
    bool ok = in.Get(info->size);
    for (uint32_t& date : dates)
        ok = ok && in.Get(date);
    for (int32_t& time : times)
        ok = ok && in.Get(time);
    for (std::string* text : TextsOf(*info))
        ok = ok && in.GetText(*text);
    if (!ok || !in.AtEnd())
        return false;
    info->createdDate = Date(dates[0]);
    info->modifiedDate = Date(dates[1]);
    info->printedDate = Date(dates[2]);
    info->createdTime = Time(times[0]);
    info->modifiedTime = Time(times[1]);
    info->printedTime = Time(times[2]);
    reading.info = std::move(info);
    return true;
}
