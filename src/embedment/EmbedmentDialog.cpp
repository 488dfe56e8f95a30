#include "embedment/EmbedmentDialog.h"

#include "framework/Backend.h"

// Until the dialog of the study is built.
void RunEmbedmentDialog(int /*units*/, int /*format*/) {
    AfxMessageBox("The embedment study is not built yet.", MessageIcon::error);
}
