#include "host/cache/packedreading.h"

#include <array>
#include <cstdint>

#include "host/cache/blobbytes.h"

using namespace blobbytes;

namespace {

// A blob starts with this byte: a blob of another form reads as a miss, never as fields.
constexpr char kForm = 1;

// The texts in the order they are kept.
template <typename Info>
auto TextsOf(Info& info)
{
    return std::array{&info.title,    &info.topic,   &info.author,  &info.modifiedBy, &info.printedBy, &info.comment,
                      &info.keywords, &info.info[0], &info.info[1], &info.info[2],    &info.info[3]};
}

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
        PutRun(out, *text);
    return out;
}

bool UnpackReading(std::string_view packed, DocReading& reading)
{
    std::string_view in = packed;
    char form = 0, problem = 0, isDoc = 0;
    if (!Get(in, form) || form != kForm || !Get(in, problem) || !Get(in, isDoc))
        return false;
    reading.problem = ReadProblem(problem);
    reading.info.reset();
    if (!isDoc)
        return in.empty();
    auto info = std::make_unique<DocInfo>();
    uint32_t dates[3] = {};
    int32_t times[3] = {};
    bool ok = Get(in, info->size);
    for (uint32_t& date : dates)
        ok = ok && Get(in, date);
    for (int32_t& time : times)
        ok = ok && Get(in, time);
    std::string_view text;
    for (std::string* field : TextsOf(*info)) {
        ok = ok && GetRun(in, text);
        if (ok)
            field->assign(text);
    }
    if (!ok || !in.empty())
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
