// SPDX-License-Identifier: MIT
#include "session/Launch.h"

#include <atomic>
#include <string>

#include "framework/Backend.h"
#include "framework/WholeFile.h"
#include "session/Constants.h"
#include "session/DesignerDlg.h"
#include "session/ProgramFiles.h"
#include "session/Session.h"
#include "text/Product.h"

namespace lumerin {

namespace {

std::string TextOrEmpty(const char* text) {
    return text == nullptr ? std::string() : std::string(text);
}

std::string TrimBlanks(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string HostText(const char* argument) {
    std::string text = TextOrEmpty(argument);
    StripQuotes(text);
    return TrimBlanks(text);
}

unsigned Launch(int reportFormat, const char* inputFile, const char* version, const char* textA,
                const char* textB, const char* envelopeArgument) {
    WholeFile::BeginRun();
    g_HostProgramPath = HostProgramPath();
    TrimRightCharacters(g_HostProgramPath, g_ModuleFileName);
    g_InitialReportFormat = reportFormat;
    g_InputFilePath = TextOrEmpty(inputFile);
    DerivePaths();
    g_DataLoaded = false;
    g_VersionText = TextOrEmpty(version);
    g_VersionLabel = "v" + g_VersionText;
    g_HostTextA = HostText(textA);
    g_HostTextB = HostText(textB);
    g_EnvelopePlotArgument = TrimBlanks(TextOrEmpty(envelopeArgument));

    int result = IDCANCEL;
    {
        CDesignerDlg dialog;
        result = dialog.DoModal();
        EndSessionProject(dialog.State());
    }
    return result == IDOK ? 1u : 0u;
}

// The running call. Meanwhile another call, on any thread, is refused, because both would work on one session
// and one model.
class RunningCall {
  public:
    RunningCall() : m_first(!Flag().test_and_set()) {
        if (m_first) backend::EnterCall();
    }
    RunningCall(const RunningCall&) = delete;
    RunningCall& operator=(const RunningCall&) = delete;
    ~RunningCall() {
        if (!m_first) return;
        backend::LeaveCall();
        Flag().clear();
    }
    bool IsFirst() const { return m_first; }

  private:
    static std::atomic_flag& Flag() {
        static constinit std::atomic_flag flag;
        return flag;
    }
    const bool m_first;
};

}  // namespace

unsigned LaunchLumerin(int reportFormat, const char* inputFile, const char* version, const char* textA,
                       const char* textB, const char* envelopeArgument) {
    const RunningCall call;
    if (!call.IsFirst()) return 0u;
    SetApplicationName(kApplicationName);
    try {
        return Launch(reportFormat, inputFile, version, textA, textB, envelopeArgument);
    } catch (...) {
        // No memory for the dialog itself. No exception may reach the host, whose model may be unsaved.
        g_DataSet.FreePiers();
        return 0u;
    }
}

}  // namespace lumerin
