// SPDX-License-Identifier: MIT
#include <cmath>
#include <nlohmann/json.hpp>
#include <utility>

#include "cli/CompareReport.h"
#include "cli/JsonRecord.h"

namespace lumerin {

namespace {

using Json = nlohmann::ordered_json;

// JSON has no such numbers; their texts are those of the exports.
Json NumberJson(double value) {
    if (std::isfinite(value)) return value;
    std::string text;
    AppendNumber(text, value);
    return text;
}

Json NumberJson(const std::optional<double>& value) {
    return value ? NumberJson(*value) : Json();
}

Json TextJson(const std::string& text) {
    return text.empty() ? Json() : Json(text);
}

// null: no case.
Json CaseJson(const CaseName& name) {
    if (name.number == 0) return {};
    return {
        {"case", name.number}, {"limit_state", TextJson(name.limitState)}, {"title", TextJson(name.title)}};
}

Json RunJson(const RunVerdict& run, const ProjectName& name, UnitSystem units,
             const std::vector<Finding>& findings) {
    const bool judged = run.answer != RunVerdict::Answer::none;
    return {{"project", name.name},
            {"passes", judged ? Json(run.answer == RunVerdict::Answer::passes) : Json()},
            {"dc", judged ? NumberJson(run.ratio) : Json()},
            {"place", TextJson(run.place)},
            {"case", CaseJson(run.loadCase)},
            {"units", UnitSystemName(units)},
            {"findings", FindingsJson(findings)}};
}

Json StructureJson(const StructureChange& change) {
    return {{"kind", change.kind},
            {"change", PresenceName(change.presence)},
            {"substructure", change.substructure == 0 ? Json() : Json(change.substructure)},
            {"what", change.what},
            {"old", TextJson(change.before)},
            {"new", TextJson(change.after)},
            {"count", change.count}};
}

Json RowJson(const RowChange& row) {
    return {{"table", row.table->name},
            {"substructure", row.substructure},
            {"row", row.label},
            {"change", PresenceName(row.presence)},
            {"case", CaseJson(row.loadCase)}};
}

Json ValueJson(const ValueChange& value, UnitSystem units) {
    const std::string_view unit = UnitName(value.quantity, units);
    const bool hasBoth = value.before && value.after;
    return {{"column", value.column},
            {"unit", TextJson(std::string(unit))},
            {"old", NumberJson(value.before)},
            {"new", NumberJson(value.after)},
            {"difference", hasBoth ? NumberJson(value.change.difference) : Json()},
            {"relative", std::isnan(value.change.relative) ? Json() : Json(value.change.relative)},
            {"exceeds", value.change.exceeds}};
}

Json ResultJson(const ResultChange& result, UnitSystem units) {
    Json json{{"table", result.table->name},
              {"substructure", result.substructure},
              {"row", result.label},
              {"old_case", CaseJson(result.caseBefore)},
              {"new_case", CaseJson(result.caseAfter)},
              {"old_place", TextJson(result.placeBefore)},
              {"new_place", TextJson(result.placeAfter)},
              {"values", Json::array()}};
    for (const ValueChange& value : result.values) json["values"].push_back(ValueJson(value, units));
    return json;
}

template <class List, class Make>
Json ListJson(const List& list, std::size_t top, Make make) {
    Json array = Json::array();
    for (const auto& entry : list) {
        if (top > 0 && array.size() >= top) break;
        array.push_back(make(entry));
    }
    return array;
}

void AddComparison(const PairResult& result, std::size_t top, Json& json) {
    const Comparison& comparison = *result.comparison;
    const UnitSystem units = comparison.units;
    json["units"] = UnitSystemName(units);
    json["limit"] = result.limit;
    json["old"] =
        RunJson(comparison.before, *result.pair.before, comparison.unitsBefore, result.findingsBefore);
    json["new"] = RunJson(comparison.after, *result.pair.after, comparison.unitsAfter, result.findingsAfter);
    json["verdicts"] = ListJson(comparison.flips, 0, [](const Flip& flip) {
        return Json{{"substructure", flip.substructure},
                    {"family", flip.label},
                    {"old_passes", flip.before},
                    {"new_passes", flip.after}};
    });
    json["structure"] = ListJson(comparison.structure, top, StructureJson);
    json["rows"] = ListJson(comparison.rows, top, RowJson);
    const auto make = [units](const ResultChange& entry) { return ResultJson(entry, units); };
    json["results"] = ListJson(comparison.results, top, make);
    json["governing"] = ListJson(comparison.governing, top, make);
    json["counts"] = {{"structure", comparison.structure.size()}, {"rows", comparison.rows.size()},
                      {"results", comparison.results.size()},     {"governing", comparison.governing.size()},
                      {"renumbered", comparison.renumbered},      {"compared", comparison.compared}};
}

class JsonPrinter : public ComparePrinter {
  public:
    JsonPrinter(std::unique_ptr<ByteSink> sink, std::size_t top) : m_sink(std::move(sink)), m_top(top) {}

    void Print(const PairResult& result) override {
        Json json{{"project", result.pair.name}, {"status", static_cast<int>(result.status)}};
        if (!result.fault.empty()) {
            json["differs"] = nullptr;
            json["error"] = result.fault;
        } else if (!result.comparison) {
            json["differs"] = true;
            json["only_in"] = result.pair.before ? "old" : "new";
        } else {
            json["differs"] = result.comparison->Differs();
            AddComparison(result, m_top, json);
        }
        m_sink->Write(RecordLine(std::move(json)));
    }
    void Close() override { m_sink->Commit(); }

  private:
    std::unique_ptr<ByteSink> m_sink;
    std::size_t m_top;
};

}  // namespace

std::unique_ptr<ComparePrinter> MakeJsonPrinter(std::unique_ptr<ByteSink> sink, std::size_t top) {
    return std::make_unique<JsonPrinter>(std::move(sink), top);
}

}  // namespace lumerin
