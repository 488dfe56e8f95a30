// SPDX-License-Identifier: MIT
#include "parts/SampleProject.h"

#include <unistd.h>

#include "samples/Presets.h"
#include "samples/Project.h"

namespace lumerin {

SampleProject::SampleProject()
    : m_folder(std::filesystem::temp_directory_path() / ("lumerin-bench-" + std::to_string(getpid()))) {
    samples::SampleOptions options;
    options.preset = "pier";
    options.name = "parts";
    options.rows = options.columns = 10;
    options.cases = 100;
    samples::WriteProject(m_folder, samples::MakeProject(options));
}

SampleProject::~SampleProject() {
    std::error_code ignored;
    std::filesystem::remove_all(m_folder, ignored);
}

const SampleProject& SampleProject::Get() {
    static const SampleProject project;
    return project;
}

MeasuredProject SampleProject::Load() const {
    return MeasuredProject((m_folder / "parts").string());
}

MeasuredProject& SampleProject::Loaded() {
    static MeasuredProject project = [] {
        MeasuredProject loaded = Get().Load();
        loaded.CollectAll();
        return loaded;
    }();
    return project;
}

long long SampleProject::ForceBytes() const {
    return static_cast<long long>(std::filesystem::file_size(m_folder / "parts.vmd"));
}

}  // namespace lumerin
