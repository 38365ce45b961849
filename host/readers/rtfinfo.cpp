#include "host/readers/rtfinfo.h"

#include <QDate>
#include <QString>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr size_t kMaxField = 64u << 10;  // characters kept of one field
constexpr size_t kMaxDepth = 4096;       // deeper groups are read as their parent

// What the text of a group belongs to.
enum class Dest {
    Body,
    Info,
    UserProps,
    Title,
    Subject,
    Author,
    Keywords,
    Comment,
    Operator,
    Created,
    Revised,
    Printed,
    StaticVal,
    Ignored
};

struct Group {
    Dest dest = Dest::Body;
    int unicodeSkip = 1;  // \ucN: fallback characters after each \uN
    bool atStart = true;  // no text or control word seen yet
};

// Characters 0x80..0x9F of Windows code page 1252, the RTF default.
constexpr std::array<char16_t, 32> kCp1252High = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                                  0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

struct Stamp {
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
};

class RtfInfoParser {
public:
    explicit RtfInfoParser(DocInfo& info) : info_(info) { groups_.push_back(Group{Dest::Body, 1, false}); }

    void Parse(std::string_view rtf)
    {
        size_t pos = 0;
        while (pos < rtf.size()) {
            const char c = rtf[pos++];
            if (c == '{') {
                OpenGroup();
            } else if (c == '}') {
                CloseGroup();
            } else if (c == '\\') {
                pos = ControlAt(rtf, pos);
            } else if (c != '\r' && c != '\n') {
                Byte(c);
            }
        }
        while (groups_.size() > 1 || extraDepth_ > 0)
            CloseGroup();
    }

private:
    Group& Top() { return groups_.back(); }

    void OpenGroup()
    {
        FlushBytes();
        if (groups_.size() >= kMaxDepth) {
            ++extraDepth_;
            return;
        }
        Group g = Top();
        g.atStart = true;
        // A group inside a field (formatting) belongs to the field; one inside the
        // information or user properties is nothing until its first word names a field.
        if (g.dest == Dest::Info || g.dest == Dest::UserProps)
            g.dest = Dest::Ignored;
        groups_.push_back(g);
        ignorable_ = false;
    }

    void CloseGroup()
    {
        FlushBytes();
        if (extraDepth_ > 0) {
            --extraDepth_;
            return;
        }
        if (groups_.size() <= 1)
            return;
        const Group closed = Top();
        groups_.pop_back();
        if (closed.dest != Top().dest)
            EndField(closed.dest);
    }

    // A control word or symbol after its backslash; returns the position after it.
    size_t ControlAt(std::string_view rtf, size_t pos)
    {
        if (pos >= rtf.size())
            return pos;
        const char c = rtf[pos];
        const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        if (!letter) {
            ++pos;
            if (c == '\'') {
                if (pos + 2 <= rtf.size() && Hex(rtf[pos]) >= 0 && Hex(rtf[pos + 1]) >= 0) {
                    HexByte(char(Hex(rtf[pos]) * 16 + Hex(rtf[pos + 1])));
                    pos += 2;
                }
            } else if (c == '*') {
                ignorable_ = Top().atStart;
            } else if (c == '~') {
                Char(0xA0);
            } else if (c == '\\' || c == '{' || c == '}') {
                Byte(c);
            } else if (c == '\n' || c == '\r') {
                Char('\n');
            }
            return pos;
        }
        const size_t start = pos;
        while (pos < rtf.size() && pos - start < 32 &&
               ((rtf[pos] >= 'a' && rtf[pos] <= 'z') || (rtf[pos] >= 'A' && rtf[pos] <= 'Z')))
            ++pos;
        const std::string_view word = rtf.substr(start, pos - start);
        bool hasNumber = false, negative = false;
        long number = 0;
        if (pos < rtf.size() && rtf[pos] == '-' && pos + 1 < rtf.size() && rtf[pos + 1] >= '0' && rtf[pos + 1] <= '9') {
            negative = true;
            ++pos;
        }
        for (int digits = 0; pos < rtf.size() && rtf[pos] >= '0' && rtf[pos] <= '9'; ++pos) {
            if (digits++ < 10)
                number = number * 10 + (rtf[pos] - '0');
            hasNumber = true;
        }
        if (pos < rtf.size() && rtf[pos] == ' ')
            ++pos;
        // \binN: N bytes of raw data follow, braces and backslashes included.
        if (word == "bin" && hasNumber && !negative)
            return pos + std::min(size_t(number), rtf.size() - pos);
        Word(word, negative ? -number : number, hasNumber);
        return pos;
    }

    void Word(std::string_view word, long number, bool hasNumber)
    {
        if (extraDepth_ > 0)
            return;
        Group& g = Top();
        const bool first = g.atStart;
        g.atStart = false;
        if (word == "u" && hasNumber) {
            FlushBytes();
            Char(char16_t(number < 0 ? number + 65536 : number));
            skip_ = g.unicodeSkip;
            return;
        }
        if (word == "uc" && hasNumber) {
            g.unicodeSkip = int(std::clamp(number, 0L, 8L));
            return;
        }
        if (word == "ansicpg" && hasNumber && groups_.size() == 2) {
            codepage_ = number;
            return;
        }
        if (word == "par" || word == "line")
            Char('\n');
        else if (word == "tab")
            Char('\t');
        if (first)
            StartDest(word);
        if (g.dest == Dest::Created || g.dest == Dest::Revised || g.dest == Dest::Printed)
            StampPart(word, int(number));
        ignorable_ = false;
    }

    void StartDest(std::string_view word)
    {
        Group& g = Top();
        const Dest parent = groups_.size() >= 2 ? groups_[groups_.size() - 2].dest : Dest::Body;
        if (parent == Dest::Body && word == "info") {
            g.dest = Dest::Info;
        } else if (parent == Dest::Body && word == "userprops" && ignorable_) {
            g.dest = Dest::UserProps;
        } else if (parent == Dest::Info) {
            static constexpr std::array<std::pair<std::string_view, Dest>, 9> fields = {{{"title", Dest::Title},
                                                                                         {"subject", Dest::Subject},
                                                                                         {"author", Dest::Author},
                                                                                         {"keywords", Dest::Keywords},
                                                                                         {"doccomm", Dest::Comment},
                                                                                         {"operator", Dest::Operator},
                                                                                         {"creatim", Dest::Created},
                                                                                         {"revtim", Dest::Revised},
                                                                                         {"printim", Dest::Printed}}};
            for (const auto& [name, dest] : fields)
                if (word == name)
                    g.dest = dest;
            if (g.dest != Dest::Ignored)
                BeginField();
        } else if (parent == Dest::UserProps && word == "staticval") {
            // Values in the order listed; their names are the group's captions here.
            g.dest = Dest::StaticVal;
            BeginField();
        } else if (parent == Dest::Body && ignorable_) {
            g.dest = Dest::Ignored;  // an optional destination this reader does not know
        }
    }

    void BeginField()
    {
        text_.clear();
        stamp_ = Stamp();
    }

    void EndField(Dest dest)
    {
        FlushBytes();
        std::string value = text_.trimmed().toStdString();
        switch (dest) {
        case Dest::Title: info_.title = value; break;
        case Dest::Subject: info_.topic = value; break;
        case Dest::Author: info_.author = value; break;
        case Dest::Keywords: info_.keywords = value; break;
        case Dest::Comment: info_.comment = value; break;
        case Dest::Operator: info_.modifiedBy = value; break;
        case Dest::Created: SetStamp(info_.createdDate, info_.createdTime); break;
        case Dest::Revised: SetStamp(info_.modifiedDate, info_.modifiedTime); break;
        case Dest::Printed: SetStamp(info_.printedDate, info_.printedTime); break;
        case Dest::StaticVal:
            if (userFields_ < info_.info.size())
                info_.info[userFields_++] = value;
            break;
        default: break;
        }
        text_.clear();
    }

    void StampPart(std::string_view word, int number)
    {
        if (word == "yr")
            stamp_.year = number;
        else if (word == "mo")
            stamp_.month = number;
        else if (word == "dy")
            stamp_.day = number;
        else if (word == "hr")
            stamp_.hour = number;
        else if (word == "min")
            stamp_.minute = number;
        else if (word == "sec")
            stamp_.second = number;
    }

    void SetStamp(Date& date, Time& time) const
    {
        const QDate d(stamp_.year, stamp_.month, stamp_.day);
        const QTime t(stamp_.hour, stamp_.minute, stamp_.second);
        if (stamp_.year < 1 || !d.isValid() || !t.isValid())
            return;
        date = Date(unsigned(stamp_.day), unsigned(stamp_.month), unsigned(stamp_.year));
        time = Time(unsigned(stamp_.hour), unsigned(stamp_.minute), unsigned(stamp_.second), 0);
    }

    bool Collecting() const
    {
        const Dest d = groups_.back().dest;
        return extraDepth_ == 0 &&
               (d == Dest::Title || d == Dest::Subject || d == Dest::Author || d == Dest::Keywords ||
                d == Dest::Comment || d == Dest::Operator || d == Dest::StaticVal);
    }

    // A fallback character after \uN is dropped.
    bool Skipped()
    {
        if (skip_ == 0)
            return false;
        --skip_;
        return true;
    }

    void Byte(char c)
    {
        Top().atStart = false;
        if (Skipped() || !Collecting())
            return;
        if (static_cast<unsigned char>(c) < 0x80) {
            FlushBytes();
            Char(char16_t(c));
        } else {
            bytes_ += c;
        }
    }

    void HexByte(char c)
    {
        Top().atStart = false;
        if (Skipped() || !Collecting())
            return;
        bytes_ += c;
    }

    void Char(char16_t c)
    {
        FlushBytes();
        if (Collecting() && size_t(text_.size()) < kMaxField)
            text_ += QChar(c);
    }

    // Bytes of the document's code page become characters in one go, so that a
    // double-byte character is not split.
    void FlushBytes()
    {
        if (bytes_.empty())
            return;
        QString decoded;
        if (codepage_ != 1252) {
            QStringDecoder decoder(("windows-" + std::to_string(codepage_)).c_str());
            if (decoder.isValid())
                decoded = decoder.decode(QByteArrayView(bytes_.data(), qsizetype(bytes_.size())));
        }
        if (decoded.isEmpty()) {
            for (unsigned char b : bytes_)
                decoded += QChar(b >= 0x80 && b < 0xA0 ? kCp1252High[b - 0x80] : char16_t(b));
        }
        bytes_.clear();
        if (size_t(text_.size()) < kMaxField)
            text_ += decoded.left(qsizetype(kMaxField) - text_.size());
    }

    static int Hex(char c)
    {
        if (c >= '0' && c <= '9')
            return c - '0';
        if (c >= 'a' && c <= 'f')
            return c - 'a' + 10;
        if (c >= 'A' && c <= 'F')
            return c - 'A' + 10;
        return -1;
    }

    DocInfo& info_;
    std::vector<Group> groups_;
    size_t extraDepth_ = 0;
    bool ignorable_ = false;  // "\*" just seen at a group's start
    int skip_ = 0;
    long codepage_ = 1252;
    QString text_;
    std::string bytes_;
    Stamp stamp_;
    size_t userFields_ = 0;
};

}  // namespace

bool ParseRtfInfo(std::string_view rtf, DocInfo& info)
{
    if (rtf.substr(0, 5) != "{\\rtf")
        return false;
    RtfInfoParser(info).Parse(rtf);
    return true;
}
