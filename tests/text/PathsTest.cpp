// Folders of paths.
#include "text/Paths.h"

#include <gtest/gtest.h>

TEST(FolderOf, EndsWithTheLastSeparator) {
    EXPECT_EQ(FolderOf("/a/b.in"), "/a/");
    EXPECT_EQ(FolderOf("b.in"), "");
    EXPECT_EQ(FolderOf(""), "");
}
