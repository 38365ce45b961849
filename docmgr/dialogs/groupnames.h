#pragma once
// Names in the groups dialog: what a new group is called and when a typed name and
// section can be applied to the selected group. Names and sections carry no blanks.
#include <QString>
#include <functional>

namespace groupnames {

// Whether a group of that name is listed (compared exactly, case included).
using Taken = std::function<bool(const QString&)>;

// `text` without its blanks.
QString WithoutBlanks(const QString& text);

// The first of stem + "1", stem + "2", ... that is not taken.
QString NewName(const QString& stem, const Taken& taken);

// Whether the typed name and section can be applied to the group `selected`: neither is
// empty without blanks, and the name is not another group's.
bool CanChange(const QString& typedName, const QString& typedSection, const QString& selected, const Taken& taken);

}  // namespace groupnames
