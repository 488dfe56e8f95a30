// SPDX-License-Identifier: MIT
#include "grid/Label.h"

#include <algorithm>

namespace lumerin {

namespace {

constexpr Colour kLinkColour = 0xcc6600;
constexpr Colour kHoverColour = 0xff0000;
constexpr double kLinkHeight = 12.0;
constexpr double kBaseDpi = 96.0;

}  // namespace

double ScreenScale() {
    return std::max(1.0, gridplatform::ScreenDpi() / kBaseDpi);
}

CLabel::CLabel()
    : m_crText(gridplatform::SystemColour(kColourWindowText)),
      m_crFace(gridplatform::SystemColour(kColourFace)) {}

void CLabel::OnAttach() {
    // Every data exchange binds the control anew.
    if (m_hWnd == m_hAttached) return;
    gridplatform::AttachLabel(*this);
    m_hAttached = m_hWnd;
}

void CLabel::SetScale(double factor) {
    m_font = FontRecord{"Segoe UI", -static_cast<int>(kLinkHeight * factor), false};
    m_crText = kLinkColour;
    m_bHandCursor = true;
    gridplatform::RedrawLabel(*this);
}

void CLabel::SetHover(bool hover) {
    const Colour colour = hover ? kHoverColour : kLinkColour;
    if (hover == m_bHover && colour == m_crText) return;
    m_bHover = hover;
    m_crText = colour;
    gridplatform::RedrawLabel(*this);
}

}  // namespace lumerin
