#include "bench/samplerows.h"

#include <iterator>
#include <string>

namespace {

const char* const WORDS[] = {"Annual",    "report",  "Budget",   "minutes", "Quarterly", "review",
                             "Project",   "plan",    "Meeting",  "notes",   "Invoice",   "draft",
                             "Übersicht", "Angebot", "contract", "Summary", "letter",    "memo"};

std::string Words(std::mt19937& rng, int count)
{
    std::uniform_int_distribution<size_t> pick(0, std::size(WORDS) - 1);
    std::string text;
    for (int i = 0; i < count; ++i) {
        if (i)
            text += ' ';
        text += WORDS[pick(rng)];
    }
    return text;
}

}  // namespace

std::unique_ptr<DocInfo> SampleRow(size_t i, std::mt19937& rng)
{
    std::uniform_int_distribution<unsigned> year(1995, 2024), month(1, 12), day(1, 28);
    std::uniform_int_distribution<unsigned> hour(0, 23), minute(0, 59), number(1, 9999);
    auto info = std::make_unique<DocInfo>();
    info->entry = "/home/user/Documents/library/doc" + std::to_string(i) + ".odt";
    info->size = number(rng) * 37;
    info->title = Words(rng, 3) + ' ' + std::to_string(number(rng));
    info->topic = Words(rng, 2);
    info->author = i % 3 ? "Erika Mustermann" : "Zoë Ünal";
    info->createdDate = Date(day(rng), month(rng), year(rng));
    info->createdTime = Time(hour(rng), minute(rng), minute(rng));
    if (i % 5) {
        info->modifiedDate = Date(day(rng), month(rng), year(rng));
        info->modifiedTime = Time(hour(rng), minute(rng), minute(rng));
        info->modifiedBy = info->author;
    }
    info->printedDate = info->createdDate;
    info->printedTime = info->createdTime;
    info->printedBy = info->author;
    if (i % 4 == 0)
        info->keywords = Words(rng, 4);
    return info;
}
