// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/Element.h"
#include "records/Table.h"
#include "results/ForceSource.h"

namespace lumerin {

// One row that is built from left to right, reused for all rows of a table.
class RowBuffer {
  public:
    RowBuffer(std::string_view project, const RowTaker& take) : m_project(project), m_take(take) {}

    // Begins a row. Substructures count from 1; 0: the row is of the whole project.
    RowBuffer& Begin(std::size_t substructure) {
        m_values.clear();
        m_texts.clear();
        m_values.emplace_back(m_project);
        return substructure == 0 ? Absent() : Integer(static_cast<long long>(substructure));
    }
    RowBuffer& Absent(std::size_t count = 1) {
        m_values.resize(m_values.size() + count);
        return *this;
    }
    RowBuffer& Integer(long long value) { return Add(std::int64_t{value}); }
    // Absent where it is below the least one that means something.
    RowBuffer& IntegerFrom(long long least, long long value) {
        return value < least ? Absent() : Integer(value);
    }
    RowBuffer& Number(float value) { return Add(value); }
    RowBuffer& Number(double value) { return Add(value); }
    RowBuffer& Flag(bool value) { return Add(value); }
    // The text must stay where it is until the row was handed on; empty counts as absent.
    RowBuffer& Text(std::string_view text) { return text.empty() ? Absent() : Add(text); }
    RowBuffer& OwnText(std::string text) { return Text(m_texts.emplace_back(std::move(text))); }
    // FAX to TORQUE, or to D/C, of one end.
    RowBuffer& Forces(const ForceRow& forces, int end, int count) {
        const std::size_t first = Index(end == kEndI ? 0 : kComponents);
        for (int i = 0; i < count; ++i) Number(forces[first + Index(i)]);
        return *this;
    }

    void Hand() { m_take(m_values); }

  private:
    template <class Type>
    RowBuffer& Add(Type value) {
        m_values.emplace_back(value);
        return *this;
    }

    std::string_view m_project;
    const RowTaker& m_take;
    std::vector<Value> m_values;
    std::deque<std::string> m_texts;
};

}  // namespace lumerin
