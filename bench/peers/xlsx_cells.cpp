// SPDX-License-Identifier: MIT
// xlsx_cells ROWS FILE: writes ROWS rows of the pile head sheet's shape, five identity cells and seven
// numbers, through libxlsxwriter in constant memory mode. The values are prepared; nothing is computed.
#include <xlsxwriter.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kNumbers = 11;  // pile, element, pile again, load case; then six forces and the ratio
constexpr int kTextColumn = 5;
constexpr std::size_t kReady = 1009;  // distinct rows, written repeatedly

std::array<std::array<double, kNumbers>, kReady> MakeRows() {
    std::array<std::array<double, kNumbers>, kReady> rows{};
    for (std::size_t r = 0; r < kReady; ++r) {
        for (std::size_t c = 0; c < kNumbers; ++c) {
            const auto seed = static_cast<float>((r * 7919 + c * 104729) % 200003);
            rows[r][c] = c < 4 ? static_cast<double>(r + c) : static_cast<double>((seed - 1e5F) / 37.0F);
        }
    }
    return rows;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    const auto rows = static_cast<lxw_row_t>(std::strtoul(argv[1], nullptr, 10));
    const auto ready = MakeRows();
    const auto begin = std::chrono::steady_clock::now();
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    lxw_workbook* book = workbook_new_opt(argv[2], &options);
    lxw_worksheet* sheet = workbook_add_worksheet(book, nullptr);
    for (lxw_row_t row = 0; row < rows; ++row) {
        const auto& values = ready[row % kReady];
        lxw_col_t column = 1;
        for (const double value : values) {
            if (column == kTextColumn) {
                worksheet_write_string(sheet, row, column++, "     Strength I", nullptr);
            }
            worksheet_write_number(sheet, row, column++, value, nullptr);
        }
    }
    if (workbook_close(book) != LXW_NO_ERROR) return 1;
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
    std::printf("seconds %.6f\ncells %lu\n", took.count(), static_cast<unsigned long>(rows) * (kNumbers + 1));
    return 0;
}
