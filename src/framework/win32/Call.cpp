// SPDX-License-Identifier: MIT
#include "framework/win32/Windows32.h"
// OLE and the processor's control words want windows.h before them.
#include <ole2.h>
#include <xmmintrin.h>

#include "framework/win32/Failures.h"

namespace lumerin {

// What one call of the export borrows from the host and its thread, and gives back.

namespace {

// How the processor treats floating-point faults and rounding, of both of its units. The flags of faults that
// happened are in it.
class FloatingPoint {
  public:
    // All faults masked, 64 bits of mantissa, rounding to nearest: what numbers were checked with.
    void SaveAndMask() {
        asm volatile("fnstenv %0" : "=m"(m_environment));
        m_sse = _mm_getcsr();
        const unsigned short control = 0x37f;
        asm volatile("fnclex\n\tfldcw %0" : : "m"(control));
        _mm_setcsr(0x1f80);
    }
    // A fault that was flagged meanwhile must not become one of the host's.
    void Restore() const {
        asm volatile("fnclex\n\tfldenv %0" : : "m"(m_environment));
        _mm_setcsr(m_sse);
    }

  private:
    struct Environment {
        unsigned words[7];
    };
    Environment m_environment{};
    unsigned m_sse = 0;
};

struct CallState {
    FloatingPoint floatingPoint;
    bool usesOle = false;
};

// One call runs at a time.
CallState& State() {
    static CallState state;
    return state;
}

}  // namespace

namespace backend {

void EnterCall() noexcept {
    State().floatingPoint.SaveAndMask();
    win32::ResetWaitCursor();
    win32::ForgetFailures();
}

void LeaveCall() noexcept {
    win32::ForgetFailures();
    if (State().usesOle) OleUninitialize();
    State().usesOle = false;
    State().floatingPoint.Restore();
}

}  // namespace backend

namespace win32 {

bool UseOle() noexcept {
    // Where the host has initialised it already this counts one more.
    if (!State().usesOle) State().usesOle = SUCCEEDED(OleInitialize(nullptr));
    return State().usesOle;
}

}  // namespace win32

}  // namespace lumerin
