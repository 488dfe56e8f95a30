// SPDX-License-Identifier: MIT
#include "framework/win32/Windows32.h"
// These headers need windows.h before them.
#include <ole2.h>
#include <xmmintrin.h>

#include "framework/win32/Failures.h"

namespace lumerin {

// Changes the state of the host and its thread for one call of the export, and restores it.

namespace {

// The control words of both floating-point units of the processor: masks of faults, flags of faults that
// happened, and rounding.
class FloatingPoint {
  public:
    // All faults masked, 64 bits of mantissa, rounding to nearest: the setting with which the numbers were
    // checked.
    void SaveAndMask() {
        asm volatile("fnstenv %0" : "=m"(m_environment));
        m_sse = _mm_getcsr();
        const unsigned short control = 0x37f;
        asm volatile("fnclex\n\tfldcw %0" : : "m"(control));
        _mm_setcsr(0x1f80);
    }
    // A fault flag that was set during the call must not be seen by the host.
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
    // When the host has initialised OLE already, this increases its count.
    if (!State().usesOle) State().usesOle = SUCCEEDED(OleInitialize(nullptr));
    return State().usesOle;
}

}  // namespace win32

}  // namespace lumerin
