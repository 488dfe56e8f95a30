// SPDX-License-Identifier: MIT
#include "records/OpenProject.h"

#include <optional>
#include <stdexcept>
#include <utility>

#include "framework/File.h"
#include "results/ProjectFiles.h"
#include "text/Utf8.h"

namespace lumerin {

namespace {

constexpr std::string_view kInputExtension = ".in";
constexpr const char* kSubstructuresSuffix = ".TWR";

class MessageList : public Messages {
  public:
    explicit MessageList(std::vector<std::string>& texts) : m_texts(texts) {}
    void Show(const std::string& text) override { m_texts.push_back(ToUtf8(text)); }

  private:
    std::vector<std::string>& m_texts;
};

}  // namespace

bool IsInputFile(std::string_view name) {
    if (name.size() <= kInputExtension.size()) return false;
    const std::string_view end = name.substr(name.size() - kInputExtension.size());
    return end[0] == '.' && (end[1] == 'i' || end[1] == 'I') && (end[2] == 'n' || end[2] == 'N');
}

ProjectName::ProjectName(std::string_view given) {
    const bool hasExtension = IsInputFile(given);
    basePath = given.substr(0, given.size() - (hasExtension ? kInputExtension.size() : 0));
    inputFile = hasExtension ? std::string(given) : basePath + std::string(kInputExtension);
    name = ToUtf8(basePath);
}

bool ProjectExists(const ProjectName& name) {
    return !FindFileAnyCase(ProjectFile(name.basePath, kSubstructuresSuffix)).empty();
}

std::string MissingText(const ProjectName& name) {
    if (!IsFolder(name.basePath)) return "no project " + name.inputFile;
    return "the folder " + name.basePath + " has no project (*.in) that can be read";
}

std::unique_ptr<OpenProject> LoadByName(const ProjectName& name) {
    if (!ProjectExists(name)) throw std::runtime_error(ToUtf8(MissingText(name)));
    auto opened = std::make_unique<OpenProject>(OpenProject{name, {}, {}});
    MessageList messages(opened->messages);
    try {
        std::optional<Project> project = LoadProject(name.basePath, messages);
        if (!project) {
            throw std::runtime_error(opened->messages.empty() ? "no case converged"
                                                              : opened->messages.back());
        }
        opened->project = std::move(*project);
    } catch (const CFileException& fault) {
        throw std::runtime_error(ToUtf8(fault.m_strText));
    }
    return opened;
}

}  // namespace lumerin
