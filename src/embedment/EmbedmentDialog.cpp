#include "embedment/EmbedmentDialog.h"

#include "embedment/MPTEDlg.h"

void RunEmbedmentDialog(int units, int format) {
    CMPTEDlg dialog;
    dialog.SetUnits(units);
    dialog.SetFormat(format);
    dialog.DoModal();
}
