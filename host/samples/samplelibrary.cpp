#include "host/samples/samplelibrary.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <random>

#include "host/readers/ziparchive.h"
#include "host/samples/samplewriter.h"

namespace {

// Plain modulo picks: std distributions differ between standard libraries.
class Picker {
public:
    explicit Picker(uint32_t seed) : rng_(seed) {}
    uint32_t Below(uint32_t n) { return n == 0 ? 0 : uint32_t(rng_() % n); }
    template <typename T, size_t N>
    const T& From(const std::array<T, N>& items)
    {
        return items[Below(N)];
    }

private:
    std::mt19937 rng_;
};

constexpr std::array<const char*, 8> kKinds = {"report", "letter", "minutes",  "invoice",
                                               "memo",   "offer",  "proposal", "summary"};
constexpr std::array<const char*, 8> kKindTitles = {"Report", "Letter", "Minutes",  "Invoice",
                                                    "Memo",   "Offer",  "Proposal", "Summary"};
constexpr std::array<const char*, 10> kSubjects = {"Budget",          "Marketing", "Übersicht", "Café Expansion",
                                                   "Roadmap",         "Hiring",    "Quarterly", "Security Review",
                                                   "Customer Survey", "Logistics"};
constexpr std::array<const char*, 8> kTopics = {"Finance",    "Sales",    "Engineering", "Human Resources",
                                                "Operations", "Research", "Legal",       "Café Business"};
constexpr std::array<const char*, 8> kAuthors = {"Anna Schmidt", "Zoë Martin",  "José García", "Li Wei",
                                                 "Olivia Brown", "Jörg Müller", "Priya Patel", "Tom Baker"};
constexpr std::array<const char*, 11> kKeywords = {"budget",   "plan",      "review", "draft",  "final",  "customer",
                                                   "internal", "Übersicht", "2020",   "urgent", "archive"};
constexpr std::array<const char*, 5> kComments = {"", "First draft, to be reviewed.", "Sent to the board.",
                                                  "Überarbeitet nach dem Treffen.", "Figures from the café ledger."};
constexpr std::array<const char*, 4> kInfoNames = {"Project", "Client", "Status", "Reviewer"};
constexpr std::array<const char*, 5> kProjects = {"Apollo", "Nordlicht", "Crème", "Atlas", ""};
constexpr std::array<const char*, 5> kClients = {"ACME Corp.", "Müller GmbH", "Café Zoë", "Globex", ""};
constexpr std::array<const char*, 4> kStatuses = {"open", "approved", "in review", "closed"};
constexpr std::array<const char*, 6> kSentences = {
    "This document summarises the work of the last quarter.", "The figures below were checked by the finance team.",
    "Please send comments before the end of the month.",      "Die Übersicht enthält alle offenen Punkte.",
    "The café on the ground floor hosts the next meeting.",   "Zoë will prepare the final version."};

QDateTime Stamp(Picker& pick)
{
    const QDate day = QDate(2012, 1, 1).addDays(pick.Below(12 * 365));
    return QDateTime(day, QTime(int(7 + pick.Below(12)), int(pick.Below(60)), int(pick.Below(60))));
}

SampleDoc MakeDoc(Picker& pick, size_t kind)
{
    SampleDoc doc;
    doc.title = std::string(pick.From(kSubjects)) + " " + kKindTitles[kind];
    doc.topic = pick.From(kTopics);
    doc.author = pick.From(kAuthors);
    doc.modifiedBy = pick.Below(3) == 0 ? doc.author : pick.From(kAuthors);
    for (uint32_t n = pick.Below(4); doc.keywords.size() < n;) {
        const std::string keyword = pick.From(kKeywords);
        if (std::find(doc.keywords.begin(), doc.keywords.end(), keyword) == doc.keywords.end())
            doc.keywords.push_back(keyword);
    }
    doc.comment = pick.From(kComments);
    doc.created = Stamp(pick);
    doc.modified = doc.created.addSecs(qint64(pick.Below(700)) * 86400 + pick.Below(36000));
    if (pick.Below(3) != 0) {
        doc.printed = doc.modified.addSecs(pick.Below(20 * 86400));
        doc.printedBy = pick.From(kAuthors);
    }
    if (pick.Below(2) == 0) {
        const std::array<std::string, 4> values = {pick.From(kProjects), pick.From(kClients), pick.From(kStatuses),
                                                   pick.Below(2) ? pick.From(kAuthors) : ""};
        for (size_t i = 0; i < values.size(); ++i)
            doc.info.emplace_back(kInfoNames[i], values[i]);
    }
    for (uint32_t n = 2 + pick.Below(4), i = 0; i < n; ++i)
        doc.body += std::string(i ? "\n" : "") + pick.From(kSentences);
    return doc;
}

bool WriteBytes(const std::string& path, const std::string& bytes)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), std::streamsize(bytes.size()));
    return bool(out.flush());
}

// Files that a listing must show as "not a document".
bool WriteOthers(const std::string& dir, Picker& pick, SampleLibraryResult& result)
{
    std::string png("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
    for (int i = 0; i < 64; ++i)
        png += char(pick.Below(256));
    const std::array<std::pair<std::string, std::string>, 3> files = {{
        {"notes.txt", "Shopping list: coffee, paper, toner.\nCall Zoë about the café.\n"},
        {"image.png", png},
        {"data.csv", "month;amount\n2020-01;1200\n2020-02;980\n"},
    }};
    for (const auto& [name, bytes] : files) {
        if (!WriteBytes(dir + "/" + name, bytes)) {
            result.error = "Cannot write " + dir + "/" + name;
            return false;
        }
        ++result.others;
    }
    // A zip that is neither an ODF nor an OOXML package.
    ZipArchive zip;
    zip.SetEntryTime(1577880000);
    if (!zip.Open(dir + "/archive.zip", ZipArchive::Mode::Create) || !zip.Put("readme.txt", "Old files.\n") ||
        !zip.Commit()) {
        result.error = "Cannot write " + dir + "/archive.zip: " + zip.Error();
        return false;
    }
    ++result.others;
    return true;
}

}  // namespace

SampleLibraryResult WriteSampleLibrary(const std::string& dir, int count, uint32_t seed)
{
    static constexpr std::array<const char*, 5> extensions = {".odt", ".docx", ".pdf", ".fodt", ".rtf"};
    SampleLibraryResult result;
    Picker pick(seed);
    for (int i = 0; i < count; ++i) {
        const size_t kind = pick.Below(kKinds.size());
        const SampleDoc doc = MakeDoc(pick, kind);
        char number[16];
        std::snprintf(number, sizeof number, "-%03d", i + 1);
        const std::string path = dir + "/" + kKinds[kind] + number + extensions[size_t(i) % extensions.size()];
        if (!WriteSample(path, doc, result.error))
            return result;
        ++result.documents;
    }
    WriteOthers(dir, pick, result);
    return result;
}
