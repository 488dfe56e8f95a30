// SPDX-License-Identifier: MIT
#include <algorithm>

#include "framework/Index.h"
#include "tables/Catalogue.h"
#include "tables/Words.h"

namespace lumerin {

namespace {

std::string FirstCharacters(const std::string& text, int count) {
    return text.substr(0, Index(std::max(0, count)));
}

// The project's file name, fitted to `room` characters, its space in the line.
std::string FittedFileName(const ReportOptions& options, int room) {
    std::string full = options.projectBasePath + g_ExtensionInput;
    if (static_cast<int>(full.size()) <= room) return full;
    const int nameLength = static_cast<int>(options.projectFileName.size());
    // The dots and the ending take seven characters; the ending is the report's, whatever the project's is.
    if (nameLength > room)
        return FirstCharacters(options.projectFileName, room - 3 - 4) + "..." + g_ExtensionText;
    // The dots are added to that width: such a line is four characters too long.
    if (nameLength < room)
        return FirstCharacters(options.projectFolder, room - nameLength) + "...\\" + options.projectFileName;
    return {};
}

}  // namespace

std::string FooterText(const ReportOptions& options) {
    std::string text;
    if (!options.footer.on) return text;
    bool any = false;
    const auto separate = [&](const char* separator) {
        if (any) text += separator;
        any = true;
    };
    if (options.footer.date) {
        separate("");
        text += DateText(1, options.now());
    }
    if (options.footer.time) {
        separate(" ");
        text += TimeText(0, options.now());
    }
    if (options.footer.version) {
        separate(", ");
        text += options.versionLabel;
    }
    if (options.footer.fileName) {
        separate(", ");
        text += FittedFileName(options, CharsPerLine(options.viewerFontSize) - static_cast<int>(text.size()));
    }
    return text;
}

}  // namespace lumerin
