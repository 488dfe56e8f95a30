// SPDX-License-Identifier: MIT
// The pages use what the browsers of November 2021 had: Chromium 96, Firefox 94, Safari 15.1.
#include <gmock/gmock.h>

#include <regex>
#include <set>

#include "support/SampleFolder.h"
#include "web/PageParts.h"
#include "web/WebReport.h"

namespace lumerin {

namespace {

// A younger feature, as it is found in a page, and an example of it.
struct Feature {
    const char* name;
    const char* pattern;
    const char* example;
};

constexpr Feature kYounger[] = {
    {":has()", ":has\\(", "tr:has(td) {}"},
    {"container queries", "@container|container-type", "@container (width > 1px) {}"},
    {"cascade layers", "@layer", "@layer base {}"},
    {"@property", "@property", "@property --x {}"},
    {"@scope", "@scope", "@scope (a) {}"},
    {"@starting-style", "@starting-style", "@starting-style {}"},
    {"nesting", "[^&]& *[.:>a-z][a-z0-9 .:>-]*\\{", "a { & b { color: red } }"},
    {"color-mix()", "color-mix\\(", "a { color: color-mix(in srgb, red, blue) }"},
    {"light-dark()", "light-dark\\(", "a { color: light-dark(red, blue) }"},
    {"oklch()", "\\b(oklch|oklab|lch|lab)\\(", "a { color: oklch(1 0 0) }"},
    {"subgrid", "subgrid", "a { grid-template-rows: subgrid }"},
    {"color-scheme", "color-scheme *: *(light|dark)(?!\\))", "a { color-scheme: light dark }"},
    {"accent-color", "accent-color", "a { accent-color: red }"},
    {":focus-visible", ":focus-visible", "a:focus-visible {}"},
    {"individual transforms", "[;{ ](rotate|scale|translate) *:", "a { scale: 2 }"},
    {"viewport units", "\\d(svh|lvh|dvh|svw|dvw|cqw|cqi)\\b", "a { height: 10dvh }"},
    {"media ranges", "@media[^{]*[<>]=?", "@media (width >= 10px) {}"},
    {"scroll-timeline", "animation-timeline|scroll-timeline", "a { animation-timeline: scroll() }"},
    {"view transitions", "view-transition|startViewTransition", "document.startViewTransition(f)"},
    {"text-wrap: balance", "text-wrap", "a { text-wrap: balance }"},
    {"content-visibility", "content-visibility", "a { content-visibility: auto }"},
    {"scrollbar-gutter", "scrollbar-gutter", "a { scrollbar-gutter: stable }"},
    {"named pages", "[;{ ]page *:", "a { page: wide }"},
    {"dialog", "<dialog|showModal", "<dialog>"},
    {"popover", "popover", "<div popover>"},
    {"inert", "\\binert\\b", "<div inert>"},
    {"search element", "<search", "<search>"},
    {"hidden until found", "until-found", "<div hidden=\"until-found\">"},
    {"details with a name", "<details[^>]* name=", "<details name=\"a\">"},
    {"import maps", "importmap", "<script type=\"importmap\">"},
    {"Array.at", "\\.at\\(", "rows.at(-1)"},
    {"findLast", "findLast", "rows.findLast(f)"},
    {"toSorted and its like", "\\.(toSorted|toReversed|toSpliced|with)\\(", "rows.toSorted()"},
    {"groupBy", "groupBy", "Object.groupBy(rows, f)"},
    {"Object.hasOwn", "hasOwn\\(", "Object.hasOwn(a, 'b')"},
    {"structuredClone", "structuredClone", "structuredClone(rows)"},
    {"private methods in checks", "#[a-z]+ in ", "#x in y"},
    {"static blocks", "static *\\{", "class A { static { } }"},
    {"array grouping by Map", "Map\\.groupBy", "Map.groupBy(rows, f)"},
    {"Array.fromAsync", "fromAsync", "Array.fromAsync(x)"},
    {"Promise.withResolvers", "withResolvers", "Promise.withResolvers()"},
    {"regular expression flag v", "/[gimsuy]*v[gimsuy]*[;,)]", "x = /a/v;"},
    {"set methods", "\\.(isSubsetOf|symmetricDifference|intersection)\\(", "a.isSubsetOf(b)"},
    {"iterator helpers", "Iterator\\.from", "Iterator.from(a)"},
};

bool Has(const std::string& page, const Feature& feature) {
    return std::regex_search(page, std::regex(feature.pattern));
}

// The names of the younger features that a page has.
std::vector<std::string> YoungerIn(const std::string& page) {
    std::vector<std::string> found;
    for (const Feature& feature : kYounger) {
        if (Has(page, feature)) found.emplace_back(feature.name);
    }
    return found;
}

// A page, or several, as its styles, its script and each kind of tag, all of them once: drawings and tables
// repeat theirs thousands of times with other numbers.
std::string Skeleton(const std::string& page) {
    std::string text;
    std::set<std::string> known;
    for (std::size_t at = page.find('<'); at != std::string::npos; at = page.find('<', at)) {
        const std::size_t end = page.find('>', at);
        std::string tag = page.substr(at, end - at + 1);
        at = end;
        const bool isStyle = tag == "<style>";
        if (isStyle || tag == "<script>") {
            const std::size_t close = page.find(isStyle ? "</style>" : "</script>", at);
            const std::string block = page.substr(at, close - at);
            if (known.insert(block).second) text += block;
            at = close;
        }
        std::erase_if(tag, [](char c) { return c >= '0' && c <= '9'; });
        if (known.insert(tag).second) text += tag + "\n";
    }
    return text;
}

TEST(PageFeatures, NoneIsYoungerThanNovember2021) {
    const SampleFolder folder;
    std::string pages;
    for (const char* preset : {"pier", "bridge", "walls"}) {
        const std::unique_ptr<OpenProject> opened = LoadByName(ProjectName(folder.Write(preset)));
        const Evaluation evaluation(*opened, {}, {}, WebReportNeeds());
        std::string page;
        WriteWebReport(evaluation, {}, [&page](std::string_view bytes) { page.append(bytes); });
        const std::string skeleton = Skeleton(page);
        for (const char* part : {"@media print", "addEventListener", "<table id=\"t\""}) {
            ASSERT_THAT(skeleton, testing::HasSubstr(part));
        }
        pages += page;
    }
    EXPECT_THAT(YoungerIn(Skeleton(pages)), testing::IsEmpty());
}

TEST(PageFeatures, AFeatureOfAStyleAScriptOrOneTagOfManyIsKept) {
    const std::string page =
        "<style>a { height: 10dvh }</style><p id=\"1\"><p id=\"2\"><dialog><script>rows.at(-1)</script>";
    EXPECT_THAT(YoungerIn(Skeleton(page)), testing::ElementsAre("viewport units", "dialog", "Array.at"));
}

TEST(PageFeatures, EachYoungerFeatureWouldBeFound) {
    for (const Feature& feature : kYounger) {
        const std::string page = std::string(kPageStyle) + feature.example + std::string(kPageScript);
        EXPECT_TRUE(Has(page, feature)) << feature.name << ": " << feature.example;
    }
}

}  // namespace

}  // namespace lumerin
