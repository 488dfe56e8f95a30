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

bool EndsWithInputExtension(std::string_view given) {
    if (given.size() <= kInputExtension.size()) return false;
    const std::string_view end = given.substr(given.size() - kInputExtension.size());
    return end[0] == '.' && (end[1] == 'i' || end[1] == 'I') && (end[2] == 'n' || end[2] == 'N');
}

class MessageList : public Messages {
  public:
    explicit MessageList(std::vector<std::string>& texts) : m_texts(texts) {}
    void Show(const std::string& text) override { m_texts.push_back(ToUtf8(text)); }

  private:
    std::vector<std::string>& m_texts;
};

}  // namespace

ProjectName::ProjectName(std::string_view given) {
    const bool hasExtension = EndsWithInputExtension(given);
    basePath = given.substr(0, given.size() - (hasExtension ? kInputExtension.size() : 0));
    inputFile = hasExtension ? std::string(given) : basePath + std::string(kInputExtension);
    name = ToUtf8(basePath);
}

bool ProjectExists(const ProjectName& name) {
    return !FindFileAnyCase(ProjectFile(name.basePath, kSubstructuresSuffix)).empty();
}

std::unique_ptr<OpenProject> LoadByName(const ProjectName& name) {
    if (!ProjectExists(name)) throw std::runtime_error("no project " + ToUtf8(name.inputFile));
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
