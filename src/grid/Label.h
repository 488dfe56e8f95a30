// SPDX-License-Identifier: MIT
#pragma once

#include "framework/Window.h"
#include "grid/GridTypes.h"

namespace lumerin {

// A static text that can act as a link: it changes colour under the pointer and shows the hand cursor.
// Without SetScale it looks like any text of its dialog.
class CLabel : public CStatic {
  public:
    static const CRuntimeClass classCLabel;
    const CRuntimeClass& GetRuntimeClass() const override { return classCLabel; }

    CLabel();
    void OnAttach() override;

    // Makes the text a link whose letters are 12 pixels high times `factor`.
    void SetScale(double factor);
    // Called by the window when the pointer moves over the text.
    void OnMouseMove() { SetHover(true); }
    void SetHover(bool hover);
    bool IsHover() const { return m_bHover; }

    Colour TextColour() const { return m_crText; }
    const FontRecord& Font() const { return m_font; }
    bool HasHandCursor() const { return m_bHandCursor; }
    // Drawn transparently over the face colour of the dialog.
    Colour FaceColour() const { return m_crFace; }

  private:
    Colour m_crText, m_crFace;
    FontRecord m_font;
    bool m_bHover = false, m_bHandCursor = false;
    WindowHandle m_hAttached = nullptr;
};

inline const CRuntimeClass CLabel::classCLabel{"CLabel", &CWnd::classCWnd};

// The factor by which the screen is finer than 96 pixels an inch; at least 1.
double ScreenScale();

namespace gridplatform {

// Lets the label's window draw itself and report the pointer.
void AttachLabel(CLabel& label);
void RedrawLabel(CLabel& label);

}  // namespace gridplatform

}  // namespace lumerin
