#include "parts/SampleProject.h"

#include <unistd.h>

#include <stdexcept>

#include "model/DataSet.h"
#include "results/CollectData.h"
#include "samples/Presets.h"
#include "samples/Project.h"
#include "session/Session.h"

SampleProject::SampleProject()
    : m_folder(std::filesystem::temp_directory_path() / ("lumerin-bench-" + std::to_string(getpid()))) {
    samples::SampleOptions options;
    options.preset = "pier";
    options.name = "parts";
    options.rows = options.columns = 10;
    options.cases = 100;
    samples::WriteProject(m_folder, samples::MakeProject(options));
    g_InputFilePath = (m_folder / "parts.in").string();
}

SampleProject::~SampleProject() {
    std::error_code ignored;
    std::filesystem::remove_all(m_folder, ignored);
}

const SampleProject& SampleProject::Get() {
    static const SampleProject project;
    return project;
}

void SampleProject::Load() const {
    g_DataSet.FreePiers();
    g_DataSet.Reset();
    DerivePaths();
    if (!g_DataSet.LoadProject()) throw std::runtime_error("the project has no results");
    g_DataSet.SetTableApplicability();
}

void SampleProject::LoadOnce() const {
    if (!g_DataSet.m_Piers.empty()) return;
    Load();
    CCollectData collect;
    collect.CollectMaxAxialForces();
    collect.CollectPileDemandCapacity();
    collect.CollectColumnDemandCapacity();
    collect.CollectCapShear();
    collect.CollectCapMoment();
    collect.CollectPileForces();
    collect.CollectColumnForces();
    collect.CollectExtraMemberForces();
}

long long SampleProject::ForceBytes() const {
    return static_cast<long long>(std::filesystem::file_size(m_folder / "parts.vmd"));
}
