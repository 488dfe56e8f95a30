// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/Messages.h"
#include "support/ScratchFolder.h"

namespace lumerin {

// A folder with the files of an embedment study.
class StudyFolder : public ScratchFolder {
  public:
    void WriteBase(const std::string& text) const { Write("a.PEL", text); }
    void WriteTrial(int number, const std::string& text) const {
        const std::string mark = "MPTE" + std::to_string(number);
        Write(mark + "/a_" + mark + ".PEL", text);
    }

    const std::filesystem::path folder = Path();
    std::string inputFile = PathOf("a.in");  // of the project
};

// A test of a study's files.
class StudyFileTest : public testing::Test, public StudyFolder {
  protected:
    RecordedMessages messages;
};

}  // namespace lumerin
