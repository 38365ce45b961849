#pragma once
// Date stamps as documents store them, to and from Date and Time. A stamp that carries
// a zone is turned into local time; one without a zone is taken as local already.
#include <string>
#include <string_view>

#include <QDateTime>

#include "docmgr/tools/datetime.h"

namespace metadates {

// ISO 8601 / W3C: "2024-03-05", "2024-03-05T14:30", "2024-03-05T14:30:15.25",
// each optionally followed by "Z", "+01:00", "-0530" or "+01". False if not a valid stamp.
bool ParseIso(std::string_view text, Date& date, Time& time);
// PDF: "D:YYYYMMDDHHmmSSOHH'mm'" where everything after the year may be missing,
// O is "+", "-" or "Z"; the "D:" prefix is optional.
bool ParsePdf(std::string_view text, Date& date, Time& time);

// Local wall-clock time without zone, as ODF producers write it: "2024-03-05T14:30:15".
std::string IsoLocal(const QDateTime& stamp);
// UTC with "Z", as OOXML core properties expect: "2024-03-05T13:30:15Z".
std::string IsoUtc(const QDateTime& stamp);
// PDF date with the local offset: "D:20240305143015+01'00'".
std::string PdfDate(const QDateTime& stamp);

// Date and Time of a local QDateTime (hundredths from its milliseconds).
void ToStamp(const QDateTime& stamp, Date& date, Time& time);

}  // namespace metadates
