#include "host/readers/pdfxmp.h"

#include <qpdf/Pipeline.hh>

#include "host/readers/metadates.h"
#include "host/readers/xmppacket.h"

namespace pdfxmp {

namespace {

// Packets are a few kilobytes; a larger stream is not metadata worth inflating.
constexpr size_t kMaxPacket = 1u << 20;

struct PacketTooLarge {};

// Collects decoded stream bytes and stops the decoding once past the cap.
class CappedSink : public Pipeline {
public:
    explicit CappedSink(std::string& out) : Pipeline("xmp", nullptr), out_(out) {}
    void write(unsigned char const* data, size_t len) override
    {
        if (out_.size() + len > kMaxPacket)
            throw PacketTooLarge();
        out_.append(reinterpret_cast<const char*>(data), len);
    }
    void finish() override {}

private:
    std::string& out_;
};

QPDFObjectHandle MetadataStream(QPDF& pdf)
{
    QPDFObjectHandle stream = pdf.getRoot().getKey("/Metadata");
    return stream.isStream() ? stream : QPDFObjectHandle();
}

std::string Packet(QPDFObjectHandle stream)
{
    std::string packet;
    try {
        CappedSink sink(packet);
        bool filtered = false;
        if (!stream.pipeStreamData(&sink, &filtered, 0, qpdf_dl_generalized, true) || !filtered)
            packet.clear();
    } catch (const PacketTooLarge&) {
        packet.clear();
    }
    return packet;
}

void FillText(std::string& field, const std::string& value)
{
    if (field.empty())
        field = value;
}

void FillStamp(Date& date, Time& time, const std::string& value)
{
    if (date.IsUnset())
        metadates::ParseIso(value, date, time);
}

}  // namespace

void FillMissing(QPDF& pdf, DocInfo& info)
{
    const QPDFObjectHandle stream = MetadataStream(pdf);
    xmp::Fields fields;
    if (!stream.isInitialized() || !xmp::Read(Packet(stream), fields))
        return;
    FillText(info.title, fields.title);
    FillText(info.author, fields.creator);
    FillText(info.topic, fields.description);
    FillText(info.keywords, fields.keywords.empty() ? fields.subject : fields.keywords);
    FillStamp(info.createdDate, info.createdTime, fields.createDate);
    FillStamp(info.modifiedDate, info.modifiedTime, fields.modifyDate);
}

void Update(QPDF& pdf, const DocMeta& meta)
{
    QPDFObjectHandle stream = MetadataStream(pdf);
    if (!stream.isInitialized())
        return;
    std::string packet = Packet(stream);
    std::vector<xmp::Change> changes = {{xmp::title, meta.title},
                                        {xmp::description, meta.topic},
                                        {xmp::keywords, meta.keywords},
                                        {xmp::subject, meta.keywords}};
    if (meta.author)
        changes.push_back({xmp::creator, *meta.author});
    if (!packet.empty() && xmp::Update(packet, changes))
        stream.replaceStreamData(packet, QPDFObjectHandle::newNull(), QPDFObjectHandle::newNull());
}

void Attach(QPDF& pdf, const std::string& packet)
{
    QPDFObjectHandle stream = QPDFObjectHandle::newStream(&pdf, packet);
    stream.getDict().replaceKey("/Type", QPDFObjectHandle::newName("/Metadata"));
    stream.getDict().replaceKey("/Subtype", QPDFObjectHandle::newName("/XML"));
    pdf.getRoot().replaceKey("/Metadata", stream);
}

}  // namespace pdfxmp
