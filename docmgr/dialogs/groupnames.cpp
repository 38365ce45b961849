#include "docmgr/dialogs/groupnames.h"

#include "docmgr/tools/textcase.h"

namespace groupnames {

QString WithoutBlanks(const QString& text)
{
    return QString::fromStdString(textcase::EraseBlanks(text.toStdString()));
}

QString NewName(const QString& stem, const Taken& taken)
{
    for (unsigned n = 1;; ++n) {
        const QString name = stem + QString::number(n);
        if (!taken(name))
            return name;
    }
}

bool CanChange(const QString& typedName, const QString& typedSection, const QString& selected, const Taken& taken)
{
    const QString name = WithoutBlanks(typedName);
    return !name.isEmpty() && !WithoutBlanks(typedSection).isEmpty() && (!taken(name) || name == selected);
}

}  // namespace groupnames
