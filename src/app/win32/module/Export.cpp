#include <exception>

#include "app/Launch.h"

// The module's one export. The definition file gives it its plain name.
extern "C" unsigned __stdcall LaunchLumerinExport(int reportFormat, const char* inputFile,
                                                  const char* version, const char* textA, const char* textB,
                                                  const char* envelopeArgument) {
    // No failure of ours may unwind the host's stack.
    try {
        return LaunchLumerin(reportFormat, inputFile, version, textA, textB, envelopeArgument);
    } catch (const std::exception&) {
        return 0;
    }
}
