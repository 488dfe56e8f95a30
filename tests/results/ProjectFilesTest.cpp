// SPDX-License-Identifier: MIT
#include "results/ProjectFiles.h"

#include <gtest/gtest.h>

namespace lumerin {

TEST(ProjectFileNames, AreKnownByTheirExtensionInAnyLetterCase) {
    for (const char* path :
         {"pier.in", "pier.IN", "a/pier.TWR", "pier.plf2", "pier.PIL13", "pier.ncv", "pier.pls3", "pier.vmd",
          "pier.VMD2", "pier.ash", "pier.CMB", "pier.lim", "pier.MIS", "MPTE2/p_MPTE2.PEL", ".in"}) {
        EXPECT_TRUE(HasNameOfProjectFile(path)) << path;
    }
    for (const char* path : {"", "in", "pier", "pier.txt", "pier.vmd.txt", "pier.vmdx", "pier.2",
                             "a.vmd/pier", "pier_Full_Report.pdf", "pier.inp", "pier.", "vmd"}) {
        EXPECT_FALSE(HasNameOfProjectFile(path)) << path;
    }
}

}  // namespace lumerin
