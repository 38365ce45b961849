// The subdirectory marker and the exception list.
#include <gtest/gtest.h>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/config/pathrules.h"
#include "docmgr/tools/resmgr.h"

TEST(PathRules, SubdirectoryMarkerAndTheExceptionListThatRunsOnePastItsLastEntry)
{
    ResModule module(Language::English);  // the marker is one of its texts
    EXPECT_TRUE(TestSub("/**"));
    EXPECT_EQ(WoutSub("/**"), "");
    EXPECT_EQ(WithSub(""), "/**");
    for (const std::string p : {"/home/a", "/home/a/", "/home/*", "C:\\Docs", "/x/**/y"}) {
        EXPECT_FALSE(TestSub(p)) << p;
        EXPECT_EQ(WithSub(p), p + "/**");
        EXPECT_EQ(WithSub(WithSub(p)), WithSub(p));
        EXPECT_EQ(WoutSub(WithSub(p)), p);
        EXPECT_EQ(WoutSub(p), p);
    }

    ImplDocConfig docConfig(nullptr, "*");
    EXPECT_FALSE(docConfig.IsExceptionPath("/tmp"));
    docConfig.SetExceptionPaths("/srv/Archiv;/mnt/Übersicht");
    EXPECT_EQ(docConfig.GetExceptionPaths(), "/SRV/ARCHIV;/MNT/ÜBERSICHT");
    EXPECT_EQ(docConfig.GetExceptionCount(), 2u);
    EXPECT_TRUE(docConfig.IsExceptionPath("/srv/archiv") && docConfig.IsExceptionPath("/mnt/übersicht"));
    EXPECT_FALSE(docConfig.IsExceptionPath("/srv/archiv/2020"));
    EXPECT_TRUE(docConfig.IsExceptionPath(""));
}
