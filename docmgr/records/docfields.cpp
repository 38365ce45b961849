#include "docmgr/records/docfields.h"

#include "docmgr/config/docgroupconfig.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/intl.h"
#include "docmgr/tools/resmgr.h"

namespace {

constexpr uint16_t STR_COL_NAME = 15700;
constexpr uint16_t STR_COL_SIZE = 15701;
constexpr uint16_t STR_COL_DIRECTORY = 15702;
const char* const NOT_SET = "---";

std::string DateText(const Date& date) { return intl::FormatDate(date); }
std::string TimeText(const Time& time, const Date& date) { return intl::FormatTime(time, date); }

// What the texts of a stamp show, as numbers: equal keys are equal texts. An unset date
// shows nothing, and a time shows neither its hundredths nor anything when its date is unset.
uint32_t DateKey(const Date& date) { return date.IsUnset() ? 0 : date.GetDate(); }
int32_t TimeKey(const Time& time, const Date& date)
{
    return date.IsUnset() ? -1
                          : int32_t((time.GetHour() % 24) * 10000 + (time.GetMin() % 60) * 100 +
                                    time.GetSec() % 60);
}

}  // namespace

std::string GetFieldString(const DocInfo& info, uint16_t columnId)
{
    switch (columnId) {
    case COL_NAME: return fsutil::FileName(info.entry);
    case COL_SIZE: return std::to_string(info.size);
    case COL_TITLE: return info.title;
    case COL_TOPIC: return info.topic;
    case COL_CREATED_DATE: return DateText(info.createdDate);
    case COL_CREATED_TIME: return TimeText(info.createdTime, info.createdDate);
    case COL_AUTHOR: return info.author;
    // The modified stamp is judged by what its texts show, the printed one by its values.
    case COL_MODIFIED_DATE:
        return DateKey(info.modifiedDate) == DateKey(info.createdDate) ? NOT_SET
                                                                        : DateText(info.modifiedDate);
    case COL_MODIFIED_TIME:
        return TimeKey(info.modifiedTime, info.modifiedDate) == TimeKey(info.createdTime, info.createdDate)
                   ? NOT_SET
                   : TimeText(info.modifiedTime, info.modifiedDate);
    case COL_MODIFIED_BY: return info.modifiedBy;
    case COL_PRINTED_DATE:
        return info.NeverPrinted() ? NOT_SET : DateText(info.printedDate);
    case COL_PRINTED_TIME:
        return info.NeverPrinted() ? NOT_SET : TimeText(info.printedTime, info.printedDate);
    case COL_PRINTED_BY: return info.NeverPrinted() ? NOT_SET : info.printedBy;
    case COL_COMMENT: return info.comment;
    case COL_KEYWORDS: return info.keywords;
    case COL_INFO0:
    case COL_INFO1:
    case COL_INFO2:
    case COL_INFO3: return info.info[columnId - COL_INFO0];
    case COL_DIRECTORY: return fsutil::DirName(info.entry);
    default: return {};
    }
}

std::string GetColumnTitle(uint16_t columnId, const DocGroupConfig& group)
{
    switch (columnId) {
    case COL_NAME: return ResString(STR_COL_NAME);
    case COL_SIZE: return ResString(STR_COL_SIZE);
    case COL_DIRECTORY: return ResString(STR_COL_DIRECTORY);
    case COL_INFO0:
    case COL_INFO1:
    case COL_INFO2:
    case COL_INFO3: return group.infoLabel[columnId - COL_INFO0];
    default:
        // Titles of columns 3..15 are strings 15700 + id.
        if (columnId >= COL_TITLE && columnId <= COL_KEYWORDS)
            return ResString(uint16_t(STR_COL_NAME + columnId));
        return {};
    }
}
