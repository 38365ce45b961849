#include "tests/print/pdfwords.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <algorithm>
#include <cmath>
#include <map>

namespace pdfwords {
namespace {

QString Run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        return {};
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString Unescape(QString text)
{
    text.replace("&lt;", "<").replace("&gt;", ">").replace("&quot;", "\"").replace("&apos;", "'");
    return text.replace("&amp;", "&");
}

}  // namespace

bool Available()
{
    return !QStandardPaths::findExecutable("pdfinfo").isEmpty() &&
           !QStandardPaths::findExecutable("pdftotext").isEmpty();
}

std::string Info(const std::string& pdf, const std::string& field)
{
    const QString report = Run("pdfinfo", {QString::fromStdString(pdf)});
    const QString prefix = QString::fromStdString(field) + ":";
    for (const QString& line : report.split('\n'))
        if (line.startsWith(prefix))
            return line.mid(prefix.size()).trimmed().toStdString();
    return {};
}

int PageCount(const std::string& pdf)
{
    const std::string pages = Info(pdf, "Pages");
    return pages.empty() ? -1 : std::stoi(pages);
}

std::vector<Word> Words(const std::string& pdf)
{
    const QString html = Run("pdftotext", {"-bbox", QString::fromStdString(pdf), "-"});
    static const QRegularExpression tag(
        R"re(<page |<word xMin="(-?[\d.]+)" yMin="(-?[\d.]+)"[^>]*>([^<]*)</word>)re");
    std::vector<Word> words;
    int page = 0;
    for (auto it = tag.globalMatch(html); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        if (match.captured(0).startsWith("<page")) {
            ++page;
            continue;
        }
        words.push_back({page, match.captured(1).toDouble(), match.captured(2).toDouble(),
                         Unescape(match.captured(3)).toStdString()});
    }
    return words;
}

std::vector<std::string> Lines(const std::vector<Word>& words, int page)
{
    std::map<long, std::vector<const Word*>> byLine;  // rounded top -> words
    for (const Word& word : words)
        if (word.page == page)
            byLine[std::lround(word.y)].push_back(&word);
    std::vector<std::string> lines;
    for (auto& [top, line] : byLine) {
        std::sort(line.begin(), line.end(), [](const Word* a, const Word* b) { return a->x < b->x; });
        std::string text;
        for (const Word* word : line)
            text += (text.empty() ? "" : " ") + word->text;
        lines.push_back(text);
    }
    return lines;
}

const Word* Find(const std::vector<Word>& words, int page, const std::string& text)
{
    for (const Word& word : words)
        if (word.page == page && word.text == text)
            return &word;
    return nullptr;
}

}  // namespace pdfwords
