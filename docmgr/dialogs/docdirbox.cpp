#include "docmgr/dialogs/docdirbox.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QKeyEvent>
#include <algorithm>
#include <utility>
#include <vector>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/dialogs/docdirdelegate.h"
#include "docmgr/ui/waitcursor.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/resmgr.h"
#include "docmgr/tools/textcase.h"
#include "resources/resids.h"

namespace {
const QString kRoot = QStringLiteral("/");
constexpr char kDelimiter = '/';

// Number of leading spaces: twice the entry's depth below the root.
int Indent(const QString& line)
{
    int n = 0;
    while (n < line.size() && line[n] == u' ')
        ++n;
    return n;
}

// The directory name: the trimmed line without its state character and the space after it.
std::string Name(const QString& line)
{
    return line.trimmed().mid(2).toStdString();
}

QChar StateChar(const QString& line)
{
    const int indent = Indent(line);
    return indent < line.size() ? line[indent] : QChar();
}

QString WithState(const QString& line, QChar state)
{
    QString result = line;
    const int indent = Indent(line);
    if (indent < result.size())
        result[indent] = state;
    return result;
}

// Child lines of `dir`, siblings in the order that inserting each read name before the
// first line not less than it (upper-cased) would give: ascending without regard to case,
// names equal when upper-cased in the reverse of their reading order.
QStringList ChildLines(const std::string& dir, int indent, const ImplDocConfig* config, bool showHidden)
{
    const bool checkExceptions = config && !config->GetExceptionPaths().empty();
    std::vector<std::pair<std::string, std::string>> children;  // upper-cased key, name
    for (const fsutil::DirItem& item : fsutil::List(dir, "*", fsutil::Kind::Dirs)) {
        if (item.name == "." || item.name == "..")
            continue;
        if (!showHidden && item.name.front() == '.')
            continue;
        if (checkExceptions && config->IsExceptionPath(fsutil::Join(dir, item.name)))
            continue;
        children.emplace_back(textcase::ToUpper(item.name), item.name);
    }
    std::reverse(children.begin(), children.end());
    std::stable_sort(children.begin(), children.end(), [](const auto& a, const auto& b) { return a.first < b.first; });

    const QString prefix = QString(indent + 2, u' ') + QStringLiteral("- ");
    QStringList lines;
    lines.reserve(int(children.size()));
    for (const auto& child : children)
        lines.append(prefix + QString::fromStdString(child.second));
    return lines;
}

// Suspends drawing of a widget for a scope.
class UpdatesOff {
public:
    explicit UpdatesOff(QWidget* widget) : widget_(widget), was_(widget->updatesEnabled())
    {
        widget_->setUpdatesEnabled(false);
    }
    ~UpdatesOff() { widget_->setUpdatesEnabled(was_); }
    UpdatesOff(const UpdatesOff&) = delete;
    UpdatesOff& operator=(const UpdatesOff&) = delete;

private:
    QWidget* widget_;
    bool was_;
};
}  // namespace

DocDirBox::DocDirBox(QWidget* parent, const ImplDocConfig* config) : QListWidget(parent), config_(config)
{
    setObjectName(QStringLiteral("dirTree"));
    setSelectionMode(QAbstractItemView::SingleSelection);
    setUniformItemSizes(true);  // large directories lay out without measuring each line
    setItemDelegate(new DocDirDelegate(this));
    connect(this, &QListWidget::currentRowChanged, this, [this](int) { emit DirSelected(GetSelectedPos()); });
    connect(this, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem*) { DoubleClick(); });
    ReadDirs();
}

DocDirBox::~DocDirBox() = default;

void DocDirBox::ReadDirs()
{
    clear();
    addItem(kRoot);
    ToggleDir(0);
}

void DocDirBox::ToggleDir(unsigned short pos)
{
    if (pos >= count())
        return;
    ScopedWaitCursor wait;
    UpdatesOff updatesOff(this);

    const QString line = item(pos)->text();
    const int indent = Indent(line);
    if (pos == 0 || StateChar(line) == u'-') {
        // Read by absolute path: the process's current directory stays as it is.
        const QStringList lines = ChildLines(GetDir(pos), indent, config_, showHidden_);
        insertItems(pos + 1, lines);
        if (pos != 0)
            item(pos)->setText(WithState(line, u'+'));
    } else {
        int end = pos + 1;
        while (end < count() && Indent(item(end)->text()) > indent)
            ++end;
        if (end > pos + 1)
            model()->removeRows(pos + 1, end - pos - 1);
        item(pos)->setText(WithState(line, u'-'));
    }
    setCurrentRow(pos);
}

std::string DocDirBox::GetDir(unsigned short pos) const
{
    if (count() == 0 || pos >= count())
        return {};
    std::string result;
    int indent = 0;
    if (pos > 0) {
        const QString line = item(pos)->text();
        result = Name(line);
        indent = Indent(line);
    }
    for (int i = int(pos) - 1; i >= 1; --i) {
        const QString line = item(i)->text();
        const int n = Indent(line);
        if (n < indent) {
            indent = n;
            std::string ancestor = Name(line);
            ancestor.push_back(kDelimiter);
            result.insert(0, ancestor);
        }
    }
    result.insert(0, item(0)->text().toStdString());
    return result;
}

void DocDirBox::SelectDir(const std::string& path)
{
    if (count() == 0)
        return;
    // A hidden directory asked for by name is shown, with the other hidden ones.
    if (!showHidden_ && path.find("/.") != std::string::npos) {
        showHidden_ = true;
        ReadDirs();
    }
    std::string rest = path.substr(std::min(path.size(), size_t(item(0)->text().toUtf8().size())));
    if (rest.empty()) {
        setCurrentRow(0);
        return;
    }
    int parent = 0;  // the entry whose children are searched
    while (!rest.empty()) {
        const size_t cut = rest.find(kDelimiter);
        const std::string token = textcase::ToUpper(rest.substr(0, cut));
        rest = cut == std::string::npos ? std::string() : rest.substr(cut + 1);

        // Search the children of `parent` only; a missing element ends the walk there.
        const int parentIndent = parent == 0 ? 0 : Indent(item(parent)->text());
        int found = -1;
        for (int i = parent + 1; i < count(); ++i) {
            const QString line = item(i)->text();
            if (Indent(line) <= parentIndent)
                break;
            if (textcase::ToUpper(Name(line)) == token) {
                found = i;
                break;
            }
        }
        if (found < 0) {
            setCurrentRow(parent);
            return;
        }
        if (!rest.empty() && StateChar(item(found)->text()) == u'-')
            ToggleDir(static_cast<unsigned short>(found));
        else if (rest.empty())
            setCurrentRow(found);
        parent = found;
    }
}

unsigned short DocDirBox::GetSelectedPos() const
{
    const int row = currentRow();
    return row < 0 ? 0xFFFF : static_cast<unsigned short>(row);
}

void DocDirBox::SetShowHidden(bool show)
{
    if (show == showHidden_)
        return;
    const unsigned short pos = GetSelectedPos();
    const std::string selected = pos == 0xFFFF ? std::string() : GetDir(pos);
    showHidden_ = show;
    ReadDirs();
    // A hidden directory that was selected is gone now: its nearest shown ancestor is.
    if (!selected.empty())
        SelectDir(show ? selected : selected.substr(0, std::min(selected.size(), selected.find("/."))));
}

void DocDirBox::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu menu(this);
    QAction* hidden = menu.addAction(QString::fromStdString(ResString(STR_SHOW_HIDDEN)));
    hidden->setObjectName(QStringLiteral("showHiddenItem"));
    hidden->setCheckable(true);
    hidden->setChecked(showHidden_);
    if (menu.exec(event->globalPos()) == hidden)
        SetShowHidden(hidden->isChecked());
}

void DocDirBox::DoubleClick()
{
    const unsigned short pos = GetSelectedPos();
    if (count() > 0 && pos != 0 && pos != 0xFFFF)
        ToggleDir(pos);
}

void DocDirBox::keyPressEvent(QKeyEvent* event)
{
    const unsigned short pos = GetSelectedPos();
    const bool entry = pos != 0 && pos != 0xFFFF && pos < count();
    const QChar state = entry ? StateChar(item(pos)->text()) : QChar();
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!enterOpens_)
            break;  // to the dialog's default button
        DoubleClick();
        event->accept();
        return;
    case Qt::Key_Right:
    case Qt::Key_Plus:
        if (entry && state == u'-')
            ToggleDir(pos);
        event->accept();
        return;
    case Qt::Key_Left:
    case Qt::Key_Minus:
        if (entry && state == u'+') {
            ToggleDir(pos);
        } else if (entry) {
            // Closed entry: go to its parent.
            const int indent = Indent(item(pos)->text());
            int i = pos - 1;
            while (i > 0 && Indent(item(i)->text()) >= indent)
                --i;
            setCurrentRow(i);
        }
        event->accept();
        return;
    default: break;
    }
    QListWidget::keyPressEvent(event);
}

void DocDirBox::keyboardSearch(const QString& search)
{
    // The lines begin with their indent and state; a typed name is matched against the
    // directory names alone, the way other list boxes match their texts.
    if (search.isEmpty())
        return;
    const bool continued = typedTimer_.isValid() && typedTimer_.elapsed() < QApplication::keyboardInputInterval();
    typed_ = continued ? typed_ + search : search;
    typedTimer_.start();
    const int rows = count();
    if (rows == 0)
        return;
    const int current = std::max(currentRow(), 0);
    // A new search starts after the current entry; a longer one may stay on it.
    const int first = continued ? current : current + 1;
    for (int i = 0; i < rows; ++i) {
        const int row = (first + i) % rows;
        if (row == 0)
            continue;
        if (QString::fromStdString(Name(item(row)->text())).startsWith(typed_, Qt::CaseInsensitive)) {
            setCurrentRow(row);
            return;
        }
    }
}
