// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <memory>
#include <vector>

#include "model/DataSet.h"
#include "results/ForceSource.h"

namespace lumerin {

// The forces of a substructure that was built by hand, in memory. Those that were not set are 0.
class MemoryForces : public ForceSource {
  public:
    // The substructure is kept.
    explicit MemoryForces(const CPier& pier) : m_pier(pier) {}

    ForceRow& Row(int loadCase, int element) { return m_rows[{loadCase, element}]; }
    ForceRow Row(int loadCase, int element) const {
        const auto found = m_rows.find({loadCase, element});
        return found == m_rows.end() ? ForceRow{} : found->second;
    }

    FiniteForces ReadCases(const CaseTaker& take) const override {
        ++passes;
        std::vector<float> forces(static_cast<std::size_t>(m_pier.ElementCount()) * kForcesPerElement);
        for (int c = 0; c < static_cast<int>(m_pier.m_LoadCases.size()); ++c) {
            std::ranges::fill(forces, 0.0F);
            for (int e = 0; e < m_pier.ElementCount(); ++e) {
                std::ranges::copy(Row(c, e), forces.data() + static_cast<std::size_t>(e) * kForcesPerElement);
            }
            take(c, forces);
        }
        return finite;
    }
    std::unique_ptr<ForceRows> OpenRows() const override { return std::make_unique<Rows>(*this); }
    ForceLayout Layout() const override {
        ForceLayout layout;
        layout.block = m_pier.ElementCount();
        layout.whole = layout.block * static_cast<long long>(m_pier.m_LoadCases.size());
        layout.firstFrameRecord = 1;
        for (long long record = 1; record <= layout.block; ++record) layout.recordOf.push_back(record);
        return layout;
    }
    bool IsUnchanged() const override { return unchanged; }
    std::string Name() const override { return "memory"; }

    FiniteForces finite;  // the result of every pass
    bool unchanged = true;
    mutable int passes = 0;

  private:
    class Rows : public ForceRows {
      public:
        explicit Rows(const MemoryForces& forces) : m_forces(forces) {}
        ForceRow At(int loadCase, int element) override { return m_forces.Row(loadCase, element); }

      private:
        const MemoryForces& m_forces;
    };

    const CPier& m_pier;
    std::map<std::pair<int, int>, ForceRow> m_rows;
};

// The forces of all substructures of a project that was built by hand, which is kept. A substructure gets its
// forces when they are first used; the project must have all its substructures by then.
class ModelForces {
  public:
    explicit ModelForces(const CDataSet& data) : m_data(data) {}

    void Clear() { m_sources.clear(); }
    MemoryForces& Of(const CPier& pier) {
        Sources();
        return *m_forces[static_cast<std::size_t>(&pier - m_data.m_Piers.data())];
    }
    const ForceSources& Sources() {
        if (m_sources.size() == m_data.m_Piers.size()) return m_sources;
        m_sources.clear();
        m_forces.clear();
        for (const CPier& pier : m_data.m_Piers) {
            auto forces = std::make_unique<MemoryForces>(pier);
            m_forces.push_back(forces.get());
            m_sources.push_back(std::move(forces));
        }
        return m_sources;
    }

    void Set(const CPier& pier, int loadCase, int element, int end, int component, float value) {
        Of(pier).Row(loadCase, element)[static_cast<std::size_t>(end * kComponents + component)] = value;
    }
    // The forces at one end: FAX, F22, F33, M22, M33, TORQUE, D/C.
    void Set(const CPier& pier, int loadCase, int element, int end,
             const std::array<float, kComponents>& values) {
        for (int i = 0; i < kComponents; ++i) {
            Set(pier, loadCase, element, end, i, values[static_cast<std::size_t>(i)]);
        }
    }

  private:
    const CDataSet& m_data;
    ForceSources m_sources;
    std::vector<MemoryForces*> m_forces;
};

}  // namespace lumerin
