// SPDX-License-Identifier: MIT
#include "framework/win32/WindowHook.h"

#include <new>

#include "framework/win32/Failures.h"

namespace lumerin {

namespace {

constexpr const char* kTargetProperty = "FrameworkHookTarget";
constexpr const char* kProcedureProperty = "FrameworkHookProcedure";

WNDPROC OwnProcedure(HWND window) {
    return reinterpret_cast<WNDPROC>(GetPropA(window, kProcedureProperty));
}

LRESULT CallProcedure(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return procedure != nullptr ? CallWindowProcA(procedure, window, message, wParam, lParam)
                                : DefWindowProcA(window, message, wParam, lParam);
}

LRESULT CALLBACK HookProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    auto* target = static_cast<win32::MessageTarget*>(GetPropA(window, kTargetProperty));
    const WNDPROC own = OwnProcedure(window);  // the message may remove the hook
    if (message == WM_NCDESTROY) {
        win32::UnhookWindow(window);
        if (target != nullptr) target->OnGone();
        return CallProcedure(own, window, message, wParam, lParam);
    }
    if (target == nullptr) return CallProcedure(own, window, message, wParam, lParam);
    win32::NoteMessage(message);
    LRESULT result = 0;
    bool handled = true;
    win32::RunBorder([&] { handled = target->OnMessage(message, wParam, lParam, result); });
    return handled ? result : CallProcedure(own, window, message, wParam, lParam);
}

}  // namespace

namespace win32 {

void HookWindow(HWND window, MessageTarget& target) {
    const bool hooked = OwnProcedure(window) != nullptr;
    if (!SetPropA(window, kTargetProperty, &target)) throw std::bad_alloc();
    if (hooked) return;
    const LONG_PTR own = GetWindowLongPtrA(window, GWLP_WNDPROC);
    if (!SetPropA(window, kProcedureProperty, reinterpret_cast<HANDLE>(own))) {
        RemovePropA(window, kTargetProperty);
        throw std::bad_alloc();
    }
    SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&HookProcedure));
}

void UnhookWindow(HWND window) noexcept {
    RemovePropA(window, kTargetProperty);
    // When another hook was set later, it still calls ours, which then passes everything to the window.
    if (GetWindowLongPtrA(window, GWLP_WNDPROC) != reinterpret_cast<LONG_PTR>(&HookProcedure)) return;
    const HANDLE own = RemovePropA(window, kProcedureProperty);
    SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(own));
}

LRESULT CallOwnProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    return CallProcedure(OwnProcedure(window), window, message, wParam, lParam);
}

}  // namespace win32

}  // namespace lumerin
