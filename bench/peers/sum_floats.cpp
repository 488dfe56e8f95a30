// SPDX-License-Identifier: MIT
// sum_floats FILE...: reads the files once, in blocks, and sums every float: the cost of reading the force
// files for a program that hardly computes. The other times are given as multiples of this one.
#include <chrono>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

constexpr std::size_t kBlockFloats = std::size_t{1} << 17;  // 512 KB, the fastest of 64 KB to 8 MB

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

// False: the file cannot be read.
bool AddFile(const char* path, std::vector<float>& block, double& sum) {
    const std::unique_ptr<std::FILE, Closer> file(std::fopen(path, "rb"));
    if (file == nullptr) return false;
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    for (;;) {
        const std::size_t floats = std::fread(block.data(), sizeof(float), block.size(), file.get());
        // Eight independent sums: with one, each addition would wait for the one before it.
        float sums[8] = {};
        std::size_t i = 0;
        for (; i + 8 <= floats; i += 8) {
            for (std::size_t k = 0; k < 8; ++k) sums[k] += block[i + k];
        }
        for (; i < floats; ++i) sums[0] += block[i];
        for (const float part : sums) sum += static_cast<double>(part);
        if (floats < block.size()) return std::ferror(file.get()) == 0;
    }
}

}  // namespace

int main(int argc, char** argv) {
    const auto begin = std::chrono::steady_clock::now();
    std::vector<float> block(kBlockFloats);
    double sum = 0.0;
    for (int i = 1; i < argc; ++i) {
        if (!AddFile(argv[i], block, sum)) {
            std::fprintf(stderr, "sum_floats: %s cannot be read\n", argv[i]);
            return 1;
        }
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
    std::printf("seconds %.6f\nsum %.9g\n", took.count(), sum);
    return 0;
}
