// SPDX-License-Identifier: MIT
#include "records/Table.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <vector>

#include "records/Evaluation.h"

namespace lumerin {

namespace {

constexpr std::size_t kLongestNumber = 32;

template <class Real>
void AppendShortest(std::string& out, Real value) {
    if (std::isnan(value)) {
        out += "nan";
        return;
    }
    std::array<char, kLongestNumber> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    out.append(text.data(), end);
}

// Passes rows on in another unit system.
class Converter {
  public:
    Converter(const Table& table, UnitSystem from, UnitSystem to, const RowTaker& take)
        : m_row(table.columns.size()), m_take(take) {
        for (const Column& column : table.columns) {
            m_factors.push_back(ConversionFactor(column.quantity, from, to));
        }
    }

    void Take(std::span<const Value> row) {
        for (std::size_t i = 0; i < row.size(); ++i) m_row[i] = Converted(row[i], m_factors[i]);
        m_take(m_row);
    }

  private:
    static Value Converted(const Value& value, double factor) {
        if (factor == 1.0) return value;
        if (const float* single = std::get_if<float>(&value)) return AsDouble(*single) * factor;
        if (const double* real = std::get_if<double>(&value)) return *real * factor;
        return value;
    }

    std::vector<double> m_factors;
    std::vector<Value> m_row;
    const RowTaker& m_take;
};

}  // namespace

std::string_view ProgramVersion() {
    return LUMERIN_VERSION;
}

const Table* FindTable(std::string_view name) {
    for (const Table& table : AllTables()) {
        if (table.name == name) return &table;
    }
    return nullptr;
}

void EachRow(const Table& table, const Evaluation& evaluation, UnitSystem system, const RowTaker& take) {
    if (system == evaluation.Units()) {
        table.rows(evaluation, take);
        return;
    }
    Converter converter(table, evaluation.Units(), system, take);
    table.rows(evaluation, [&converter](std::span<const Value> row) { converter.Take(row); });
}

void AppendNumber(std::string& out, float value) {
    AppendShortest(out, value);
}

void AppendNumber(std::string& out, double value) {
    AppendShortest(out, value);
}

double AsDouble(float value) {
    if (!std::isfinite(value)) return value;
    std::array<char, kLongestNumber> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    double real = 0.0;
    std::from_chars(text.data(), end, real);
    return real;
}

}  // namespace lumerin
