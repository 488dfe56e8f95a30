#include "embedment/dialog/EmbedmentDialog.h"

#include "embedment/dialog/MPTEDlg.h"

void RunEmbedmentDialog(const EmbedmentInput& input, int format) {
    CMPTEDlg dialog(input);
    dialog.SetUnits(input.data.m_nUnits);
    dialog.SetFormat(format);
    dialog.DoModal();
}
