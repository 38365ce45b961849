// The host's properties dialog: why a document could not be read, and formats that are
// only shown.
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <gtest/gtest.h>

#include "host/app/docpropertiesdialog.h"
#include "host/samples/samplewriter.h"
#include "tests/host/readers_fixtures.h"
#include "tests/support/tempdir.h"

using namespace readertest;

TEST(AppProperties, NotesAndReadOnlyFormats)
{
    TempDir dir;
    std::string error;
    for (const char* name : {"text.odt", "text.rtf"})
        ASSERT_TRUE(WriteSample(dir.PathOf(name), FullSample(), error)) << error;
    WriteOle(dir.PathOf("legacy.doc"), FullSample());
    WritePdf(dir.PathOf("locked.pdf"), "<< /Title (Secret) >>", "user-password");
    // `note`: a part of the note shown; empty: no note.
    const struct { const char* name; bool editable; const char* note; } cases[] = {
        {"text.odt", true, ""}, {"text.rtf", false, "read-only"}, {"legacy.doc", false, "read-only"},
        {"locked.pdf", true, "encrypted"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        DocPropertiesDialog dialog(nullptr, dir.PathOf(c.name), {});
        ASSERT_TRUE(dialog.IsLoaded());
        EXPECT_EQ(dialog.IsEditable(), c.editable);
        auto* note = dialog.findChild<QLabel*>("noteLabel");
        ASSERT_NE(note, nullptr);
        EXPECT_EQ(note->isVisibleTo(&dialog), *c.note != '\0');
        EXPECT_TRUE(note->text().contains(QLatin1String(c.note))) << note->text().toStdString();
        EXPECT_EQ(dialog.findChild<QPushButton*>("okButton")->isVisibleTo(&dialog), c.editable);
        EXPECT_EQ(dialog.findChild<QLineEdit*>("titleEdit")->isReadOnly(), !c.editable);
    }
}
