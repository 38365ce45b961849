// Legacy Office files for the reader tests: an OLE compound file written with libgsf,
// holding the property sets of a sample and the stream that names the application.
#include <gsf/gsf-doc-meta-data.h>
#include <gsf/gsf-meta-names.h>
#include <gsf/gsf-msole-utils.h>
#include <gsf/gsf-outfile-msole.h>
#include <gsf/gsf-outfile.h>
#include <gsf/gsf-output-stdio.h>
#include <gsf/gsf-timestamp.h>
#include <gsf/gsf-utils.h>

#include <gtest/gtest.h>

#include "tests/host/readers_fixtures.h"

namespace readertest {

namespace {

void PutText(GsfDocMetaData* meta, const char* name, const std::string& text)
{
    GValue* value = g_new0(GValue, 1);
    g_value_init(value, G_TYPE_STRING);
    g_value_set_string(value, text.c_str());
    gsf_doc_meta_data_insert(meta, g_strdup(name), value);
}

void PutStamp(GsfDocMetaData* meta, const char* name, const QDateTime& stamp)
{
    GsfTimestamp* ts = gsf_timestamp_new();
    gsf_timestamp_set_time(ts, guint64(stamp.toSecsSinceEpoch()));
    GValue* value = g_new0(GValue, 1);
    g_value_init(value, GSF_TIMESTAMP_TYPE);
    gsf_timestamp_to_value(ts, value);
    gsf_timestamp_free(ts);
    gsf_doc_meta_data_insert(meta, g_strdup(name), value);
}

}  // namespace

void WriteOle(const std::string& path, const SampleDoc& doc, const std::string& wordFlags)
{
    gsf_init();
    GError* error = nullptr;
    GsfOutput* file = gsf_output_stdio_new(path.c_str(), &error);
    ASSERT_NE(file, nullptr) << (error ? error->message : "");
    GsfOutfile* ole = gsf_outfile_msole_new(file);
    // The start of a Word file information block: its magic, then the flags at offset 10.
    const std::string word = std::string("\xEC\xA5\xC1\x00\x00\x00\x00\x00\x00\x00", 10) + wordFlags + std::string(64, '\0');
    GsfOutput* stream = gsf_outfile_new_child(ole, "WordDocument", FALSE);
    gsf_output_write(stream, word.size(), reinterpret_cast<const guint8*>(word.data()));
    gsf_output_close(stream);
    g_object_unref(stream);

    GsfDocMetaData* meta = gsf_doc_meta_data_new();
    PutText(meta, GSF_META_NAME_TITLE, doc.title);
    PutText(meta, GSF_META_NAME_SUBJECT, doc.topic);
    PutText(meta, GSF_META_NAME_CREATOR, doc.author);
    PutText(meta, GSF_META_NAME_KEYWORDS, JoinedKeywords(doc));
    PutText(meta, GSF_META_NAME_DESCRIPTION, doc.comment);
    PutText(meta, GSF_META_NAME_LAST_SAVED_BY, doc.modifiedBy);
    PutStamp(meta, GSF_META_NAME_DATE_CREATED, doc.created);
    PutStamp(meta, GSF_META_NAME_DATE_MODIFIED, doc.modified);
    if (doc.printed)
        PutStamp(meta, GSF_META_NAME_LAST_PRINTED, *doc.printed);
    GsfOutput* summary = gsf_outfile_new_child(ole, "\005SummaryInformation", FALSE);
    // The flag says "document summary", not "document".
    EXPECT_TRUE(gsf_doc_meta_data_write_to_msole(meta, summary, FALSE));
    gsf_output_close(summary);
    g_object_unref(summary);
    g_object_unref(meta);

    meta = gsf_doc_meta_data_new();
    for (const auto& [name, value] : doc.info)
        PutText(meta, name.c_str(), value);
    GsfOutput* documentSummary = gsf_outfile_new_child(ole, "\005DocumentSummaryInformation", FALSE);
    EXPECT_TRUE(gsf_doc_meta_data_write_to_msole(meta, documentSummary, TRUE));
    gsf_output_close(documentSummary);
    g_object_unref(documentSummary);
    g_object_unref(meta);

    gsf_output_close(GSF_OUTPUT(ole));
    g_object_unref(ole);
    g_object_unref(file);
}

}  // namespace readertest
