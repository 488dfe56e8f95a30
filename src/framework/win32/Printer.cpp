// SPDX-License-Identifier: MIT
#include "framework/Index.h"
#include "framework/win32/Windows32.h"
// This header needs windows.h before it.
#include <winspool.h>

#include <array>
#include <string>
#include <vector>

namespace lumerin {

// The application's own copy of the default printer's settings. Only this copy is changed; the printer and
// the host are not affected.

namespace {

class PrinterHandle {
  public:
    explicit PrinterHandle(std::string name) {
        if (!OpenPrinterA(name.data(), &m_handle, nullptr)) m_handle = nullptr;
    }
    PrinterHandle(const PrinterHandle&) = delete;
    PrinterHandle& operator=(const PrinterHandle&) = delete;
    ~PrinterHandle() {
        if (m_handle != nullptr) ClosePrinter(m_handle);
    }
    HANDLE Get() const { return m_handle; }

  private:
    HANDLE m_handle = nullptr;
};

std::string DefaultPrinter() {
    std::array<char, 512> name{};
    auto size = static_cast<DWORD>(name.size());
    return GetDefaultPrinterA(name.data(), &size) ? std::string(name.data()) : std::string();
}

// Bytes of a DEVMODE followed by the driver's part; empty where the machine has no default printer.
std::vector<char> ReadDefaults() {
    std::string name = DefaultPrinter();
    if (name.empty()) return {};
    const PrinterHandle printer(name);
    if (printer.Get() == nullptr) return {};
    const LONG size = DocumentPropertiesA(nullptr, printer.Get(), name.data(), nullptr, nullptr, 0);
    if (size < static_cast<LONG>(sizeof(DEVMODEA))) return {};
    std::vector<char> settings(Index(size));
    auto* mode = reinterpret_cast<DEVMODEA*>(settings.data());
    const LONG read = DocumentPropertiesA(nullptr, printer.Get(), name.data(), mode, nullptr, DM_OUT_BUFFER);
    if (read < 0) settings.clear();
    return settings;
}

}  // namespace

namespace services {

void SetPrinterLandscape(bool landscape) {
    static std::vector<char> settings;
    if (settings.empty()) settings = ReadDefaults();
    if (settings.empty()) return;
    auto* mode = reinterpret_cast<DEVMODEA*>(settings.data());
    mode->dmOrientation = landscape ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
    mode->dmFields |= DM_ORIENTATION;
}

}  // namespace services

}  // namespace lumerin
