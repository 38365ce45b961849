// Document information of an OLE compound file: the property sets of a legacy Office
// document (.doc .xls .ppt and templates), read through libgsf. Office also wraps a
// password-protected OOXML document in such a file.
#include <gsf/gsf-doc-meta-data.h>
#include <gsf/gsf-docprop-vector.h>
#include <gsf/gsf-infile-msole.h>
#include <gsf/gsf-infile.h>
#include <gsf/gsf-input-memory.h>
#include <gsf/gsf-input-stdio.h>
#include <gsf/gsf-input.h>
#include <gsf/gsf-meta-names.h>
#include <gsf/gsf-msole-utils.h>
#include <gsf/gsf-timestamp.h>
#include <gsf/gsf-utils.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>
#include <vector>

#include "host/readers/filehead.h"
#include "host/readers/formatreaders.h"
#include "host/readers/metadates.h"
#include "host/readers/oleuserorder.h"

namespace {

constexpr const char* kSummary = "\005SummaryInformation";
constexpr const char* kDocumentSummary = "\005DocumentSummaryInformation";

struct GObjectUnref {
    void operator()(gpointer p) const { g_object_unref(p); }
};
using InputPtr = std::unique_ptr<GsfInput, GObjectUnref>;
using InfilePtr = std::unique_ptr<GsfInfile, GObjectUnref>;
using MetaPtr = std::unique_ptr<GsfDocMetaData, GObjectUnref>;

void Quiet(const gchar*, GLogLevelFlags, const gchar*, gpointer)
{}

// libgsf once per process; its complaints about broken files are not the user's business.
void InitGsf()
{
    static const bool done = [] {
        gsf_init();
        // libgsf logs its property set checks without a domain of its own.
        for (const char* domain : {static_cast<const char*>(nullptr), "libgsf", "libgsf:msole", "GLib-GObject", "GLib"})
            g_log_set_handler(domain, GLogLevelFlags(G_LOG_LEVEL_MASK), Quiet, nullptr);
        return true;
    }();
    (void)done;
}

InputPtr Child(GsfInfile* ole, const char* name)
{
    return InputPtr(gsf_infile_child_by_name(ole, name));
}

bool HasChild(GsfInfile* ole, const char* name)
{
    return bool(Child(ole, name));
}

// The first `count` bytes of a stream; empty when it is shorter.
std::string Head(GsfInput* input, size_t count)
{
    std::string bytes(count, '\0');
    if (!input || gsf_input_size(input) < gsf_off_t(count) ||
        !gsf_input_read(input, count, reinterpret_cast<guint8*>(bytes.data())))
        return {};
    return bytes;
}

unsigned Le16(std::string_view bytes, size_t at)
{
    return unsigned(static_cast<unsigned char>(bytes[at])) | unsigned(static_cast<unsigned char>(bytes[at + 1])) << 8;
}

// Word: the fEncrypted flag of the file information block. Excel: a FILEPASS record
// among the first records of the workbook stream. PowerPoint: an encrypted summary.
bool IsEncrypted(GsfInfile* ole)
{
    if (HasChild(ole, "EncryptedPackage") || HasChild(ole, "EncryptedSummary"))
        return true;
    const std::string fib = Head(Child(ole, "WordDocument").get(), 12);
    if (!fib.empty() && Le16(fib, 0) == 0xA5EC && (Le16(fib, 10) & 0x0100))
        return true;
    InputPtr book = Child(ole, "Workbook");
    if (!book)
        book = Child(ole, "Book");
    for (int record = 0; book && record < 64; ++record) {
        const std::string header = Head(book.get(), 4);
        if (header.empty())
            break;
        if (Le16(header, 0) == 0x002F)
            return true;
        if (gsf_input_seek(book.get(), gsf_off_t(Le16(header, 2)), G_SEEK_CUR))
            break;
    }
    return false;
}

bool IsOfficeFile(GsfInfile* ole)
{
    for (const char* stream : {"WordDocument", "Workbook", "Book", "PowerPoint Document", "EncryptedPackage"})
        if (HasChild(ole, stream))
            return true;
    return false;
}

std::string TextOf(const GValue* value)
{
    if (!value)
        return {};
    if (G_VALUE_HOLDS_STRING(value))
        return g_value_get_string(value) ? g_value_get_string(value) : "";
    if (G_VALUE_HOLDS_BOOLEAN(value))
        return g_value_get_boolean(value) ? "true" : "false";
    if (G_VALUE_HOLDS(value, GSF_TIMESTAMP_TYPE)) {
        const auto* stamp = static_cast<const GsfTimestamp*>(g_value_get_boxed(value));
        char* text = stamp ? gsf_timestamp_as_string(stamp) : nullptr;
        std::string result = text ? text : "";
        g_free(text);
        return result;
    }
    if (G_VALUE_HOLDS(value, GSF_DOCPROP_VECTOR_TYPE)) {
        char* text = gsf_docprop_vector_as_string(gsf_value_get_docprop_vector(value));
        std::string result = text ? text : "";
        g_free(text);
        return result;
    }
    GValue string = G_VALUE_INIT;
    g_value_init(&string, G_TYPE_STRING);
    std::string result;
    if (g_value_type_transformable(G_VALUE_TYPE(value), G_TYPE_STRING) && g_value_transform(value, &string))
        result = g_value_get_string(&string) ? g_value_get_string(&string) : "";
    g_value_unset(&string);
    return result;
}

std::string Property(GsfDocMetaData* meta, const char* name)
{
    GsfDocProp* prop = gsf_doc_meta_data_lookup(meta, name);
    return prop ? TextOf(gsf_doc_prop_get_val(prop)) : std::string();
}

void Stamp(GsfDocMetaData* meta, const char* name, Date& date, Time& time)
{
    const std::string text = Property(meta, name);
    if (!text.empty())
        metadates::ParseIso(text, date, time);
}

// Names libgsf gives the properties it knows; every other name is a user's own.
bool IsUserProperty(std::string_view name)
{
    for (std::string_view prefix : {"dc:", "meta:", "gsf:", "msole:"})
        if (name.substr(0, prefix.size()) == prefix)
            return false;
    return true;
}

// The whole stream, when it is small enough to be a property set.
std::string StreamBytes(GsfInfile* ole, const char* name)
{
    constexpr gsf_off_t kMaxPropertySet = 1 << 20;
    InputPtr input = Child(ole, name);
    if (!input || gsf_input_size(input.get()) > kMaxPropertySet)
        return {};
    return Head(input.get(), size_t(gsf_input_size(input.get())));
}

// User-defined properties in the order the file lists them; any the order misses (an
// unusual layout) follow by name.
void ReadUserProperties(GsfInfile* ole, GsfDocMetaData* meta, DocInfo& info)
{
    struct Collect {
        std::vector<std::string> names;
        static void Add(const char* name, GsfDocProp*, Collect* self)
        {
            if (name && IsUserProperty(name))
                self->names.emplace_back(name);
        }
    } collect;
    gsf_doc_meta_data_foreach(meta, GHFunc(&Collect::Add), &collect);
    std::vector<std::string> names;
    for (const std::string& name : UserPropertyOrder(StreamBytes(ole, kDocumentSummary)))
        if (std::find(collect.names.begin(), collect.names.end(), name) != collect.names.end() &&
            std::find(names.begin(), names.end(), name) == names.end())
            names.push_back(name);
    for (const std::string& name : collect.names)
        if (std::find(names.begin(), names.end(), name) == names.end())
            names.push_back(name);
    for (size_t i = 0; i < names.size() && i < info.info.size(); ++i)
        info.info[i] = Property(meta, names[i].c_str());
}

void FillFrom(GsfInfile* ole, GsfDocMetaData* meta, DocInfo& info)
{
    info.title = Property(meta, GSF_META_NAME_TITLE);
    info.topic = Property(meta, GSF_META_NAME_SUBJECT);
    info.author = Property(meta, GSF_META_NAME_CREATOR);
    info.keywords = Property(meta, GSF_META_NAME_KEYWORDS);
    info.comment = Property(meta, GSF_META_NAME_DESCRIPTION);
    info.modifiedBy = Property(meta, GSF_META_NAME_LAST_SAVED_BY);
    Stamp(meta, GSF_META_NAME_DATE_CREATED, info.createdDate, info.createdTime);
    Stamp(meta, GSF_META_NAME_DATE_MODIFIED, info.modifiedDate, info.modifiedTime);
    // A zero last-printed time means never printed, as an absent one does.
    constexpr uint32_t kLastPrinted = 11;  // PIDSI_LASTPRINTED
    if (!ZeroFileTime(StreamBytes(ole, kSummary), kLastPrinted))
        Stamp(meta, GSF_META_NAME_LAST_PRINTED, info.printedDate, info.printedTime);
    ReadUserProperties(ole, meta, info);
}

// Reads one property set stream into `meta`; false when it is there but unreadable.
bool ReadPropertySet(GsfInfile* ole, const char* stream, GsfDocMetaData* meta)
{
    InputPtr input = Child(ole, stream);
    if (!input)
        return true;
    GError* error = gsf_doc_meta_data_read_from_msole(meta, input.get());
    if (!error)
        return true;
    g_error_free(error);
    return false;
}

}  // namespace

ReadProblem ReadOleInfo(const DocBytes& doc, DocFormat byName, DocInfo& info, bool& isDocument)
{
    InitGsf();
    GError* error = nullptr;
    InputPtr file(doc.whole ? gsf_input_memory_new(reinterpret_cast<const guint8*>(doc.bytes.data()),
                                                   gsf_off_t(doc.bytes.size()), FALSE)
                            : gsf_input_stdio_new(doc.path.c_str(), &error));
    if (!file) {
        g_clear_error(&error);
        return ReadProblem::Damaged;
    }
    InfilePtr ole(gsf_infile_msole_new(file.get(), &error));
    if (!ole) {
        g_clear_error(&error);
        return ReadProblem::Damaged;
    }
    if (IsOfficeFile(ole.get()) || byName == DocFormat::LegacyOffice)
        isDocument = true;
    if (!isDocument)
        return ReadProblem::None;
    MetaPtr meta(gsf_doc_meta_data_new());
    const bool summary = ReadPropertySet(ole.get(), kSummary, meta.get());
    const bool documentSummary = ReadPropertySet(ole.get(), kDocumentSummary, meta.get());
    FillFrom(ole.get(), meta.get(), info);
    if (IsEncrypted(ole.get()))
        return ReadProblem::Encrypted;
    return summary && documentSummary ? ReadProblem::None : ReadProblem::Damaged;
}
