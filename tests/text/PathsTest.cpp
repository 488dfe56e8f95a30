// SPDX-License-Identifier: MIT
// Folders of paths.
#include "text/Paths.h"

#include <gtest/gtest.h>

namespace lumerin {

TEST(FolderOf, EndsWithTheLastSeparator) {
    EXPECT_EQ(FolderOf("/a/b.in"), "/a/");
    EXPECT_EQ(FolderOf("b.in"), "");
    EXPECT_EQ(FolderOf(""), "");
}

}  // namespace lumerin
