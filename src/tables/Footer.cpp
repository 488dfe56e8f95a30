#include <algorithm>

#include "session/Constants.h"
#include "session/Session.h"
#include "tables/Catalogue.h"

namespace {

std::string FirstCharacters(const std::string& text, int count) {
    return text.substr(0, static_cast<std::size_t>(std::max(0, count)));
}

// The project's file name, fitted to `room` characters.
std::string FittedFileName(int room) {
    std::string full = PathAsText(g_ProjectBasePath) + g_ExtensionInput;
    if (static_cast<int>(full.size()) <= room) return full;
    const std::string name = PathAsText(g_ProjectFileName);
    const int nameLength = static_cast<int>(name.size());
    // The dots and the ending take seven characters; the ending is the report's, whatever the project's is.
    if (nameLength > room) return FirstCharacters(name, room - 3 - 4) + "..." + g_ExtensionText;
    // The dots come on top of the room: such a line is four characters too long.
    if (nameLength < room)
        return FirstCharacters(PathAsText(g_ProjectFolder), room - nameLength) + "...\\" + name;
    return {};
}

}  // namespace

std::string FooterText() {
    std::string text;
    if (g_FooterOn == 0) return text;
    bool any = false;
    const auto separate = [&](const char* separator) {
        if (any) text += separator;
        any = true;
    };
    if (g_FooterDate != 0) {
        separate("");
        text += DateText(1);
    }
    if (g_FooterTime != 0) {
        separate(" ");
        text += TimeText(0);
    }
    if (g_FooterVersion != 0) {
        separate(", ");
        text += g_VersionLabel;
    }
    if (g_FooterFileName != 0) {
        separate(", ");
        text += FittedFileName(CharsPerLine(ViewerFontSize()) - static_cast<int>(text.size()));
    }
    return text;
}
