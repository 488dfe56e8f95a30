// SPDX-License-Identifier: MIT
#include <utility>

#include "cli/CompareReport.h"
#include "web/ComparePage.h"

namespace lumerin {

namespace {

class HtmlPrinter : public ComparePrinter {
  public:
    HtmlPrinter(std::unique_ptr<ByteSink> sink, const std::string& title, std::size_t top)
        : m_sink(std::move(sink)),
          m_page(title, top, [this](std::string_view bytes) { m_sink->Write(bytes); }) {}

    void Print(const PairResult& result) override {
        const ProjectPair& pair = result.pair;
        const auto name = [](const std::optional<ProjectName>& run) {
            return run ? std::string_view(run->name) : std::string_view();
        };
        std::string message = result.fault;
        if (message.empty() && !result.comparison) {
            message = std::string("is in the ") + (pair.before ? "old" : "new") + " folder alone";
        }
        m_page.Add({pair.name, name(pair.before), name(pair.after), message,
                    result.comparison ? &*result.comparison : nullptr, &result.figures});
    }
    void Close() override {
        m_page.Finish();
        m_sink->Commit();
    }

  private:
    std::unique_ptr<ByteSink> m_sink;
    ComparePage m_page;
};

}  // namespace

std::unique_ptr<ComparePrinter> MakeHtmlPrinter(std::unique_ptr<ByteSink> sink, const std::string& title,
                                                std::size_t top) {
    return std::make_unique<HtmlPrinter>(std::move(sink), title, top);
}

}  // namespace lumerin
