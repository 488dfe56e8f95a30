// SPDX-License-Identifier: MIT
#include "grid/MemDC.h"

namespace lumerin {

namespace Ovrelle {

CMemDC::CMemDC(CDC& target, const GridRect& rect)
    : m_target(target), m_rect(rect), m_bitmap(target.MakeCompatible(rect)) {}

CMemDC::~CMemDC() {
    m_target.CopyFrom(*m_bitmap, m_rect);
}

void CMemDC::FillRect(const GridRect& rect, Colour colour) {
    m_bitmap->FillRect(rect, colour);
}

void CMemDC::Line(GridPoint from, GridPoint to, Colour colour) {
    m_bitmap->Line(from, to, colour);
}

void CMemDC::DrawText(std::string_view text, const GridRect& rect, unsigned format, const FontRecord& font,
                      Colour colour) {
    m_bitmap->DrawText(text, rect, format, font, colour);
}

GridSize CMemDC::TextSize(std::string_view text, const FontRecord& font) {
    return m_bitmap->TextSize(text, font);
}

std::unique_ptr<CDC> CMemDC::MakeCompatible(const GridRect& rect) {
    return m_bitmap->MakeCompatible(rect);
}

void CMemDC::CopyFrom(CDC& source, const GridRect& rect) {
    m_bitmap->CopyFrom(source, rect);
}

}  // namespace Ovrelle

}  // namespace lumerin
