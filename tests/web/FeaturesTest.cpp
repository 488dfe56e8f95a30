// SPDX-License-Identifier: MIT
// The pages use what the browsers of November 2021 had: Chromium 96, Firefox 94, Safari 15.1.
#include <gmock/gmock.h>

#include <regex>

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

// The names of the younger features that a page has.
std::vector<std::string> YoungerIn(const std::string& page) {
    std::vector<std::string> found;
    for (const Feature& feature : kYounger) {
        if (std::regex_search(page, std::regex(feature.pattern))) found.emplace_back(feature.name);
    }
    return found;
}

// A page without the drawings' coordinates and the rows, which have no features and take long to search.
std::string Skeleton(const std::string& page) {
    std::string text = std::regex_replace(
        page, std::regex("<(text|rect|line|polyline|polygon|circle|td|tr)[^>]*>[^<]*"), "<$1>");
    return std::regex_replace(text, std::regex("<(title|desc)>[^<]*"), "<$1>");
}

TEST(PageFeatures, NoneIsYoungerThanNovember2021) {
    const SampleFolder folder;
    for (const char* preset : {"pier", "bridge", "walls"}) {
        const std::unique_ptr<OpenProject> opened = LoadByName(ProjectName(folder.Write(preset)));
        const Evaluation evaluation(*opened, {}, {}, WebReportNeeds());
        std::string page;
        WriteWebReport(evaluation, {}, [&page](std::string_view bytes) { page.append(bytes); });
        ASSERT_THAT(page, testing::HasSubstr("@media print"));
        EXPECT_THAT(YoungerIn(Skeleton(page)), testing::IsEmpty()) << preset;
    }
}

TEST(PageFeatures, EachYoungerFeatureWouldBeFound) {
    for (const Feature& feature : kYounger) {
        const std::string page = std::string(kPageStyle) + feature.example + std::string(kPageScript);
        EXPECT_THAT(YoungerIn(page), testing::Contains(feature.name)) << feature.example;
    }
}

}  // namespace

}  // namespace lumerin
