// SPDX-License-Identifier: MIT
#include "embedment/dialog/EmbedmentDialog.h"

#include "embedment/dialog/MPTEDlg.h"

namespace lumerin {

void RunEmbedmentDialog(const EmbedmentInput& input, int format) {
    CMPTEDlg dialog(input);
    dialog.SetUnits(input.data.m_nUnits);
    dialog.SetFormat(format);
    dialog.DoModal();
}

}  // namespace lumerin
