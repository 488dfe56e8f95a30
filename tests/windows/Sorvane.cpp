// SPDX-License-Identifier: MIT
// A plot module that plots nothing: it records the eight arguments that it was called with.
#include <cstdio>
#include <cstdlib>
#include <string>

#include "host/RecordFormat.h"

using namespace lumerin;

extern "C" int __stdcall RecordLaunch(int format, const char* dataFile, const char* plot, const char* family,
                                      const char* version, const char* zeroA, const char* zeroB,
                                      const char* argument) {
    const char* path = std::getenv(kRecordVariable);
    std::FILE* file = path == nullptr ? nullptr : std::fopen(path, "ab");
    if (file == nullptr) return 1;
    std::string line = kRecordModule;
    line += kRecordFieldEnd + std::string("Sorvane.dll") + kRecordFieldEnd + std::to_string(format);
    for (const char* text : {dataFile, plot, family, version, zeroA, zeroB, argument}) {
        line += kRecordFieldEnd + std::string(text);
    }
    line += '\n';
    const bool written = std::fwrite(line.data(), 1, line.size(), file) == line.size();
    return std::fclose(file) == 0 && written ? 0 : 1;
}
