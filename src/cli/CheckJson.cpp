// SPDX-License-Identifier: MIT
#include <array>
#include <nlohmann/json.hpp>
#include <utility>

#include "cli/CheckReport.h"
#include "cli/JsonRecord.h"

namespace lumerin {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::array<const char*, 6> kForceKeys{"fax", "f22", "f33", "m22", "m33", "torque"};

Json RatioJson(const EndRatio& ratio) {
    Json json{{"substructure", ratio.substructure},
              {"family", ratio.family},
              {"dc", AsDouble(ratio.ratio)},
              {"place", ratio.place},
              {"element", ratio.element},
              {"node", ratio.node},
              {"end", ratio.end == kEndI ? "I" : "J"},
              {"case", ratio.loadCase},
              {"limit_state", ratio.limitState.empty() ? Json() : Json(ratio.limitState)}};
    for (std::size_t i = 0; i < kForceKeys.size(); ++i) {
        json[kForceKeys.at(i)] = AsDouble(ratio.forces.at(i));
    }
    return json;
}

Json FamilyJson(const FamilyVerdict& family) {
    Json json = RatioJson(family.worst);
    json["ends"] = family.ends;
    json["ends_over"] = family.endsOver;
    json["passes"] = family.passes;
    return json;
}

Json HeadJson(const HeadVerdict& head) {
    return {{"substructure", head.substructure},
            {"pile", head.pile},
            {"direction", head.tension ? "tension" : "compression"},
            {"force", AsDouble(head.force)},
            {"capacity", head.capacity},
            {"case", head.loadCase},
            {"limit_state", head.limitState.empty() ? Json() : Json(head.limitState)},
            {"passes", head.passes}};
}

// null: there is nothing to judge.
Json PassesJson(const CheckResult& result) {
    if (!result.fault.empty() || result.verdict.families.empty()) return {};
    return result.verdict.passes;
}

}  // namespace

void PrintCheckJson(const CheckResult& result, std::ostream& out) {
    Json json{{"project", result.name.name},
              {"status", static_cast<int>(result.status)},
              {"passes", PassesJson(result)}};
    const FamilyVerdict* worst = result.verdict.Worst();
    json["dc"] = worst == nullptr ? Json() : Json(AsDouble(worst->worst.ratio));
    json["limit"] = result.limit;
    if (!result.fault.empty()) {
        json["error"] = result.fault;
    } else {
        json["units"] = UnitSystemName(result.units);
        json["cases"] = result.cases;
        json["chosen"] = result.chosen;
        json["families"] = Json::array();
        for (const FamilyVerdict& family : result.verdict.families) {
            json["families"].push_back(FamilyJson(family));
        }
        json["pile_heads"] = Json::array();
        for (const HeadVerdict& head : result.verdict.heads) json["pile_heads"].push_back(HeadJson(head));
        json["top"] = Json::array();
        for (const EndRatio& ratio : result.top) json["top"].push_back(RatioJson(ratio));
    }
    json["findings"] = FindingsJson(result.findings);
    json["milliseconds"] = result.milliseconds;
    out << RecordLine(std::move(json));
}

}  // namespace lumerin
