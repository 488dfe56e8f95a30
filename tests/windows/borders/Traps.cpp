// SPDX-License-Identifier: MIT
// A host with floating-point traps: the module works with all floating-point faults masked and restores the
// host's state on every way out.
#include <xmmintrin.h>

#include <cstdio>

#include "FailingMemory.h"
#include "Stage.h"
#include "session/ReportControls.h"

namespace lumerin {

namespace {

struct FloatState {
    unsigned short control = 0;
    unsigned sse = 0;
    bool operator==(const FloatState&) const = default;
};

// Invalid operations, divisions by zero and overflows trap; 53 bits, rounding down. The flags of faults are
// none.
constexpr FloatState kHost{0x672, 0x1f80 & ~0x680u};
constexpr FloatState kMasked{0x37f, 0x1f80};

FloatState Read() {
    FloatState state;
    asm volatile("fnstcw %0" : "=m"(state.control));
    state.sse = _mm_getcsr();
    return state;
}

void Set(const FloatState& state) {
    asm volatile("fnclex\n\tfldcw %0" : : "m"(state.control));
    _mm_setcsr(state.sse);
}

void CheckState(const FloatState& state, const FloatState& wanted, const std::string& when) {
    if (state == wanted) return;
    char text[200];
    std::snprintf(text, sizeof text, "%s the control words are %x and %x, not %x and %x", when.c_str(),
                  static_cast<unsigned>(state.control), state.sse, static_cast<unsigned>(wanted.control),
                  wanted.sse);
    Check(false, text);
}

// One call with traps on; returns its result.
unsigned Call(ModuleExport launch, const char* project, const std::string& what) {
    Set(kHost);
    const unsigned result = launch(2, project, "4.17", "", "", "");
    const FloatState after = Read();
    Set(kMasked);
    CheckState(after, kHost, "after " + what);
    return result;
}

}  // namespace

void TestTraps(const Words& words) {
    const char* project = words.at(0).c_str();
    const Module module = LoadModule();
    Check(failing::Hook(module.handle), "the module allocates by the C library");
    enum class Way { close, escape } way = Way::close;
    bool again = false;
    int visited = 0;
    Visits visits([&](HWND dialog) {
        ++visited;
        FloatState inside = Read();
        inside.sse &= ~0x3fu;  // the flags of faults
        CheckState(inside, kMasked, "in the dialog");
        if (again) {
            Check(Call(module.launch, project, "a refused call") == 0, "the second call is refused");
        }
        for (const int button : {IDC_FORMAT_PDF, IDC_MAX_AXIAL, IDC_PILE_DC, IDC_COLUMN_DC, IDC_CAP_SHEAR,
                                 IDC_CAP_MOMENT, IDC_PILE_FORCES, IDC_COLUMN_FORCES, IDC_CAP_ENVELOPES,
                                 IDC_FORMAT_EXCEL, IDC_PILE_HEADS, IDC_FORMAT_TEXT, IDC_FULL_REPORT}) {
            Press(dialog, button);
        }
        if (way == Way::close) Press(dialog, 1);
        if (way == Way::escape) Cancel(dialog);
    });
    Check(Call(module.launch, project, "Close") == 1, "Close gives 1");
    way = Way::escape;
    Check(Call(module.launch, project, "Esc") == 0, "Esc gives 0");
    again = true;
    Call(module.launch, project, "a call that refused another one");
    again = false;
    Check(visited == 3, "three dialogs were opened");
    // The call ends before its dialog, where there is no memory for that.
    for (const long number : {0, 1, 2, 3, 4}) {
        failing::Arm(number, true);
        const unsigned result = Call(module.launch, project, "a call without memory");
        failing::Disarm();
        Check(result == 0, "a call without memory gives 0");
    }
}

}  // namespace lumerin
