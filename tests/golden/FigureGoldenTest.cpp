// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "figures/Figure.h"
#include "support/Golden.h"
#include "support/SampleFolder.h"

// Every figure of every sample project as it was when somebody looked at it as a picture.
// tools/figure-goldens makes them anew and shows them on one sheet.

namespace lumerin {

namespace {

namespace fs = std::filesystem;

class FigureGolden : public testing::TestWithParam<const char*> {
  protected:
    static fs::path Folder() { return fs::path(LUMERIN_SOURCE_DIR) / "tests" / "golden" / "figures"; }

    static std::string Bytes(const fs::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
};

TEST_P(FigureGolden, FiguresAreThoseThatWereLookedAt) {
    const std::string preset = GetParam();
    const SampleFolder samples;
    const auto opened = LoadByName(ProjectName(samples.Write(preset)));
    Limits limits;
    limits.pileCompression = 500.0;
    std::set<std::string> drawn;
    for (const FigureKind& figure : AllFigures()) {
        const Evaluation evaluation(*opened, {}, limits, figure.needs);
        const bool isOfProject = figure.scope == FigureScope::project;
        const std::size_t count = isOfProject ? 1 : evaluation.Data().m_Piers.size();
        for (std::size_t p = 1; p <= count; ++p) {
            const std::string name =
                preset + "-" + std::to_string(p) + "-" + std::string(figure.name) + ".svg";
            FigureRequest request;
            request.substructure = static_cast<int>(p);
            EXPECT_TRUE(MatchesGolden(name, Bytes(Folder() / name), figure.draw(evaluation, request)));
            drawn.insert(name);
        }
    }
    // No file is left of a figure that is gone.
    for (const fs::directory_entry& entry : fs::directory_iterator(Folder())) {
        const std::string name = entry.path().filename().string();
        if (!name.starts_with(preset + "-")) continue;
        EXPECT_TRUE(drawn.contains(name)) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Samples, FigureGolden,
                         testing::Values("pier", "bent", "group", "walls", "bridge", "history"),
                         [](const auto& preset) { return std::string(preset.param); });

}  // namespace

}  // namespace lumerin
