#include "docmgr/records/docfields.h"

#include <algorithm>

#include "docmgr/config/docgroupconfig.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/intl.h"
#include "docmgr/tools/resmgr.h"
#include "resources/resids.h"

namespace {

const char* const NOT_SET = "---";

std::string DateText(const Date& date)
{
    return intl::FormatDate(date);
}
std::string TimeText(const Time& time, const Date& date)
{
    return intl::FormatTime(time, date);
}

// What the texts of a stamp show, as numbers: equal keys are equal texts. An unset date
// shows nothing, and a time shows neither its hundredths nor anything when its date is unset.
uint32_t DateKey(const Date& date)
{
    return date.IsUnset() ? 0 : date.GetDate();
}
int32_t TimeKey(const Time& time, const Date& date)
{
    return date.IsUnset() ? -1
                          : int32_t((time.GetHour() % 24) * 10000 + (time.GetMin() % 60) * 100 + time.GetSec() % 60);
}

// The last component of a path.
std::string_view NameOf(std::string_view path)
{
    const auto slash = std::find(path.rbegin(), path.rend(), '/');
    return path.substr(size_t(path.rend() - slash));
}

}  // namespace

FieldKind KindOfColumn(uint16_t columnId)
{
    switch (columnId) {
    case COL_NAME: return FieldKind::Name;
    case COL_SIZE: return FieldKind::Size;
    case COL_CREATED_DATE:
    case COL_MODIFIED_DATE:
    case COL_PRINTED_DATE: return FieldKind::Date;
    case COL_CREATED_TIME:
    case COL_MODIFIED_TIME:
    case COL_PRINTED_TIME: return FieldKind::Time;
    case COL_DIRECTORY: return FieldKind::Directory;
    default: return columnId >= COL_TITLE && columnId <= COL_INFO3 ? FieldKind::Text : FieldKind::None;
    }
}

const std::string& TextField(const DocInfo& info, uint16_t columnId)
{
    switch (columnId) {
    case COL_TITLE: return info.title;
    case COL_TOPIC: return info.topic;
    case COL_AUTHOR: return info.author;
    case COL_MODIFIED_BY: return info.modifiedBy;
    case COL_PRINTED_BY: return info.printedBy;
    case COL_COMMENT: return info.comment;
    case COL_KEYWORDS: return info.keywords;
    default: return info.info[size_t(columnId - COL_INFO0) % info.info.size()];
    }
}

const Date& DateField(const DocInfo& info, uint16_t columnId)
{
    return columnId == COL_CREATED_DATE    ? info.createdDate
           : columnId == COL_MODIFIED_DATE ? info.modifiedDate
                                           : info.printedDate;
}

const Time& TimeField(const DocInfo& info, uint16_t columnId)
{
    return columnId == COL_CREATED_TIME    ? info.createdTime
           : columnId == COL_MODIFIED_TIME ? info.modifiedTime
                                           : info.printedTime;
}

std::string_view FieldView(const DocInfo& info, uint16_t columnId, std::string& scratch)
{
    // The modified stamp is judged by what its texts show, the printed one by its values.
    if (columnId >= COL_PRINTED_DATE && columnId <= COL_PRINTED_BY && info.NeverPrinted())
        return NOT_SET;
    if (columnId == COL_MODIFIED_DATE && DateKey(info.modifiedDate) == DateKey(info.createdDate))
        return NOT_SET;
    if (columnId == COL_MODIFIED_TIME &&
        TimeKey(info.modifiedTime, info.modifiedDate) == TimeKey(info.createdTime, info.createdDate))
        return NOT_SET;
    switch (KindOfColumn(columnId)) {
    case FieldKind::Name: return NameOf(info.entry);
    case FieldKind::Size: return scratch = std::to_string(info.size);
    case FieldKind::Text: return TextField(info, columnId);
    case FieldKind::Date: return scratch = DateText(DateField(info, columnId));
    // Each time column follows the date column of its stamp.
    case FieldKind::Time: return scratch = TimeText(TimeField(info, columnId), DateField(info, columnId - 1));
    case FieldKind::Directory: return scratch = fsutil::DirName(info.entry);
    case FieldKind::None: break;
    }
    return {};
}

std::string GetFieldString(const DocInfo& info, uint16_t columnId)
{
    std::string scratch;
    const std::string_view text = FieldView(info, columnId, scratch);
    return text.data() == scratch.data() ? std::move(scratch) : std::string(text);
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
        // Columns 3..15 have their titles in the same order.
        if (columnId >= COL_TITLE && columnId <= COL_KEYWORDS)
            return ResString(uint16_t(STR_COL_TITLE + (columnId - COL_TITLE)));
        return {};
    }
}
